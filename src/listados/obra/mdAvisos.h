// The words of warnings and failures, which calculation keeps as codes and values.
#pragma once

#include <span>
#include <string>

#include "base/mdCatalogo.h"
#include "core/resultado.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

/// Text of a warning, without the marks that each listing puts around it.
std::string TextoAviso(ClaseAviso clase, const Catalogo& textos);
std::string TextoAviso(const Aviso& aviso, const Catalogo& textos);

/// Whether one of the warnings before the i-th says the same of the same hypothesis.
/// @param sale  which warnings are shown
bool DichoAntes(std::span<const Aviso> avisos, std::size_t i, bool (*sale)(const Aviso&));

/// Name of the hypothesis of a warning after its caption; empty for a warning of none.
std::string TextoHipotesisAviso(const Aviso& aviso, bool armado, const Catalogo& textos);

/// What ended a run, without its place.
std::string TextoCausa(const ErrorEjecucion& error, const Catalogo& textos);

/// The failure in one line: file, number of the Tramo in the list, Caso, height, pressure, cause.
std::string TextoFallo(const FalloCorrida& fallo, const std::string& fichero,
                       const std::string& tramo, const Catalogo& textos,
                       const EstiloNumeros& estilo);

}  // namespace zorbin
