// Reinforced Casos a second, and where their time goes. Every figure counts Casos, so that the
// parts can be divided by the whole: items_per_second of the run over those of a part.
#include <benchmark/benchmark.h>

#include <array>
#include <filesystem>

#include "calculo/armado/mdArmado.h"
#include "calculo/cargas/mdMarston.h"
#include "calculo/cargas/mdOvaliz.h"
#include "calculo/cargas/mdTablaCargas.h"
#include "calculo/corrida/mdCorrida.h"
#include "comun/estadoDeJson.h"
#include "core/mdUnidades.h"
#include "persistencia/disco/mdLog.h"

namespace zorbin {
namespace {

constexpr int kAlturas = 100;
constexpr int kPresiones = 50;
constexpr int kCasos = kAlturas * kPresiones;

// Tramo 1 to 4 of the sample Obra (trench, compacted trench, trench under embankment,
// embankment) over a grid of heights and pressures; 0 a pipe without sheet, whose cracking check
// adds steel step by step.
EstadoCalculo Malla(int posicion) {
  auto e = pruebas::EstadoDeMuestra(posicion == 0 ? 1 : posicion);
  auto& t = e.tramo;
  if (posicion == 0) t.TipoCamisa = 0;
  const double presion = posicion == 0 ? 0.1 : 0.4;  // [MPa]
  t.Prs1Tram = presion;
  t.Prs2Tram = presion + 0.002 * (kPresiones - 1);
  t.PrsM1Tram = 1.2 * t.Prs1Tram;
  t.PrsM2Tram = 1.2 * t.Prs2Tram;
  t.Prs3Tram = 1.2 * 0.002;
  t.Hr0Tramo = 2.0;
  t.Hr0Delta = 0.02;
  t.Hr0Final = 2.0 + 0.02 * (kAlturas - 1);
  return e;
}

// The short last step of a range adds up to 0.2 at, so the grid has some Casos more than its
// nominal number; they are counted as they come.
void Corre(benchmark::State& state, EstadoCalculo& e) {
  std::int64_t casos = 0;
  for (auto _ : state) {
    const EnUnidadesDeCalculo unidades(e);
    CalculaCasos(e, kSinForzar, kSinForzar, {});
    casos += e.corrida.CuentaCasos;
  }
  state.SetItemsProcessed(casos);
}

void Corrida(benchmark::State& state) {
  auto e = Malla(static_cast<int>(state.range(0)));
  Corre(state, e);
}
BENCHMARK(Corrida)->DenseRange(0, 4);

void CorridaConRegistro(benchmark::State& state) {
  const auto carpeta = std::filesystem::temp_directory_path() / "zorbin-bench";
  std::filesystem::remove_all(carpeta);
  FicheroLog log(carpeta);
  auto e = Malla(static_cast<int>(state.range(0)));
  e.corrida.registro = &log.registro();
  Corre(state, e);
  std::filesystem::remove_all(carpeta);
}
BENCHMARK(CorridaConRegistro)->DenseRange(0, 4);

// The state of one Caso in the middle of the grid, in the units and scale of a run.
struct Capta : OyenteCorrida {
  EstadoCalculo estado;
  void Caso(const EstadoCalculo& e) override {
    if (e.corrida.CuentaCasos == kCasos / 2) estado = e;
  }
};

EstadoCalculo EnMedio(int posicion) {
  auto e = Malla(posicion);
  Capta capta;
  const std::array<OyenteCorrida*, 1> oyentes{&capta};
  const EnUnidadesDeCalculo unidades(e);
  CalculaCasos(e, kSinForzar, kSinForzar, oyentes);
  return capta.estado;
}

// The same formulas in a bare loop: the loads once a height, ring and design once a Caso.
void BuclePelado(benchmark::State& state) {
  auto e = EnMedio(static_cast<int>(state.range(0)));
  std::int64_t casos = 0;
  for (auto _ : state) {
    for (int h = 0; h < kAlturas; ++h) {
      CargasMarston(e, 2.0 + 0.02 * h, e.tramo.ICar);
      DivideCargas(e);
      for (int p = 0; p < kPresiones; ++p) {
        e.corrida.DP = 4.0 + 0.02 * p;
        if (state.range(0) == 0) e.corrida.DP -= 3.0;
        e.corrida.MDP = 1.2 * e.corrida.DP;
        e.corrida.STP = e.corrida.MDP + 1.0;
        e.corrida.PP = e.corrida.PPNeta = e.corrida.MDP + 2.0;
        e.caso.avisos.clear();
        Ovalizacion(e);
        DisenoArmado(e);
        ++casos;
      }
    }
  }
  state.SetItemsProcessed(casos);
}
BENCHMARK(BuclePelado)->DenseRange(0, 4);

void SoloCargas(benchmark::State& state) {  // a height, with its row of the load table
  auto e = EnMedio(1);
  for (auto _ : state) {
    CargasMarston(e, 3.0, e.tramo.ICar);
    DivideCargas(e);
    benchmark::DoNotOptimize(e.corrida.Q);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(SoloCargas);

void SoloAnillo(benchmark::State& state) {
  auto e = EnMedio(1);
  for (auto _ : state) {
    Ovalizacion(e);
    benchmark::DoNotOptimize(e.caso.MHip);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(SoloAnillo);

void SoloDiseno(benchmark::State& state) {
  auto e = EnMedio(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    e.caso.avisos.clear();
    DisenoArmado(e);
    benchmark::DoNotOptimize(e.caso.armado);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(SoloDiseno)->DenseRange(0, 4);

}  // namespace
}  // namespace zorbin
