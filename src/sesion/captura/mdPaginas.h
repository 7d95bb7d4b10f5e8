// The pages of the screen. Any of them may be looked at, whatever is typed.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// A person chose a page of TabPrincipal.
void CambiaPagina(Captura& c, int pagina);
/// A page of TabDatosColocacion.
void CambiaPaginaColocacion(Captura& c, int pagina);
/// A page of TabPostesados.
void CambiaPaginaPostesados(Captura& c, int pagina);

}  // namespace zorbin
