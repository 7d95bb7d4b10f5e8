#include "programas/genera-figuras/mdLapiz.h"

#include <QFont>
#include <QLineF>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace zorbin::figuras {

namespace {

constexpr double kLargoFlecha = 1.9;        // [mm]
constexpr double kSemianchoFlecha = 0.34;   // [mm]
constexpr double kHolguraReferencia = 0.7;  // from the object to its extension line [mm]
constexpr double kRebaseReferencia = 1.0;   // of the extension line beyond the dimension [mm]
constexpr double kMargenRotulo = 0.5;       // white round a label [mm]
constexpr double kFontPx = 200.0;           // outlines are taken large and scaled, free of hinting

double Grueso(Trazo trazo) {
  constexpr std::array kGruesos{0.16, 0.28, 0.45, 0.14, 0.20};  // [mm], in the order of Trazo
  return kGruesos[static_cast<std::size_t>(trazo)];
}

QPen Pluma(Trazo trazo, int gris) {
  QPen pluma(QColor(gris, gris, gris), Grueso(trazo), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
  if (trazo == Trazo::Eje) pluma.setDashPattern({24.0, 6.0, 5.0, 6.0});
  if (trazo == Trazo::Discontinuo) pluma.setDashPattern({7.0, 4.0});
  return pluma;
}

QPointF Unitario(QPointF v) {
  const double largo = std::hypot(v.x(), v.y());
  return largo > 0.0 ? v / largo : QPointF();
}

QFont Fuente(Letra letra) {
  QFont fuente;
  fuente.setFamilies({"Liberation Sans", "Arimo", "Arial", "Helvetica", "DejaVu Sans"});
  fuente.setHintingPreference(QFont::PreferNoHinting);
  fuente.setPixelSize(static_cast<int>(kFontPx));
  fuente.setItalic(letra == Letra::Simbolo);
  if (letra == Letra::Titulo) fuente.setLetterSpacing(QFont::PercentageSpacing, 128.0);
  return fuente;
}

/// Half of the room that a label takes along the direction `u` [mm].
double SemiHueco(const QRectF& caja, QPointF u) {
  const double x = (caja.width() / 2.0 + kMargenRotulo) / std::max(std::abs(u.x()), 1e-6);
  const double y = (caja.height() / 2.0 + kMargenRotulo) / std::max(std::abs(u.y()), 1e-6);
  return std::min(x, y);
}

}  // namespace

Lapiz::Lapiz(QSizeF hoja, int anchoPx)
    : hoja_(hoja),
      imagen_(anchoPx, static_cast<int>(std::lround(anchoPx * hoja.height() / hoja.width())),
              QImage::Format_Grayscale8) {
  const double pxPorMm = anchoPx / hoja.width();
  const int pxPorMetro = static_cast<int>(std::lround(pxPorMm * 1000.0));
  imagen_.setDotsPerMeterX(pxPorMetro);
  imagen_.setDotsPerMeterY(pxPorMetro);
  imagen_.fill(255);
  pintor_.begin(&imagen_);
  pintor_.setRenderHint(QPainter::Antialiasing);
  pintor_.scale(pxPorMm, pxPorMm);
}

void Lapiz::Linea(QPointF a, QPointF b, Trazo trazo) {
  pintor_.setPen(Pluma(trazo, tinta_));
  pintor_.drawLine(a, b);
}

void Lapiz::Contorno(const QPainterPath& camino, Trazo trazo) {
  pintor_.strokePath(camino, Pluma(trazo, tinta_));
}

void Lapiz::Contorno(const QPainterPath& camino, double grueso) {
  QPen pluma = Pluma(Trazo::Grueso, tinta_);
  pluma.setWidthF(grueso);
  pintor_.strokePath(camino, pluma);
}

void Lapiz::Mancha(const QPainterPath& camino, int gris) {
  pintor_.fillPath(camino, QColor(gris, gris, gris));
}

void Lapiz::Flecha(QPointF desde, QPointF punta) {
  const QPointF u = Unitario(punta - desde);
  const QPointF n(-u.y() * kSemianchoFlecha, u.x() * kSemianchoFlecha);
  const QPointF base = punta - u * kLargoFlecha;
  Mancha(Poligono({punta, base + n, base - n}), tinta_);
}

void Lapiz::Cota(QPointF a, QPointF b, const QString& texto, QPointF aparte, double donde) {
  const QPointF lado = Unitario(aparte);
  const QPointF p = a + aparte;
  const QPointF q = b + aparte;
  if (!aparte.isNull()) {
    Linea(a + lado * kHolguraReferencia, p + lado * kRebaseReferencia, Trazo::Fino);
    Linea(b + lado * kHolguraReferencia, q + lado * kRebaseReferencia, Trazo::Fino);
  }
  Linea(p, q, Trazo::Fino);
  Flecha(q, p);
  Flecha(p, q);
  const QPointF sitio = p + (q - p) * donde;
  const QRectF caja = CaminoRotulo(texto, Letra::Simbolo, kCuerpo).boundingRect();
  const double ocupado = 2.0 * (SemiHueco(caja, Unitario(q - p)) + kLargoFlecha);
  const bool cabe = QLineF(p, q).length() > ocupado;
  Rotulo(cabe ? sitio : sitio + lado * (SemiHueco(caja, lado) + kMargenRotulo), texto);
}

void Lapiz::CotaDiametro(QPointF a, QPointF b, const QString& texto) {
  const QPointF u = Unitario(b - a);
  const QPointF cola = u * kCola;
  Linea(a - cola, b + cola, Trazo::Fino);
  Flecha(a - cola, a);
  Flecha(b + cola, b);
  const QRectF caja = CaminoRotulo(texto, Letra::Simbolo, kCuerpo).boundingRect();
  Rotulo(b + cola + u * SemiHueco(caja, u), texto);
}

void Lapiz::Rotulo(QPointF centro, const QString& texto, Letra letra, double cuerpo) {
  const QPainterPath camino = CaminoRotulo(texto, letra, cuerpo).translated(centro);
  const double m = kMargenRotulo;
  pintor_.fillRect(camino.boundingRect().adjusted(-m, -m, m, m), Qt::white);
  Mancha(camino, tinta_);
}

void Lapiz::Recorta(const QPainterPath& region) {
  pintor_.save();
  pintor_.setClipPath(region, Qt::IntersectClip);
}

bool Lapiz::Guarda(const QString& fichero) {
  pintor_.end();
  return imagen_.save(fichero, "BMP");
}

QPainterPath CaminoRotulo(const QString& texto, Letra letra, double cuerpo) {
  constexpr double kReduccion = 0.68;  // of a lowered letter
  constexpr double kBajada = 0.22;     // of a lowered letter, in em
  constexpr double kAireBarra = 0.10;  // before a slanted bar, in em
  QPainterPath todo;
  double x = 0.0;
  bool bajada = false;
  for (const QChar c : texto) {
    if (c == '_') {
      bajada = true;
      continue;
    }
    if (c == '/') x += kFontPx * kAireBarra;
    QFont fuente = Fuente(letra);
    if (bajada) fuente.setPixelSize(static_cast<int>(kFontPx * kReduccion));
    todo.addText(x, bajada ? kFontPx * kBajada : 0.0, fuente, QString(c));
    x += QFontMetricsF(fuente).horizontalAdvance(c);
    bajada = false;
  }
  const QPointF medio = todo.boundingRect().center();
  const double escala = cuerpo / kFontPx;
  return QTransform::fromScale(escala, escala).map(todo.translated(-medio));
}

QPainterPath Circulo(QPointF centro, double radio) {
  QPainterPath camino;
  camino.addEllipse(centro, radio, radio);
  return camino;
}

QPainterPath Corona(QPointF centro, double interior, double exterior) {
  QPainterPath camino = Circulo(centro, exterior);
  camino.addEllipse(centro, interior, interior);
  return camino;
}

QPainterPath Banda(const QPainterPath& linea, double ancho) {
  QPainterPathStroker pluma;
  pluma.setWidth(ancho);
  pluma.setCapStyle(Qt::FlatCap);
  pluma.setJoinStyle(Qt::MiterJoin);
  pluma.setCurveThreshold(0.01);  // [mm]; the default is meant for pixels
  return pluma.createStroke(linea);
}

QPainterPath Poligonal(const QPolygonF& puntos) {
  QPainterPath camino;
  camino.addPolygon(puntos);
  return camino;
}

QPainterPath Poligono(const QPolygonF& puntos) {
  QPainterPath camino = Poligonal(puntos);
  camino.closeSubpath();
  return camino;
}

QPainterPath LineaRotura(QPointF a, QPointF b) {
  constexpr double kOnda = 5.0;    // length of a wave, about [mm]
  constexpr double kFlecha = 0.7;  // reach of its control points [mm]
  const double largo = QLineF(a, b).length();
  const int ondas = std::max(1, static_cast<int>(std::lround(largo / kOnda)));
  const QPointF paso = (b - a) / ondas;
  const QPointF u = Unitario(paso);
  const QPointF n(-u.y() * kFlecha, u.x() * kFlecha);
  QPainterPath camino(a);
  for (int i = 0; i < ondas; ++i) {
    const QPointF p = a + paso * i;
    camino.cubicTo(p + paso / 3.0 + n, p + paso * 2.0 / 3.0 - n, p + paso);
  }
  return camino;
}

QPointF Polar(QPointF centro, double radio, double grados) {
  const double a = grados * std::numbers::pi / 180.0;
  return centro + QPointF(radio * std::sin(a), -radio * std::cos(a));
}

QPainterPath Arco(QPointF centro, double radio, double desde, double hasta) {
  const QRectF caja(centro.x() - radio, centro.y() - radio, 2.0 * radio, 2.0 * radio);
  QPainterPath camino;
  camino.arcMoveTo(caja, 90.0 - desde);
  camino.arcTo(caja, 90.0 - desde, desde - hasta);
  return camino;
}

}  // namespace zorbin::figuras
