// The trial rows: seven reinforcements around a mean value, taken from the series of the
// manufacturers, with the outer steel that each of them asks for.
#pragma once

#include <optional>
#include <span>

#include "calculo/ajustes/mdLineas.h"

namespace zorbin {

/// Moment and axial force of a control section under the governing hypothesis.
struct SeccionDelCaso {
  double m = 0;  // with its sign: positive tenses the inner face [m·t/m]
  double n = 0;  // without pressure [t/m]
  double M = 0;  // magnitude [kp·cm/m]
  double N = 0;  // with pressure [kp/m]
};

/// What the trial rows and the check of a Caso are made from.
struct DatosDelCaso {
  int HipotesisRige = 0;
  double Hr = 0;              // [m]
  double DP = 0;              // [at]
  double presion = 0;         // of the governing hypothesis [at]
  double Di = 0;              // [m]
  double fyd = 0;             // [kp/cm2]
  double Fcad = 0;            // [kp/cm2]
  double Esp = 0;             // [cm]
  double Reci = 0, Rece = 0;  // covers in force [cm]
  Lista<SeccionDelCaso, kSecciones> secciones;

  /// Lever arm between the layers [cm].
  double Brazo() const { return Esp - Reci - Rece; }
  /// Useful depth for a moment that tenses the inner face, or the outer one [cm].
  double CantoInterior() const { return Esp - Reci; }
  double CantoExterior() const { return Esp - Rece; }
};

/// Whether the moment of a section tenses the inner face: at the haunches a moment of 0 does not.
bool TraccionaInterior(int seccion, double m);

/// Of the Caso that a run left in the state, which holds calculation units, with its thickness in
/// cm.
/// @param Reci, Rece  covers in force [cm]
DatosDelCaso DatosCaso(const EstadoCalculo& e, double Reci, double Rece);

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
