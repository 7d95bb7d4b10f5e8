// A state from the data of a worked case.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "core/estado_calculo.h"

namespace zorbin::pruebas {

/// Folder tests/datos/.
inline std::string Datos(const std::string& nombre) { return ZORBIN_DATOS_PRUEBA + nombre; }

nlohmann::json LeeJson(const std::string& ruta);

/// Fills Obra and Tramo, in capture units, from their fields by name. Flags may be -1 and 0.
EstadoCalculo EstadoDe(const nlohmann::json& entrada);

}  // namespace zorbin::pruebas
