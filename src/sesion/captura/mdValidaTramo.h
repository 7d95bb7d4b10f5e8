// Validation of the Tramo in hand: the one gate before it is saved, calculated, adjusted or
// printed.
#pragma once

#include "core/mdUnidades.h"
#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// Brings the fields into the state and checks them all in a fixed order; what passed stays
/// written. It also computes what nobody types: Fct, De, B0 when automatic, Sf when blank, Reci of
/// a lined cylinder, pressures that follow from MDP, the codes of laying and fill, and the load
/// fields. The refusals are kept in `faltas`.
bool ValidaTramo(Captura& c);

/// Whether the load is calculated, which it is where none is given; a given one has no load by its
/// side.
void EligeCarga(Tramo& t);

/// Value that a list stands for, from the position of its entry, from 1.
std::int16_t ValorDeLista(const Captura& c, Ed campo, int posicion);

}  // namespace zorbin
