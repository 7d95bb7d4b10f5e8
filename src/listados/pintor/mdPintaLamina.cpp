#include "listados/pintor/mdPintaLamina.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPageSize>
#include <QPainterPath>
#include <QPdfWriter>

#include "listados/dibujos/mdSvg.h"
#include "listados/pintor/mdFicheroPdf.h"

namespace zorbin {

namespace {

constexpr double kMmPulgada = 25.4;
constexpr int kResolucionPdf = 1200;  // [dots per inch]
constexpr double kHalo = 0.9;         // rim of a text, both sides [mm]
constexpr int kCuerpoMedida = 200;    // glyphs are laid out large, and scaled [px]

// The letters of the drawings, whose widths are those of Helvetica, before any other.
QFont LetraDe(bool negrita) {
  QFont letra;
  letra.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial"),
                     QStringLiteral("Helvetica"), QStringLiteral("sans-serif")});
  letra.setPixelSize(kCuerpoMedida);
  letra.setBold(negrita);
  letra.setHintingPreference(QFont::PreferNoHinting);
  return letra;
}

QColor DeColor(Color c) {
  return {c.r, c.g, c.b};
}

class PintaPieza {
 public:
  PintaPieza(QPainter& pintor, const Paleta& paleta, double porMm)
      : pintor_(pintor), paleta_(paleta), porMm_(porMm) {}

  void operator()(const Forma& f) {
    Prepara(f);
    if (!f.cerrada) {
      for (const auto& c : f.contornos) pintor_.drawPolyline(Poligono(c));
      return;
    }
    if (f.contornos.size() == 1) {
      pintor_.drawPolygon(Poligono(f.contornos.front()), Qt::OddEvenFill);
      return;
    }
    QPainterPath camino;
    for (const auto& c : f.contornos) {
      camino.addPolygon(Poligono(c));
      camino.closeSubpath();
    }
    pintor_.drawPath(camino);
  }

  void operator()(const Redondo& r) {
    Prepara(r);
    const QPointF centro = P(r.centro);
    if (r.hueco <= 0) {
      pintor_.drawEllipse(centro, r.radio * porMm_, r.radio * porMm_);
      return;
    }
    QPainterPath camino;
    camino.addEllipse(centro, r.radio * porMm_, r.radio * porMm_);
    camino.addEllipse(centro, r.hueco * porMm_, r.hueco * porMm_);
    pintor_.drawPath(camino);
  }

  void operator()(const Letrero& r) {
    const QFont& letra = r.negrita ? negrita_ : recta_;
    const QString texto = QString::fromStdString(r.texto);
    const double ancho = QFontMetricsF(letra).horizontalAdvance(texto);
    const double escala = r.alto * porMm_ / kCuerpoMedida;
    const double x = r.anclaX == AnclaX::Izquierda ? 0.0
                     : r.anclaX == AnclaX::Centro  ? -ancho / 2
                                                   : -ancho;
    const double baja = r.anclaY == AnclaY::Base ? 0.0 : r.anclaY == AnclaY::Medio ? 0.36 : 0.72;
    pintor_.save();
    pintor_.translate(P(r.sitio));
    pintor_.rotate(-r.giro);
    pintor_.scale(escala, escala);
    const QPointF base(x, baja * kCuerpoMedida);
    if (r.halo) Halo(letra, texto, base, kHalo * porMm_ / escala);
    pintor_.setPen(DeColor(paleta_.De(r.trazo.tinta)));
    pintor_.setFont(letra);
    pintor_.drawText(base, texto);
    pintor_.restore();
  }

 private:
  QPainter& pintor_;
  const Paleta& paleta_;
  const double porMm_;
  const QFont recta_ = LetraDe(false);
  const QFont negrita_ = LetraDe(true);

  QPointF P(Xy p) const { return {p.x * porMm_, p.y * porMm_}; }

  QPolygonF Poligono(const std::vector<Xy>& puntos) const {
    QPolygonF q;
    q.reserve(static_cast<qsizetype>(puntos.size()));
    for (const auto& p : puntos) q.append(P(p));
    return q;
  }

  void Prepara(const AspectoPieza& a) {
    pintor_.setBrush(a.mancha.fuerza > 0 ? QBrush(DeColor(paleta_.De(a.mancha))) : QBrush());
    if (a.trazo.grueso <= 0) {
      pintor_.setPen(Qt::NoPen);
      return;
    }
    QPen pluma(DeColor(paleta_.De(a.trazo.tinta)), a.trazo.grueso * porMm_, Qt::SolidLine,
               Qt::FlatCap, Qt::RoundJoin);
    QList<qreal> guiones;
    for (const double g : Guiones(a.trazo.patron)) {
      if (g > 0) guiones.append(g / a.trazo.grueso);
    }
    if (!guiones.isEmpty()) pluma.setDashPattern(guiones);
    pintor_.setPen(pluma);
  }

  void Halo(const QFont& letra, const QString& texto, QPointF base, double ancho) {
    QPainterPath camino;
    camino.addText(base, letra, texto);
    pintor_.strokePath(camino, QPen(DeColor(paleta_.De(Tinta::Papel)), ancho, Qt::SolidLine,
                                    Qt::RoundCap, Qt::RoundJoin));
  }
};

}  // namespace

void PintaLamina(QPainter& pintor, const Lamina& lamina, const Paleta& paleta, double porMm,
                 bool fondo) {
  pintor.save();
  pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  if (fondo) {
    pintor.fillRect(QRectF(0, 0, lamina.ancho * porMm, lamina.alto * porMm),
                    DeColor(paleta.De(Tinta::Papel)));
  }
  PintaPieza pinta(pintor, paleta, porMm);
  for (const auto& pieza : lamina.piezas) std::visit(pinta, pieza);
  pintor.restore();
}

void EscribeLaminaPdf(const std::filesystem::path& ruta, const Lamina& lamina, const Paleta& paleta,
                      const std::string& titulo) {
  EnFichero([&] {
    FicheroPdf fichero(ruta);
    {
      QPdfWriter pdf(&fichero);
      pdf.setResolution(kResolucionPdf);
      pdf.setTitle(QString::fromStdString(titulo).simplified());
      pdf.setCreator(QStringLiteral("ZORBIN"));
      const QPageSize papel(QSizeF(lamina.ancho, lamina.alto), QPageSize::Millimeter, QString(),
                            QPageSize::ExactMatch);
      pdf.setPageLayout(QPageLayout(papel, QPageLayout::Portrait, QMarginsF()));
      QPainter pintor(&pdf);
      PintaLamina(pintor, lamina, paleta, kResolucionPdf / kMmPulgada, false);
    }
    fichero.Cierra();
  });
}

std::string LaminaPng(const Lamina& lamina, const Paleta& paleta, int puntosPorPulgada) {
  const double porMm = puntosPorPulgada / kMmPulgada;
  QImage imagen(QSizeF(lamina.ancho * porMm, lamina.alto * porMm).toSize(), QImage::Format_RGB32);
  if (imagen.isNull()) throw ErrorPintor(std::to_string(puntosPorPulgada));
  QPainter pintor(&imagen);
  PintaLamina(pintor, lamina, paleta, porMm);
  pintor.end();
  QByteArray bytes;
  QBuffer memoria(&bytes);
  if (!imagen.save(&memoria, "PNG")) throw ErrorPintor("PNG");
  return bytes.toStdString();
}

}  // namespace zorbin
