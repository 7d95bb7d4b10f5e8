// The order "ajustes": lists the reinforcements that were adjusted by hand.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/mdCatalogo.h"

namespace zorbin {

struct OpcionesListaAjustes {
  std::filesystem::path obra;
  std::vector<int> tramos;  // numbers; empty for all
  std::string formato;      // "texto", which is also the empty one, or "json"
  std::string separador;    // "coma", "punto" or empty for the machine's
};

/// Lists the stored adjustments by Tramo, height and pressure, in the language of the Obra.
/// @return an exit code; what went wrong has been told on standard error.
int Ajustados(const OpcionesListaAjustes& opciones, Catalogo& textos);

}  // namespace zorbin
