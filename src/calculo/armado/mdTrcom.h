// Composite tension: the steel of one face when the whole section is in tension.
#pragma once

#include "base/aritmetica.h"

namespace zorbin {

/// Strengths and sizes that the two section formulas share.
struct DatosSeccion {
  double Fck = 0;    // concrete [kp/cm2]
  double Fyk = 0;    // steel, characteristic [kp/cm2]
  double Fyd = 0;    // steel, design [kp/cm2]
  double GamaB = 0;  // partial factor of the concrete [-]
  double GamaY = 1;  // partial factor of the steel [-]
  double GamaF = 1;  // partial factor of the actions [-]
  double Esp = 0;    // wall thickness [m]
  double BRAZO = 0;  // lever arm between the two layers [m]
};

/// The least steel of a face in composite tension [cm2/m]: 0.04 Fck GamaY Esp / (GamaB Fyk), on the
/// whole thickness.
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
double MinimaTraccion(const DatosSeccion& d);

/// Area of one face [cm2/m], found by the share of N that its layer takes; never below
/// `MinimaTraccion`.
/// @param M        moment [m·t/m]
/// @param N        axial force, tension [t/m]
/// @param Aotra    area of the other face [cm2/m]
/// @param vueltas  of the run; the iteration adds its own
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento, SinConvergencia, DemasiadasVueltas
double TraccionCompuesta(const DatosSeccion& d, double M, double N, double Aotra,
                         CuentaVueltas& vueltas);

}  // namespace zorbin
