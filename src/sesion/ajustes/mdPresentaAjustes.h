// Fills the model of the screen of adjustments from the work in hand.
#pragma once

#include <string>
#include <string_view>

#include "sesion/ajustes/mdAjuste.h"

namespace zorbin {

const std::string& Texto(const Ajustes& a, int entrada);
std::string Formato(const Ajustes& a, double valor, std::string_view mascara);
/// A message with the title of a warning.
void Avisa(Ajustes& a, int texto);

/// The numeric check of a field. A number below the minimum, or none, is told under the label.
bool ValidaNumero(Ajustes& a, CampoAjuste campo, double minimo, double& destino, int etiqueta);

/// Captions that do not depend on the Caso.
void MuestraRotulos(Ajustes& a);
/// Height and pressure of the Caso, and the notice of pure tension.
void MuestraCaso(Ajustes& a);
/// Areas of the rows 0 to 7, and what the options can do.
void MuestraFilas(Ajustes& a);
/// Areas of the row of direct entry.
void MuestraDirecta(Ajustes& a);
void MuestraComprobacion(Ajustes& a);
/// Buttons, options and fields as the state of the screen has them.
void MuestraEstado(Ajustes& a);
/// A field written by the program.
void Escribe(Ajustes& a, CampoAjuste campo, double valor, std::string_view mascara);

/// Areas of a row, 0 to 7, as the screen shows them [cm2/m].
Ajuste AreasDeFila(const Ajustes& a, int fila);

}  // namespace zorbin
