#include "calculo/cargas/mdTablaCargas.h"

#include <limits>

#include "calculo/cargas/mdMarston.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

constexpr double kUnMetro = 1.0;  // [m]
constexpr std::size_t kMaxFilas = std::numeric_limits<std::int16_t>::max();

FilaCargas Fila(const Tramo& t, double H, std::int16_t ICarga, const Cargas& dadas) {
  const Cargas q = CargasMarston(t, H, ICarga, dadas);
  const double tierras = q.Q - q.QMovil;
  if (t.TipoApoyo > 30) {
    std::optional<double> moviles;
    if (t.ICar != 0) moviles = q.QMovil;
    return {H, std::nullopt, tierras, std::nullopt, moviles, q.Q, false};
  }
  if (q.TerraplenRige) return {H, q.QTierras, tierras, tierras, q.QMovil, q.Q, true};
  return {H, tierras, q.QTierras, tierras, q.QMovil, q.Q, false};
}

}  // namespace

std::vector<FilaCargas> TablaCargas(const Tramo& t, const Rango& r, const Cargas& dadas) {
  std::vector<FilaCargas> filas;
  try {
    filas.push_back(Fila(t, kUnMetro, 0, dadas));
    std::optional<double> H = AlturaSiguiente(r.Hr0 - r.Hr0Delta, r.Hr0Delta, r.Hr0Final);
    if (r.Hr0Delta == 0.0) H = r.Hr0;
    while (H && *H <= r.Hr0Final && filas.size() < kMaxFilas) {
      filas.push_back(Fila(t, *H, t.ICar, dadas));
      H = AlturaSiguiente(*H, r.Hr0Delta, r.Hr0Final);
    }
  } catch (const ErrorEjecucion&) {
    // The rows so far stay; the run names the failure at the height where it stands.
  }
  return filas;
}

Cargas CargasUnMetro(const Tramo& t, const Cargas& dadas, Rastro* rastro) {
  return CargasMarston(t, kUnMetro, 0, dadas, rastro);
}

}  // namespace zorbin
