// The file beside the project with the reinforcement that an engineer fixed by hand: entries of
// eight records, after a first one with the number of records in use.
#pragma once

#include <filesystem>
#include <vector>

#include "core/estado_calculo.h"
#include "persistencia/mdRegistros.h"

namespace zorbin {

/// Name of the file that belongs to a project: its extension replaced by ".dpe", or ".dpe" added
/// to a project that has that extension itself.
std::filesystem::path RutaDpe(const std::filesystem::path& obra);

/// Entries of the file, free ones included, in their places. None for a file that does not exist.
/// @throws ErrorFichero naming the record and what was expected
std::vector<EntradaAjuste> LeeAjustes(const std::filesystem::path& dpe);

/// Writes the entries from the first record on.
/// @throws ErrorFichero
void EscribeAjustes(FicheroRegistros& f, const std::vector<EntradaAjuste>& entradas,
                    char separador);

}  // namespace zorbin
