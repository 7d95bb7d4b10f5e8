// A project of the disk as it is held in memory to be saved.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "persistencia/proyecto/mdGrabaProyecto.h"

namespace zorbin::pruebas {

ProyectoAGrabar EnMemoria(const std::filesystem::path& obra);

/// What a person finds of a project: client, and of each Tramo number, description, design and
/// adjustments; "sin ..." for what is refused.
std::string Resumido(const std::filesystem::path& obra);

}  // namespace zorbin::pruebas
