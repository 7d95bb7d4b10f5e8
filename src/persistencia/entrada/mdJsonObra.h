// The data of an Obra and its Tramos as JSON, as the results tell them, read back.
#pragma once

#include <istream>

#include "persistencia/entrada/mdDatosLeidos.h"

namespace zorbin {

/// Reads the object that the results are: `obra`, and `tramos` with their data by name. The Casos
/// of a Tramo and what was found of it are passed over, whatever their size, as they are read. A
/// value of null says nothing.
/// @throws ErrorEntrada for what is no JSON, or of another form
Entrada LeeJsonObra(std::istream& datos);

/// JSON schema of such an object, made of the table of data.
std::string EsquemaJsonObra();

}  // namespace zorbin
