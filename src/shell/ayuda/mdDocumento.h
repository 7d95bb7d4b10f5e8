// The documents that come with the program, as a screen shows them.
#pragma once

#include <QString>
#include <filesystem>
#include <functional>

#include "base/mdCatalogo.h"

namespace zorbin {

/// HTML of the document that an entry of the catalogue names; empty when there is none.
using DocumentoHtml = std::function<QString(int entrada)>;

/// Those of the program. One that can't be read says so in its place.
/// @param busca  the path of a document by its name; empty when there is none
DocumentoHtml DocumentosDelPrograma(
    const Catalogo& textos, std::function<std::filesystem::path(const std::string& nombre)> busca);

}  // namespace zorbin
