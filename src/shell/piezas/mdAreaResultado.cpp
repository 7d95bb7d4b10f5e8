#include "shell/piezas/mdAreaResultado.h"

#include <QFontDatabase>
#include <QScrollBar>
#include <cmath>

namespace zorbin {

namespace {

constexpr int kColumnasMinimas = 30;
constexpr int kLineasMinimas = 5;

}  // namespace

AreaResultado::AreaResultado(int columnas, int lineas, QWidget* padre)
    : QPlainTextEdit(padre), columnas_(columnas), lineas_(lineas) {
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setReadOnly(true);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setTabChangesFocus(true);
  setUndoRedoEnabled(false);
  // With the caret in it the text can be selected and copied from the keyboard.
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

QSize AreaResultado::sizeHint() const {
  return Caben(columnas_, lineas_);
}

QSize AreaResultado::minimumSizeHint() const {
  return Caben(kColumnasMinimas, kLineasMinimas);
}

QSize AreaResultado::Caben(int columnas, int lineas) const {
  const QFontMetricsF medidas(font());
  const double borde = 2.0 * (frameWidth() + document()->documentMargin());
  const double ancho = columnas * medidas.horizontalAdvance(QLatin1Char('0'));
  const double alto = lineas * medidas.lineSpacing();
  return {static_cast<int>(std::ceil(ancho + borde)) + verticalScrollBar()->sizeHint().width(),
          static_cast<int>(std::ceil(alto + borde))};
}

}  // namespace zorbin
