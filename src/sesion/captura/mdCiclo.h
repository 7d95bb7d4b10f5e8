// Life of an Obra and of its Tramos on the screen: a new one, reading, saving, cancelling, and what
// stands before a calculation.
//
// The list of Tramos, UltimoTramo and the file agree after every action.
#pragma once

#include <filesystem>

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

// ---- The Obra

/// An Obra without file, with the defaults of a new one; nothing of the previous one survives.
void NuevaObra(Captura& c);

/// Opens an Obra for editing. One that another program has, or that may not be written, is opened
/// for reading if the person wants it so: nothing of it is then ever saved. A refusal of the file
/// is shown and leaves no Obra.
bool AbreObra(Captura& c, const std::filesystem::path& ruta);

/// Writes the header; asks for a file when there is none. Nothing is written when a text cannot be
/// stored. @return whether it was written
bool GrabaObra(Captura& c);
/// Writes the block of the Tramo in hand. As GrabaObra.
bool GrabaTramo(Captura& c);

/// The button and the menu entry: validates and writes.
bool AccionGrabaObra(Captura& c);

/// Closes the Obra, unless there are unsaved edits; of one that is only read they may be given up.
/// @return whether it is closed
bool CierraObra(Captura& c);
/// The close box of the capture screen. @return whether it may close
bool CierraFormulario(Captura& c);

// ---- The Tramo

void NuevoTramo(Captura& c);
/// Asks, validates and writes Obra and Tramo, both or neither. @return whether they were written
bool AccionGrabaTramo(Captura& c);
void CancelaCaptura(Captura& c);
/// Leaving edTramo with a number: reads that Tramo. @return whether the field may be left
bool EligeTramo(Captura& c);

/// Reads the Tramo at a position, from 1, into state and screen. @throws ErrorFichero
void LeeTramo(Captura& c, int posicion);
/// The same from a file that the capture does not hold.
void LeeTramo(Captura& c, const FicheroRegistros& f, int posicion);
/// Position of a number in the list, from 1; 0 when it is not there.
int PosicionDelTramo(const Captura& c, int numero);

/// A Tramo whose data are in the state and on the screen is the one in hand from now on.
/// @param estado  kAltas or kModificaciones
void TomaEnMano(Captura& c, int numero, std::string_view estado);

/// What stands before a calculation or an adjustment: validates, asks for a file and, for an
/// adjustment, for no unsaved edits and a file that may be written. @return whether it may go on
bool PreparaCalculo(Captura& c, bool ajuste);

}  // namespace zorbin
