// Fills the model of the screen of adjustments from the work in hand.
#pragma once

#include <string>
#include <string_view>

#include "sesion/ajustes/mdAjuste.h"

namespace zorbin {

inline constexpr std::string_view kMascaraRecubrimiento = "#####0.0";

const std::string& Texto(const Ajustes& a, int entrada);
std::string Formato(const Ajustes& a, double valor, std::string_view mascara);

/// Captions that do not depend on the Caso.
void MuestraRotulos(Ajustes& a);
/// All that the work in hand says: Caso, rows, check, covers, and what the state of the screen lets
/// a person do.
void Muestra(Ajustes& a);
/// Areas of the row of direct entry alone.
void MuestraDirecta(Ajustes& a);
/// A field written by the program.
void Escribe(Ajustes& a, CampoAjuste campo, double valor, std::string_view mascara);

}  // namespace zorbin
