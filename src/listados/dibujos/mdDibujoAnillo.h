// Moment and axial force all round the ring, as the books draw them: out from the ring what puts
// its inner face, or all of it, in tension. The values of the design at crown, haunches and invert
// stand beside it, and the true extremes where they are.
#pragma once

#include "calculo/anillo/mdAnilloCaso.h"
#include "listados/dibujos/mdHoja.h"

namespace zorbin {

enum class LeyesDibujadas : std::uint8_t { Ambas, Momentos, Axiles };

/// @param hipotesis  1 to the number of those of the design
/// @throws ErrorEjecucion Subindice for another
Lamina DibujaAnillo(const CasoDibujado& caso, int hipotesis, const PalabrasDibujo& palabras,
                    const HojaDibujo& hoja = {}, LeyesDibujadas leyes = LeyesDibujadas::Ambas);

/// What a moment beyond the three sections is told with; one line for each face that has one.
std::vector<std::string> TextoExcesos(const AnilloCaso& anillo, const PalabrasDibujo& palabras);

}  // namespace zorbin
