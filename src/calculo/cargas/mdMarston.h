// Vertical load on a buried pipe: earth fill by Marston's theory in the form of Anejo 4 "Cálculo
// Mecánico" of the Instrucción del Instituto Eduardo Torroja, and the concentrated loads with
// their impact coefficient. Arching is ignored for the fill.
//
// Sources: A. Marston, "The theory of external loads on closed conduits" (1930), for the trench,
// the projection conditions and the plane of equal settlement; the Anejo for the fitted formulas
// of the load trains.
// Departs: the plane of equal settlement follows from e^x - x = M2·r·Hp/De + 1, which leaves out
// the settlement of the columns of soil themselves, and so does not depend on the height. Against
// the full equation (mdMarstonCompleta.h), with K·mu 0.19 and fills of 6 to 10 diameters, the load
// of the positive projection comes out 5 % higher at a settlement ratio times projection of 0.1,
// 11 to 13 % at 0.5, 15 to 20 % at 1.0 and 22 to 31 % at 2.0. That of the negative projection, with
// K·mu 0.13 to 0.19, comes out 1.3 to 3.4 % lower at -0.1 to -0.3, which is not on the safe side,
// and 1 to 6 % higher at -1.0.
#pragma once

#include <cstdint>

#include "calculo/rastro/mdRastro.h"
#include "core/campos/tramo.h"
#include "core/resultados.h"

namespace zorbin {

/// Tangent of an angle [degrees], as sine over cosine.
/// @throws ErrorEjecucion DivisionPorCero, for an angle whose cosine is exactly 0
double TanGrados(double grados);

/// Active earth pressure coefficient tan2(45 - Fi/2) of a fill of internal friction Fi, 0 to 90
/// [degrees]; [-]. Source: W. J. M. Rankine, "On the stability of loose earth" (1857).
double EmpujeActivo(double Fi, Rastro* rastro = nullptr);

/// Root of e^x - x - c = 0, the equation of the plane of equal settlement, by Newton from x0, whose
/// sign decides which of the two roots; both exist for c > 1. Stops when a step is below 0.00001.
/// @throws ErrorEjecucion DivisionPorCero for a step from x = 0, Desbordamiento, SinConvergencia
double ResuelveEcua(double c, double x0, Rastro* rastro = nullptr);

/// Friction constant K·mu' of a trench fill by `TipoRelleno` 11, 12, 21, 22, 23 [-]: Rankine ratio
/// by the friction along the wall of the trench. Any other code gives 0, which CoefZanja refuses.
/// Source: A. Marston and A. O. Anderson, "The theory of loads on pipes in ditches" (1913).
double CoefRelleno(std::int16_t TipoRelleno);

/// Settlement ratio of the embankment by `IAs` [-]: 1 rock, 2 ordinary ground, 3 ground that
/// settles. Source: M. G. Spangler's observations (1941), as the Anejo takes them.
/// @throws ErrorEjecucion Subindice outside 1..3
double RazonAsentamiento(std::int16_t IAs);

/// Settlement ratio of the embankment that the load of a trench is compared with [-].
inline constexpr double kRazonComparacion = 0.5;

/// Settlement coefficient of the negative projection by the projection ratio p = Hr1/B [-]: from
/// -0.1 below 0.5 down to -1 from 2 on, in straight lines. Source: the Anejo.
double CoefAsentamiento(double p);

/// Trench: Cd = (1 - e^(-2 Kmu H/B)) / (2 Kmu H/B) [-], to be multiplied by Gr·H·width.
/// Source: Marston and Anderson (1913).
/// @param Kmu  friction constant K·mu', above 0 [-]
/// @param H    fill height above the crown, above 0 [m]
/// @param B    trench width, above 0 [m]
/// @throws ErrorEjecucion DivisionPorCero for a 0 among them, Desbordamiento
double CoefZanja(double Kmu, double H, double B, Rastro* rastro = nullptr);

/// Positive projection (embankment) [-], to be multiplied by Gr·H·De. Below the plane of equal
/// settlement the complete condition, (e^y - 1)/y; above it the incomplete one.
/// Source: Marston (1930); M. G. Spangler (1946) for settlement ratio and projection.
/// @param M2   2·K·mu of the fill, above 0 [-]
/// @param r    settlement ratio, above 0 [-]
/// @param Hp   projection of the crown over the natural ground, above 0 [m]
/// @param De   external diameter, above 0 [m]
/// @param H    fill height above the crown, above 0 [m]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento, SinConvergencia
double CoefTerraplen(double M2, double r, double Hp, double De, double H, Rastro* rastro = nullptr);

/// Negative projection (trench under embankment) [-], to be multiplied by Gr·H·width. As the
/// positive one, with the friction upwards.
/// Source: Marston (1930); M. G. Spangler (1946).
/// @param Ka   active pressure coefficient, above 0 [-]
/// @param Mu   tangent of the friction angle, above 0 [-]
/// @param Hr1  from the crown to the natural ground, above 0 [m]
/// @param B    trench width, above 0 [m]
/// @param H    fill height above the crown, above 0 [m]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento, SinConvergencia
double CoefZanjaTerraplenada(double Ka, double Mu, double Hr1, double B, double H,
                             Rastro* rastro = nullptr);

/// Pressure on the crown of the concentrated load `ICarga` at a fill height H [m], in t/m2: 1 axle
/// of 7 t, 2 axle of 13 t, 3 vehicle of 60 t, 4 railway; 0 for any other code. The formulas are
/// fitted branch by branch (one wheel near the crown, all of them further down) and do not meet at
/// the limits. Source: the Anejo.
/// @throws ErrorEjecucion DivisionPorCero, at a root of a denominator: none for H >= 0
double PresionMovil(std::int16_t ICarga, double H, Rastro* rastro = nullptr);

/// Impact coefficient at height H [m]: 1 from 3 m on, 1 + 0.3/H below [-]. Source: the Anejo.
/// @throws ErrorEjecucion DivisionPorCero for H = 0
double CoefImpacto(double H, Rastro* rastro = nullptr);

/// Loads of a Tramo whose load is given, and those that a laying without formula keeps [t/m2]: Q is
/// QDato, and the origin of the lateral thrust QDato on the width of the pipe in a compacted
/// trench, spread from the trench in an uncompacted one, otherwise the prism of the first fill
/// height.
/// @param t    QDato [t/m2], TipoApoyo, IndCar, De, B0 [m], Gr [t/m3]
/// @param Hr0  first fill height of the range [m]
/// @throws ErrorEjecucion DivisionPorCero for a trench without width
Cargas CargasDadas(const Tramo& t, double Hr0, Rastro* rastro = nullptr);

/// Loads of the Tramo at height H, over the external diameter. A trench, or a trench under an
/// embankment, is never loaded more than the embankment of settlement ratio 0.5 over it: where that
/// one is smaller or equal it governs, and the prism of earth gives the lateral thrust. The
/// projection of a trench is its whole diameter, whatever Hr1.
/// @param t       B0, Hr1, De [m], Gr [t/m3], Fi [degrees], TipoApoyo, TipoRelleno, IAs
/// @param H       fill height above the crown, above 0 [m]
/// @param ICarga  concentrated load, 0 for the load without traffic
/// @param dadas   what a laying without formula keeps [t/m of pipe]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento, Subindice, SinConvergencia
Cargas CargasMarston(const Tramo& t, double H, std::int16_t ICarga, const Cargas& dadas = {},
                     Rastro* rastro = nullptr);

}  // namespace zorbin
