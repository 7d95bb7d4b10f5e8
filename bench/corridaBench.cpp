// Reinforced Casos a second, and where their time goes. Every figure counts Casos, so that the
// parts can be divided by the whole: items_per_second of the run over those of a part.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "calculo/armado/mdArmado.h"
#include "calculo/cargas/mdMarston.h"
#include "calculo/cargas/mdOvaliz.h"
#include "calculo/cargas/mdTablaCargas.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "calculo/corrida/mdVeredicto.h"
#include "comun/estadoDeJson.h"
#include "persistencia/disco/mdLog.h"

namespace zorbin {
namespace {

constexpr int kAlturas = 100;
constexpr int kPresiones = 50;

// Tramo 1 to 4 of the sample Obra (trench, compacted trench, trench under embankment,
// embankment) over a grid of heights and pressures; 0 a pipe without sheet, whose cracking check
// adds steel step by step.
DatosTramo Malla(int posicion) {
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
  return pruebas::EnCalculo(e);
}

// The short last step of a range adds up to 0.2 at, so the grid has some Casos more than its
// nominal number; they are counted as they come.
void Corre(benchmark::State& state, Registro* registro) {
  const auto datos = Malla(static_cast<int>(state.range(0)));
  std::int64_t casos = 0;
  for (auto _ : state) {
    const auto x = CalculaTramo(datos, RangoDe(datos), {}, registro);
    casos += static_cast<std::int64_t>(x.filas.size());
  }
  state.SetItemsProcessed(casos);
}

void Corrida(benchmark::State& state) {
  Corre(state, nullptr);
}
BENCHMARK(Corrida)->DenseRange(0, 4);

void CorridaConRegistro(benchmark::State& state) {
  const auto carpeta = std::filesystem::temp_directory_path() / "zorbin-bench";
  std::filesystem::remove_all(carpeta);
  FicheroLog log(carpeta);
  Corre(state, &log.registro());
  std::filesystem::remove_all(carpeta);
}
BENCHMARK(CorridaConRegistro)->DenseRange(0, 4);

// The rows of a long project kept whole: 545 Tramos of 1,000 Casos.
void FilasDeUnaObra(benchmark::State& state) {
  auto datos = Malla(1);
  datos.tramo.Hr0Final = datos.tramo.Hr0Tramo + 0.02 * 18;  // 19 heights of 55 pressures
  std::vector<ResultadoTramo> obra;
  std::size_t octetos = 0;
  std::size_t filas = 0;
  for (auto _ : state) {
    for (int i = 0; i < 545; ++i) obra.push_back(CalculaTramo(datos, RangoDe(datos)));
  }
  for (const auto& x : obra) {
    filas += x.filas.size();
    octetos += sizeof x + x.filas.capacity() * sizeof(FilaCaso) +
               x.alturas.capacity() * sizeof(CargasAltura) +
               x.TablaCargas.capacity() * sizeof(FilaCargas);
  }
  state.counters["filas"] = static_cast<double>(filas);
  state.counters["MB"] = static_cast<double>(octetos) / 1e6;
}
BENCHMARK(FilasDeUnaObra)->Iterations(1);

void CasosEnteros(benchmark::State& state) {
  const auto datos = Malla(static_cast<int>(state.range(0)));
  const auto x = CalculaTramo(datos, RangoDe(datos));
  for (auto _ : state) {
    for (const auto& fila : x.filas) benchmark::DoNotOptimize(CasoEntero(x, fila));
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(x.filas.size()));
}
BENCHMARK(CasosEnteros)->DenseRange(0, 4);

// The same formulas over the same Casos in a bare loop: the loads and the ring once a height, the
// design and its verdict once a Caso.
void BuclePelado(benchmark::State& state) {
  const auto datos = Malla(static_cast<int>(state.range(0)));
  const auto& t = datos.tramo;
  const auto unMetro = CargasUnMetro(t);
  const auto x = CalculaTramo(datos, RangoDe(datos));
  VeredictoTramo veredicto(datos);
  TerminosAnillo anillo;
  Marcha marcha;
  for (auto _ : state) {
    marcha.vueltas = {};
    for (const auto& fila : x.filas) {
      if (fila.NumCaso == 1) {
        anillo = Ovalizacion(t, CargasMarston(t, fila.Hr, t.ICar), unMetro, EmpujeActivo(t.Fi));
      }
      marcha.vueltas.EmpiezaCaso();
      marcha.avisos.clear();
      auto diseno = DisenoArmado(t, anillo, fila, {}, marcha);
      benchmark::DoNotOptimize(veredicto.Resume(diseno, marcha.avisos));
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(x.filas.size()));
}
BENCHMARK(BuclePelado)->DenseRange(0, 4);

void SoloCargas(benchmark::State& state) {  // a height, with its row of the load table
  const auto t = Malla(1).tramo;
  for (auto _ : state) benchmark::DoNotOptimize(CargasMarston(t, 3.0, t.ICar));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(SoloCargas);

void SoloAnillo(benchmark::State& state) {  // a height
  const auto t = Malla(1).tramo;
  const auto q = CargasMarston(t, 3.0, t.ICar);
  const auto unMetro = CargasUnMetro(t);
  for (auto _ : state) benchmark::DoNotOptimize(Ovalizacion(t, q, unMetro, EmpujeActivo(t.Fi)));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(SoloAnillo);

}  // namespace
}  // namespace zorbin
