#include "sesion/captura/mdPaginas.h"

#include "sesion/captura/mdEtiquetas.h"

namespace zorbin {

void CambiaPagina(Captura& c, int pagina) {
  c.pantalla.pagina.TabPrincipal = pagina;
  RenuevaTitulo(c);
}

void CambiaPaginaColocacion(Captura& c, int pagina) {
  c.pantalla.pagina.TabDatosColocacion = pagina;
}

void CambiaPaginaPostesados(Captura& c, int pagina) {
  c.pantalla.pagina.TabPostesados = pagina;
}

}  // namespace zorbin
