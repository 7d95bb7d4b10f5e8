// Post-tensioned Casos a second, search and verification, and the windings tried in each.
#include <benchmark/benchmark.h>

#include <array>

#include "calculo/corrida/mdCorrida.h"
#include "comun/estadoDeJson.h"
#include "core/mdUnidades.h"

namespace zorbin {
namespace {

struct Vueltas : OyenteCorrida {
  std::int64_t suma = 0;
  void Caso(const EstadoCalculo& e) override { suma += e.caso.postesado.Vueltas; }
};

// Tramo 6 (embedded cylinder) and 7 (lined) of the sample Obra over 20 heights and 25 pressures.
EstadoCalculo Malla(int posicion) {
  auto e = pruebas::EstadoDeMuestra(posicion);
  auto& t = e.tramo;
  t.Prs2Tram = t.Prs1Tram + 0.01 * 24;
  t.PrsM1Tram = 1.2 * t.Prs1Tram;
  t.PrsM2Tram = 1.2 * t.Prs2Tram;
  t.Prs3Tram = 1.2 * 0.01;
  t.Hr0Tramo = 2.0;
  t.Hr0Delta = 0.05;
  t.Hr0Final = 2.0 + 0.05 * 19;
  return e;
}

void CorridaPostesada(benchmark::State& state) {
  auto e = Malla(static_cast<int>(state.range(0)));
  std::int64_t casos = 0;
  Vueltas vueltas;
  const std::array<OyenteCorrida*, 1> oyentes{&vueltas};
  for (auto _ : state) {
    const EnUnidadesDeCalculo unidades(e);
    CalculaCasos(e, kSinForzar, kSinForzar, oyentes);
    casos += e.corrida.CuentaCasos;
  }
  state.SetItemsProcessed(casos);
  state.counters["vueltas"] = static_cast<double>(vueltas.suma) / static_cast<double>(casos);
}
BENCHMARK(CorridaPostesada)->DenseRange(6, 7);

}  // namespace
}  // namespace zorbin
