// The order "importa": brings data of a file into an Obra, or writes the workbook to fill in.
#pragma once

#include <filesystem>
#include <string>

#include "base/mdCatalogo.h"

namespace zorbin {

struct OpcionesImporta {
  std::filesystem::path datos;      // .json, .csv or .xlsx
  std::filesystem::path obra;       // it may exist
  std::filesystem::path plantilla;  // written in place of both
  bool parcial = false;             // what is right, although other things are not
  std::string idioma;               // of the template
  std::string separador;            // "coma", "punto" or empty for the machine's
  std::filesystem::path tablas;     // of the manufacturers; empty for the program's
};

/// @return an exit code; what went wrong has been told on standard error.
int ImportaDatos(const OpcionesImporta& opciones, Catalogo& textos);

}  // namespace zorbin
