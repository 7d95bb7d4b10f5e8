#include "persistencia/disco/mdLog.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include "persistencia/disco/mdFicheroSalida.h"

namespace zorbin {

namespace {

constexpr mode_t kSoloSuyo = 0600;
constexpr mode_t kDeOtros = 0077;

// A pipe or a socket would have to be waited for.
bool SePuedeEscribir(const struct stat& datos) {
  return S_ISREG(datos.st_mode) || S_ISCHR(datos.st_mode);
}

}  // namespace

FicheroLog::FicheroLog(const std::filesystem::path& carpeta, std::uint64_t maximo)
    : ruta_(carpeta / "Debugpim_cal.txt"),
      maximo_(maximo),
      causa_(PreparaCarpeta(carpeta)),
      registro_([this](std::string_view bloque) { Escribe(bloque); }) {
  if (causa_ == 0) causa_ = Abre();
}

Causa FicheroLog::Abre() {
  struct stat datos;
  if (const Causa causa = AbreFichero(
          d_, ruta_, O_WRONLY | O_APPEND | O_CREAT | O_NONBLOCK | O_NOCTTY, kSoloSuyo)) {
    return causa;
  }
  if (::fstat(d_.numero(), &datos) != 0) return errno;
  if (!SePuedeEscribir(datos)) return EINVAL;
  // One of somebody else's, in a folder that was asked for, keeps its rights.
  if (S_ISREG(datos.st_mode) && (datos.st_mode & kDeOtros) != 0) {
    static_cast<void>(::fchmod(d_.numero(), kSoloSuyo));
  }
  return 0;
}

// Another program may write in it too, or have set it aside already.
Causa FicheroLog::Cabe(std::uint64_t bytes) {
  struct stat datos;
  if (::fstat(d_.numero(), &datos) != 0) return errno;
  if (!S_ISREG(datos.st_mode) || static_cast<std::uint64_t>(datos.st_size) + bytes <= maximo_) {
    return 0;
  }
  bool mismo = false;
  if (const Causa causa = EsElMismo(d_, ruta_, mismo)) return causa;
  std::error_code error;
  if (mismo) {
    std::filesystem::rename(ruta_, ruta_.parent_path() / "Debugpim_cal.anterior.txt", error);
  }
  return error ? error.value() : Abre();
}

void FicheroLog::Escribe(std::string_view bloque) {
  if (causa_ == 0) causa_ = Cabe(bloque.size());
  if (causa_ == 0) causa_ = EscribeSeguido(d_, bloque);
}

}  // namespace zorbin
