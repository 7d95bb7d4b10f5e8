// Everything on the screen that is a text of the catalogue: labels, tips, lists, titles; and the
// change of language and of unit system.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// The system in force, as the window title begins.
std::string TextoUnidades(const Captura& c);

/// Labels, captions and notices in the language and units in force, those with values in them
/// included.
void RenuevaEtiquetas(Captura& c);

/// Window title of the page in front and of the state of the capture, text of btCancelar, and the
/// unit option, which is enabled while no Tramo is in hand.
void RenuevaTitulo(Captura& c);

/// All texts of the screen. Lists keep the entry chosen, fields what was typed.
void PoneTextosCaptura(Captura& c);

/// Another language, 1 to 5.
void CambiaIdioma(Captura& c, std::int16_t idioma);

/// The unit system of the screen: every field with units is converted from its text and shown with
/// the mask of the other system. Nothing happens while fields are loaded or a Tramo is in hand.
/// @return whether the system in force is the one asked for: a text that is no number is refused
bool RevisaUnidades(Captura& c, const std::string& nuevo);

}  // namespace zorbin
