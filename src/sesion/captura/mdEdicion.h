// The four moments of a field (entering it, a key, a change, leaving it), and the choices that are
// no text: ticks, options, pages.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// What leaving a field comes to.
enum class SalidaCampo {
  Pasa,    // the focus may go where it was going
  Queda,   // refused: it stays
  VaOtro,  // it goes to the field that the model names in `foco`
};

/// The field takes the focus: its page comes forward, a blank takes its default, and the content is
/// selected whole.
void Entra(Captura& c, Ed campo);

/// @return the key that the text takes, or 0 for none
char Tecla(Captura& c, Ed campo, char tecla);

/// A person changed the text. A field that is disabled or locked stays as it is.
void Cambia(Captura& c, Ed campo, std::string texto);

/// The focus is about to leave: the rule of the field.
SalidaCampo Sale(Captura& c, Ed campo);

/// A person ticked or cleared a box.
void CambiaMarca(Captura& c, Ed marca, bool puesta);

/// A person chose an option, from 0.
void EligeOpcion(Captura& c, Ed grupo, int opcion);

/// A person chose a page of TabPrincipal. @return whether it stands in front
bool CambiaPagina(Captura& c, int pagina);
/// A page of TabDatosColocacion. As CambiaPagina.
bool CambiaPaginaColocacion(Captura& c, int pagina);
/// A page of TabPostesados.
void CambiaPaginaPostesados(Captura& c, int pagina);

}  // namespace zorbin
