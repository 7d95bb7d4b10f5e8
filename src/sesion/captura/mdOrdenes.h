// What can be done now: buttons and menu entries, from the Obra and the Tramo in hand.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// Entries of the Obra follow whether one is loaded and has a file; those of the Tramo, whether one
/// is in hand and how. The buttons follow the menus.
void ActualizaMenus(Captura& c);

}  // namespace zorbin
