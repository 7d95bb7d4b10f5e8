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

#include "core/estado_calculo.h"

namespace zorbin {

/// Tangent of an angle [degrees], as sine over cosine.
double TanGrados(double grados);

/// Root of e^x - x - c = 0 by Newton from x0; the sign of x0 decides which of the two roots.
/// Stops when a step is below 0.00001.
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento, SinConvergencia
double ResuelveEcua(double c, double x0);

/// Friction constant K·mu' of a trench fill by `TipoRelleno` [-]; 0 for any other code.
double CoefRelleno(std::int16_t TipoRelleno);

/// Settlement ratio of the embankment by `IAs` 1..3 [-]. @throws ErrorEjecucion Subindice
double RazonAsentamiento(std::int16_t IAs);

/// Settlement ratio of the embankment that the load of a trench is compared with [-].
inline constexpr double kRazonComparacion = 0.5;

/// Settlement coefficient of the negative projection by the projection ratio p = Hr1/B [-].
double CoefAsentamiento(double p);

/// Trench: Cd = (1 - e^(-2 Kmu H/B)) / (2 Kmu H/B) [-], to be multiplied by Gr·H·width.
/// @param Kmu  friction constant K·mu' [-]
/// @param H    fill height above the crown [m]
/// @param B    trench width [m]
double CoefZanja(double Kmu, double H, double B);

/// Positive projection (embankment) [-], to be multiplied by Gr·H·De.
/// @param M2   2·K·mu of the fill [-]
/// @param r    settlement ratio [-]
/// @param Hp   projection of the crown over the natural ground [m]
/// @param De   external diameter [m]
/// @param H    fill height above the crown [m]
double CoefTerraplen(double M2, double r, double Hp, double De, double H);

/// Negative projection (trench under embankment) [-], to be multiplied by Gr·H·width.
/// @param Ka   active pressure coefficient [-]
/// @param Mu   tangent of the friction angle [-]
/// @param Hr1  from the crown to the natural ground [m]
/// @param B    trench width [m]
/// @param H    fill height above the crown [m]
double CoefZanjaTerraplenada(double Ka, double Mu, double Hr1, double B, double H);

/// Pressure on the crown of the concentrated load `ICarga` at height H [m], in t/m2; 0 for a code
/// outside 1..4. The limits of the branches are not symmetric.
double PresionMovil(std::int16_t ICarga, double H);

/// Impact coefficient at height H [m]: 1 from 3 m on, 1 + 0.3/H below [-].
double CoefImpacto(double H);

/// Loads of the Tramo at height H, per metre of pipe: every caller divides them by `De`.
/// Reads  tramo: B0, Hr1 [m], Gr [t/m3], Fi [degrees], TipoApoyo, TipoRelleno, IAs, De [m];
///        corrida: Q, QTerraplen (for laying 30, which keeps them), QTierras (30 and 31).
/// Writes corrida: Q, QTerraplen, QTierras, QMovil [t/m], Impacto, TerraplenRige;
///        tramo.Hr1 := De for the trench layings, the start of their embankment comparison.
/// @param ICarga  concentrated load, 0 for the load without traffic
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento, Subindice, SinConvergencia; the state
///         is then as before
void CargasMarston(EstadoCalculo& e, double H, std::int16_t ICarga);

/// The loads of `CargasMarston` over the external diameter: t/m to t/m2.
void DivideCargas(EstadoCalculo& e);

}  // namespace zorbin
