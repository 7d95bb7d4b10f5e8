// The Tramos of an Obra at a glance, and choosing one of them there.
#pragma once

#include <string>
#include <vector>

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// A stored Tramo in the words of the language in force.
struct RenglonTramo {
  std::string numero;
  std::string descripcion;
  std::string tipologia;
  std::string Di;  // [m]
  std::string colocacion;
};

/// The stored Tramos in the order of the list. A block that cannot be read gives its number alone.
std::vector<RenglonTramo> RenglonesTramos(const Captura& c);

/// Brings a Tramo of the list into hand, as typing its number does. A new Tramo in hand is saved or
/// cancelled first. @return whether it is in hand
bool TomaTramo(Captura& c, const std::string& numero);

}  // namespace zorbin
