// Leaving the fields of pressures and fill heights, of the Obra and of the Tramo.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// Least increment of a range of pressures: the last digit that its mask shows.
inline constexpr double kIncrementoMinimo = 0.01;

SalidaCampo SalePresion(Captura& c, Ed campo);
SalidaCampo SaleAlturaObra(Captura& c, Ed campo);
SalidaCampo SaleAlturaTramo(Captura& c, Ed campo);

}  // namespace zorbin
