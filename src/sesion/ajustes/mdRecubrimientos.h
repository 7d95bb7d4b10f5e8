// Alternative covers: what the trial rows and the check would be with others than the Tramo's. They
// are stored nowhere.
#pragma once

#include "sesion/ajustes/mdAjuste.h"

namespace zorbin {

/// The fields show the covers of the Tramo.
void MuestraRecubrimientosOrigen(Ajustes& a);

void CambiaRecubrimientos(Ajustes& a);
void AceptaRecubrimientos(Ajustes& a);
void AnulaRecubrimientos(Ajustes& a);
void RecuperaRecubrimientosOrigen(Ajustes& a);
bool SaleRecubrimiento(Ajustes& a, CampoAjuste campo);

}  // namespace zorbin
