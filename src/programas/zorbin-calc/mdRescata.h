// The order "rescata": what can be read of a damaged Obra goes into a new one.
#pragma once

#include <filesystem>
#include <string>

#include "base/mdCatalogo.h"
#include "persistencia/proyecto/mdProyecto.h"

namespace zorbin {

struct OpcionesRescata {
  std::filesystem::path obra;
  std::filesystem::path salida;  // of the new one
  std::string separador;         // "coma", "punto" or empty for the machine's
};

/// Writes header, whole Tramos and adjustments of an Obra into a new one; each thing that could not
/// be read is told on standard error. Nothing that exists is written over.
/// @return an exit code; that of a refused file also where something was left out
int Rescata(const OpcionesRescata& opciones, Catalogo& textos);

/// Reads a project. @throws ErrorFichero that tells, of a damaged one, how many Tramos could be had
Proyecto LeeProyectoEntero(const std::filesystem::path& ruta, const Catalogo& textos);

}  // namespace zorbin
