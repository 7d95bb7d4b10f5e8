// A drawing as it leaves: plain shapes and texts on a sheet, in millimetres of paper with y
// downwards, in named layers. It tells what a thing is (concrete, steel, earth, series 3...), not
// its colour: a palette paints it, on a screen, in a file or on paper. A length of the object is
// its length on the sheet times the scale of the sheet.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace zorbin {

/// Point of a sheet [mm].
struct Xy {
  double x = 0, y = 0;
};

/// Rectangle of a sheet [mm].
struct Marco {
  double x = 0, y = 0, ancho = 0, alto = 0;

  double Derecha() const { return x + ancho; }
  double Abajo() const { return y + alto; }
  Xy Centro() const { return {x + ancho / 2, y + alto / 2}; }
};

/// What a thing is painted as.
enum class Tinta : std::uint8_t {
  Papel,
  Tinta,  // lines and texts
  Tenue,  // what accompanies them
  Rejilla,
  Hormigon,
  Revestimiento,
  Barra,
  Chapa,
  Alambre,
  Relleno,
  Terreno,
  Agua,
  Acento,
  Cumple,
  NoCumple,
  Serie1,
  Serie2,
  Serie3,
  Serie4,
  Serie5,
  Serie6,
};
inline constexpr int kTintas = static_cast<int>(Tinta::Serie6) + 1;
inline constexpr int kSeries = 6;

/// Series `i`, from 0, over and over again.
constexpr Tinta Serie(int i) {
  return static_cast<Tinta>(static_cast<int>(Tinta::Serie1) + i % kSeries);
}

/// Layers, which a drawing program shows and hides: the parts of the work, and what tells of them.
enum class Capa : std::uint8_t {
  Terreno,
  Relleno,
  Cuna,
  Agua,
  Hormigon,
  Revestimiento,
  Chapa,
  Interior,  // bars
  Exterior,
  Alambre,
  Ejes,
  Tramas,
  Datos,
  Cotas,
  Textos,
};
inline constexpr int kCapas = static_cast<int>(Capa::Textos) + 1;
const char* NombreCapa(Capa capa);

enum class Patron : std::uint8_t { Continuo, Discontinuo, Punteado, Eje };

struct Trazo {
  Tinta tinta = Tinta::Tinta;
  double grueso = 0;  // 0: no line [mm]
  Patron patron = Patron::Continuo;
};

struct Mancha {
  Tinta tinta = Tinta::Papel;
  double fuerza = 0;  // 0: no filling, 1: the whole colour, between them mixed with the paper
};

/// View of a sheet that has the scale of the sheet; the others are its details.
inline constexpr int kVistaPrincipal = 0;

/// Nothing to point at.
inline constexpr int kSinId = -1;

struct AspectoPieza {
  Trazo trazo;
  Mancha mancha;
  Capa capa = Capa::Datos;
  int id = kSinId;    // what whoever points at it is told
  double macizo = 0;  // true thickness of what stands on the paper as a line or a dot [mm]
  int vista = kVistaPrincipal;  // 1, 2...: a detail
};

/// Lines through points; closed ones are filled by the even-odd rule.
struct Forma : AspectoPieza {
  std::vector<std::vector<Xy>> contornos;
  bool cerrada = false;
};

/// Circle, or the ring between two of them.
struct Redondo : AspectoPieza {
  Xy centro;
  double radio = 0;
  double hueco = 0;  // radius of the hole, 0 for none
};

enum class AnclaX : std::uint8_t { Izquierda, Centro, Derecha };
enum class AnclaY : std::uint8_t { Base, Medio, Arriba };

struct Letrero : AspectoPieza {
  Xy sitio;
  std::string texto;
  double alto = 2.8;  // of the letter, em square [mm]
  AnclaX anclaX = AnclaX::Izquierda;
  AnclaY anclaY = AnclaY::Base;
  double giro = 0;  // anticlockwise [degrees]
  bool negrita = false;
  bool halo = false;  // a rim of paper sets it off from what lies under it
};

using Pieza = std::variant<Forma, Redondo, Letrero>;

struct Lamina {
  double ancho = 0, alto = 0;    // [mm]
  double escala = 0;             // 1:escala of its main view, 0 without one
  std::vector<double> detalles;  // 1:escala of each other view
  std::vector<Pieza> piezas;     // the later ones over the earlier ones
};

/// Identifier of the topmost thing at a place of the sheet, within `margen` [mm] of its line or
/// inside it; kSinId for none. Texts are not pointed at.
int QueHayEn(const Lamina& lamina, Xy sitio, double margen);

/// Width of a text in the letters of a sheet, whose measures are those of Helvetica [mm].
/// @param alto  of the em square [mm]
double AnchoTexto(const std::string& texto, double alto, bool negrita = false);

/// Rectangle that a text covers, for one that is not turned [mm].
Marco CajaTexto(const Letrero& rotulo);

}  // namespace zorbin
