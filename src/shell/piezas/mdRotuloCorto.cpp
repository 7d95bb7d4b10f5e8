#include "shell/piezas/mdRotuloCorto.h"

#include <QPainter>
#include <QStyle>

namespace zorbin {

RotuloCorto::RotuloCorto(QWidget* padre) : QLabel(padre) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void RotuloCorto::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  const QString linea = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
  style()->drawItemText(&pintor, contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                        palette(), isEnabled(), linea, foregroundRole());
}

}  // namespace zorbin
