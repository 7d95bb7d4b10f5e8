// Checks of a hypothesis that passed, and the net factory test pressure. Source: Anejo 4 "Cálculo
// Mecánico" of the Instrucción del Instituto Eduardo Torroja.
#pragma once

#include "calculo/rastro/mdRastro.h"
#include "core/campos/tramo.h"
#include "core/resultados.h"

namespace zorbin {

/// Stress of the cylinder, times 1000 [kp/cm2 · 1000]: that of the core at its radius by the
/// modular ratio, the most tensile section. With a lined cylinder that is the outer face of the
/// core. For a reader only: the concrete limits the design first, and no pipe is refused for its
/// cylinder.
/// @param RatioChapa  modular ratio cylinder / core [-]
/// @param x           stresses of the hypothesis [kp/cm2]
/// Reads Tipologia, Reci, Rece, Esp [m].
/// @throws ErrorEjecucion DivisionPorCero for Esp equal to Rece, Desbordamiento
double CompruebaChapa(const Tramo& t, double RatioChapa, const TensionesHipotesis& x);

/// 0, or the code 9 to 12 of the first face (PI, PE, RI, RE) with a stress above 60 % of its
/// concrete's strength in compression. Only hypothesis 6 is looked at. Compression being negative,
/// any of it passes: what is refused is a tension of that size.
/// @param x           stresses of the hypothesis [kp/cm2]
/// @param Fckn, Fckr  strengths of core and coating [kp/cm2]
std::int16_t CompruebaHormigon(const TensionesHipotesis& x, int Hipotesis, double Fckn,
                               double Fckr);

/// Pressure [at] at which a place reaches its limit, 999999 when the pressure does not stress it.
/// @param PresTension  stress by MDP [kp/cm2]
/// @param Base         stress without pressure [kp/cm2]
/// @param Limite       limit stress [kp/cm2]
/// @param MDP          [at]
/// @throws ErrorEjecucion Desbordamiento
double PresionLimite(double PresTension, double Base, double Limite, double MDP);

/// Net factory test pressure [at]: the largest that leaves 5 kp/cm2 of compression in the core and
/// at most two thirds of Fctr of tension in the coating at every section; 99999 when nothing
/// limits it.
/// @param x     stresses of a pass under MDP [kp/cm2]
/// @param Fctr  tensile strength of the coating [kp/cm2]
/// @param MDP   [at]
/// @throws ErrorEjecucion Desbordamiento
double PruebaFabricaNeta(const TensionesHipotesis& x, double Fctr, double MDP,
                         Rastro* rastro = nullptr);

}  // namespace zorbin
