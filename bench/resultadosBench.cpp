// Results to look at: the panel from a datum to its painted drawings, validation among it, and the
// table of half a million Casos put in order, filtered and painted.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTableView>

#include "base/mdCarpetas.h"
#include "comun/estadoDeJson.h"
#include "listados/dibujos/mdDibujoAnillo.h"
#include "listados/dibujos/mdDibujoTubo.h"
#include "listados/pintor/mdPintaLamina.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdTramos.h"
#include "sesion/resultados/mdDiseno.h"
#include "shell/resultados/mdModeloCasos.h"

namespace zorbin {
namespace {

constexpr std::size_t kCasos = 500'000;
constexpr double kPorMm = 4.0;  // of a screen [px]

const Catalogo& Textos() {
  static const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  return textos;
}

class Nadie : public Interlocutor {
 public:
  void Muestra(const std::string&, const std::string&) override {}
  void Anuncia(const std::string&) override {}
  bool Pregunta(const std::string&, const std::string&) override { return true; }
  Respuesta PreguntaGrabar(const std::string&) override { return Respuesta::Cancelar; }
  std::optional<std::string> PideFichero(const std::string&, const std::string&) override {
    return std::nullopt;
  }
  void VaA(Ed) override {}
};

// A program of windows without a screen, for as long as the benches go on.
void ConVentanas() {
  static int argumentos = 1;
  static char nombre[] = "zorbin-bench";
  static char* palabras[] = {nombre, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static QApplication aplicacion(argumentos, palabras);
}

// Validated, calculated, drawn and painted, for each Tramo of the sample Obra.
void PanelDesdeElDato(benchmark::State& state) {
  ConVentanas();
  EstadoCalculo e;
  Catalogo textos = Textos();
  const TablasCatalogo tablas = LeeTablas(CarpetaRecursos() / "tablas");
  Nadie nadie;
  Captura c(e, textos, tablas, nadie, ',');
  NuevaObra(c);
  AbreObra(c, ZORBIN_FUENTES "muestras/acequia.zrb");
  const auto lugar = static_cast<std::size_t>(state.range(0) - 1);
  PonEnMano(c, c.version.tramos[lugar]->id);
  const PedidoDiseno pedido{VersionActual(c),
                            c.enMano,
                            std::make_shared<const Catalogo>(textos),
                            &tablas,
                            ',',
                            false,
                            {}};
  const HojaDibujo hoja{105, 50, false, 0};
  QImage imagen(static_cast<int>(hoja.ancho * kPorMm), static_cast<int>(hoja.alto * kPorMm),
                QImage::Format_RGB32);
  const PalabrasDibujo w(Textos(), {});
  const auto pinta = [&](const Lamina& l) {
    QPainter pintor(&imagen);
    PintaLamina(pintor, l, Paleta(TemaDibujo::Claro), kPorMm);
  };
  for (auto _ : state) {
    const auto d = CalculaDiseno(pedido).value();
    if (d.caso == nullptr) return state.SkipWithError(d.motivo.c_str());
    const auto caso = d.caso->Dibujado();
    pinta(DibujaTransversal(caso, w, hoja));
    pinta(DibujaPared(caso, w, hoja));
    pinta(DibujaAnillo(caso, 1, w, hoja));
  }
}
BENCHMARK(PanelDesdeElDato)->DenseRange(1, 7)->Unit(benchmark::kMillisecond)->UseRealTime();

std::shared_ptr<CasosObra> MedioMillon() {
  static const auto casos = [] {
    const auto datos = pruebas::EnCalculo(pruebas::EstadoDeMuestra(1));
    auto uno = CalculaTramo(datos, RangoDe(datos));
    const auto filas = uno.filas;
    while (uno.filas.size() < 25'000) uno.filas.insert(uno.filas.end(), filas.begin(), filas.end());
    uno.filas.resize(25'000);
    for (std::size_t i = 0; i < uno.filas.size(); ++i) {
      uno.filas[i].Total += 0.0001 * static_cast<double>(i * 7919 % 25'000);
    }
    return std::make_shared<CasosObra>(
        std::vector<ResultadoTramo>(kCasos / 25'000, std::move(uno)));
  }();
  return casos;
}

VistaCasos Vista() {
  VistaCasos v;
  for (const auto& f : TablaColumnas()) {
    if (f.alPrincipio) v.columnas.push_back(f.columna);
  }
  return v;
}

// From the end of a calculation to the table in sight.
void TablaALaVista(benchmark::State& state) {
  ConVentanas();
  const auto casos = MedioMillon();
  for (auto _ : state) {
    ModeloCasos modelo;
    modelo.PonVista(Vista());
    QTableView tabla;
    tabla.setModel(&modelo);
    tabla.resize(1200, 800);
    modelo.Pon(casos, Textos(), {});
    tabla.show();
    benchmark::DoNotOptimize(tabla.grab());
  }
}
BENCHMARK(TablaALaVista)->Unit(benchmark::kMillisecond)->UseRealTime();

void TablaPagina(benchmark::State& state) {
  ConVentanas();
  ModeloCasos modelo;
  modelo.PonVista(Vista());
  QTableView tabla;
  tabla.setModel(&modelo);
  tabla.resize(1200, 800);
  modelo.Pon(MedioMillon(), Textos(), {});
  tabla.show();
  int fila = 0;
  for (auto _ : state) {
    fila = (fila + 7919) % static_cast<int>(kCasos);
    tabla.scrollTo(modelo.index(fila, 0));
    benchmark::DoNotOptimize(tabla.grab());
  }
}
BENCHMARK(TablaPagina)->Unit(benchmark::kMillisecond)->UseRealTime();

void Ordenada(benchmark::State& state) {
  const auto casos = MedioMillon();
  auto v = Vista();
  v.orden = state.range(0) == 0 ? Columna::Total : Columna::Rige;
  if (state.range(0) == 2) v.texto = "móviles";
  if (state.range(0) == 3) v.texto = "7,31";
  const PalabrasDibujo w(Textos(), {});
  for (auto _ : state) benchmark::DoNotOptimize(Ordena(*casos, v, w));
}
BENCHMARK(Ordenada)->DenseRange(0, 3)->Unit(benchmark::kMillisecond)->UseRealTime();

void ColumnasEnteras(benchmark::State& state) {
  const auto casos = MedioMillon();
  for (auto _ : state) benchmark::DoNotOptimize(casos->CalculaEnteras({}));
}
BENCHMARK(ColumnasEnteras)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

}  // namespace
}  // namespace zorbin
