// The rows of the screen of adjustments: filling them from the Caso, choosing one, direct entry.
#pragma once

#include <functional>

#include "sesion/ajustes/mdAjuste.h"

namespace zorbin {

/// Runs an action with the state in calculation units. A failure of its arithmetic, or of a run, is
/// told and leaves everything as it was. @return what the action gives; false on a failure
bool EnUnidades(Ajustes& a, const std::function<bool()>& accion);

/// Fills rows and check from the Caso in hand, and the choice from the stored adjustment where that
/// is looked for. The state holds calculation units.
void CargaDatosIni(Ajustes& a);
/// The same from outside a calculation. @return whether it could be calculated
bool CargaDatosIniEnUniCalc(Ajustes& a);

/// Stores what is chosen for the Caso, or frees its entry. @return whether the disk took it
bool GrabaUnTramoPresion(Ajustes& a);

void EntraEnEstado(Ajustes& a, EstadoAjuste estado);

void SubeValorMedio(Ajustes& a);
void BajaValorMedio(Ajustes& a);
void AceptaSeleccionDirecta(Ajustes& a);
void AnulaSeleccionDirecta(Ajustes& a);
bool SaleDirecta(Ajustes& a, CampoAjuste campo);

}  // namespace zorbin
