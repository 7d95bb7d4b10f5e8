#include "shell/piezas/mdEstilo.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QPainter>
#include <QStyleOption>

#include "shell/piezas/mdTema.h"

namespace zorbin {

namespace {

constexpr double kRadio = 4.0;  // [px]
constexpr double kFoco = 2.0;   // width of the border where the focus is [px]

QColor Borde(const QStyleOption& opcion, const QWidget* widget) {
  if (widget != nullptr && widget->property(kPropiedadFalta).toBool()) {
    return ColorFalta(opcion.palette);
  }
  if (opcion.state & QStyle::State_HasFocus) return opcion.palette.color(QPalette::Link);
  return opcion.palette.color(QPalette::Dark);
}

double Grueso(const QStyleOption& opcion, const QWidget* widget) {
  const bool falta = widget != nullptr && widget->property(kPropiedadFalta).toBool();
  return falta || (opcion.state & QStyle::State_HasFocus) ? kFoco : 1.0;
}

void Caja(QPainter& p, const QRect& sitio, const QBrush& fondo, const QColor& borde, double grueso,
          double radio = kRadio) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setBrush(fondo);
  p.setPen(QPen(borde, grueso));
  const double dentro = grueso / 2;
  p.drawRoundedRect(QRectF(sitio).adjusted(dentro, dentro, -dentro, -dentro), radio, radio);
  p.restore();
}

void Linea(QPainter& p, const QColor& color, std::initializer_list<QPointF> puntos) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.drawPolyline(QPolygonF(puntos));
  p.restore();
}

void Casilla(QPainter& p, const QStyleOption& o, const QWidget* widget) {
  const bool puesta = o.state & (QStyle::State_On | QStyle::State_NoChange);
  const QColor fondo = o.palette.color(puesta ? QPalette::Highlight : QPalette::Base);
  Caja(p, o.rect, fondo, Borde(o, widget), Grueso(o, widget), 3);
  if (!puesta) return;
  const QRectF r = o.rect;
  const auto en = [&](double x, double y) {
    return QPointF(r.left() + x * r.width(), r.top() + y * r.height());
  };
  const QColor signo = o.palette.color(QPalette::HighlightedText);
  if (o.state & QStyle::State_NoChange) return Linea(p, signo, {en(.25, .5), en(.75, .5)});
  Linea(p, signo, {en(.22, .52), en(.42, .72), en(.78, .3)});
}

void Redondel(QPainter& p, const QStyleOption& o, const QWidget* widget) {
  const double radio = o.rect.width() / 2.0;
  const bool puesto = o.state & QStyle::State_On;
  Caja(p, o.rect, o.palette.color(QPalette::Base), Borde(o, widget), Grueso(o, widget), radio);
  if (!puesto) return;
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  p.setBrush(o.palette.color(QPalette::Highlight));
  p.drawEllipse(QRectF(o.rect).center(), radio * 0.5, radio * 0.5);
  p.restore();
}

void Boton(QPainter& p, const QStyleOptionButton& o, const QWidget* widget) {
  const bool hundido = o.state & (QStyle::State_Sunken | QStyle::State_On);
  const bool encima = (o.state & QStyle::State_MouseOver) && (o.state & QStyle::State_Enabled);
  const bool foco = o.state & QStyle::State_HasFocus;
  const bool llano = o.features & QStyleOptionButton::Flat;
  if (llano && !hundido && !encima && !foco) return;
  const auto fondo = o.palette.color(hundido  ? QPalette::Mid
                                     : encima ? QPalette::Midlight
                                     : llano  ? QPalette::Window
                                              : QPalette::Button);
  const bool manda = o.features & QStyleOptionButton::DefaultButton;
  const QColor borde = manda ? o.palette.color(QPalette::Link) : Borde(o, widget);
  Caja(p, o.rect, fondo, borde, Grueso(o, widget));
}

void Desplegable(QPainter& p, const QStyleOptionComboBox& o, const QWidget* widget,
                 const QStyle& estilo) {
  Caja(p, o.rect, o.palette.brush(QPalette::Base), Borde(o, widget), Grueso(o, widget));
  const QRect flecha =
      estilo.subControlRect(QStyle::CC_ComboBox, &o, QStyle::SC_ComboBoxArrow, widget);
  const QPointF c = QRectF(flecha).center();
  Linea(p, o.palette.color(QPalette::Text),
        {c + QPointF(-4, -2), c + QPointF(0, 2), c + QPointF(4, -2)});
}

void Pestana(QPainter& p, const QStyleOptionTab& o) {
  const bool delante = o.state & QStyle::State_Selected;
  if (!delante && (o.state & QStyle::State_MouseOver)) {
    p.fillRect(o.rect, o.palette.color(QPalette::Midlight));
  }
  const QRect raya(o.rect.left(), o.rect.bottom() - 1, o.rect.width(), 2);
  p.fillRect(raya, o.palette.color(delante ? QPalette::Link : QPalette::Mid));
}

}  // namespace

EstiloZorbin::EstiloZorbin() : QProxyStyle(QStringLiteral("fusion")) {}

// The frame of a list or of a text is drawn again when the focus comes and goes.
void EstiloZorbin::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (qobject_cast<QAbstractScrollArea*>(widget) != nullptr) widget->installEventFilter(this);
}

bool EstiloZorbin::eventFilter(QObject* objeto, QEvent* suceso) {
  if (suceso->type() == QEvent::FocusIn || suceso->type() == QEvent::FocusOut) {
    if (auto* widget = qobject_cast<QWidget*>(objeto)) widget->update();
  }
  return QProxyStyle::eventFilter(objeto, suceso);
}

void EstiloZorbin::drawPrimitive(PrimitiveElement pieza, const QStyleOption* opcion,
                                 QPainter* pintor, const QWidget* widget) const {
  const auto& o = *opcion;
  switch (pieza) {
    case PE_PanelLineEdit:
      if (const auto* marco = qstyleoption_cast<const QStyleOptionFrame*>(opcion);
          marco != nullptr && marco->lineWidth > 0) {
        return Caja(*pintor, o.rect, o.palette.brush(QPalette::Base), Borde(o, widget),
                    Grueso(o, widget));
      }
      break;
    case PE_FrameLineEdit:
      return Caja(*pintor, o.rect, Qt::NoBrush, Borde(o, widget), Grueso(o, widget));
    case PE_IndicatorCheckBox:
      return Casilla(*pintor, o, widget);
    case PE_IndicatorRadioButton:
      return Redondel(*pintor, o, widget);
    case PE_PanelButtonCommand:
      if (const auto* boton = qstyleoption_cast<const QStyleOptionButton*>(opcion)) {
        return Boton(*pintor, *boton, widget);
      }
      break;
    case PE_FrameFocusRect:
      return Caja(*pintor, o.rect, Qt::NoBrush, o.palette.color(QPalette::Link), 1.5, 2);
    case PE_FrameGroupBox:
      if (const auto* marco = qstyleoption_cast<const QStyleOptionFrame*>(opcion);
          marco != nullptr && (marco->features & QStyleOptionFrame::Flat)) {
        return;
      }
      return Caja(*pintor, o.rect, Qt::NoBrush, o.palette.color(QPalette::Mid), 1.0);
    default:
      break;
  }
  QProxyStyle::drawPrimitive(pieza, opcion, pintor, widget);
}

void EstiloZorbin::drawControl(ControlElement pieza, const QStyleOption* opcion, QPainter* pintor,
                               const QWidget* widget) const {
  if (pieza == CE_TabBarTabShape) {
    if (const auto* pestana = qstyleoption_cast<const QStyleOptionTab*>(opcion)) {
      return Pestana(*pintor, *pestana);
    }
  }
  QProxyStyle::drawControl(pieza, opcion, pintor, widget);
  const auto* zona = qobject_cast<const QAbstractScrollArea*>(widget);
  if (pieza != CE_ShapedFrame || zona == nullptr || zona->frameShape() == QFrame::NoFrame) return;
  QStyleOption marco(*opcion);
  marco.state.setFlag(State_HasFocus, zona->hasFocus());
  Caja(*pintor, opcion->rect, Qt::NoBrush, Borde(marco, widget), Grueso(marco, widget), 2);
}

void EstiloZorbin::drawComplexControl(ComplexControl pieza, const QStyleOptionComplex* opcion,
                                      QPainter* pintor, const QWidget* widget) const {
  if (pieza == CC_ComboBox) {
    if (const auto* lista = qstyleoption_cast<const QStyleOptionComboBox*>(opcion);
        lista != nullptr && lista->frame) {
      return Desplegable(*pintor, *lista, widget, *proxy());
    }
  }
  QProxyStyle::drawComplexControl(pieza, opcion, pintor, widget);
  if (pieza == CC_SpinBox) {
    Caja(*pintor, opcion->rect, Qt::NoBrush, Borde(*opcion, widget), Grueso(*opcion, widget));
  }
}

}  // namespace zorbin
