// Leaving the dimensions of the pipe and the width of the trench.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

SalidaCampo SaleDi(Captura& c, Ed campo);
/// The thickness or a cover. One that the table must give and does not leads back to the diameter.
SalidaCampo SaleDimension(Captura& c, Ed campo);
/// A width of 0 takes the automatic one.
SalidaCampo SaleB0(Captura& c, Ed campo);

}  // namespace zorbin
