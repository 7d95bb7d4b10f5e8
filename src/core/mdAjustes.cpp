#include "core/mdAjustes.h"

#include <cmath>

namespace zorbin {

namespace {

// The guard keeps binary fractions from deciding: 6.05 - 6.00 is below 0.05 in doubles.
constexpr double kTolerancia = 0.05 - 1e-9;  // [at] and [m]

}  // namespace

int BuscaCaso(const std::vector<EntradaAjuste>& entradas, double DP, int NumeroTramo, double Hr) {
  int libre = 0;
  int posicion = 0;
  for (const auto& x : entradas) {
    ++posicion;
    if (x.Libre()) {
      libre = posicion;
    } else if (std::fabs(DP - x.DP) < kTolerancia && x.Tramo == NumeroTramo &&
               std::fabs(Hr - x.Hr) < kTolerancia) {
      return posicion;
    }
  }
  return -libre;
}

std::optional<Ajuste> AjusteDelCaso(const std::vector<EntradaAjuste>& entradas, double DP,
                                    int NumeroTramo, double Hr) {
  const int posicion = BuscaCaso(entradas, DP, NumeroTramo, Hr);
  if (posicion <= 0) return std::nullopt;
  return entradas[static_cast<std::size_t>(posicion - 1)].areas;
}

}  // namespace zorbin
