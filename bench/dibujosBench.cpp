// Drawings: the design map calculated, and what a panel shows calculated and painted. The map has
// to follow a datum within 30 ms, and the panel within 16 ms.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "base/mdCarpetas.h"
#include "comun/estadoDeJson.h"
#include "listados/dibujos/mdDibujoAnillo.h"
#include "listados/dibujos/mdDibujoMapa.h"
#include "listados/dibujos/mdDibujoTubo.h"
#include "listados/pintor/mdPintaLamina.h"
#include "listados/pintor/mdSinPantalla.h"

namespace zorbin {
namespace {

constexpr double kPorMm = 4.0;  // of a screen [px]

const Catalogo& Textos() {
  static const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  return textos;
}

void Pinta(const Lamina& l, QImage& imagen) {
  QPainter pintor(&imagen);
  PintaLamina(pintor, l, Paleta(TemaDibujo::Claro), kPorMm);
}

QImage Pantalla(const HojaDibujo& hoja) {
  return {static_cast<int>(hoja.ancho * kPorMm), static_cast<int>(hoja.alto * kPorMm),
          QImage::Format_RGB32};
}

// Tramos of the sample Obra, 60 by 40 points.
void MapaCalculado(benchmark::State& state) {
  const auto datos = pruebas::EnCalculo(pruebas::EstadoDeMuestra(static_cast<int>(state.range(0))));
  for (auto _ : state) benchmark::DoNotOptimize(CalculaMapa(datos));
}
BENCHMARK(MapaCalculado)->DenseRange(1, 7)->Unit(benchmark::kMillisecond);

void MapaPintado(benchmark::State& state) {
  const AplicacionSinPantalla aplicacion;
  const auto datos = pruebas::EnCalculo(pruebas::EstadoDeMuestra(static_cast<int>(state.range(0))));
  const auto malla = CalculaMapa(datos);
  const HojaDibujo hoja{120, 80, false, 0};
  const PalabrasDibujo palabras(Textos(), {});
  auto imagen = Pantalla(hoja);
  for (auto _ : state) Pinta(DibujaMapa(malla, datos, nullptr, palabras, hoja).lamina, imagen);
}
BENCHMARK(MapaPintado)->Arg(1)->Arg(6)->Unit(benchmark::kMillisecond);

// From the data to the painted section and diagrams.
void PanelPintado(benchmark::State& state) {
  const AplicacionSinPantalla aplicacion;
  const auto datos = pruebas::EnCalculo(pruebas::EstadoDeMuestra(static_cast<int>(state.range(0))));
  const HojaDibujo hoja{120, 80, false, 0};
  const PalabrasDibujo palabras(Textos(), {});
  auto imagen = Pantalla(hoja);
  for (auto _ : state) {
    const auto x = CalculaTramo(datos, RangoDe(datos));
    const auto& fila = x.filas.back();
    const auto entero = CasoEntero(x, fila);
    const CasoDibujado caso{x, fila, entero};
    Pinta(DibujaTransversal(caso, palabras, hoja), imagen);
    Pinta(DibujaPared(caso, palabras, hoja), imagen);
    Pinta(DibujaAnillo(caso, std::max(1, HipotesisQueRige(datos, fila)), palabras, hoja), imagen);
  }
}
BENCHMARK(PanelPintado)->DenseRange(1, 7)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zorbin
