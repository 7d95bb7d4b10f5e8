// Announcements in the status bar: as much of them as fits, and all of them on a click.
#pragma once

#include <QStringList>
#include <QToolButton>

#include "base/mdCatalogo.h"

namespace zorbin {

class AvisoEstado : public QToolButton {
  Q_OBJECT

 public:
  AvisoEstado(const Catalogo& textos, QWidget* padre);

  void Anade(const QString& texto);
  void Quita(const QString& texto);
  void Vacia();
  const QStringList& avisos() const { return avisos_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* suceso) override;

 private:
  const Catalogo& textos_;
  QStringList avisos_;

  void Renueva();
  void Ajusta();
  QString Linea() const;
  int Margen() const;  // of the icon and the edges [px]
};

}  // namespace zorbin
