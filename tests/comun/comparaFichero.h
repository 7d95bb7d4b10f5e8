// Golden files: a whole listing against the one kept in tests/datos/.
#pragma once

#include <string>

namespace zorbin::pruebas {

/// Empty when `texto` is what the golden file holds; otherwise what to look at. The new text is
/// left beside the golden one with ".out" added; copying it over accepts it.
std::string Compara(const std::string& dorado, const std::string& texto);

}  // namespace zorbin::pruebas
