// The order "mediciones": quantities of the Tramos of an Obra, and their cost.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/mdCatalogo.h"

namespace zorbin {

struct OpcionesMediciones {
  std::filesystem::path obra;
  std::vector<int> tramos;          // numbers; empty for all
  std::filesystem::path precios;    // JSON; empty for those of the Obra
  std::string formato;              // "texto", which is also the empty one, or "json"
  std::string casos;                // "peor", which is also the empty one, or "todos"
  std::filesystem::path csv, xlsx;  // besides, or empty
  std::filesystem::path salida;     // empty for standard output
  std::string idioma;               // "es", "en"... or empty for the Obra's
  std::string separador;            // "coma", "punto" or empty for the machine's
  std::filesystem::path tablas;     // of the manufacturers; empty for the program's
  bool sinValidar = false;          // the stored numbers as they are
};

/// @return an exit code; what went wrong has been told on standard error.
int Mediciones(const OpcionesMediciones& opciones, Catalogo& textos);

}  // namespace zorbin
