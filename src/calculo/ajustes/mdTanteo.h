// The trial rows: seven reinforcements around a mean value, taken from the series of the
// manufacturers, with the outer steel that each of them asks for.
#pragma once

#include <optional>
#include <span>

#include "calculo/ajustes/mdLineas.h"
#include "core/resultado.h"

namespace zorbin {

/// Moment and axial force of a control section under the governing hypothesis.
struct SeccionDelCaso {
  double m = 0;  // with its sign: positive tenses the inner face [m·t/m]
  double n = 0;  // without pressure [t/m]
  double M = 0;  // magnitude [kp·cm/m]
  double N = 0;  // with pressure [kp/m]
};

/// Of a wall, as they are captured [cm].
struct Espesores {
  double Esp = 0;
  double Reci = 0, Rece = 0;  // covers in force
};

/// What the trial rows and the check of a Caso are made from.
struct DatosDelCaso : Espesores {
  int HipotesisRige = 0;
  double Hr = 0;       // [m]
  double DP = 0;       // [at]
  double presion = 0;  // of the governing hypothesis [at]
  double Di = 0;       // [m]
  double fyd = 0;      // [kp/cm2]
  double Fcad = 0;     // [kp/cm2]
  Lista<SeccionDelCaso, kSecciones> secciones;

  /// Lever arm between the layers [cm].
  double Brazo() const { return Esp - Reci - Rece; }
  /// Useful depth for a moment that tenses the inner face, or the outer one [cm].
  double CantoInterior() const { return Esp - Reci; }
  double CantoExterior() const { return Esp - Rece; }
};

/// Whether the moment of a section tenses the inner face: at the haunches a moment of 0 does not.
bool TraccionaInterior(int seccion, double m);

/// Of a Caso of a run. The wall is another where other covers are tried.
/// @param t  the Tramo of the run, in calculation units
DatosDelCaso DatosCaso(const Tramo& t, const FilaCaso& fila, const ResultadoArmado& r,
                       const Espesores& pared);

inline constexpr int kFilasTanteo = 7;
inline constexpr int kFilaTanteoInicial = 4;  // of the mean value

struct FilaDeTanteo {
  bool utilizable = false;  // its tag
  double Interior = 0;      // [cm2/m]
  double Exterior = 0;      // [cm2/m]
};

struct Tanteo {
  double Minimo = 0;                  // least inner area of a row [cm2/m]
  Lista<AreaSeccion, kSecciones> As;  // needed at each section, the layers alike
  Lista<FilaDeTanteo, kFilasTanteo> filas;
};

/// Entry of the series at `base` + `d`, from 1. No value outside the series or below `minimo`.
std::optional<double> BuscaTablaArmaduras(std::span<const double> TablaArmaduras, double minimo,
                                          int base, int d);

/// The rows with the mean value in the row `FilaTanteo`, 1 to 7.
/// @param TablaArmaduras  ascending [cm2/m]
/// @throws ErrorEjecucion as the formulas
Tanteo Tantea(const DatosDelCaso& d, std::span<const double> TablaArmaduras, int FilaTanteo);

}  // namespace zorbin
