// A sheet as SVG: the same text for the same sheet, on any machine.
#pragma once

#include <array>
#include <string>

#include "listados/dibujos/mdLamina.h"
#include "listados/dibujos/mdPaleta.h"

namespace zorbin {

/// Each shape tells its layer by its class; what can be pointed at has its identifier as data-id.
/// @param titulo  of the document
std::string SvgDe(const Lamina& lamina, const Paleta& paleta, const std::string& titulo);

/// Lengths of lines and gaps of a pattern [mm], 0 to the end; none for a continuous line.
const std::array<double, 4>& Guiones(Patron patron);

}  // namespace zorbin
