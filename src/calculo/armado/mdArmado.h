// Reinforced design of one Caso: five hypotheses, the one that needs most steel, and its checks.
#pragma once

#include <optional>

#include "core/estado_calculo.h"

namespace zorbin {

Esfuerzos EsfuerzosArmado(const TerminosAnillo& terminos, const PresionesCaso& presiones, double R);

ResultadoArmado DisenoArmado(const Tramo& t, const TerminosAnillo& terminos,
                             const PresionesCaso& presiones, const std::optional<Ajuste>& ajuste,
                             Marcha& marcha);

}  // namespace zorbin
