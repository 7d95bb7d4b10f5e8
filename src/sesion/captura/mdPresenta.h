// Fills the screen model from the state.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// The screen as it opens: texts, lists, diameters of the table, the fields that nobody types.
void PreparaPantalla(Captura& c);

/// Fields of the Obra from the state.
void MuestraObra(Captura& c);

/// Fields of the Tramo from the state, with the masks of the file; a zero of a field that must not
/// be zero shows as a blank.
void MuestraTramo(Captura& c);

/// The numbers offered by edTramo.
void MuestraListaTramos(Captura& c);

}  // namespace zorbin
