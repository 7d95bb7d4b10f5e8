// Load of an embankment by the full equation of the plane of equal settlement, as information
// beside the load of the method (mdMarston.h), whose plane does not depend on the height.
//
// Between the top of the pipe and the plane of equal settlement, He above it, the prism of soil of
// width D over the pipe and the soil beside it settle by different amounts, and friction K·mu·σ
// acts on each face of the prism: downwards where the pipe settles less (positive projection),
// upwards where it settles more (negative projection). What the prism gains in compression over
// undisturbed soil, with half of it lost by the soil beside it over a width D on each side, makes
// up for the settlement r_sd·p·D times the pressure there. With k = ±2·K·mu, x = He/D, h = H/D, p'
// = r_sd·p and s(x) = (h - x)·e^(kx) + (e^(kx) - 1)/k, the pressure on the pipe over Gr·D:
//
//     k ((h - x) x² f2(kx) + x³ f3(kx)) = p' (h - s(x)/3)
//     f2(u) = (e^u - 1 - u)/u²,  f3(u) = (e^u - 1 - u - u²/2)/u³
//
// which is Spangler's equation with its terms gathered so that none cancels another.
//
// Sources: A. Marston, "The theory of external loads on closed conduits" (1930); M. G. Spangler,
// "Underground conduits" (1946); A. P. Moser, "Buried pipe design", for the lines of Cc and Cn by
// which it is proved (within 0.3 % in positive and negative projection).
#pragma once

#include <cstdint>
#include <optional>

#include "core/resultados.h"

namespace zorbin {

/// Load of a prism of soil that friction loads or relieves.
struct IgualAsiento {
  double C = 1;   // over the weight Gr·H·D of the prism [-]; Cc or Cn is C·H/D
  double He = 0;  // plane of equal settlement over the crown [m]; H in the complete condition
  bool completa = false;  // complete condition: the plane would lie above the fill
};

/// Positive projection (embankment).
/// @param Kmu   friction K·mu of the fill [-], 0 or more
/// @param rsdp  settlement ratio times projection ratio [-], 0 or more
/// @param De    external diameter [m], above 0
/// @param H     fill height above the crown [m], above 0
/// @throws ErrorEjecucion DivisionPorCero for no diameter or height; Desbordamiento for another
///         argument out of its range and for a load that is not finite
IgualAsiento TerraplenCompleto(double Kmu, double rsdp, double De, double H);

/// Negative projection (trench under embankment). The load is never above the prism.
/// @param Kmu   friction K·mu of the fill [-], 0 or more
/// @param rsdp  settlement ratio times projection ratio [-], 0 or less
/// @param B     trench width [m], above 0
/// @param H     fill height above the crown [m], above 0
/// @throws ErrorEjecucion as TerraplenCompleto
IgualAsiento NegativaCompleta(double Kmu, double rsdp, double B, double H);

/// Data of a Tramo that the earth load of an embankment depends on.
struct DatosTerraplen {
  std::int16_t TipoApoyo = 0;  // laying: 21, 22 trench under embankment, 31 embankment
  double De = 0;               // external diameter [m]
  double B0 = 0;               // trench width [m], not used by 31
  double Hr1 = 0;              // from the crown to the natural ground [m]
  double Gr = 0;               // unit weight of the fill [t/m3]
  double Fi = 0;               // internal friction angle of the fill [degrees]
  std::int16_t IAs = 0;        // settlement ratio 1..3, of 31 alone
  bool cargaDada = false;      // the vertical load is given and not computed
};

/// Earth loads of a Tramo by both ways, without concentrated load. None for a trench, whose load
/// has no plane of equal settlement, for a given load and for a laying without earth load.
/// @param H  fill height above the crown [m]
/// @throws ErrorEjecucion as CargasMarston and TerraplenCompleto
std::optional<CargasContrastadas> CargasCompletas(const DatosTerraplen& d, double H);

}  // namespace zorbin
