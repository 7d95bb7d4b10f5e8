// The pages of a report on the screen, as paper: white in every theme.
#pragma once

#include <QAbstractScrollArea>

#include "listados/informe/mdInforme.h"

namespace zorbin {

/// Pages one under the other, as wide as the view until a zoom is chosen. Only those in view are
/// painted.
class VistaInforme : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit VistaInforme(QWidget* padre = nullptr);

  /// Shows a report laid out on any thread; its letters are made anew on this one.
  void Pon(Informe informe);
  int Paginas() const { return static_cast<int>(informe_.paginas.size()); }
  void VaA(const memoria::LugarTexto& lugar);
  void Amplia(double veces);

 protected:
  void paintEvent(QPaintEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* suceso) override;
  void mousePressEvent(QMouseEvent* suceso) override;

 private:
  Informe informe_;
  double zoom_ = 0;  // 0: as wide as the view

  double PorPunto() const;  // pixels
  double Izquierda() const;
  double Arriba(std::size_t pagina) const;
  void Dispone();
};

}  // namespace zorbin
