// Hatches of the materials: what tells soil, gravel and concrete apart in a line drawing.
#pragma once

#include "programas/genera-figuras/mdLapiz.h"

namespace zorbin::figuras {

enum class Material { Relleno, Granular, Hormigon, Mortero };

/// Fills `region` with the grains of a material. The grains are the same in every run.
void Trama(Lapiz& lapiz, const QPainterPath& region, Material material);

/// Hatches the natural ground: groups of slanted strokes in a band along `perfil`, on the side
/// where `terreno` lies.
void TramaTerreno(Lapiz& lapiz, const QPainterPath& perfil, const QPainterPath& terreno);

}  // namespace zorbin::figuras
