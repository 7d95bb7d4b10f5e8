// Volumes of the trench of a pipe, for each metre of it.
#pragma once

#include "core/campos/tramo.h"

namespace zorbin {

/// Thickness of the bed under a pipe of external diameter De [m]: an eighth of it, 10 cm at least.
/// No datum gives it.
double EspesorCama(double De);

/// Width of a concrete bed, and of the ditch in which a pipe under an embankment lies, over the
/// external diameter [-]. No datum gives it.
inline constexpr double kVueloCama = 1.2;

/// Volumes for each metre [m3/m].
struct ZanjaMedida {
  double Excavacion = 0;  // from the natural ground to under the bed, with upright walls
  double Cama = 0;
  double Relleno = 0;  // what the excavation holds beside bed and pipe
};

/// The trench has the width of the datum B0, an excavation under an embankment that of the bed.
/// What an embankment takes above the natural ground is not the pipe's and is left out. A trench
/// that is no wider than the pipe gives nothing.
/// @param t   De, B0, Hr1 [m], TipoApoyo (below 20 a trench, below 30 under an embankment),
/// TipoCuna
/// @param Hr  fill height over the crown [m]
ZanjaMedida MideZanja(const Tramo& t, double Hr);

}  // namespace zorbin
