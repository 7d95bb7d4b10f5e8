// The normal listing of a big Obra: pages a second as text and as PDF, beside the calculation
// alone. 100 heights of one Tramo give the 62 pages to every 20 Casos of a real one.
#include <benchmark/benchmark.h>

#include <array>
#include <filesystem>

#include "base/mdCarpetas.h"
#include "calculo/corrida/mdCorrida.h"
#include "comun/estadoDeJson.h"
#include "core/mdUnidades.h"
#include "listados/obra/mdListadoNormal.h"
#include "listados/pintor/mdPintor.h"
#include "listados/pintor/mdSinPantalla.h"

namespace zorbin {
namespace {

constexpr int kTramos = 10;

EstadoCalculo Tramo() {
  auto e = pruebas::EstadoDeMuestra(1);
  e.obra.Prs2 = e.obra.Prs1;
  e.tramo.Hr0Tramo = 2;
  e.tramo.Hr0Delta = 0.1;
  e.tramo.Hr0Final = 3.9;
  return e;
}

struct Cuenta : DestinoHojas {
  std::int64_t hojas = 0;
  void RecibeHoja(const Hoja&) override { ++hojas; }
};

void Calcula(EstadoCalculo e, Oyentes oyentes) {
  for (int i = 0; i < kTramos; ++i) {
    const EnUnidadesDeCalculo unidades(e);
    CalculaCasos(e, kSinForzar, kSinForzar, oyentes);
  }
}

void Imprime(const EstadoCalculo& e, const Catalogo& textos, DestinoHojas& hojas) {
  Papel papel(hojas, Orientacion::Vertical);
  ListadoNormal listado({papel, textos, {true, ','}, {"21/11/2026", "09:30:00"}});
  const std::array<OyenteCorrida*, 1> oyentes{&listado};
  Calcula(e, oyentes);
  papel.FinDocumento();
}

// Pages that the same Casos would fill, so that the three rates can be divided by one another.
std::int64_t Paginas(const EstadoCalculo& e, const Catalogo& textos) {
  Cuenta cuenta;
  Imprime(e, textos, cuenta);
  return cuenta.hojas;
}

void SoloCalculo(benchmark::State& state) {
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  const auto e = Tramo();
  const auto paginas = Paginas(e, textos);
  for (auto _ : state) Calcula(e, {});
  state.SetItemsProcessed(state.iterations() * paginas);
}
BENCHMARK(SoloCalculo);

void ListadoEnHojas(benchmark::State& state) {
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  const auto e = Tramo();
  std::int64_t paginas = 0;
  for (auto _ : state) {
    Cuenta cuenta;
    Imprime(e, textos, cuenta);
    paginas += cuenta.hojas;
  }
  state.SetItemsProcessed(paginas);
}
BENCHMARK(ListadoEnHojas);

void ListadoEnPdf(benchmark::State& state) {
  const AplicacionSinPantalla aplicacion;
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  const auto e = Tramo();
  const auto fichero = std::filesystem::temp_directory_path() / "zorbin-bench.pdf";
  std::int64_t paginas = 0;
  for (auto _ : state) {
    HojasPdf hojas(fichero, "bench");
    Imprime(e, textos, hojas);
    hojas.Cierra();
    paginas += hojas.paginas();
  }
  state.SetItemsProcessed(paginas);
  std::filesystem::remove(fichero);
}
BENCHMARK(ListadoEnPdf);

}  // namespace
}  // namespace zorbin
