// The ring of a height under its twelve load terms, from which both designs take their
// combinations.
#pragma once

#include "calculo/cargas/mdOval.h"
#include "core/campos/tramo.h"
#include "core/resultados.h"

namespace zorbin {

/// The term of 1 m of earth, among those of the height.
inline constexpr int kTerminoUnMetro = 8;

/// What the ring of a Tramo under the loads `q` [t/m2] is calculated from.
/// @param Landa  active earth pressure coefficient [-]
DatosOval DatosDelAnillo(const Tramo& t, const Cargas& q, double Landa);

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
                           double Landa, Rastro* rastro = nullptr);

}  // namespace zorbin
