// Life of an Obra on the screen: a new one, opening, saving, closing, and going back and forth
// among its versions.
#pragma once

#include <filesystem>

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// An Obra without file, with the defaults of a new one; nothing of the previous one survives.
/// @param idioma  of its paper, 1 to 5
void NuevaObra(Captura& c, int idioma = 1);

/// Opens an Obra with all its Tramos. One that another program has, or that may not be written, is
/// opened for reading, and that is announced. Of a damaged one the whole Tramos are read, the rest
/// is told, and nothing is written over. A file that is refused is told, and leaves no Obra.
bool AbreObra(Captura& c, const std::filesystem::path& ruta);

/// The same without taking it for writing, and without a word. @throws ErrorFichero
void AbreParaMirar(Captura& c, const std::filesystem::path& ruta);

/// Saves all that changed, at once, or nothing. What has faults is not saved: they are listed in
/// `faltas`, and the first one leads to its field. Where there is no file yet, or this one cannot
/// be written, asks for another.
/// @return whether the file holds what is in memory
bool Graba(Captura& c);
/// The same into another file, with which the work goes on.
bool GrabaComo(Captura& c);

/// Where there is something unsaved asks what to do with it. @return whether the Obra may go
bool PuedeIrse(Captura& c);
/// PuedeIrse, and closes the Obra. @return whether it is closed
bool CierraObra(Captura& c);
/// Closes the Obra, whatever is unsaved.
void Descarta(Captura& c);

/// Goes to a version of before or after: data and Tramo in hand, without any rule. What is unsaved
/// follows.
void VuelveA(Captura& c, const Version& v, int enMano);
inline void Deshace(Captura& c, const PasoHecho& paso) {
  VuelveA(c, paso.antes, paso.enManoAntes);
}
inline void Rehace(Captura& c, const PasoHecho& paso) {
  VuelveA(c, paso.despues, paso.enManoDespues);
}

/// The hand adjustments of the file beside the Obra are what it holds now, and so is what is saved.
void RecogeAjustes(Captura& c);

}  // namespace zorbin
