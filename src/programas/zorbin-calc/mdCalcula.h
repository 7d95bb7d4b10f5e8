// The order "calcula": calculates an Obra and writes its summary, its results or a listing.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/mdCatalogo.h"

namespace zorbin {

struct OpcionesCalcula {
  std::filesystem::path obra;
  std::vector<int> tramos;          // numbers; empty for all
  std::string formato;              // "resumen", which is also the empty one, or "json"
  std::string listado;              // "normal", "tabular", "pantalla", "lame", "informe" or none
  std::string detalle;              // of "informe": "resumen", "pesimo" or "todos"
  bool si = false;                  // of "informe": also of very many pages
  std::filesystem::path pdf;        // of the listing
  std::filesystem::path texto;      // of the listing
  std::filesystem::path tabla;      // of the Casos, .csv or .xlsx
  std::string columnas;             // of the table, with commas; empty for those shown at first
  std::string idioma;               // "es", "en"... or empty for the Obra's
  std::string fecha;                // of the page heads, or empty for the machine's
  std::filesystem::path salida;     // empty for standard output
  std::string separador;            // "coma", "punto" or empty for the machine's
  std::optional<int> hilos;         // none: all of the machine
  bool sinValidar = false;          // the stored numbers as they are
  bool estricto = false;            // a Caso that does not comply gives an exit code
  bool envolvente = false;          // the enveloping design
  std::filesystem::path tablas;     // of the manufacturers; empty for the program's
  std::filesystem::path registros;  // empty for the user's state folder
};

/// @return an exit code; what went wrong has been told on standard error.
int Calcula(const OpcionesCalcula& opciones, Catalogo& textos);

}  // namespace zorbin
