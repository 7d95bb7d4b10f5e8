// Which application opens PDF files, told from the files that a desktop tells it by. Nothing is
// run.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace zorbin {

/// Where the desktop keeps what it knows of applications, each list from the first that counts to
/// the last.
struct CarpetasEscritorio {
  std::vector<std::filesystem::path> configuracion;  // XDG_CONFIG_HOME, XDG_CONFIG_DIRS
  std::vector<std::filesystem::path> datos;          // XDG_DATA_HOME, XDG_DATA_DIRS
  std::vector<std::string> escritorios;              // XDG_CURRENT_DESKTOP, in lower case
  std::vector<std::filesystem::path> programas;      // PATH
};

/// Of the session: the variables, or what stands for one that is not set.
/// @param variable  its value, null when it is not set
CarpetasEscritorio CarpetasDeLaSesion(const std::function<const char*(const char*)>& variable);

enum class VisorPdf { Ninguno, SinOrden, Presente };

/// Whether an application opens PDF files: none, one that does not say how it is started, or one.
/// Files that can't be read count as missing.
VisorPdf BuscaVisorPdf(const CarpetasEscritorio& carpetas);

}  // namespace zorbin
