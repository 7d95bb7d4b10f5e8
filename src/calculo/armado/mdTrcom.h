// Composite tension: the steel of one face when the whole section is in tension, and no concrete
// helps. Source: Anejo 4 "Cálculo Mecánico" of the Instrucción del Instituto Eduardo Torroja.
#pragma once

#include "base/aritmetica.h"
#include "calculo/rastro/mdRastro.h"

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
double MinimaTraccion(const DatosSeccion& d, Rastro* rastro = nullptr);

/// Area of one face [cm2/m]. The layer takes N in the share of its area, and the couple of the
/// moment:
///     A = (|M| / (BRAZO N) + A / (A + Aotra)) N / Fyd
/// solved by iteration to 0.01 cm2/m. Never below the mechanical minimum 0.04 Fck/GamaB over
/// Fyk/GamaY, on the whole thickness, as the whole section is in tension.
/// Valid for N > 0 within the two layers, |M| / N <= BRAZO / 2.
/// @param M        moment [m·t/m]
/// @param N        axial force, tension [t/m]
/// @param Aotra    area of the other face [cm2/m]
/// @param vueltas  of the run; the iteration adds its own
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento, SinConvergencia, DemasiadasVueltas
double TraccionCompuesta(const DatosSeccion& d, double M, double N, double Aotra,
                         CuentaVueltas& vueltas, Rastro* rastro = nullptr);

}  // namespace zorbin
