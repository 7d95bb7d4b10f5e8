// Quantities of a pipe as a Caso makes it: steel layer by layer, concrete, weight and trench, and
// what they cost. They are read off the design; nothing is designed here.
//
// The covers go to the axis of each layer of bars, as in the design: the inner one has the radius
// Di/2 + Reci, the outer one De/2 - Rece. A sheet takes the inner axis, and the spirals lie against
// it on the outside. The wire lies on the core.
#pragma once

#include <vector>

#include "calculo/mediciones/mdZanjaMedida.h"
#include "core/mediciones.h"
#include "core/resultado.h"

namespace zorbin {

inline constexpr double kDensidadAcero = 7850.0;  // EN 1991-1-1, table A.4 [kg/m3]
inline constexpr int kMinimoLong = 6;             // longitudinal bars of a layer

/// Bars or sheet of a layer, for each metre of pipe.
struct CapaMedida {
  Partida partida = Partida::Chapa;
  double grueso = 0;  // thickness of a sheet, diameter of steel; 0 where only an area is given [mm]
  double diametro = 0;    // of the axis of the layer [m]
  double numero = 0;      // spirals [1/m]; longitudinal bars [-]; 0 for a sheet or an area
  double desarrollo = 0;  // length of steel; of a sheet, its width unrolled [m/m]
  double kg = 0;          // [kg/m]

  /// From one spiral to the next; 0 where there are none [mm].
  double Paso() const;
};

/// What a Caso takes.
struct Medicion {
  std::vector<CapaMedida> capas;
  PorPartida porMetro;  // [kg/m, m3/m]
  double peso = 0;      // of the pipe, by the unit weight of the data [kg/m]
};

/// Sheet of a radius and thickness. @param diametro  of its axis [m] @param grueso [mm]
CapaMedida MideChapa(double diametro, double grueso);
/// Spirals. Each turn is as long as its helix: sqrt((pi diametro)^2 + (1/numero)^2).
/// @param diametro  of their axis [m]  @param Fi [mm]  @param numero [1/m]
CapaMedida MideEspiras(Partida partida, double diametro, double Fi, double numero);

/// @param f    a row of r
/// @param fab  AceroJunta, LongitudTubo, FiLong, SepLong
/// @throws ErrorEjecucion Desbordamiento
Medicion MideCaso(const ResultadoTramo& r, const FilaCaso& f, const Fabricacion& fab);

/// Pipes of a length; the last one counts whole.
double NumeroDeTubos(const Fabricacion& fab);

/// What one metre costs, and each item of it. Without prices all is 0.
PorPartida CostePorMetro(const Medicion& m, const Precios& precios);
double Suma(const PorPartida& p);

}  // namespace zorbin
