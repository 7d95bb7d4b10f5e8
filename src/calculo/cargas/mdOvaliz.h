// The ring of a height under its twelve load terms, from which both designs take their
// combinations.
#pragma once

#include "core/campos/tramo.h"
#include "core/resultados.h"

namespace zorbin {

/// Moments [m·t/m] and axial forces [t/m] of the load terms 1 to 12 (see `Oval`). Term 8 is that of
/// 1 m of earth; the others are of the height. No pressure enters: the ring is the same all along a
/// height.
/// @param t        Di, De [m], Gc, Gr [t/m3], TipoCuna
/// @param altura   loads of the height [t/m2]
/// @param unMetro  loads of 1 m of earth [t/m2]
/// @param Landa    active earth pressure coefficient [-]
/// @throws ErrorEjecucion DivisionPorCero for a fill without weight, Desbordamiento, Subindice for
/// a
///         bedding outside 1..4
TerminosAnillo Ovalizacion(const Tramo& t, const Cargas& altura, const Cargas& unMetro,
                           double Landa);

}  // namespace zorbin
