#include "persistencia/disco/mdCarpetaPropia.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kSoloSuya = 0700;
constexpr mode_t kDeOtros = 0077;
constexpr const char* kSinCasa = "/nonexistent";  // the home of whoever has none

// An absolute path of the environment; empty for none.
fs::path DelEntorno(const char* variable) {
  const char* valor = std::getenv(variable);
  return valor != nullptr && *valor == '/' ? fs::path(valor) : fs::path();
}

fs::path CasaDelSistema() {
  std::array<char, 4096> espacio{};
  struct passwd datos, *hallado = nullptr;
  const bool hay =
      ::getpwuid_r(::geteuid(), &datos, espacio.data(), espacio.size(), &hallado) == 0 && hallado;
  return hay && datos.pw_dir[0] == '/' ? datos.pw_dir : kSinCasa;
}

bool EstaEn(const fs::path& carpeta, const fs::path& otra) {
  const auto [i, j] = std::mismatch(otra.begin(), otra.end(), carpeta.begin(), carpeta.end());
  return i == otra.end();
}

Causa Crea(const fs::path& carpeta) {
  struct stat datos;
  if (::stat(carpeta.c_str(), &datos) == 0) return S_ISDIR(datos.st_mode) ? 0 : ENOTDIR;
  if (errno != ENOENT || !carpeta.has_relative_path()) return errno;
  if (const Causa causa = Crea(carpeta.parent_path())) return causa;
  // Another program may have made it meanwhile.
  return ::mkdir(carpeta.c_str(), kSoloSuya) == 0 || errno == EEXIST ? 0 : errno;
}

Causa Cierra(const fs::path& carpeta) {
  struct stat datos;
  if (::stat(carpeta.c_str(), &datos) != 0) return errno;
  if (datos.st_uid != ::geteuid() && ::geteuid() != 0) return EPERM;
  if ((datos.st_mode & kDeOtros) == 0) return 0;
  return ::chmod(carpeta.c_str(), datos.st_mode & kSoloSuya) == 0 ? 0 : errno;
}

}  // namespace

fs::path CarpetaPropia() {
  if (const auto estado = DelEntorno("XDG_STATE_HOME"); !estado.empty()) return estado / "zorbin";
  const auto casa = DelEntorno("HOME");
  return (casa.empty() ? CasaDelSistema() : casa) / ".local" / "state" / "zorbin";
}

Causa PreparaCarpeta(const fs::path& carpeta) {
  std::error_code error;
  const fs::path entera = fs::absolute(carpeta, error).lexically_normal();
  if (error) return error.value();
  if (const Causa causa = Crea(entera)) return causa;
  const fs::path propia = CarpetaPropia().lexically_normal();
  if (!EstaEn(entera, propia)) return 0;
  if (const Causa causa = Cierra(propia)) return causa;
  return entera == propia ? 0 : Cierra(entera);
}

}  // namespace zorbin
