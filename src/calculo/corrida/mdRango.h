// What a run goes through: its heights and pressures, their steps, and how many Casos they make.
#pragma once

#include <optional>

#include "core/resultado.h"

namespace zorbin {

/// The range that the data ask for: the Tramo's own heights and pressures, or the Obra's.
///
/// Which pressures apply is asked twice. The slope of MDP over DP is that of the Tramo as soon as
/// it has any pressure of its own; the loop is the Tramo's only where it has one of DP. A step
/// without a finite value, of a range of DP over which MDP stays, is told by IncDPIndefinido.
Rango RangoDe(const DatosTramo& datos);

/// The same with one height [m] and one pressure [at] in place of its ranges; MDP follows the slope
/// of the range.
Rango RangoDeUnCaso(const DatosTramo& datos, double Hr, double DP);

/// The pressure after DP [at]. A step may pass the last one by up to 0.2 at; one that passes it
/// further lands on it, unless the rest is below 0.1 at. None where the loop ends, or without step.
/// @throws ErrorEjecucion Desbordamiento
std::optional<double> PresionSiguiente(double DP, const Rango& r);

/// Pressures of a Caso [at]. MDP follows from DP by the slope of the range.
///     PP = max(1.2 MDP, MDP + 2), + 1 above an internal diameter of 1,200 mm
///     STP = MDP + 1 with the surge calculated, otherwise min(1.5 MDP, MDP + 5)
/// Source of STP: EN 805:2000, 11.3.2, with 1 at for 100 kPa; of PP: the factory test of
/// EN 639:1994 as the Anejo 4 "Cálculo Mecánico" of the Instrucción del Instituto Eduardo Torroja
/// takes it.
/// @param DP              design pressure [at]
/// @param Di              internal diameter [m]
/// @param golpeCalculado  the surge is calculated, not estimated
/// @throws ErrorEjecucion Desbordamiento
PresionesCaso PresionesDe(double DP, const Rango& r, double Di, bool golpeCalculado);

/// How many heights and pressures a range has, but for the rounding of its steps.
struct CuentaRango {
  double alturas = 0;
  double presiones = 0;

  double Casos() const { return alturas * presiones; }
};
CuentaRango CuentaDe(const Rango& r);

/// Casos of a run at most: their number has 16 bits.
inline constexpr int kMaxCasosCorrida = 32767;

/// The failure of a range with more, named after the increment of which there are more.
ErrorEjecucion DemasiadosCasos(const Rango& r, double alturas, double presiones);

/// Refuses a range before its first Caso: a step that leads away from its end, which would never
/// end, and more than twice the Casos that can be numbered, beyond what rounding could make of
/// fewer. One Caso from outside is let pass.
/// @throws ErrorEjecucion IncrementoPresion, IncrementoAltura, DemasiadosCasos; the field is told
void ExigeRango(const Rango& r);

}  // namespace zorbin
