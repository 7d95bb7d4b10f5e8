// Post-tensioned design of one Caso: the wire and its spirals with which the pipe passes six
// hypotheses, and the net factory test pressure.
//
// A search by increment: a wire chosen by the ring force starts at its widest spacing, a spiral is
// added until each hypothesis holds, and a thicker wire takes over when the spirals no longer fit.
// A second run over the hypotheses, with the wire fixed, gives the results. Source: Anejo 4
// "Cálculo Mecánico" of the Instrucción del Instituto Eduardo Torroja.
#pragma once

#include "calculo/rastro/mdRastro.h"
#include "core/campos/tramo.h"
#include "core/resultados.h"

namespace zorbin {

/// Designs a Caso. A hypothesis that cannot be met is no failure: its code, 5 (no wire is left), 6
/// (core too weak at winding), 9 to 12 (concrete) or 91 (the verification needs another winding),
/// stands in the result, and the search goes on with the next hypothesis.
/// Where the pass under MDP fails, PP rests on what the last completed pass left, of whatever
/// hypothesis and winding: PPHipotesis and PPConAlambreFinal of the result tell. Where no wire
/// takes the ring force, PP stays the pressure required.
/// @param t          the Tramo, in calculation units
/// @param terminos   of the ring [m·t/m, t/m]
/// @param presiones  [at]
/// @param marcha     rounds and warnings are added, those of the search for no listing
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento; SinConvergencia and DemasiadasVueltas
/// for
///         a search that does not end
ResultadoPostesado CalculaPostesado(const Tramo& t, const TerminosAnillo& terminos,
                                    const PresionesCaso& presiones, Marcha& marcha,
                                    Rastro* rastro = nullptr);

}  // namespace zorbin
