// The order "dibuja": one drawing of a Tramo as SVG, PDF, PNG or DXF.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/mdCatalogo.h"

namespace zorbin {

struct OpcionesDibuja {
  std::filesystem::path obra;
  std::vector<int> tramos;             // one
  std::optional<std::string> altura;   // [m]; none for the worst Caso
  std::optional<std::string> presion;  // DP, in the unit of the Obra
  std::optional<int> hipotesis;        // none for the governing one
  std::string que;                     // "seccion", "zanja", "anillo", "mapa", "grafico", "hoja"
  std::string grafico;                 // "acero", which is also the empty one, "interior"...
  std::string eje;                     // "presion", which is also the empty one, or "altura"
  std::filesystem::path svg, pdf, png, dxf;  // one of them
  std::optional<std::string> escala;         // 1:escala
  std::string tema;              // "papel", which is also the empty one, "claro", "oscuro"
  std::string idioma;            // "es", "en"... or empty for the Obra's
  std::string separador;         // "coma", "punto" or empty for the machine's
  std::filesystem::path tablas;  // of the manufacturers; empty for the program's
  bool sinValidar = false;       // the stored numbers as they are
  bool envolvente = false;       // the enveloping design
};

/// @return an exit code; what went wrong has been told on standard error.
int Dibuja(const OpcionesDibuja& opciones, Catalogo& textos);

}  // namespace zorbin
