// Post-tensioned design of one Caso: the wire and its spirals with which the pipe passes six
// hypotheses, and the net factory test pressure.
//
// A search by increment: a wire chosen by the ring force starts at its widest spacing, a spiral is
// added until each hypothesis holds, and a thicker wire takes over when the spirals no longer fit.
// A second run over the hypotheses, with the wire fixed, gives the results. Source: Anejo 4
// "Cálculo Mecánico" of the Instrucción del Instituto Eduardo Torroja.
#pragma once

#include "core/estado_calculo.h"

namespace zorbin {

/// What the heading of a post-tensioned Tramo shows before any Caso is designed.
/// Reads  the Tramo in calculation units.
/// Writes caso.postesado.radios, caso.postesado.materiales.
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
void PreparaPostesado(EstadoCalculo& e);

/// Designs the Caso in hand. A hypothesis that cannot be met is no failure: its code, 5 (no wire
/// is left), 6 (core too weak at winding), 9 to 12 (concrete) or 91 (the verification needs
/// another winding), stands in the result, and the search goes on as the method tells.
/// Reads  the Tramo in calculation units; corrida: DP, MDP, STP, PP [at]; caso.MHip, caso.NHip.
/// Writes caso.postesado, in full; caso.avisos, the search's for no listing; corrida.PP, unless no
///        wire takes the ring force. The Tramo stays as it is.
/// Where the pass under MDP fails, PP rests on what the last completed pass left, of whatever
/// hypothesis and winding: caso.postesado.PPHipotesis and PPConAlambreFinal tell.
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento; SinConvergencia for a search that does
///         not end
void CalculaPostesado(EstadoCalculo& e);

}  // namespace zorbin
