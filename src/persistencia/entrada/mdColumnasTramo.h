// The data of a Tramo as columns of a table: which of them have one, and how its head reads.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/campos/mdDatos.h"

namespace zorbin {

inline constexpr std::string_view kColumnaNumero = "NumeroTramo";

/// What follows from other data has no column: the rules find it again.
bool TieneColumna(const Ficha& ficha);

/// Those that have one, in the order of the table of data.
std::vector<const Dato<Tramo>*> ColumnasDeTramo();

std::string UnidadDe(const Ficha& ficha, bool si);

/// Name and unit: "Fck (MPa)".
std::string Cabecera(const Ficha& ficha, bool si);

}  // namespace zorbin
