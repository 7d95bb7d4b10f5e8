// The words of warnings and failures, which calculation keeps as codes and values.
#pragma once

#include <string>

#include "base/mdCatalogo.h"
#include "core/resultado.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

/// Text of a warning, without the marks that each listing puts around it.
std::string TextoAviso(ClaseAviso clase, const Catalogo& textos);
std::string TextoAviso(const Aviso& aviso, const Catalogo& textos);

/// What ended a run, without its place.
std::string TextoCausa(const ErrorEjecucion& error, const Catalogo& textos);

/// The failure in one line: file, number of the Tramo in the list, Caso, height, pressure, cause.
std::string TextoFallo(const FalloCorrida& fallo, const std::string& fichero,
                       const std::string& tramo, const Catalogo& textos,
                       const EstiloNumeros& estilo);

}  // namespace zorbin
