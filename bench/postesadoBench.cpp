// Post-tensioned Casos a second, search and verification, and the windings tried in each.
#include <benchmark/benchmark.h>

#include "calculo/corrida/mdCalculaTramo.h"
#include "comun/estadoDeJson.h"

namespace zorbin {
namespace {

// Tramo 6 (embedded cylinder) and 7 (lined) of the sample Obra over 20 heights and 25 pressures.
DatosTramo Malla(int posicion) {
  auto e = pruebas::EstadoDeMuestra(posicion);
  auto& t = e.tramo;
  t.Prs2Tram = t.Prs1Tram + 0.01 * 24;
  t.PrsM1Tram = 1.2 * t.Prs1Tram;
  t.PrsM2Tram = 1.2 * t.Prs2Tram;
  t.Prs3Tram = 1.2 * 0.01;
  t.Hr0Tramo = 2.0;
  t.Hr0Delta = 0.05;
  t.Hr0Final = 2.0 + 0.05 * 19;
  return pruebas::EnCalculo(e);
}

void CorridaPostesada(benchmark::State& state) {
  const auto datos = Malla(static_cast<int>(state.range(0)));
  std::int64_t casos = 0;
  for (auto _ : state) {
    const auto x = CalculaTramo(datos, RangoDe(datos));
    casos += static_cast<std::int64_t>(x.filas.size());
  }
  const auto x = CalculaTramo(datos, RangoDe(datos));
  double vueltas = 0;
  for (const auto& fila : x.filas) vueltas += CasoEntero(x, fila).Postesado().Vueltas;
  state.SetItemsProcessed(casos);
  state.counters["vueltas"] = vueltas / static_cast<double>(x.filas.size());
}
BENCHMARK(CorridaPostesada)->DenseRange(6, 7);

}  // namespace
}  // namespace zorbin
