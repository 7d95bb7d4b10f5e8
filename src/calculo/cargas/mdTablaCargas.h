// The vertical load table of a Tramo, and the loads of 1 m of earth without concentrated load.
#pragma once

#include "core/estado_calculo.h"

namespace zorbin {

/// Rows of the vertical load table: 1 m without concentrated load, then the heights of the range.
/// Reads  the data of `CargasMarston`, tramo.ICar, tramo.Hr0Delta, corrida.Hr0Actual and
///        Hr0FinalActual [m].
/// Writes corrida.TablaCargas [t/m2]; loads and Hr1 are left as they were.
/// A height that cannot be calculated ends the table: the run meets it in its turn.
void TablaCargas(EstadoCalculo& e);

/// Loads of 1 m of earth without concentrated load.
/// Writes corrida.Q1m, QTerraplen1m, QTierras1m, QMovil1m [t/m2] and, as every call of
/// `CargasMarston`, tramo.Hr1; the loads of the height are left as they were.
/// @throws ErrorEjecucion as `CargasMarston`
void CargasUnMetro(EstadoCalculo& e);

}  // namespace zorbin
