// The working sheet of a check, in the words of the standard's hand calculation. It is a log for
// engineers, in Spanish and with a decimal point whatever the language.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

#include "calculo/ajustes/mdNecesaria.h"

namespace zorbin {

/// A text whose masks, runs of "#" with a point among them, take the values in their order: right
/// aligned in the width of the mask, with its decimals; one that ends in a point keeps it. A longer
/// number widens its field.
std::string Rellena(std::string_view plantilla, std::initializer_list<double> valores);

/// Text of the sheet. Pure tension has none: it is empty.
std::string HojaDeTrabajo(const Comprobacion& c);

/// File of the sheet in a folder of logs.
std::filesystem::path RutaHoja(const std::filesystem::path& carpeta);

/// Writes it anew. @return whether the disk took it
bool EscribeHoja(const std::filesystem::path& carpeta, const std::string& hoja);

}  // namespace zorbin
