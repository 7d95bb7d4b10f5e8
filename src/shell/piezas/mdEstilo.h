// How controls are drawn: flat, with a border that is seen on any background, thicker and in the
// colour of links where the focus is, in that of refusals where the field bears one.
#pragma once

#include <QProxyStyle>

namespace zorbin {

class EstiloZorbin : public QProxyStyle {
  Q_OBJECT

 public:
  EstiloZorbin();

  void polish(QWidget* widget) override;
  using QProxyStyle::polish;
  void drawPrimitive(PrimitiveElement pieza, const QStyleOption* opcion, QPainter* pintor,
                     const QWidget* widget) const override;
  void drawControl(ControlElement pieza, const QStyleOption* opcion, QPainter* pintor,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl pieza, const QStyleOptionComplex* opcion, QPainter* pintor,
                          const QWidget* widget) const override;

 protected:
  bool eventFilter(QObject* objeto, QEvent* suceso) override;
};

}  // namespace zorbin
