#include "calculo/cargas/mdTablaCargas.h"

#include <limits>

#include "calculo/cargas/mdMarston.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

constexpr double kUnMetro = 1.0;  // [m]
constexpr std::size_t kMaxFilas = std::numeric_limits<std::int16_t>::max();

FilaCargas Fila(const EstadoCalculo& e, double H) {
  const Cargas& q = e.corrida;
  const double tierras = q.Q - q.QMovil;
  if (e.tramo.TipoApoyo > 30) {
    std::optional<double> moviles;
    if (e.tramo.ICar != 0) moviles = q.QMovil;
    return {H, std::nullopt, tierras, std::nullopt, moviles, q.Q, false};
  }
  if (q.TerraplenRige) return {H, q.QTierras, tierras, tierras, q.QMovil, q.Q, true};
  return {H, tierras, q.QTierras, tierras, q.QMovil, q.Q, false};
}

void AnadeFila(EstadoCalculo& e, double H, std::int16_t ICarga) {
  CargasMarston(e, H, ICarga);
  DivideCargas(e);
  e.corrida.TablaCargas.push_back(Fila(e, H));
}

void RecorreAlturas(EstadoCalculo& e) {
  const auto& c = e.corrida;
  const double paso = e.tramo.Hr0Delta;
  AnadeFila(e, kUnMetro, 0);
  std::optional<double> H = AlturaSiguiente(c.Hr0Actual - paso, paso, c.Hr0FinalActual);
  if (paso == 0.0) H = c.Hr0Actual;
  while (H && *H <= c.Hr0FinalActual && c.TablaCargas.size() < kMaxFilas) {
    AnadeFila(e, *H, e.tramo.ICar);
    H = AlturaSiguiente(*H, paso, c.Hr0FinalActual);
  }
}

}  // namespace

void TablaCargas(EstadoCalculo& e) {
  const Cargas salva = e.corrida;
  const double Hr1 = e.tramo.Hr1;
  e.corrida.TablaCargas.clear();
  try {
    RecorreAlturas(e);
  } catch (const ErrorEjecucion&) {
    // The rows so far stay; the run names the failure at the height where it stands.
  }
  static_cast<Cargas&>(e.corrida) = salva;
  e.tramo.Hr1 = Hr1;
}

void CargasUnMetro(EstadoCalculo& e) {
  auto& c = e.corrida;
  const Cargas salva = c;
  CargasMarston(e, kUnMetro, 0);
  DivideCargas(e);
  c.Q1m = c.Q;
  c.QTerraplen1m = c.QTerraplen;
  c.QMovil1m = c.QMovil;
  c.QTierras1m = c.QTierras;
  static_cast<Cargas&>(c) = salva;
}

}  // namespace zorbin
