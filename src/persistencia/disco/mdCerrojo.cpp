#include "persistencia/disco/mdCerrojo.h"

#include <sys/file.h>

#include <cerrno>
#include <chrono>
#include <thread>

namespace zorbin {

namespace {

constexpr int kIntentos = 5;
constexpr std::chrono::milliseconds kEspera{10};

Cerrojo Pide(const Descriptor& d, int operacion, PideCerrojo pide) {
  int resultado = 0;
  do {
    resultado = pide(d.numero(), operacion | LOCK_NB);
  } while (resultado != 0 && errno == EINTR);
  if (resultado == 0) return Cerrojo::Tomado;
  return errno == EWOULDBLOCK ? Cerrojo::Ocupado : Cerrojo::SinCerrojos;
}

}  // namespace

int CerrojoDelSistema(int descriptor, int operacion) {
  return ::flock(descriptor, operacion);
}

Cerrojo TomaCerrojo(const Descriptor& d, PideCerrojo pide) {
  Cerrojo estado = Pide(d, LOCK_EX, pide);
  for (int i = 1; i < kIntentos && estado == Cerrojo::Ocupado; ++i) {
    std::this_thread::sleep_for(kEspera);
    estado = Pide(d, LOCK_EX, pide);
  }
  return estado;
}

bool LoTieneOtro(const Descriptor& d, PideCerrojo pide) {
  const Cerrojo estado = Pide(d, LOCK_SH, pide);
  if (estado == Cerrojo::Tomado) pide(d.numero(), LOCK_UN);
  return estado == Cerrojo::Ocupado;
}

}  // namespace zorbin
