// Everything on the screen that is a text of the catalogue: labels, tips, lists, titles; and the
// change of language and of unit system.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// The system in force, as the window title begins.
std::string TextoUnidades(const Captura& c);

/// Unit of a field as it is written, with its powers raised; empty for none.
std::string UnidadEscrita(Ed campo, bool si);
/// A label without the unit that it carries in parentheses, and without the colon at its end.
std::string SinUnidad(std::string rotulo);

/// What stands for a number that is left blank: of a Tramo, that of the Obra; of a design pressure,
/// the one that follows from its maximum. Empty where nothing does.
std::string ValorEnBlanco(const Captura& c, Ed campo);

/// Labels, captions and notices in the language and units in force, those with values in them
/// included.
void RenuevaEtiquetas(Captura& c);

/// Window title of the page in front and of the state of the capture, and text of btCancelar.
void RenuevaTitulo(Captura& c);

/// All texts of the screen. Lists keep the entry chosen, fields what was typed.
void PoneTextosCaptura(Captura& c);

/// Another language of the screen, 1 to 5. That of the paper is a datum of the Obra.
void CambiaIdioma(Captura& c, std::int16_t idioma);

/// The unit system of the Obra: every datum with units is converted, of all its Tramos.
void RevisaUnidades(Captura& c, bool aSI);

}  // namespace zorbin
