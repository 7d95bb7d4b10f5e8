// Real steel from a required area: a sheet of a standard thickness, spirals of a standard
// diameter, or both.
//
// Series: sheets from 1.5 mm in steps of 0.5 mm; spirals of 8, 10 and 12 mm, 5 a metre at least,
// with a clear distance of their diameter and of 2 cm at least. Source: Anejo 4 "Cálculo Mecánico"
// of the Instrucción del Instituto Eduardo Torroja.
#pragma once

#include <cstdint>

#include "calculo/rastro/mdRastro.h"

namespace zorbin {

/// Steel chosen for one face.
struct Reparto {
  std::int16_t NESP = 0;     // spirals [1/m]
  double DIA = 0;            // bar diameter [mm]
  double CAMISA = 0;         // sheet thickness [mm]; 1 mm gives 10 cm2/m
  double AREA = 0;           // area provided [cm2/m]
  std::int16_t IESP = 0;     // above 0: wall too thin; no rule in force sets it
  bool VariasCapas = false;  // the bars don't fit in one layer
};

/// A hand adjustment of the Caso silences the layer warning up to this outer area [cm2/m].
inline constexpr double kAreaUnaCapa = 35.06;

/// Section of n bars a metre of diameter D [mm], in cm2/m.
double AreaBarras(double D, double n);

/// Whether n bars of diameter D [mm] in a metre leave between them, in one layer, a bar's diameter
/// and 2 cm at least.
/// @throws ErrorEjecucion DivisionPorCero for no bars
bool CabenEnUnaCapa(double D, double n, Rastro* rastro = nullptr);

/// Steel for an area. Of the diameters that give hardly more than it the thickest wins; a larger
/// one is taken while the bars do not fit in one layer, and with the largest they are told to take
/// several. A fiftieth of a bar is spared. With a sheet and spirals, the sheet takes whole steps
/// and the spirals the rest.
/// @param AS             required area [cm2/m]
/// @param ICAMIS         0 bars only, 1 sheet and spirals, any other a sheet alone
/// @param CAMMAX         maximum sheet thickness [mm]; not applied to a sheet alone
/// @param HayAjuste      the Caso has a hand adjustment
/// @param AreaExterior   its outer area [cm2/m]
/// @throws ErrorEjecucion Desbordamiento for an area or a count that does not fit in 16 bits
Reparto ReparteArmadura(double AS, std::int16_t ICAMIS, double CAMMAX, bool HayAjuste,
                        double AreaExterior, Rastro* rastro = nullptr);

}  // namespace zorbin
