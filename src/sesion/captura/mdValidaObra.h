// Validation of the Obra: the gate before every save, calculation, adjustment or print.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// Checks and completes pressures and heights of the Obra, in a fixed order, and stops at the first
/// failure: its message, then page 0 and the focus on the field. What passed stays written. The
/// refusal is kept in `falta`.
bool ValidaObra(Captura& c);

}  // namespace zorbin
