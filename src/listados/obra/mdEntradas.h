// The data of a calculation as a listing repeats them: what goes through ranges, and what was
// chosen or given besides the data that its heading shows.
#pragma once

#include <string>
#include <vector>

#include "base/mdCatalogo.h"
#include "core/resultado.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

/// A line for each datum, of at most 76 columns. Reinforced Tramos have their control and the surge
/// in the heading of "Normal": they are left out unless `conControl`.
std::vector<std::string> TextoEntradas(const ResultadoTramo& r, const Catalogo& textos,
                                       const EstiloNumeros& estilo, bool conControl);

/// The last height of the range where the steps miss it, and no Caso has it; empty otherwise.
std::string TextoAlturaCorta(const Rango& r, const Catalogo& textos, const EstiloNumeros& estilo);

}  // namespace zorbin
