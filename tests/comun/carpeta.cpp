#include "comun/carpeta.h"

#include <unistd.h>

#include <fstream>

namespace zorbin::pruebas {

namespace fs = std::filesystem;

Carpeta::Carpeta() {
  static int cuenta = 0;
  ruta_ = fs::canonical(fs::temp_directory_path()) /
          ("zorbin-prueba-" + std::to_string(::getpid()) + "-" + std::to_string(++cuenta));
  fs::create_directories(ruta_);
}

Carpeta::~Carpeta() {
  std::error_code error;
  fs::permissions(ruta_, fs::perms::owner_all, error);
  fs::remove_all(ruta_, error);
}

std::string Bytes(const fs::path& fichero) {
  std::ifstream f(fichero, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), {}};
}

void PonBytes(const fs::path& fichero, const std::string& bytes) {
  std::ofstream(fichero, std::ios::binary) << bytes;
}

}  // namespace zorbin::pruebas
