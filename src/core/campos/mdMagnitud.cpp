#include "core/campos/mdMagnitud.h"

#include <array>

namespace zorbin {

namespace {

// In the order of Magnitud.
constexpr std::array<Unidades, 14> kUnidades{{
    {"", ""},
    {"at", "MPa", kFactorTension},
    {"kp/cm2", "MPa", kFactorTension},
    {"t/m2", "MPa", kFactorCarga},
    {"m", "m"},
    {"cm", "cm"},
    {"mm", "mm"},
    {"cm2/m", "cm2/m"},
    {"t/m3", "t/m3"},
    {"º", "º"},
    {"%", "%"},
    {"", ""},
    {"", ""},
    {"", ""},
}};
static_assert(kUnidades.size() == static_cast<std::size_t>(Magnitud::Texto) + 1);

}  // namespace

const Unidades& UnidadesDe(Magnitud magnitud) {
  return kUnidades[static_cast<std::size_t>(magnitud)];
}

ParUnidades Pareja(double valor, bool enSI, Magnitud magnitud) {
  const double factor = UnidadesDe(magnitud).factor;
  if (enSI) return {valor * factor, valor};
  return {valor, valor / factor};
}

}  // namespace zorbin
