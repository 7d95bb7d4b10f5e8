// A save that broke off, as a program that was killed leaves it.
#pragma once

#include <filesystem>
#include <string>

#include "comun/carpeta.h"
#include "persistencia/disco/mdDiario.h"

namespace zorbin::pruebas {

/// The bytes of a record with a text.
Bloque BloqueDe(const std::string& texto);

/// Beside the file, the journal of a save of these records; in the file, the first `escritos` of
/// them, and of the next one the first half.
void DejaAMedias(const std::filesystem::path& fichero, const Bloques& bloques, int escritos);

/// Records 5 and 6 of a header changed, and one past the end of the file; two of them written.
void DejaCabeceraAMedias(const std::filesystem::path& fichero);

}  // namespace zorbin::pruebas
