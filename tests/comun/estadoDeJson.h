// A state from the data of a worked case.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "core/estado_calculo.h"
#include "core/resultado.h"

namespace zorbin::pruebas {

/// Folder tests/datos/.
inline std::string Datos(const std::string& nombre) {
  return ZORBIN_DATOS_PRUEBA + nombre;
}

nlohmann::json LeeJson(const std::string& ruta);

/// Fill the Obra or the Tramo, in capture units, from their fields by name; a name left out leaves
/// 0, and what follows from the fields is derived. Flags may be -1 and 0.
void RellenaObra(EstadoCalculo& e, const nlohmann::json& j);
void RellenaTramo(EstadoCalculo& e, const nlohmann::json& j);

/// Both from one object.
EstadoCalculo EstadoDe(const nlohmann::json& entrada);

/// The Tramo of the sample Obra at a position, from 1, with its Obra, in SI.
EstadoCalculo EstadoDeMuestra(int posicion);

/// What a run is given of a state in capture units.
DatosTramo EnCalculo(const EstadoCalculo& e);

/// The same data typed in the other unit system. Fct follows from Fck in each.
EstadoCalculo EnMks(EstadoCalculo e);

}  // namespace zorbin::pruebas
