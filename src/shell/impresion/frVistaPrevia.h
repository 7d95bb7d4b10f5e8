// The sheets of a document on the screen, before they go to paper.
#pragma once

#include <QAbstractScrollArea>
#include <QDialog>
#include <QString>
#include <vector>

#include "listados/pintor/mdPintor.h"
#include "shell/piezas/mdEntorno.h"

class QLabel;
class QToolButton;

namespace zorbin {

/// The sheets one under the other, as paper: white in every theme. Only those in view are painted.
class VistaHojas : public QAbstractScrollArea {
  Q_OBJECT

 public:
  enum class Ajuste { Ancho, Pagina, Libre };

  /// @throws ErrorFuente
  explicit VistaHojas(std::vector<Hoja> hojas, QWidget* padre = nullptr);

  const std::vector<Hoja>& Hojas() const { return hojas_; }
  int Pagina() const;  // at the top of the view, from 1
  void VaAPagina(int pagina);
  void Ajusta(Ajuste ajuste);
  void Amplia(double veces);
  Ajuste AjusteActual() const { return ajuste_; }

 signals:
  void cambia();

 protected:
  void paintEvent(QPaintEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;

 private:
  std::vector<Hoja> hojas_;
  Pintor pintor_;
  Ajuste ajuste_ = Ajuste::Ancho;
  double porMm_ = 4.0;          // pixels for a millimetre
  double ancho_ = 0;            // of the widest sheet [mm]
  double alto_ = 0;             // of the tallest [mm]
  std::vector<double> altura_;  // of the top of each sheet, without the gaps above it [mm]
  double total_ = 0;            // of all sheets [mm]

  double Arriba(std::size_t i) const;  // of a sheet [pixels]
  void Dispone();
};

class frVistaPrevia : public QDialog {
  Q_OBJECT

 public:
  /// Printing goes through the service, with the sheets shown. @throws ErrorFuente
  frVistaPrevia(const Catalogo& textos, Preferencias& preferencias, ServicioImpresion& impresion,
                const QString& nombre, std::vector<Hoja> hojas, QWidget* padre);
  ~frVistaPrevia() override;

 private:
  const Catalogo& textos_;
  Preferencias& preferencias_;
  ServicioImpresion& impresion_;
  QString nombre_;
  VistaHojas* vista_;
  QLabel* pagina_ = nullptr;
  QToolButton* anterior_ = nullptr;
  QToolButton* siguiente_ = nullptr;
  QToolButton* ajusteAncho_ = nullptr;
  QToolButton* ajustePagina_ = nullptr;

  QToolButton* Boton(const QString& rotulo, const QString& consejo);
  void CreaBarra();
  void Renueva();
  void Imprime();
};

}  // namespace zorbin
