// Reinforced design of one Caso: five hypotheses, the one that needs most steel, and its checks.
#pragma once

#include "core/estado_calculo.h"

namespace zorbin {

/// The five design hypotheses from the twelve load terms; R is Di / 2 [m]. The pressure term
/// p·10·R goes to N only.
/// Reads caso.MHip, caso.NHip; corrida: PPNeta, STP, DP, MDP [at].
Esfuerzos EsfuerzosArmado(const EstadoCalculo& e, double R);

/// Designs the Caso in hand.
/// Reads  the Caso of the run and the Tramo in calculation units; corrida.ajustes.
/// Writes caso.armado, and caso.avisos in the order in which they arise; the debug log.
///        Nothing of the Caso before enters: caso.armado is written anew.
/// @throws ErrorEjecucion as `ArmTubo`
void DisenoArmado(EstadoCalculo& e);

}  // namespace zorbin
