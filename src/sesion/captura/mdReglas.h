// What the program does for a field: the default that a blank one takes, and the rule that is run
// when it is left.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// A blank field takes its default, and what follows from it is shown.
void Rellena(Captura& c, Ed campo);

/// Reads the field, refuses or completes what was typed, and shows it.
SalidaCampo AplicaRegla(Captura& c, Ed campo);

}  // namespace zorbin
