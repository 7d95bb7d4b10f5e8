// Small pieces of the design: verdict, short tables, bars. Each says in words what it paints, for
// whoever does not see it.
#pragma once

#include <QWidget>
#include <vector>

#include "core/verificacion.h"

namespace zorbin {

/// A verdict by shape, colour and words.
class Insignia : public QWidget {
 public:
  using QWidget::QWidget;
  void Pon(Veredicto veredicto, const QString& texto);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* suceso) override;

 private:
  Veredicto veredicto_ = Veredicto::SinComprobar;
  QString texto_;
};

/// Colour and sign of a verdict.
QColor ColorVeredicto(Veredicto veredicto, const QPalette& colores);
QChar SignoVeredicto(Veredicto veredicto);

/// Rows of words and figures; the first column at the left, the others at the right.
class TablaCorta : public QWidget {
 public:
  struct Fila {
    std::vector<QString> celdas;
    bool destacada = false;
  };
  using QWidget::QWidget;
  /// @param cabeza  the first row is the head
  void Pon(std::vector<Fila> filas, bool cabeza);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {120, sizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent* suceso) override;

 private:
  std::vector<Fila> filas_;
  bool cabeza_ = false;

  int AltoFila() const { return fontMetrics().height() + 6; }
  std::vector<int> Anchos() const;
};

/// A bar for each of some values.
class Barras : public QWidget {
 public:
  struct Barra {
    QString nombre;
    QString texto;     // of the value
    double valor = 0;  // 0 for no bar
    bool destacada = false;
    bool pasa = false;  // beyond what complies
  };
  using QWidget::QWidget;
  /// @param limite  marked across the bars; 0 for none
  void Pon(std::vector<Barra> barras, double limite);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {160, sizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent* suceso) override;

 private:
  std::vector<Barra> barras_;
  double limite_ = 0;

  int AltoFila() const { return fontMetrics().height() + 5; }
};

}  // namespace zorbin
