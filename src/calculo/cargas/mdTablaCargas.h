// The vertical load table of a Tramo, and the loads of 1 m of earth without concentrated load.
#pragma once

#include <vector>

#include "calculo/rastro/mdRastro.h"
#include "core/resultado.h"

namespace zorbin {

/// Rows of the vertical load table [t/m2]: 1 m without concentrated load, then the heights of the
/// range. A height that cannot be calculated ends the table: the run meets it in its turn.
/// @param t      what `CargasMarston` reads, and ICar
/// @param r      Hr0, Hr0Final, Hr0Delta [m]
/// @param dadas  as `CargasMarston` takes them
std::vector<FilaCargas> TablaCargas(const Tramo& t, const Rango& r, const Cargas& dadas = {});

/// Loads of 1 m of earth without concentrated load [t/m2], those of the system test.
/// @param dadas  as `CargasMarston` takes them
/// @throws ErrorEjecucion as `CargasMarston`
Cargas CargasUnMetro(const Tramo& t, const Cargas& dadas = {}, Rastro* rastro = nullptr);

}  // namespace zorbin
