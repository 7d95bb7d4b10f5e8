#include "persistencia/disco/mdLog.h"

#include <cstdlib>

#include "base/aritmetica.h"

namespace zorbin {

std::filesystem::path CarpetaRegistros() {
  const char* estado = std::getenv("XDG_STATE_HOME");
  if (estado != nullptr && *estado == '/') return std::filesystem::path(estado) / "zorbin";
  const char* casa = std::getenv("HOME");
  if (casa != nullptr && *casa != '\0') {
    return std::filesystem::path(casa) / ".local" / "state" / "zorbin";
  }
  return std::filesystem::temp_directory_path() / "zorbin";
}

FicheroLog::FicheroLog(const std::filesystem::path& carpeta)
    : ruta_(carpeta / "Debugpim_cal.txt"),
      registro_([this](std::string_view bloque) { Escribe(bloque); }) {
  std::error_code error;
  std::filesystem::create_directories(carpeta, error);  // a folder that is missing shows below
  fichero_.reset(std::fopen(ruta_.c_str(), "ab"));
  if (!fichero_) throw ErrorEjecucion(CausaError::Registro, ruta_.string());
  std::setvbuf(fichero_.get(), nullptr, _IONBF, 0);  // the blocks are the buffer
}

void FicheroLog::Escribe(std::string_view bloque) {
  if (std::fwrite(bloque.data(), 1, bloque.size(), fichero_.get()) != bloque.size()) {
    throw ErrorEjecucion(CausaError::Registro, ruta_.string());
  }
}

}  // namespace zorbin
