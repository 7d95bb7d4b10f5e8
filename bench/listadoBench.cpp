// The normal listing of a big Obra: pages a second as text and as PDF, beside the calculation
// alone. 100 heights of one Tramo give the 62 pages to every 20 Casos of a real one. Then Casos a
// second of the summary and of the JSON, run and all, over the grid of heights and pressures.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <ostream>
#include <streambuf>

#include "base/mdCarpetas.h"
#include "comun/estadoDeJson.h"
#include "listados/datos/mdJson.h"
#include "listados/obra/mdListadoNormal.h"
#include "listados/obra/mdResumen.h"
#include "listados/pintor/mdPintor.h"
#include "listados/pintor/mdSinPantalla.h"

namespace zorbin {
namespace {

constexpr int kTramos = 10;

EstadoCalculo UnTramo() {
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

ResultadoTramo Calcula(const EstadoCalculo& e) {
  const auto datos = DatosDeCalculo(e.obra, e.tramo);
  return CalculaTramo(datos, RangoDe(datos));
}

void Imprime(const EstadoCalculo& e, const Catalogo& textos, DestinoHojas& hojas) {
  Papel papel(hojas, Orientacion::Vertical);
  ListadoNormal listado({papel, textos, {true, ','}, {"21/11/2026", "09:30:00"}});
  for (int i = 0; i < kTramos; ++i) listado.Tramo(Calcula(e), 1, "1", {});
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
  const auto e = UnTramo();
  const auto paginas = Paginas(e, textos);
  for (auto _ : state) {
    for (int i = 0; i < kTramos; ++i) benchmark::DoNotOptimize(Calcula(e));
  }
  state.SetItemsProcessed(state.iterations() * paginas);
}
BENCHMARK(SoloCalculo);

void ListadoEnHojas(benchmark::State& state) {
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  const auto e = UnTramo();
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
  const auto e = UnTramo();
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

// 100 heights by 50 pressures of one of the first four Tramos of the sample.
EstadoCalculo Malla(int posicion) {
  auto e = pruebas::EstadoDeMuestra(posicion);
  auto& t = e.tramo;
  t.Prs1Tram = 0.4, t.Prs2Tram = 0.498, t.Prs3Tram = 0.0024;
  t.PrsM1Tram = 0.48, t.PrsM2Tram = 0.5976;
  t.Hr0Tramo = 2.0, t.Hr0Final = 3.98, t.Hr0Delta = 0.02;
  return e;
}

// A stream that takes everything and keeps nothing.
struct Nada : std::streambuf {
  int_type overflow(int_type c) override { return traits_type::not_eof(c); }
  std::streamsize xsputn(const char*, std::streamsize n) override { return n; }
};

void Lee(benchmark::State& state, const EstadoCalculo& e, Listado& lector) {
  std::size_t casos = 0;
  for (auto _ : state) {
    const auto resultado = Calcula(e);
    lector.Tramo(resultado, 1, "1", {});
    casos += resultado.filas.size();
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(casos));
}

void ResumenDeMalla(benchmark::State& state) {
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  Nada nada;
  std::ostream flujo(&nada);
  Pantalla pantalla(flujo);
  Resumen resumen(pantalla, textos, {true, ','});
  Lee(state, Malla(static_cast<int>(state.range(0))), resumen);
}
BENCHMARK(ResumenDeMalla)->DenseRange(1, 4);

void JsonDeMalla(benchmark::State& state) {
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  const auto e = Malla(static_cast<int>(state.range(0)));
  const std::map<int, Tramo> capturados{{1, e.tramo}};
  Nada nada;
  std::ostream flujo(&nada);
  ListadoJson json(flujo, "malla.zrb", capturados, textos, {true, ','});
  Lee(state, e, json);
}
BENCHMARK(JsonDeMalla)->DenseRange(1, 4);

}  // namespace
}  // namespace zorbin
