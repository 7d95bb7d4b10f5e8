// The pipe in its trench, in its trench under an embankment or under its embankment, with the
// widths and heights of the data to scale: a pipe that does not fit is seen not to.
#pragma once

#include "listados/dibujos/mdHoja.h"

namespace zorbin {

Lamina DibujaZanja(const CasoDibujado& caso, const PalabrasDibujo& palabras,
                   const HojaDibujo& hoja = {});

}  // namespace zorbin
