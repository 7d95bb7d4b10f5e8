#include "listados/pintor/mdPintor.h"

#include <QFontDatabase>
#include <QPageLayout>
#include <QPdfWriter>
#include <algorithm>
#include <array>
#include <cmath>

#include "base/mdCarpetas.h"
#include "listados/pintor/mdFicheroPdf.h"

namespace zorbin {

namespace {

constexpr int kResolucion = 1200;  // [dots per inch]
constexpr double kMmPulgada = 25.4;
constexpr double kHolgura = 0.5;  // that the points of a paper round away [mm]

// Courier New and fonts made to its measure.
constexpr std::array<const char*, 5> kFamilias{"Courier New", "Liberation Mono", "Cousine",
                                               "Nimbus Mono PS", "FreeMono"};

bool TieneAvance(const QString& familia) {
  QFont fuente(familia);
  fuente.setPixelSize(1000);
  const auto cruda = QRawFont::fromFont(fuente);
  if (!cruda.isValid() || cruda.familyName() != familia) return false;
  const auto glifos = cruda.glyphIndexesForString(QStringLiteral("iW"));
  for (const auto& avance : cruda.advancesForGlyphIndexes(glifos)) {
    if (std::fabs(avance.x() - 1000 * kAvance) > 5) return false;
  }
  return true;
}

QString EligeFamilia() {
  for (const char* familia : kFamilias) {
    if (TieneAvance(QString::fromLatin1(familia))) return QString::fromLatin1(familia);
  }
  throw ErrorFuente("Courier New, Liberation Mono");
}

// A text for what shows it in one line, without control codes.
QString EnUnaLinea(QString texto) {
  for (QChar& letra : texto) {
    if (letra.category() == QChar::Other_Control) letra = QLatin1Char(' ');
  }
  return texto.simplified();
}

}  // namespace

Pintor::Pintor() : familia_(EligeFamilia()) {}

Pintor::Letra& Pintor::LetraDe(double cuerpo, bool negrita, double porMm) {
  auto& letra = letras_[{cuerpo, negrita}];
  if (!letra.fuente.isValid()) {
    QFont fuente(familia_);
    fuente.setBold(negrita);
    fuente.setHintingPreference(QFont::PreferNoHinting);
    fuente.setPixelSize(100);
    letra.fuente = QRawFont::fromFont(fuente);
    letra.fuente.setPixelSize(cuerpo * kMmPunto * porMm);
    letra.ascenso = letra.fuente.ascent();
  }
  return letra;
}

void Pintor::PintaTexto(QPainter& pintor, const TextoHoja& texto, double porMm) {
  auto& letra = LetraDe(texto.cuerpo, texto.negrita, porMm);
  const double paso = AnchoColumna(texto.cuerpo) * porMm;
  const auto letras = QString::fromStdString(texto.texto).toUcs4();
  QList<quint32> glifos;
  QList<QPointF> lugares;
  qsizetype primera = -1;
  qsizetype ultima = -1;
  for (qsizetype i = 0; i < letras.size(); ++i) {
    if (letras[i] == U' ') continue;
    const char32_t c = letras[i];
    auto g = letra.glifos.find(c);
    if (g == letra.glifos.end()) {
      const auto indices = letra.fuente.glyphIndexesForString(QString::fromUcs4(&c, 1));
      g = letra.glifos.insert(c, indices.isEmpty() ? 0 : indices.first());
    }
    glifos.push_back(*g);
    lugares.push_back({static_cast<double>(i) * paso, 0.0});
    if (primera < 0) primera = i;
    ultima = i;
  }
  if (glifos.isEmpty()) return;
  QGlyphRun run;
  run.setRawFont(letra.fuente);
  run.setGlyphIndexes(glifos);
  run.setPositions(lugares);
  const double base = texto.y * porMm + letra.ascenso;
  pintor.drawGlyphRun({0.0, base}, run);
  if (texto.subrayado) {
    const double bajo = base + 0.6 * porMm;
    pintor.setPen(QPen(Qt::black, 0.2 * porMm));
    pintor.drawLine(QPointF(static_cast<double>(primera) * paso, bajo),
                    QPointF(static_cast<double>(ultima + 1) * paso, bajo));
  }
}

void Pintor::PintaFigura(QPainter& pintor, const FiguraHoja& figura, double porMm) {
  const QString nombre = QString::fromStdString(figura.nombre);
  auto imagen = figuras_.find(nombre);
  if (imagen == figuras_.end()) {
    const auto ruta = RutaFigura(figura.nombre);
    imagen = figuras_.insert(
        nombre, ruta.empty() ? QImage() : QImage(QString::fromStdString(ruta.string())));
  }
  if (imagen->isNull()) return;  // its place stays blank
  const QSizeF caja(figura.ancho * porMm, figura.alto * porMm);
  const QSizeF cabe = QSizeF(imagen->size()).scaled(caja, Qt::KeepAspectRatio);
  pintor.drawImage(QRectF(QPointF(figura.x * porMm, figura.y * porMm), cabe), *imagen);
}

void Pintor::Pinta(QPainter& pintor, const Hoja& hoja, double porMm) {
  for (const auto& figura : hoja.figuras) PintaFigura(pintor, figura, porMm);
  pintor.setPen(Qt::black);
  for (const auto& texto : hoja.textos) PintaTexto(pintor, texto, porMm);
  for (const auto& regla : hoja.reglas) {
    pintor.setPen(QPen(Qt::black, regla.grosor * porMm));
    pintor.drawLine(QPointF(regla.x1 * porMm, regla.y * porMm),
                    QPointF(regla.x2 * porMm, regla.y * porMm));
  }
}

HojasPdf::HojasPdf(const std::filesystem::path& fichero, const std::string& titulo,
                   const QPageSize& papel)
    : papel_(papel), fichero_(EnFichero([&] { return std::make_unique<FicheroPdf>(fichero); })) {
  pdf_ = std::make_unique<QPdfWriter>(fichero_.get());
  pdf_->setResolution(kResolucion);
  pdf_->setTitle(EnUnaLinea(QString::fromStdString(titulo)));
  pdf_->setCreator(QStringLiteral("ZORBIN"));
}

HojasPdf::~HojasPdf() {
  lienzo_.reset();
  pdf_.reset();  // before the file it writes to, which is given up unless it was closed
}

void HojasPdf::RecibeHoja(const Hoja& hoja) {
  const auto orientacion =
      hoja.orientacion == Orientacion::Vertical ? QPageLayout::Portrait : QPageLayout::Landscape;
  const QPageLayout pagina(papel_, orientacion, QMarginsF(), QPageLayout::Millimeter);
  pdf_->setPageLayout(pagina);
  if (!lienzo_) {
    lienzo_ = std::make_unique<QPainter>(pdf_.get());
  } else {
    pdf_->newPage();
  }
  EnFichero([this] { fichero_->Comprueba(); });  // what can't be written is not painted to its end
  const QSizeF ancho = pagina.fullRect(QPageLayout::Millimeter).size();
  const double escala = std::min(
      {1.0, (ancho.width() + kHolgura) / hoja.Ancho(), (ancho.height() + kHolgura) / hoja.Alto()});
  pintor_.Pinta(*lienzo_, hoja, escala * kResolucion / kMmPulgada);
  ++paginas_;
}

void HojasPdf::Cierra() {
  if (!lienzo_) RecibeHoja(Hoja{});  // a document has a page
  lienzo_->end();
  lienzo_.reset();
  pdf_.reset();
  EnFichero([this] { fichero_->Cierra(); });
}

}  // namespace zorbin
