// The orders "hidraulica" and "medios": the two calculators beside the Obra.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>

#include "base/mdCatalogo.h"
#include "calculo/protecciones/mdMedios.h"

namespace zorbin {

/// What both calculators may be asked for.
struct OpcionesSalida {
  std::string formato;        // "texto", which is also the empty one, or "json"
  std::filesystem::path pdf;  // empty for no PDF
  std::string idioma = "es";
  std::string separador;  // "coma", "punto" or empty for the machine's
};

struct OpcionesHidraulica {
  std::string metodo;                    // "prandtl", "darcy" or "hazen"
  std::optional<std::string> pendiente;  // [m/m]
  std::optional<std::string> caudal;     // [m3/s]
  std::optional<std::string> rugosidad;  // [mm], or Hazen coefficient
  OpcionesSalida salida;
};

struct OpcionesMedios {
  std::array<std::optional<std::string>, kMedios> valores;  // by place; without one, the default
  bool ciclos = false;
  OpcionesSalida salida;
};

/// @return an exit code; what went wrong has been told on standard error.
int Hidraulica(const OpcionesHidraulica& opciones, Catalogo& textos);
int Medios(const OpcionesMedios& opciones, Catalogo& textos);

}  // namespace zorbin
