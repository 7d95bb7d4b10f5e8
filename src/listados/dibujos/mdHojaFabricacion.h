// The sheet a pipe is made from: its section and its cages unrolled, to scale, with a table of the
// steel and the data of concrete, wire and tests, on one A3.
#pragma once

#include "calculo/mediciones/mdMediciones.h"
#include "listados/dibujos/mdHoja.h"

namespace zorbin {

/// The scale is that of the section.
/// @throws ErrorEjecucion Desbordamiento, as MideCaso
Lamina DibujaHojaFabricacion(const CasoDibujado& caso, const Fabricacion& fab,
                             const PalabrasDibujo& palabras);

}  // namespace zorbin
