// Reinforced design of one Caso: five hypotheses, the one that needs most steel, and its checks.
// Source: Anejo 4 "Cálculo Mecánico" of the Instrucción del Instituto Eduardo Torroja.
#pragma once

#include <optional>

#include "calculo/rastro/mdRastro.h"
#include "core/campos/tramo.h"
#include "core/resultados.h"

namespace zorbin {

/// Moments [m·t/m] and axial forces [t/m] of the five hypotheses, tension positive:
///     1 factory test, PP                 4 DP, fixed and moving loads
///     2 empty pipe, earth, moving load   5 MDP and fixed loads
///     3 STP and 1 m of earth
/// The pressure is the ring force p·10·R of a thin cylinder, and goes to N only.
/// @param terminos   of the ring [m·t/m, t/m]
/// @param presiones  [at]
/// @param R          inner radius [m]
/// @throws ErrorEjecucion Desbordamiento
Esfuerzos EsfuerzosArmado(const TerminosAnillo& terminos, const PresionesCaso& presiones, double R,
                          Rastro* rastro = nullptr);

/// Designs a Caso. The hypothesis with the largest total governs, and the later one of equals; its
/// steel is searched again for its warnings. Where it is the factory test, bars are laid out for
/// its areas. A hand adjustment takes the place of the areas, and the calculated bars stay.
/// @param t          the Tramo, in calculation units
/// @param terminos   of the ring [m·t/m, t/m]
/// @param presiones  [at]
/// @param ajuste     hand adjustment of the Caso, if it has one
/// @param marcha     rounds, warnings and lines of the log are added
/// @throws ErrorEjecucion as `ArmTubo`; Registro
ResultadoArmado DisenoArmado(const Tramo& t, const TerminosAnillo& terminos,
                             const PresionesCaso& presiones, const std::optional<Ajuste>& ajuste,
                             Marcha& marcha, Rastro* rastro = nullptr);

}  // namespace zorbin
