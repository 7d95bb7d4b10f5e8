// The hand adjustments of a Tramo that a change of its data makes void.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// Wipes every entry of a Tramo in the file of adjustments of a project. Nothing happens where that
/// file does not exist. @throws ErrorFichero
void BorraAjustesTramo(const std::filesystem::path& obra, int NumeroTramo, char separador);

/// A datum of the Tramo in hand changed: its adjustments are void. Nothing happens without a file
/// to write to, or while fields are loaded. Where the file of adjustments refuses it, that is shown
/// once, and `AjustesPorBorrar` is left: every change after it, and the saving of the Tramo, try
/// again.
void RegistraCambios(Captura& c);

/// A message of a file, in the language in force.
std::string TextoDeError(const Captura& c, const ErrorFichero& error);

}  // namespace zorbin
