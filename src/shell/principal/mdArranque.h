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

/// Language of the program at its start: the one chosen; that of the desktop where none was, until
/// one is; Spanish where the manual of that language is missing.
/// @param delEscritorio  1 to 5
/// @param hayManual      whether the manual of a base name is installed
/// @return the language in force, 1 to 5
int IdiomaAlEmpezar(Preferencias& preferencias, Catalogo& textos, int delEscritorio,
                    const std::function<bool(const std::string& nombre)>& hayManual);

}  // namespace zorbin
