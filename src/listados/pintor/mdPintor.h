// The sheets of a document painted: on a PDF here, and on whatever a painter stands on.
#pragma once

#include <QGlyphRun>
#include <QHash>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QRawFont>
#include <QString>
#include <filesystem>
#include <map>
#include <memory>
#include <stdexcept>

#include "listados/papel/mdPapel.h"

class QPdfWriter;

namespace zorbin {

/// What can't be painted or written, in the words of the system.
class ErrorPintor : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// No font of the machine serves; the message names the ones that would.
class ErrorFuente : public ErrorPintor {
 public:
  using ErrorPintor::ErrorPintor;
};

class FicheroPdf;

/// Paints a sheet with a monospaced font: Courier New, or a twin of the same advance. Fonts, the
/// glyphs of a letter and pictures are looked up once.
class Pintor {
 public:
  /// @throws ErrorFuente when the machine has no font with the advance of 0.6
  Pintor();

  /// @param porMm  device units of the painter for a millimetre
  void Pinta(QPainter& pintor, const Hoja& hoja, double porMm);

 private:
  struct Letra {
    QRawFont fuente;
    QHash<char32_t, quint32> glifos;
    double ascenso = 0;  // [device units]
  };

  QString familia_;
  QHash<QString, QImage> figuras_;
  std::map<std::pair<double, bool>, Letra> letras_;

  Letra& LetraDe(double cuerpo, bool negrita, double porMm);
  void PintaTexto(QPainter& pintor, const TextoHoja& texto, double porMm);
  void PintaFigura(QPainter& pintor, const FiguraHoja& figura, double porMm);
};

/// Sheets as the pages of a PDF file, which takes its name when it is whole; a device or a pipe is
/// written as it stands.
class HojasPdf : public DestinoHojas {
 public:
  /// On a paper smaller than A4 the whole sheet is made smaller, so that no line is lost.
  /// @throws ErrorPintor when the file cannot be opened
  HojasPdf(const std::filesystem::path& fichero, const std::string& titulo,
           const QPageSize& papel = QPageSize(QPageSize::A4));
  ~HojasPdf() override;
  /// @throws ErrorPintor when what came before could not be written
  void RecibeHoja(const Hoja& hoja) override;

  /// @throws ErrorPintor when not everything could be written; no file is left then
  void Cierra();
  int paginas() const { return paginas_; }

 private:
  QPageSize papel_;
  std::unique_ptr<FicheroPdf> fichero_;
  std::unique_ptr<QPdfWriter> pdf_;
  std::unique_ptr<QPainter> lienzo_;
  Pintor pintor_;
  int paginas_ = 0;
};

}  // namespace zorbin
