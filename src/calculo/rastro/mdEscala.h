// The expression of a formula for figures in other units, exactly: the factors between units go up
// through it and are left where they do not cancel.
#pragma once

#include <span>

#include "calculo/rastro/mdExpresion.h"

namespace zorbin {

/// @param e           of figures in calculation units
/// @param simbolos    printed value over calculated value, of each symbol
/// @param resultado   the same of the result; not used of a relation
Expresion CambiaUnidades(const Expresion& e, std::span<const double> simbolos, double resultado);

}  // namespace zorbin
