#include "base/mdCarpetas.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <vector>

#include "base/mdCatalogo.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

fs::path CarpetaInstalada() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).parent_path() / ".." / "share" / "zorbin";
}

bool IgualSinCaja(const std::string& a, const std::string& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
    return std::tolower(x) == std::tolower(y);
  });
}

// A file by its name in the first folder that has it.
fs::path BuscaFichero(const std::vector<fs::path>& carpetas, const std::string& nombre) {
  std::error_code error;
  for (const auto& carpeta : carpetas) {
    for (const auto& f : fs::directory_iterator(carpeta, error)) {
      if (IgualSinCaja(f.path().filename().string(), nombre)) return f.path();
    }
  }
  return {};
}

}  // namespace

fs::path CarpetaRecursos() {
  std::error_code error;
  const std::array<fs::path, 2> candidatas{CarpetaInstalada(), ZORBIN_RECURSOS};
  for (const auto& carpeta : candidatas) {
    if (fs::exists(carpeta / "textos" / "es.json", error)) return fs::weakly_canonical(carpeta);
  }
  throw ErrorCatalogo("the data of the program (textos/es.json) were not found beside it nor in " +
                      std::string(ZORBIN_RECURSOS));
}

fs::path RutaFigura(const std::string& nombre) {
  return BuscaFichero({CarpetaInstalada() / "figuras", ZORBIN_FIGURAS}, nombre);
}

fs::path RutaDocumento(const std::string& nombre) {
  return BuscaFichero({CarpetaInstalada() / "documentos", fs::path(ZORBIN_RECURSOS) / "documentos",
                       ZORBIN_DOCUMENTOS},
                      nombre);
}

fs::path RutaMuestra(const std::string& nombre) {
  return BuscaFichero(
      {CarpetaInstalada() / "muestras", fs::path(ZORBIN_RECURSOS) / ".." / "muestras"}, nombre);
}

fs::path RutaAyuda(const std::string& nombre) {
  return BuscaFichero({CarpetaInstalada() / "ayuda", fs::path(ZORBIN_RECURSOS) / "ayuda"}, nombre);
}

}  // namespace zorbin
