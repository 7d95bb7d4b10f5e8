// The order "calcula": calculates an Obra and writes its summary or its results.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "recursos/mdCatalogo.h"

namespace zorbin {

struct OpcionesCalcula {
  std::filesystem::path obra;
  std::vector<int> tramos;          // numbers; empty for all
  std::string formato = "resumen";  // or "json"
  std::filesystem::path salida;     // empty for standard output
  std::string separador;            // "coma", "punto" or empty for the machine's
  std::filesystem::path registros;  // empty for the user's state folder
};

/// @return an exit code; what went wrong has been told on standard error.
int Calcula(const OpcionesCalcula& opciones, Catalogo& textos);

}  // namespace zorbin
