// The pages of the screen, and what must hold before one comes to the front.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// A person chose a page of TabPrincipal. @return whether it stands in front
bool CambiaPagina(Captura& c, int pagina);
/// A page of TabDatosColocacion. As CambiaPagina.
bool CambiaPaginaColocacion(Captura& c, int pagina);
/// A page of TabPostesados.
void CambiaPaginaPostesados(Captura& c, int pagina);

}  // namespace zorbin
