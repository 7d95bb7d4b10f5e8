// The three moments of a field (entering it, a change, leaving it), and the choices that are
// no text: ticks and options.
#pragma once

#include "sesion/captura/mdCaptura.h"
#include "sesion/captura/mdPaginas.h"

namespace zorbin {

/// The field takes the focus: its page comes forward, a blank takes its default, and the content is
/// selected whole.
void Entra(Captura& c, Ed campo);

/// A person changed the text. A field that is disabled or locked stays as it is.
void Cambia(Captura& c, Ed campo, std::string texto);

/// The focus is about to leave: the rule of the field.
SalidaCampo Sale(Captura& c, Ed campo);

/// A person ticked or cleared a box.
void CambiaMarca(Captura& c, Ed marca, bool puesta);

/// A person chose an option, from 0.
void EligeOpcion(Captura& c, Ed grupo, int opcion);

}  // namespace zorbin
