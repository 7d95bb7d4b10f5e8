// The bill of what is to be built.
#include "base/textos.h"
#include "listados/informe/mdPlantilla.h"
#include "listados/mediciones/mdMedicionObra.h"

namespace zorbin {

namespace {

using memoria::Cuadro;

// A table as the other outputs have it; rows of the same Tramo do not repeat it.
Cuadro CuadroDe(const Planilla& planilla, char separador) {
  Cuadro c;
  c.cabezas.emplace_back();
  bool hayUnidades = false;
  for (const auto& columna : planilla.columnas) {
    c.columnas += QLatin1Char(columna.numeros ? 'r' : 'l');
    c.cabezas.front().push_back({Q(columna.titulo), 1});
    hayUnidades |= !columna.unidad.empty();
  }
  if (hayUnidades) {
    c.cabezas.emplace_back();
    for (const auto& columna : planilla.columnas)
      c.cabezas.back().push_back({Q(columna.unidad), 1});
  }
  std::string tramo;
  for (const auto& fila : planilla.filas) {
    memoria::FilaCuadro f;
    f.negrita = fila.total;
    const bool otro = fila.celdas.front().texto != tramo;
    f.corte = otro && !c.filas.empty();
    tramo = fila.celdas.front().texto;
    for (std::size_t i = 0; i < planilla.columnas.size(); ++i) {
      const bool calla = i < 2 && !otro;
      const bool hay = i < fila.celdas.size() && !calla;
      f.celdas.push_back(
          Plantilla::Celda(hay ? Q(Mostrada(fila.celdas[i], separador)) : QString(), fila.total));
    }
    c.filas.push_back(std::move(f));
  }
  return c;
}

void EscribePlanilla(Plantilla& p, const Planilla& planilla) {
  p.r.Apartado(Q(planilla.titulo));
  p.r.Tabla(CuadroDe(planilla, p.estilo.separador), Q(planilla.titulo));
  for (const auto& nota : planilla.notas) p.r.Parrafo(Q(nota));
}

}  // namespace

void EscribeMediciones(Plantilla& p) {
  std::vector<TramoAMedir> tramos;
  for (const auto& t : p.datos.tramos) tramos.push_back({*t.resultado, t.numero, t.fabricacion});
  const auto casos = MideObra(tramos, p.datos.precios, QueCasos::Peor);
  if (casos.empty()) return;
  p.r.Capitulo(p.T(txt::MedicionesTitulo));
  EscribePlanilla(p, PlanillaDePartidas(casos, p.datos.precios, QueCasos::Peor, p.dibujo));
  EscribePlanilla(p, PlanillaDeCapas(casos, p.dibujo));
}

}  // namespace zorbin
