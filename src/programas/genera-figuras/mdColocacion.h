// Pictures of the laying of the pipe: cross sections of trench, trench under embankment and
// embankment with the heights of the load calculation, and details of the bedding with its angle.
#pragma once

#include "programas/genera-figuras/mdLapiz.h"
#include "programas/genera-figuras/mdTramas.h"

namespace zorbin::figuras {

enum class Colocacion { Zanja, ZanjaTerraplenada, Terraplen };

/// Bedding: material (`Granular` or `Hormigon`) and angle of contact with the pipe [degrees].
struct Cuna {
  Material material;
  int angulo;
};

/// Laying on a bedding, with b, Hr and, by the kind, Hr' or Hr''. For a sheet of 100 x 55 mm.
void DibujaColocacion(Lapiz& lapiz, Colocacion colocacion, Cuna cuna);

/// Bedding with its angle and the external diameter. For a sheet of 55 x 55 mm.
void DibujaCuna(Lapiz& lapiz, Cuna cuna);

/// Title: a quiet cut of trench and pipe with the word ZORBIN. For a sheet of 120 x 75 mm.
void DibujaAnagrama(Lapiz& lapiz);

}  // namespace zorbin::figuras
