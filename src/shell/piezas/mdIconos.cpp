#include "shell/piezas/mdIconos.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

namespace zorbin {

namespace {

// Drawn on a grid of 24, whatever the size asked for.
constexpr double kLado = 24.0;
const QColor kAmbar(0xc7, 0x7c, 0x02);
const QColor kRojo(0xd0, 0x34, 0x2c);

void Hoja(QPainter& p) {
  QPainterPath hoja;
  hoja.moveTo(6, 3);
  hoja.lineTo(14, 3);
  hoja.lineTo(18, 7);
  hoja.lineTo(18, 21);
  hoja.lineTo(6, 21);
  hoja.closeSubpath();
  p.drawPath(hoja);
  p.drawPolyline(QPolygonF{{14, 3}, {14, 7}, {18, 7}});
}

void Disco(QPainter& p) {
  p.drawPolygon(QPolygonF{{4, 4}, {17, 4}, {20, 7}, {20, 20}, {4, 20}});
  p.drawRect(QRectF(8, 4, 7, 5));
  p.drawRect(QRectF(7, 13, 10, 7));
}

void Carpeta(QPainter& p) {
  p.drawPolygon(QPolygonF{{3, 6}, {9, 6}, {11, 8}, {20, 8}, {20, 19}, {3, 19}});
  p.drawPolyline(QPolygonF{{3, 19}, {6, 11}, {22, 11}, {20, 19}});
}

void Impresora(QPainter& p) {
  p.drawRect(QRectF(4, 9, 16, 8));
  p.drawRect(QRectF(7, 3, 10, 6));
  p.drawRect(QRectF(7, 14, 10, 7));
}

void Anillo(QPainter& p) {
  p.drawEllipse(QPointF(12, 12), 9, 9);
  p.drawEllipse(QPointF(12, 12), 6, 6);
}

void Mas(QPainter& p, QPointF c) {
  p.drawLine(QPointF(c.x() - 3, c.y()), QPointF(c.x() + 3, c.y()));
  p.drawLine(QPointF(c.x(), c.y() - 3), QPointF(c.x(), c.y() + 3));
}

void Calculadora(QPainter& p) {
  p.drawRoundedRect(QRectF(5, 2, 14, 20), 2, 2);
  p.drawRect(QRectF(8, 5, 8, 4));
  for (int fila = 0; fila < 3; ++fila) {
    for (int columna = 0; columna < 3; ++columna) {
      p.drawPoint(QPointF(8.5 + 3.5 * columna, 12.5 + 3.0 * fila));
    }
  }
}

void Ajuste(QPainter& p) {
  for (int i = 0; i < 3; ++i) {
    const double x = 6.0 + 6.0 * i;
    p.drawLine(QPointF(x, 4), QPointF(x, 20));
  }
  p.setBrush(p.pen().color());
  p.drawEllipse(QPointF(6, 15), 2, 2);
  p.drawEllipse(QPointF(12, 8), 2, 2);
  p.drawEllipse(QPointF(18, 13), 2, 2);
}

void Aguas(QPainter& p) {
  for (int i = 0; i < 3; ++i) {
    QPainterPath onda(QPointF(3, 7 + 5.0 * i));
    onda.cubicTo(7, 3 + 5.0 * i, 8, 11 + 5.0 * i, 12, 7 + 5.0 * i);
    onda.cubicTo(16, 3 + 5.0 * i, 17, 11 + 5.0 * i, 21, 7 + 5.0 * i);
    p.drawPath(onda);
  }
}

void Matraz(QPainter& p) {
  p.drawPolyline(QPolygonF{{9, 3}, {9, 10}, {4, 20}, {20, 20}, {15, 10}, {15, 3}});
  p.drawLine(QPointF(8, 3), QPointF(16, 3));
  p.drawLine(QPointF(7, 15), QPointF(17, 15));
}

void Letra(QPainter& p, const QString& letra) {
  QFont fuente = p.font();
  fuente.setPixelSize(15);
  fuente.setBold(true);
  p.setFont(fuente);
  p.drawText(QRectF(0, 0, kLado, kLado), Qt::AlignCenter, letra);
}

void Candado(QPainter& p) {
  p.drawRect(QRectF(6, 11, 12, 9));
  p.drawArc(QRectF(8, 4, 8, 12), 0, 180 * 16);
}

void Punto(QPainter& p) {
  p.setPen(Qt::NoPen);
  p.setBrush(kAmbar);
  p.drawEllipse(QPointF(12, 12), 4.5, 4.5);
}

void Triangulo(QPainter& p) {
  p.setPen(QPen(kRojo, 1.6));
  p.drawPolygon(QPolygonF{{12, 3}, {22, 20}, {2, 20}});
  p.drawLine(QPointF(12, 9), QPointF(12, 14));
  p.drawPoint(QPointF(12, 17));
}

// An arrow that turns back; `sentido` is 1 to the left, -1 to the right.
void Vuelta(QPainter& p, int sentido) {
  const auto x = [sentido](double a) { return 12 + sentido * (a - 12); };
  QPainterPath camino(QPointF(x(5), 9));
  camino.lineTo(x(14), 9);
  camino.cubicTo(x(22), 9, x(22), 19, x(14), 19);
  camino.lineTo(x(8), 19);
  p.drawPath(camino);
  p.drawPolyline(QPolygonF{{x(9), 5}, {x(5), 9}, {x(9), 13}});
}

void Dibuja(QPainter& p, Icono icono) {
  switch (icono) {
    case Icono::Nueva:
      Hoja(p);
      return Mas(p, {12, 14});
    case Icono::Abrir:
      return Carpeta(p);
    case Icono::Grabar:
      return Disco(p);
    case Icono::Imprimir:
      return Impresora(p);
    case Icono::NuevoTramo:
      Anillo(p);
      return Mas(p, {12, 12});
    case Icono::Duplicar:
      p.drawEllipse(QPointF(9, 9), 6, 6);
      p.drawEllipse(QPointF(15, 15), 6, 6);
      return;
    case Icono::Deshacer:
      return Vuelta(p, 1);
    case Icono::Rehacer:
      return Vuelta(p, -1);
    case Icono::Calcular:
      return Calculadora(p);
    case Icono::Ajustar:
      return Ajuste(p);
    case Icono::Hidraulico:
      return Aguas(p);
    case Icono::Medios:
      return Matraz(p);
    case Icono::Ayuda:
      p.drawEllipse(QPointF(12, 12), 10, 10);
      return Letra(p, QStringLiteral("?"));
    case Icono::Requerido:
      return Punto(p);
    case Icono::Bloqueado:
      return Candado(p);
    case Icono::Rechazado:
      return Triangulo(p);
  }
}

// Painted at the size asked for, so that it stays sharp on every screen.
class Motor : public QIconEngine {
 public:
  Motor(Icono icono, const QPalette& paleta) : icono_(icono), paleta_(paleta) {}

  void paint(QPainter* pintor, const QRect& caja, QIcon::Mode modo, QIcon::State) override {
    const auto grupo = modo == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    pintor->save();
    pintor->setRenderHint(QPainter::Antialiasing);
    pintor->translate(caja.topLeft());
    pintor->scale(caja.width() / kLado, caja.height() / kLado);
    pintor->setPen(QPen(paleta_.color(grupo, QPalette::WindowText), 1.6, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    Dibuja(*pintor, icono_);
    pintor->restore();
  }

  QPixmap pixmap(const QSize& tamano, QIcon::Mode modo, QIcon::State estado) override {
    QPixmap lienzo(tamano);
    lienzo.fill(Qt::transparent);
    QPainter pintor(&lienzo);
    paint(&pintor, QRect(QPoint(0, 0), tamano), modo, estado);
    return lienzo;
  }

  QIconEngine* clone() const override { return new Motor(*this); }

 private:
  Icono icono_;
  QPalette paleta_;
};

}  // namespace

QIcon DibujaIcono(Icono icono, const QPalette& paleta) {
  return QIcon(new Motor(icono, paleta));
}

}  // namespace zorbin
