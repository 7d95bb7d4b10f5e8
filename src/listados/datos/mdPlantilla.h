// The empty workbook in which a person writes Tramos.
#pragma once

#include <filesystem>

#include "base/mdCatalogo.h"

namespace zorbin {

/// A sheet with a row for each Tramo, heads with their units under SI or MKS, lists for what has
/// codes, and a comment on every head; and a sheet with the data of the Obra. Reading it back gives
/// the data of a table. @throws ErrorSalida
void EscribePlantilla(const std::filesystem::path& fichero, const Catalogo& textos, bool si);

}  // namespace zorbin
