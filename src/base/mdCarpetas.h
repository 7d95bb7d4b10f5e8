// Where the program finds its data.
#pragma once

#include <filesystem>
#include <string>

namespace zorbin {

/// Folder with the program's data (textos/, tablas/, documentos/...): beside an installed program,
/// otherwise that of the source tree. @throws ErrorCatalogo when there is none.
std::filesystem::path CarpetaRecursos();

/// A picture by its name, whose case does not matter. Empty when there is no such file.
std::filesystem::path RutaFigura(const std::string& nombre);

/// A document that comes with the program, likewise.
std::filesystem::path RutaDocumento(const std::string& nombre);

/// A sample Obra that comes with the program, likewise.
std::filesystem::path RutaMuestra(const std::string& nombre);

/// A page of the manual, likewise.
std::filesystem::path RutaAyuda(const std::string& nombre);

}  // namespace zorbin
