// Validation of the Tramo in hand: the one gate before it is saved, calculated, adjusted or
// printed.
#pragma once

#include "core/mdUnidades.h"
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

/// The fill heights in force. Where they are the Obra's, so is the increment of the Tramo.
Alturas EligeAlturas(Captura& c);

/// Whether the load is calculated, which it is where none is given; a given one has no load by its
/// side.
void EligeCarga(Tramo& t);

/// Value that a list stands for, from the position of its entry, from 1.
std::int16_t ValorDeLista(const Captura& c, Ed campo, int posicion);

}  // namespace zorbin
