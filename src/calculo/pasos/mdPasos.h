// A Caso step by step, for whoever checks it by hand: the formulas that its run used, with the
// figures of that run.
//
//   for (const auto& grupo : PasosDelCaso(tramo, fila).grupos) {
//     // heading: textos[TituloDe(grupo.lugar.apartado)], and of a hypothesis or section where
//     // grupo.lugar has one
//     for (const auto& paso : grupo.pasos) {
//       const auto x = EscribePaso(paso, obra.EsSI(), separador);  // calculo/rastro/mdEscritura.h
//     }
//   }
#pragma once

#include <string_view>
#include <vector>

#include "calculo/rastro/mdRastro.h"
#include "core/resultado.h"

namespace zorbin {

/// Steps of one place of the calculation, in the order in which they were taken.
struct GrupoPasos {
  LugarPaso lugar;     // apartado always; the rest where all its steps share it
  bool tabla = false;  // the same few formulas over sections and hypotheses: better set as a table,
                       // whose rows are the formulas and whose columns are `Paso::lugar`
  std::vector<Paso> pasos;
};

struct PasosCaso {
  std::vector<GrupoPasos> grupos;  // in the order of Apartado
};

/// Calculates the Caso again with a trace.
/// @param fila  of `tramo`
/// @throws ErrorEjecucion as CasoEntero
PasosCaso PasosDelCaso(const ResultadoTramo& tramo, const FilaCaso& fila);

/// Entry of the catalogue with the heading of a part.
int TituloDe(Apartado apartado);

}  // namespace zorbin
