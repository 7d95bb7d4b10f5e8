// The twelve ovalisation hypotheses of a Caso, from which both designs take their combinations.
#pragma once

#include "core/estado_calculo.h"

namespace zorbin {

/// Reads  tramo: Di, De [m], Gc, Gr [t/m3], TipoCuna; corrida: Landa, the loads of the height and
///        those of 1 m [t/m2], which hypothesis 8 takes; the texts and the number for the log.
/// Writes caso.MHip [m·t/m], caso.NHip [t/m], in full; three lines of the debug log.
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento, Subindice, Registro
void Ovalizacion(EstadoCalculo& e);

}  // namespace zorbin
