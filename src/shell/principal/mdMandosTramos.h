// What the menu of Tramos does with those that are chosen in their list.
#pragma once

#include <vector>

#include "sesion/captura/mdCaptura.h"

class QWidget;

namespace zorbin {

/// Copies, deletes, moves, numbers, and exchanges Tramos with the clipboard. Any other order does
/// nothing.
/// @param ids    the chosen ones
/// @param padre  of what has to be asked or told
void HazConTramos(Captura& c, Orden orden, const std::vector<int>& ids, QWidget* padre);

}  // namespace zorbin
