// The fields of the screen of adjustments that are typed in: the areas of the direct entry, and the
// alternative covers, which are stored nowhere.
#pragma once

#include "sesion/ajustes/mdAjuste.h"

namespace zorbin {

/// Takes the areas of the row of direct entry. @return whether they make a reinforcement; otherwise
/// why not has been shown
bool TomaDirecta(Ajustes& a);

/// Takes the alternative covers. @return whether they leave a lever arm; otherwise why not has been
/// shown
bool TomaRecubrimientos(Ajustes& a);

}  // namespace zorbin
