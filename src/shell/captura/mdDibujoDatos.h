// The drawing of the data beside their fields: small on the page, large in a window of its own,
// which follows the data as the page does.
#pragma once

#include <QDialog>

#include "shell/dibujos/mdVistaLamina.h"

namespace zorbin {

class DibujoDatos : public VistaLamina {
  Q_OBJECT

 public:
  explicit DibujoDatos(const Entorno& entorno, QWidget* padre = nullptr);
  void PonDibujo(Dibuja dibuja);
  const Dibuja& dibujo() const { return dibujo_; }

 signals:
  void renovado();
  /// To be seen large.
  void dobleClic();

 protected:
  void mouseDoubleClickEvent(QMouseEvent* suceso) override;

 private:
  Dibuja dibujo_;
};

class frDibujo : public QDialog {
  Q_OBJECT

 public:
  /// @param pequeno  the drawing of the page; the window goes with it
  frDibujo(const Entorno& entorno, DibujoDatos& pequeno, const QString& titulo, QWidget* padre);
};

}  // namespace zorbin
