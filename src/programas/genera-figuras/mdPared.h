// Pictures of the pipe wall: a sector of the cross section over a longitudinal section of the same
// wall, with the layers of concrete and steel, the thickness and the covers.
#pragma once

#include "programas/genera-figuras/mdLapiz.h"

namespace zorbin::figuras {

/// The three walls that have a picture: post-tensioned with the cylinder embedded in the core, with
/// the cylinder round the core, and reinforced with cylinder.
enum class Pared { CamisaEmbebida, CamisaRevestida, Armado };

/// For a sheet of 55 x 55 mm.
void DibujaPared(Lapiz& lapiz, Pared pared);

}  // namespace zorbin::figuras
