// The pipe in its trench, in its trench under an embankment or under its embankment, with the
// widths and heights of the data to scale: a pipe that does not fit is seen not to.
#pragma once

#include "listados/dibujos/mdHoja.h"

namespace zorbin {

Lamina DibujaZanja(const CasoDibujado& caso, const PalabrasDibujo& palabras,
                   const HojaDibujo& hoja = {});

/// The same from the data alone. Data that cannot be drawn leave an empty frame.
/// @param t   in calculation units
/// @param Hr  fill height [m]
Lamina DibujaColocacion(const Tramo& t, double Hr, const PalabrasDibujo& palabras,
                        const HojaDibujo& hoja = {});

}  // namespace zorbin
