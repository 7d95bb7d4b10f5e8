// The six hypotheses of the post-tensioned design: loads, pressure, limits and stresses of each.
//
//   1 DP and fixed loads             4 MDP, own weight and water
//   2 MDP + 0.1 MPa and fixed loads  5 STP and 1 m of earth
//   3 DP, fixed and moving loads     6 fixed and moving loads, no pressure
//
// Source: Anejo 4 "Cálculo Mecánico" of the Instrucción del Instituto Eduardo Torroja.
#pragma once

#include "calculo/rastro/mdRastro.h"
#include "core/campos/tramo.h"
#include "core/resultados.h"

namespace zorbin {

/// Moments [m·t/m] and axial forces [t/m] of the hypotheses.
struct EsfuerzosPostesado {
  Tabla<double, kHipotesisPostesado, kSecciones> TablaMom;
  Tabla<double, kHipotesisPostesado, kSecciones> TablaAxil;
};

/// Adds up the load terms [m·t/m, t/m] of each hypothesis.
EsfuerzosPostesado EsfuerzosHipotesis(const TerminosAnillo& terminos, Rastro* rastro = nullptr);

/// Pressure of each hypothesis [at]. Reads DP, MDP, STP [at].
Lista<double, kHipotesisPostesado> PresionesHipotesis(const PresionesCaso& p,
                                                      Rastro* rastro = nullptr);

/// Limit stress of the core in each hypothesis [kp/cm2]: 5 kp/cm2 of compression left, but its
/// tensile strength Fctn [kp/cm2] under the overpressure of hypothesis 2, and 0 with moving loads
/// in
/// 3. That of the coating is always Fctr.
Lista<double, kHipotesisPostesado> LimitesPrimario(double Fctn);

/// Pressures at which each face reaches its limit [at]: what is left of it over the stress by each
/// unit of pressure.
/// @param LimPrimario, Fctr  limit stresses of core and coating [kp/cm2]
/// @param p                  prestress and its final stresses [kp/cm2]
/// @param o                  stresses by ovalisation [kp/cm2]
/// @param K                  stresses by unit of pressure [kp/cm2 / at]
/// @throws ErrorEjecucion DivisionPorCero for a coefficient of 0, Desbordamiento
LimitesPresion PresionesLimite(double LimPrimario, double Fctr, const PerdidasPostesado& p,
                               const OvalizacionPostesada& o, const PorPresion& K,
                               Rastro* rastro = nullptr);

/// Stresses of every face and of the wire under the pressure P [at]: prestress, ovalisation and
/// pressure superposed, as the section is elastic.
/// @throws ErrorEjecucion Desbordamiento
TensionesHipotesis Tensiones(double P, const PerdidasPostesado& p, const OvalizacionPostesada& o,
                             const PorPresion& K, Rastro* rastro = nullptr);

}  // namespace zorbin
