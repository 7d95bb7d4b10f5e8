// Paper without a printer: the sheets of a document as texts, rules and pictures with their place
// in millimetres. A listing writes through Papel; each finished sheet goes to a destination, which
// makes plain text, a PDF or paper of it. Only the sheet in hand is kept.
//
// Geometry. A4; places are measured from the edge of the paper. Columns are those of a monospaced
// font whose advance is 0.6 of its size (Courier New and its metric twins): 2.117 mm at size 10.
// A line at size 10 takes 3.95 mm, so that 72 of them stand on a portrait sheet with 4 mm above
// and 6.9 mm below, and 50 on a landscape one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zorbin {

enum class Orientacion { Vertical, Apaisada };

inline constexpr double kCuerpoNormal = 10.0;  // [pt]
inline constexpr double kCuerpoTitulo = 14.0;  // [pt]
inline constexpr double kAvance = 0.6;         // of a character, in sizes of the font [-]
inline constexpr double kAltoPie = 6.9;        // under the last line, where a foot may stand [mm]
inline constexpr double kMmPunto = 25.4 / 72.0;

/// Width of a column at a size [mm].
constexpr double AnchoColumna(double cuerpo) {
  return cuerpo * kAvance * kMmPunto;
}

/// Height of a line at a size [mm].
constexpr double AltoLinea(double cuerpo) {
  return 3.95 * cuerpo / kCuerpoNormal;
}

struct TextoHoja {
  double y = 0;       // top of the line [mm]
  double cuerpo = 0;  // size of the font [pt]
  bool negrita = false;
  bool subrayado = false;
  std::string texto;  // with the blanks of its margin, from the edge of the paper
};

struct ReglaHoja {
  double x1 = 0, x2 = 0, y = 0;  // [mm]
  double grosor = 0;             // [mm]
};

struct FiguraHoja {
  std::string nombre;          // of the file in the folder of pictures
  double x = 0, y = 0;         // left and top [mm]
  double ancho = 0, alto = 0;  // box that holds it, keeping its proportions [mm]
};

struct Hoja {
  Orientacion orientacion = Orientacion::Vertical;
  std::vector<TextoHoja> textos;
  std::vector<ReglaHoja> reglas;
  std::vector<FiguraHoja> figuras;

  double Ancho() const { return orientacion == Orientacion::Vertical ? 210.0 : 297.0; }  // [mm]
  double Alto() const { return orientacion == Orientacion::Vertical ? 297.0 : 210.0; }   // [mm]
};

/// Takes the finished sheets of a document, one by one.
class DestinoHojas {
 public:
  virtual ~DestinoHojas() = default;
  virtual void RecibeHoja(const Hoja& hoja) = 0;
};

class Papel {
 public:
  Papel(DestinoHojas& destino, Orientacion orientacion);

  void Cuerpo(double puntos) { cuerpo_ = puntos; }
  void Negrita(bool si) { negrita_ = si; }
  void Subrayado(bool si) { subrayado_ = si; }

  /// A line with a margin of blanks. Where it would not fit on the sheet a new one begins, with no
  /// heading; a text wider than the paper is set smaller, never cut.
  void Linea(int margen, std::string_view texto);

  /// n lines that hold one blank, as far as they fit: a blank line never begins a sheet.
  void LineasEnBlanco(int n);

  /// A rule of a width (5: 0.4 mm) from x1 to x2, `bajo` below the position, which moves
  /// under it [mm].
  void Regla(double x1, double x2, double bajo, int grosor = 5);

  /// A picture in a box at a place [mm].
  void Figura(const std::string& nombre, double x, double y, double ancho, double alto);

  /// Whether n lines more stand on this sheet.
  bool Caben(int n) const;

  double Y() const { return y_; }  // position of the next line [mm]
  int LineasQueCaben() const;      // on the rest of the sheet

  int NumeroHoja() const { return hojas_ + 1; }  // of the sheet in hand, from 1

  void NuevaPagina();
  void FinDocumento();

 private:
  DestinoHojas& destino_;
  Hoja hoja_;
  double cuerpo_ = kCuerpoNormal;
  bool negrita_ = false;
  bool subrayado_ = false;
  double y_;
  int hojas_ = 0;  // handed over

  void Entrega();
};

}  // namespace zorbin
