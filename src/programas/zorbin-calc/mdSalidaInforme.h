// The report that one signs, from the command line.
#pragma once

#include "listados/informe/mdInforme.h"

namespace zorbin {

/// Detail of its word; the worst Caso for an empty one.
DetalleInforme DetalleDeLinea(std::string_view palabra);

/// Writes the report, and says on standard output how many pages it has. One of very many pages is
/// refused unless `si`, with how many there would be.
/// @return an exit code @throws ErrorSalida
int EscribeInformePdf(const std::filesystem::path& fichero, const DatosInforme& datos,
                      const Catalogo& textos, const EstiloNumeros& estilo, bool si);

}  // namespace zorbin
