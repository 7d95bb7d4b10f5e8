#include "persistencia/mdCerrojo.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "persistencia/mdRegistros.h"
#include "recursos/textos.h"

namespace zorbin {

namespace {

constexpr mode_t kPermisos = 0666;

int Abre(const std::filesystem::path& ruta) {
  const int descriptor = ::open(ruta.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kPermisos);
  if (descriptor >= 0) return descriptor;
  throw ErrorFichero({txt::NoSeAbre, {ruta.string(), std::generic_category().message(errno)}});
}

Cerrojo::Estado Toma(int descriptor, PideCerrojo pide) {
  int resultado = 0;
  do {
    resultado = pide(descriptor, LOCK_EX | LOCK_NB);
  } while (resultado != 0 && errno == EINTR);
  if (resultado == 0) return Cerrojo::Estado::Tomado;
  return errno == EWOULDBLOCK ? Cerrojo::Estado::Ocupado : Cerrojo::Estado::SinCerrojos;
}

}  // namespace

int CerrojoDelSistema(int descriptor, int operacion) {
  return ::flock(descriptor, operacion);
}

Cerrojo::Cerrojo(const std::filesystem::path& ruta, PideCerrojo pide)
    : descriptor_(Abre(ruta)), estado_(Toma(descriptor_, pide)) {}

Cerrojo::~Cerrojo() {
  ::close(descriptor_);
}

}  // namespace zorbin
