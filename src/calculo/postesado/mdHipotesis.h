// The six hypotheses of the post-tensioned design: loads, pressure, limits and stresses of each.
//
//   1 DP and fixed loads             4 MDP, own weight and water
//   2 MDP + 0.1 MPa and fixed loads  5 STP and 1 m of earth
//   3 DP, fixed and moving loads     6 fixed and moving loads, no pressure
#pragma once

#include "core/estado_calculo.h"

namespace zorbin {

/// Moments [m·t/m] and axial forces [t/m] of the hypotheses.
struct EsfuerzosPostesado {
  Tabla<double, kHipotesisPostesado, kSecciones> TablaMom;
  Tabla<double, kHipotesisPostesado, kSecciones> TablaAxil;
};

/// Adds up the load terms of each hypothesis.
EsfuerzosPostesado EsfuerzosHipotesis(const TerminosCaso& MHip, const TerminosCaso& NHip);

/// Pressure of each hypothesis [at]. Reads DP, MDP, STP [at].
Lista<double, kHipotesisPostesado> PresionesHipotesis(const Corrida& c);

/// Limit stress of the core in each hypothesis [kp/cm2]; that of the coating is always Fctr.
Lista<double, kHipotesisPostesado> LimitesPrimario(double Fctn);

/// @param LimPrimario, Fctr  limit stresses of core and coating [kp/cm2]
/// @throws ErrorEjecucion DivisionPorCero for a coefficient of 0, Desbordamiento
LimitesPresion PresionesLimite(double LimPrimario, double Fctr, const PerdidasPostesado& p,
                               const OvalizacionPostesada& o, const PorPresion& K);

/// Stresses under the pressure P [at].
/// @throws ErrorEjecucion Desbordamiento
TensionesHipotesis Tensiones(double P, const PerdidasPostesado& p, const OvalizacionPostesada& o,
                             const PorPresion& K);

}  // namespace zorbin
