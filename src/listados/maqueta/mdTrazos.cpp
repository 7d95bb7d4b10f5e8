#include "listados/maqueta/mdTrazos.h"

#include <QFontDatabase>
#include <QPen>
#include <QRawFont>
#include <algorithm>
#include <cmath>

#include "listados/maqueta/mdError.h"

namespace zorbin::memoria {

namespace {

constexpr int kMedidaPx = 1000;  // size at which the fonts are measured
constexpr auto kSerif = "Liberation Serif";
constexpr auto kMono = "Liberation Mono";

QFont FuenteDe(Letra letra, int px) {
  QFont f(QString::fromLatin1(letra == Letra::Mono ? kMono : kSerif));
  f.setHintingPreference(QFont::PreferNoHinting);
  f.setPixelSize(px);
  f.setBold(letra == Letra::Negrita || letra == Letra::NegritaCursiva);
  f.setItalic(letra == Letra::Cursiva || letra == Letra::NegritaCursiva);
  return f;
}

void PintaPieza(QPainter& pintor, const TextoPuesto& t, QPointF sitio) {
  pintor.setPen(Qt::black);
  pintor.setFont(FuenteDe(t.tipo.letra, static_cast<int>(std::lround(t.tipo.cuerpo * kPorPunto))));
  pintor.drawText((sitio + t.sitio) * kPorPunto, t.texto);
}

void PintaPieza(QPainter& pintor, const CaminoPuesto& c, QPointF sitio) {
  const QColor tinta(c.gris, c.gris, c.gris);
  pintor.save();
  pintor.scale(kPorPunto, kPorPunto);
  pintor.translate(sitio);
  if (c.grueso > 0) {
    pintor.strokePath(c.camino, QPen(tinta, c.grueso, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  } else {
    pintor.fillPath(c.camino, tinta);
  }
  pintor.restore();
}

void PintaPieza(QPainter& pintor, const ImagenPuesta& i, QPointF sitio) {
  const QRectF m = i.marco.translated(sitio);
  pintor.drawImage(QRectF(m.topLeft() * kPorPunto, m.size() * kPorPunto), i.imagen);
}

void Mueve(Pieza& pieza, QPointF cuanto) {
  if (auto* t = std::get_if<TextoPuesto>(&pieza)) t->sitio += cuanto;
  if (auto* c = std::get_if<CaminoPuesto>(&pieza)) c->camino.translate(cuanto);
  if (auto* i = std::get_if<ImagenPuesta>(&pieza)) i->marco.translate(cuanto);
}

}  // namespace

void Caja::Pon(const Caja& otra, QPointF sitio) {
  for (const auto& pieza : otra.piezas) {
    piezas.push_back(pieza);
    Mueve(piezas.back(), sitio);
  }
}

void Caja::Sigue(const Caja& otra, double subida) {
  Pon(otra, {ancho, -subida});
  ancho += otra.ancho;
  alto = std::max(alto, otra.alto + subida);
  hondo = std::max(hondo, otra.hondo - subida);
}

void Caja::Raya(QPointF a, QPointF b, double grueso, int gris) {
  QPainterPath camino(a);
  camino.lineTo(b);
  piezas.push_back(CaminoPuesto{camino, grueso, gris});
}

Tipografia::Tipografia() {
  const auto familias = QFontDatabase::families();
  for (const auto* familia : {kSerif, kMono}) {
    if (!familias.contains(QString::fromLatin1(familia))) {
      throw ErrorFuente(0, QStringLiteral("the font %1 is missing (package fonts-liberation)")
                               .arg(QString::fromLatin1(familia)));
    }
  }
}

const Tipografia::Medida& Tipografia::De(Letra letra) const {
  auto m = medidas_.find(letra);
  if (m == medidas_.end()) {
    const QFont f = FuenteDe(letra, kMedidaPx);
    m = medidas_.emplace(letra, Medida{f, QFontMetricsF(f)}).first;
  }
  return m->second;
}

double Tipografia::Ancho(const QString& texto, const Tipo& tipo) const {
  return De(tipo.letra).metrica.horizontalAdvance(texto) * tipo.cuerpo / kMedidaPx;
}

Caja Tipografia::DeTexto(const QString& texto, const Tipo& tipo) const {
  const QRectF tinta = De(tipo.letra).metrica.tightBoundingRect(texto);
  const double escala = tipo.cuerpo / kMedidaPx;
  Caja c;
  c.ancho = Ancho(texto, tipo);
  c.alto = std::max(0.0, -tinta.top() * escala);
  c.hondo = std::max(0.0, tinta.bottom() * escala);
  c.piezas.push_back(TextoPuesto{{0, 0}, texto, tipo});
  return c;
}

QPainterPath Tipografia::Contorno(const QString& texto, const Tipo& tipo) const {
  QPainterPath camino;
  camino.addText(0, 0, De(tipo.letra).fuente, texto);
  const double escala = tipo.cuerpo / kMedidaPx;
  return QTransform::fromScale(escala, escala).map(camino);
}

void Pinta(QPainter& pintor, const Caja& caja, QPointF sitio) {
  for (const auto& pieza : caja.piezas) {
    std::visit([&](const auto& p) { PintaPieza(pintor, p, sitio); }, pieza);
  }
}

}  // namespace zorbin::memoria
