// The verdict of a Caso as JSON fields.
#pragma once

#include "core/verificacion.h"
#include "listados/datos/mdEscritorJson.h"

namespace zorbin {

/// "cumple", "nocumple" or "sincomprobar".
std::string_view CodigoDe(Veredicto veredicto);

/// Writes them into the object that is open: "veredicto", "uso", "ajustado", "motivo",
/// "advertencias" and "comprobaciones".
void DeVeredicto(EscritorJson& j, const Verificacion& v, bool ajustado);

}  // namespace zorbin
