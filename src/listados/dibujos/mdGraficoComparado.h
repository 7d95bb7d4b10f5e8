// A chart of several Tramos: one quantity against the fill height or the pressure, a line for each.
#pragma once

#include <memory>

#include "listados/dibujos/mdGraficosTramo.h"

namespace zorbin {

/// Acero is the wire of a post-tensioned Tramo, which has no inner and outer steel.
enum class QueCompara : std::uint8_t { Acero, Interior, Exterior, Momento, Carga };

constexpr bool PideMomentos(QueCompara que) {
  return que == QueCompara::Momento;
}

/// A Tramo with its grid, of EjesDelGrafico along the axis of the chart; with the moments where
/// they are compared.
struct TramoComparado {
  DatosTramo datos;
  std::shared_ptr<const Malla> malla;
};

/// Of the values of a Tramo at a place of the axis, that is at its several pressures or heights,
/// the greatest; of moments the one of greatest size.
LaminaConEjes DibujaGraficoComparado(QueCompara que, EjeDeGrafico eje,
                                     const std::vector<TramoComparado>& tramos,
                                     const PalabrasDibujo& palabras, const HojaDibujo& hoja = {});

}  // namespace zorbin
