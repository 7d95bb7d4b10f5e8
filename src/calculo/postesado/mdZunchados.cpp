#include "calculo/postesado/mdZunchados.h"

#include <bit>

#include "calculo/postesado/mdLame.h"
#include "calculo/postesado/mdPerdidas.h"

namespace zorbin {

Zunchados::Zunchados(const Tramo& t) : t_(t), radios_(Radios(t)), materiales_(Materiales(t)) {}

Zunchado Zunchados::Calcula(const Alambre& alambre, Rastro* rastro) const {
  Zunchado z;
  z.alambre = alambre;
  z.seccion = PropiedadesSeccion(materiales_, radios_, alambre, rastro);
  z.perdidas = PerdidasYTensiones(t_, materiales_, radios_, z.seccion, rastro);
  if (z.perdidas.NucleoAguanta) z.K = CoeficientesPresion(materiales_, z.seccion, rastro);
  return z;
}

const Zunchado& Zunchados::De(const Alambre& alambre, Rastro* rastro) {
  constexpr std::uint64_t kMezcla = 0x9E3779B97F4A7C15U;
  const auto bits = std::bit_cast<std::uint64_t>(alambre.FIPR) * kMezcla ^
                    std::bit_cast<std::uint64_t>(alambre.NESP);
  auto& lugar = lugares_[(bits * kMezcla) >> (64 - kBits)];
  if (lugar == 0) {
    hechos_.push_back(Calcula(alambre, nullptr));
    lugar = static_cast<std::uint16_t>(hechos_.size());
  }
  auto& hecho = hechos_[lugar - 1U];
  // Another one had its place, or its steps are asked for.
  if (rastro != nullptr || hecho.alambre != alambre) hecho = Calcula(alambre, rastro);
  return hecho;
}

}  // namespace zorbin
