// The start of the program: its language, and what must be there before a window stands.
#pragma once

#include <filesystem>
#include <functional>

#include "base/mdCatalogo.h"
#include "shell/piezas/mdPreferencias.h"

namespace zorbin {

/// Reads or writes the language of the machine: "LEELO" reads it into `resultado` (-1 for none),
/// "GRABALO" writes `valor`. @return false for any other action
bool IdiomaPropio(Preferencias& preferencias, std::string_view accion, int valor, int& resultado);

/// Language of the program at its start: the machine's; Spanish where none was chosen, which is
/// told and written, and where the manual of that language is missing.
/// @param hayManual  whether the manual of a base name is installed
/// @param avisa      shows a message
/// @return the language in force, 1 to 5
int IdiomaAlEmpezar(Preferencias& preferencias, Catalogo& textos,
                    const std::function<bool(const std::string& nombre)>& hayManual,
                    const std::function<void(const std::string&)>& avisa);

}  // namespace zorbin
