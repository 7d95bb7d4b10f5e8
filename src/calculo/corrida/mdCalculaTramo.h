// The run of a Tramo as a function: data in calculation units in, results out. It writes nothing
// else but the debug log that it is handed.
#pragma once

#include <functional>

#include "base/mdRegistro.h"
#include "calculo/corrida/mdRango.h"
#include "calculo/rastro/mdRastro.h"
#include "core/resultado.h"

namespace zorbin {

/// How far a run has come: a Caso is about to be calculated.
struct AvanceCorrida {
  int caso = 0;   // of this Tramo, from 1
  int casos = 0;  // expected of it; never below `caso`
};

/// Asked before each Caso whether the run goes on; false ends it. None: it goes to its end.
using SigueCorrida = std::function<bool(const AvanceCorrida&)>;

/// Data of a Tramo as captured, in the units of the Obra, taken to calculation units.
/// @param ajustes     adjusted Casos of the project: DP [at], height [m], areas [cm2/m]
/// @param sinAjustes  their file was refused
DatosTramo DatosDeCalculo(const Obra& obra, const Tramo& tramo,
                          std::vector<EntradaAjuste> ajustes = {}, bool sinAjustes = false);

/// Runs a Tramo through its Casos, fill heights outside and pressures inside. An arithmetic failure
/// ends it and is told in the result; the rows before it stand.
ResultadoTramo CalculaTramo(const DatosTramo& datos, const Rango& rango,
                            const SigueCorrida& sigue = {}, Registro* registro = nullptr);

/// The whole of one Caso of a result, calculated again from its data: moments, hypotheses,
/// stresses, warnings.
/// @param rastro  where given, takes the steps of the whole Caso, its loads and pressures included
/// @throws ErrorEjecucion only where the row's own calculation did, which no row of a result does
ResultadoCaso CasoEntero(const ResultadoTramo& resultado, const FilaCaso& fila,
                         Rastro* rastro = nullptr);

}  // namespace zorbin
