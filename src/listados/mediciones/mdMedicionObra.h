// The bill of an Obra: what each Tramo takes for each metre and for its length, what it costs, and
// the steel layer by layer. Results screen, report and spreadsheets show these same tables.
#pragma once

#include <string>
#include <vector>

#include "calculo/mediciones/mdMediciones.h"
#include "listados/dibujos/mdHoja.h"
#include "listados/mediciones/mdPlanilla.h"

namespace zorbin {

/// A Tramo to measure. The result outlives it.
struct TramoAMedir {
  const ResultadoTramo& resultado;
  std::string numero;  // its text in the list
  Fabricacion fabricacion;
};

/// A Caso of a Tramo, measured.
struct CasoMedido {
  const ResultadoTramo& resultado;
  const FilaCaso& fila;
  std::string numero;
  Fabricacion fabricacion;
  Medicion medicion;
  PorPartida coste;  // of a metre

  /// Of the length of the Tramo; joints are counted by whole pipes.
  double Total(Partida p) const;
  double CosteTotal(const Precios& precios) const;
};

enum class QueCasos {
  Peor,   // of each Tramo the worst, as the results tell it
  Todos,  // each class of height and pressure
};

/// A Tramo whose run gave no Caso is left out.
std::vector<CasoMedido> MideObra(const std::vector<TramoAMedir>& tramos, const Precios& precios,
                                 QueCasos que);

const std::string& NombreDe(Partida p, const Catalogo& textos);

/// What each Caso takes, item by item, with its sum; and that of the Obra where each Tramo has one.
Planilla PlanillaDePartidas(const std::vector<CasoMedido>& casos, const Precios& precios,
                            QueCasos que, const PalabrasDibujo& palabras);
/// Its steel, layer by layer.
Planilla PlanillaDeCapas(const std::vector<CasoMedido>& casos, const PalabrasDibujo& palabras);

/// Both as JSON. @param separador  none: numbers are numbers
std::string JsonDeMedicion(const std::vector<CasoMedido>& casos, const Precios& precios);

}  // namespace zorbin
