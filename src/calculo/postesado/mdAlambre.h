// The prestressing wires on offer, how densely each may be wound, and the first guess for a ring
// force. Source of diameters and spacings: Anejo 4 "Cálculo Mecánico" of the Instrucción del
// Instituto Eduardo Torroja.
#pragma once

#include <cstdint>
#include <optional>

#include "calculo/rastro/mdRastro.h"
#include "core/resultadoPostesado.h"

namespace zorbin {

/// Wires of 4, 5, 6 and 7 mm, in the positions 1 to 4. The 4 mm one is never wound: it only bounds
/// the forces.
inline constexpr int kAlambres = 4;

/// Spirals per metre [1/m] for a wire of diameter d [mm] and clear distance s [cm].
/// @throws ErrorEjecucion DivisionPorCero
double EspirasPorMetro(double d, double s);

/// Force of one wire of diameter d [mm] at 60 % of its breaking stress SFck [kp/cm2], in t. The
/// value of π is an argument, as the bounds of the force were drawn with one of eight decimals.
constexpr double FuerzaAlambre(double d, double Pi, double SFck) {
  return 0.6 * SFck * Pi * d * d / 4.0 / 100000.0;
}

/// Clear distance [cm] between spirals of diameter f [cm], n per metre.
/// @throws ErrorEjecucion DivisionPorCero
double LuzEspiras(double f, double n, Rastro* rastro = nullptr);

/// Spirals brought up to a whole number; a fraction of at most 0.02 stays as it is. [1/m]
double EspirasEnteras(double NESP);

/// Smallest clear distance allowed between spirals of the wire in position i, 1..4 [mm].
/// @throws ErrorEjecucion Subindice
double EspMinimo(int i);

/// The wire in position i, wound at its widest spacing; a lined cylinder (`Tipologia` 2221) narrows
/// that of the two thick wires.
Alambre AlambreMasAbierto(int i, std::int16_t Tipologia, Rastro* rastro = nullptr);

/// Ring forces that each wire takes [t/m].
struct RangosFuerza {
  Lista<double, kAlambres> FuerzaMin;
  Lista<double, kAlambres> FuerzaMax;
};

/// The ranges follow one another without a gap: from the widest winding of each wire to nine tenths
/// of its densest, and to the whole of it for the last wire.
/// @param SFck  breaking stress of the wire [kp/cm2]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
RangosFuerza CalculaRangos(double SFck);

/// A wire with its position in the tables. Position 1 also means the wire of 5 mm, wound down to
/// the 4 mm of clear distance of its row.
struct AlambreElegido {
  int IdxAlambre;
  Alambre alambre;
};

/// The first wire for a ring force [t/m], wound at its widest; none when the force is beyond the
/// last wire.
/// @param SFck  breaking stress of the wire [kp/cm2]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
std::optional<AlambreElegido> PrimerAlambre(double FuerzaAnillo, double SFck,
                                            std::int16_t Tipologia, Rastro* rastro = nullptr);

}  // namespace zorbin
