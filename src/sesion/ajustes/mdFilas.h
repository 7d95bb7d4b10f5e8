// The rows of the screen of adjustments: what the Caso in hand offers, what is chosen of it, and
// the check of that. Nothing here shows anything.
#pragma once

#include "sesion/ajustes/mdAjuste.h"

namespace zorbin {

/// Trial rows and check of the Caso in hand, with the covers in force; and the choice from the
/// stored adjustment where that is looked for. @throws ErrorEjecucion as the formulas
void CalculaFilas(Ajustes& a);

/// Takes the areas that are chosen, compares them, and writes the working sheet.
/// @throws ErrorEjecucion as the formulas
void CompruebaLoElegido(Ajustes& a);

/// Areas of a row, 0 to 7, before they are shown [cm2/m].
Ajuste AreasExactas(const TrabajoAjuste& t, int fila);

/// Nothing but the result is chosen.
bool SinDatos(const TrabajoAjuste& t);
void OlvidaDirecta(TrabajoAjuste& t);

/// Entry of the Caso in hand in the file of adjustments; null for none.
const EntradaAjuste* Guardada(const Ajustes& a);

/// Stores what is chosen for the Caso, or frees its entry. @return whether the disk took it
bool GrabaUnTramoPresion(Ajustes& a);

}  // namespace zorbin
