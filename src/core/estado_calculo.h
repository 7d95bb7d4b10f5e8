// The data in hand of a capture: the Obra and one of its Tramos, in the units of the Obra's system.
#pragma once

#include "core/campos/obra.h"
#include "core/campos/tramo.h"

namespace zorbin {

struct EstadoCalculo {
  Obra obra;
  Tramo tramo;
};

}  // namespace zorbin
