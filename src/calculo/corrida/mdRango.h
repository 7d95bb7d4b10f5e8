// What a run goes through: its heights and pressures, their steps, and how many Casos they make.
#pragma once

#include <optional>

#include "calculo/rastro/mdRastro.h"
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
/// Source: of STP, EN 805 for a surge calculated or estimated, with 1 at for 100 kPa; of PP, the
/// factory test of the Anejo 4 "Cálculo Mecánico" of the Instrucción del Instituto Eduardo
/// Torroja.
/// @param DP              design pressure [at]
/// @param Di              internal diameter [m]
/// @param golpeCalculado  the surge is calculated, not estimated
/// @throws ErrorEjecucion Desbordamiento
PresionesCaso PresionesDe(double DP, const Rango& r, double Di, bool golpeCalculado,
                          Rastro* rastro = nullptr);

/// Casos of a run at most: their number has 16 bits.
inline constexpr int kMaxCasosCorrida = 32767;

/// How many heights and pressures a run goes through, counted as it goes; each of them up to one
/// more than it may have.
struct CuentaRango {
  int alturas = 0;
  int presiones = 0;

  int Casos() const { return alturas * presiones; }
  bool MasAlturas() const { return alturas > presiones; }
};
/// @throws ErrorEjecucion Desbordamiento
CuentaRango CuentaDe(const Rango& r);

/// Refuses a range before its first Caso: a step that leads away from its end, which would never
/// end, and more Casos than can be numbered; the increment of which there are more values is told.
/// One Caso from outside is let pass.
/// @throws ErrorEjecucion IncrementoPresion, IncrementoAltura, DemasiadosCasos; the field is told.
/// Desbordamiento
void ExigeRango(const Rango& r);

}  // namespace zorbin
