// Leaving the fields of pressures and fill heights, of the Obra and of the Tramo.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

SalidaCampo SalePresion(Captura& c, Ed campo);
SalidaCampo SaleAlturaObra(Captura& c, Ed campo);
SalidaCampo SaleAlturaTramo(Captura& c, Ed campo);

}  // namespace zorbin
