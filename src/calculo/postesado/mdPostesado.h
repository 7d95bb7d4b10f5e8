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

ResultadoPostesado CalculaPostesado(const Tramo& t, const TerminosAnillo& terminos,
                                    const PresionesCaso& presiones, Marcha& marcha);

}  // namespace zorbin
