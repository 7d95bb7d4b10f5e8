// A folder that goes away with the test, and the bytes of its files.
#pragma once

#include <filesystem>
#include <string>

namespace zorbin::pruebas {

class Carpeta {
 public:
  Carpeta();
  ~Carpeta();
  Carpeta(const Carpeta&) = delete;
  Carpeta& operator=(const Carpeta&) = delete;
  const std::filesystem::path& ruta() const { return ruta_; }
  std::filesystem::path operator/(const std::string& nombre) const { return ruta_ / nombre; }

 private:
  std::filesystem::path ruta_;  // its real name
};

/// Empty for a file that is not there.
std::string Bytes(const std::filesystem::path& fichero);
void PonBytes(const std::filesystem::path& fichero, const std::string& bytes);

}  // namespace zorbin::pruebas
