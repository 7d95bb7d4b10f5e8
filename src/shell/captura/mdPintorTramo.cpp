#include "shell/captura/mdPintorTramo.h"

#include <QApplication>
#include <QPainter>

#include "shell/piezas/mdTema.h"

namespace zorbin {

namespace {

constexpr int kMargen = 6;  // [px]
constexpr int kSenal = 12;  // side of the mark of the state [px]

// A tick, a cross, a triangle or an empty ring: each is told without its colour too.
void PintaEstado(QPainter& p, const QRectF& r, const SenasTramo& senas, const QPalette& paleta,
                 bool elegido) {
  const auto color = [&](const QColor& suyo) {
    return elegido ? paleta.color(QPalette::HighlightedText) : suyo;
  };
  const auto en = [&r](double x, double y) {
    return QPointF(r.left() + x * r.width(), r.top() + y * r.height());
  };
  const auto pluma = [&p](const QColor& c) {
    p.setPen(QPen(c, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  };
  p.setBrush(Qt::NoBrush);
  if (senas.conFaltas || senas.estado == EstadoTramo::Falla) {
    pluma(color(ColorAviso(paleta)));
    p.drawPolygon(QPolygonF{{en(.5, .05), en(1, .95), en(0, .95)}});
    p.drawLine(en(.5, .42), en(.5, .66));
  } else if (senas.estado == EstadoTramo::NoCumple) {
    pluma(color(ColorFalta(paleta)));
    p.drawLine(en(.1, .1), en(.9, .9));
    p.drawLine(en(.9, .1), en(.1, .9));
  } else if (senas.estado == EstadoTramo::Cumple) {
    pluma(color(ColorBien(paleta)));
    p.drawPolyline(QPolygonF{{en(.05, .55), en(.4, .9), en(.95, .15)}});
  } else {
    pluma(color(paleta.color(QPalette::Dark)));
    p.drawEllipse(r.adjusted(2, 2, -2, -2));
  }
}

}  // namespace

void PintorTramo::paint(QPainter* pintor, const QStyleOptionViewItem& opcion,
                        const QModelIndex& indice) const {
  QStyleOptionViewItem o(opcion);
  initStyleOption(&o, indice);
  o.text.clear();
  const auto* estilo = o.widget != nullptr ? o.widget->style() : QApplication::style();
  estilo->drawControl(QStyle::CE_ItemViewItem, &o, pintor, o.widget);
  const auto senas = indice.data(kPapel).value<SenasTramo>();
  const bool elegido = o.state & QStyle::State_Selected;
  const int linea = o.fontMetrics.lineSpacing();
  const int arriba = o.rect.top() + (o.rect.height() - 2 * linea) / 2;
  const int izquierda = o.rect.left() + kMargen + kSenal + kMargen;
  const int ancho = o.rect.right() - kMargen - izquierda;
  pintor->save();
  pintor->setRenderHint(QPainter::Antialiasing);
  PintaEstado(*pintor,
              QRectF(o.rect.left() + kMargen, arriba + (linea - kSenal) / 2.0, kSenal, kSenal),
              senas, o.palette, elegido);
  const auto escribe = [&](int y, const QString& texto, QPalette::ColorRole color) {
    pintor->setPen(o.palette.color(elegido ? QPalette::HighlightedText : color));
    pintor->drawText(QRect(izquierda, y, ancho, linea), Qt::AlignLeft | Qt::AlignVCenter,
                     pintor->fontMetrics().elidedText(texto, Qt::ElideRight, ancho));
  };
  QFont letra = o.font;
  letra.setBold(senas.sinGrabar);
  pintor->setFont(letra);
  escribe(arriba, senas.titulo, QPalette::Text);
  letra.setBold(false);
  pintor->setFont(letra);
  escribe(arriba + linea, senas.detalle, QPalette::PlaceholderText);
  pintor->restore();
}

QSize PintorTramo::sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex&) const {
  return {0, 2 * opcion.fontMetrics.lineSpacing() + 2 * kMargen};
}

}  // namespace zorbin
