// Validation of the Tramo in hand: the one gate before it is saved, calculated, adjusted or
// printed.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// Brings the fields into the state and checks them in a fixed order, stopping at the first
/// failure; what passed stays written. It also computes what nobody types: Fct, De, B0 when
/// automatic, Sf when blank, Reci of a lined cylinder, pressures that follow from MDP, the codes of
/// laying and fill, and the load fields. The refusal is kept in `falta`.
/// @param Interactivo  a failure moves page and focus, and the recommended dimensions are asked
///                     about. Otherwise, for a batch, messages are shown all the same, and the
///                     texts it writes leave no unsaved edit.
bool ValidaTramo(Captura& c, bool Interactivo);

/// Asks about a design strength of the steel over 1400 kp/cm2. @return whether to go on
bool CompruebaFyd(Captura& c);

/// First and second load that follow from the given one; the second of a trench is 0 without width.
void CargasDeQDato(Captura& c, double altura);

/// Value that a list stands for, from the position of its entry, from 1.
std::int16_t ValorDeLista(const Captura& c, Ed campo, int posicion);

}  // namespace zorbin
