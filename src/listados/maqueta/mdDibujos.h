// Drawings that belong to the report alone.
#pragma once

#include <optional>

#include "listados/maqueta/mdTrazos.h"

namespace zorbin::memoria {

/// The drawing of that name: "anillo" control sections and signs, "pared" the layers of a
/// post-tensioned wall, "moviles" pressure of the load trains by depth. None for another name.
std::optional<Caja> Dibujo(const Tipografia& tipografia, const QString& nombre);

}  // namespace zorbin::memoria
