// A document of the command line as a PDF file.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "base/mdCatalogo.h"
#include "listados/papel/mdPapel.h"

namespace zorbin {

/// Writes what the document puts on its sheets, and says on standard output how many there are.
/// @throws ErrorSalida
void EscribePdf(const std::filesystem::path& fichero, const std::string& titulo,
                const Catalogo& textos, const std::function<void(DestinoHojas&)>& documento);

}  // namespace zorbin
