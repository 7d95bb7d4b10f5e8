#include "listados/maqueta/mdTrazos.h"

#include <QFontDatabase>
#include <QPen>
#include <QTextLayout>
#include <algorithm>

#include "listados/maqueta/mdError.h"

namespace zorbin::memoria {

namespace {

constexpr int kMedidaPx = 1000;  // size at which the fonts are measured
constexpr auto kSerif = "Liberation Serif";
constexpr auto kPalo = "Liberation Sans";
constexpr auto kMono = "Liberation Mono";
// Any spacing keeps the letters f and i apart: a reader finds no word with a ligature in it.
constexpr double kSinLigaduras = 0.02;
constexpr qsizetype kMaxPalabras = 50'000;  // kept measured

QFont FuenteDe(Familia familia, Letra letra) {
  const char* nombre = letra == Letra::Mono ? kMono : familia == Familia::Palo ? kPalo : kSerif;
  QFont f(QString::fromLatin1(nombre));
  f.setHintingPreference(QFont::PreferNoHinting);
  f.setPixelSize(kMedidaPx);
  f.setLetterSpacing(QFont::AbsoluteSpacing, kSinLigaduras);
  f.setBold(letra == Letra::Negrita || letra == Letra::NegritaCursiva);
  f.setItalic(letra == Letra::Cursiva || letra == Letra::NegritaCursiva);
  return f;
}

// Figures stand apart from each other at their own widths: they need no shaping.
bool SonCifras(const QString& texto) {
  return std::all_of(texto.begin(), texto.end(), [](QChar c) {
    return (c >= u'0' && c <= u'9') || c == u',' || c == u'.' || c == u'-' || c == u' ' ||
           c == u'+';
  });
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

void PintaPieza(QPainter& pintor, const DibujoPuesto& d, QPointF sitio) {
  pintor.save();
  pintor.scale(kPorPunto, kPorPunto);
  pintor.translate(sitio + d.marco.topLeft());
  (*d.pinta)(pintor);
  pintor.restore();
}

void PintaPieza(QPainter&, const EnlacePuesto&, QPointF) {}

void Mueve(Pieza& pieza, QPointF cuanto) {
  if (auto* t = std::get_if<TextoPuesto>(&pieza)) t->sitio += cuanto;
  if (auto* c = std::get_if<CaminoPuesto>(&pieza)) c->camino.translate(cuanto);
  if (auto* i = std::get_if<ImagenPuesta>(&pieza)) i->marco.translate(cuanto);
  if (auto* d = std::get_if<DibujoPuesto>(&pieza)) d->marco.translate(cuanto);
  if (auto* e = std::get_if<EnlacePuesto>(&pieza)) e->marco.translate(cuanto);
}

}  // namespace

void Caja::Pon(const Caja& otra, QPointF sitio) {
  for (const auto& pieza : otra.piezas) {
    piezas.push_back(pieza);
    Mueve(piezas.back(), sitio);
  }
}

void Caja::Pon(Caja&& otra, QPointF sitio) {
  for (auto& pieza : otra.piezas) {
    Mueve(pieza, sitio);
    piezas.push_back(std::move(pieza));
  }
  otra.piezas.clear();
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

void Caja::Fondo(const QRectF& marco, int gris) {
  QPainterPath camino;
  camino.addRect(marco);
  piezas.push_back(CaminoPuesto{camino, 0, gris});
}

void Caja::Dibuja(const QRectF& marco,
                  std::shared_ptr<const std::function<void(QPainter&)>> pinta) {
  DibujoPuesto puesto{marco, std::move(pinta)};
  piezas.emplace_back(std::move(puesto));
}

void Caja::Enlaza(const QRectF& marco, const QString& destino) {
  EnlacePuesto puesto{marco, destino};
  piezas.emplace_back(std::move(puesto));
}

Tipografia::Tipografia(Familia familia) : familia_(familia) {
  const auto familias = QFontDatabase::families();
  for (const auto* nombre : {familia == Familia::Palo ? kPalo : kSerif, kMono}) {
    if (!familias.contains(QString::fromLatin1(nombre))) {
      throw ErrorFuente(0, QStringLiteral("the font %1 is missing (package fonts-liberation)")
                               .arg(QString::fromLatin1(nombre)));
    }
  }
}

Tipografia::Medida& Tipografia::De(Letra letra) const {
  auto& m = medidas_[static_cast<std::size_t>(letra)];
  if (!m) {
    m = std::make_unique<Medida>();
    m->fuente = FuenteDe(familia_, letra);
    m->cruda = QRawFont::fromFont(m->fuente);
  }
  return *m;
}

const Tipografia::Glifo& Tipografia::DeCifra(Medida& m, char16_t c) {
  const auto suyo = m.cifras.constFind(c);
  if (suyo != m.cifras.constEnd()) return *suyo;
  Glifo g;
  const auto indices = m.cruda.glyphIndexesForString(QString(QChar(c)));
  g.indice = indices.isEmpty() ? 0 : indices.first();
  g.ancho = m.cruda.advancesForGlyphIndexes({g.indice}).first().x();
  const QRectF tinta = m.cruda.boundingRect(g.indice);
  g.alto = -tinta.top();
  g.hondo = tinta.bottom();
  return *m.cifras.insert(c, g);
}

const Tipografia::Trazado& Tipografia::DePalabra(Medida& m, const QString& texto) {
  const auto suyo = m.palabras.constFind(texto);
  if (suyo != m.palabras.constEnd()) return *suyo;
  if (m.palabras.size() >= kMaxPalabras) m.palabras.clear();
  QTextLayout capa(texto, m.fuente);
  capa.setCacheEnabled(true);
  capa.beginLayout();
  auto linea = capa.createLine();
  linea.setLineWidth(1e7);
  linea.setPosition({0, -linea.ascent()});
  capa.endLayout();
  Trazado t;
  t.glifos = capa.glyphRuns();
  t.ancho = linea.horizontalAdvance();
  for (const auto& tirada : t.glifos) {
    const auto indices = tirada.glyphIndexes();
    const auto cruda = tirada.rawFont();
    for (const auto g : indices) {
      const QRectF tinta = cruda.boundingRect(g);
      t.alto = std::max(t.alto, -tinta.top());
      t.hondo = std::max(t.hondo, tinta.bottom());
    }
  }
  return *m.palabras.insert(texto, t);
}

Tipografia::Trazado Tipografia::Mide(Medida& m, const QString& texto) const {
  Trazado t;
  if (!SonCifras(texto)) {
    const auto& suyo = DePalabra(m, texto);
    t.ancho = suyo.ancho;
    t.alto = suyo.alto;
    t.hondo = suyo.hondo;
    return t;
  }
  for (const QChar c : texto) {
    const auto& g = DeCifra(m, c.unicode());
    t.ancho += g.ancho;
    t.alto = std::max(t.alto, g.alto);
    t.hondo = std::max(t.hondo, g.hondo);
  }
  return t;
}

double Tipografia::Ancho(const QString& texto, const Tipo& tipo) const {
  return Mide(De(tipo.letra), texto).ancho * tipo.cuerpo / kMedidaPx;
}

Caja Tipografia::DeTexto(const QString& texto, const Tipo& tipo) const {
  const auto medida = Mide(De(tipo.letra), texto);
  const double escala = tipo.cuerpo / kMedidaPx;
  Caja c;
  c.ancho = medida.ancho * escala;
  c.alto = medida.alto * escala;
  c.hondo = medida.hondo * escala;
  c.piezas.push_back(TextoPuesto{{0, 0}, texto, tipo});
  return c;
}

QPainterPath Tipografia::Contorno(const QString& texto, const Tipo& tipo) const {
  QPainterPath camino;
  camino.addText(0, 0, De(tipo.letra).fuente, texto);
  const double escala = tipo.cuerpo / kMedidaPx;
  return QTransform::fromScale(escala, escala).map(camino);
}

void Tipografia::PintaTexto(QPainter& pintor, const TextoPuesto& t, QPointF sitio) const {
  auto& m = De(t.tipo.letra);
  const double escala = t.tipo.cuerpo * kPorPunto / kMedidaPx;
  const QPointF base = (sitio + t.sitio) * kPorPunto;
  const auto antes = pintor.transform();
  pintor.setTransform(QTransform(escala, 0, 0, escala, base.x(), base.y()) * antes);
  pintor.setPen(QColor(t.tipo.gris, t.tipo.gris, t.tipo.gris));
  if (!SonCifras(t.texto)) {
    for (const auto& tirada : DePalabra(m, t.texto).glifos) pintor.drawGlyphRun({0, 0}, tirada);
  } else {
    QList<quint32> indices;
    QList<QPointF> lugares;
    double x = 0;
    for (const QChar c : t.texto) {
      const auto& g = DeCifra(m, c.unicode());
      indices.append(g.indice);
      lugares.append({x, 0});
      x += g.ancho;
    }
    QGlyphRun tirada;
    tirada.setRawFont(m.cruda);
    tirada.setGlyphIndexes(indices);
    tirada.setPositions(lugares);
    pintor.drawGlyphRun({0, 0}, tirada);
  }
  pintor.setTransform(antes);
}

void Tipografia::Pinta(QPainter& pintor, const Caja& caja, QPointF sitio) const {
  for (const auto& pieza : caja.piezas) {
    if (const auto* texto = std::get_if<TextoPuesto>(&pieza)) {
      PintaTexto(pintor, *texto, sitio);
      continue;
    }
    std::visit(
        [&](const auto& p) {
          if constexpr (!std::is_same_v<std::decay_t<decltype(p)>, TextoPuesto>) {
            PintaPieza(pintor, p, sitio);
          }
        },
        pieza);
  }
}

}  // namespace zorbin::memoria
