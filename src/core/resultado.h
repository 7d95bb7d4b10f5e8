// What a run is given and what it leaves: values, which anyone may keep, compare and show.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/aritmetica.h"
#include "core/campos/obra.h"
#include "core/campos/tramo.h"
#include "core/mdAjustes.h"
#include "core/mdUnidades.h"
#include "core/resultados.h"
#include "core/verificacion.h"

namespace zorbin {

/// Heights and pressures that a run goes through, in calculation units.
struct Rango : Alturas {
  double DPIni = 0, DPFin = 0;    // range to which that of MDP belongs [at]
  double MDPIni = 0, MDPFin = 0;  // [at]
  double PendienteMDP = 1;        // slope of MDP over DP [-]
  double PrimeraDP = 0;           // of the loop [at]
  double UltimaDP = 0;            // of the loop [at]
  double IncDP = 0;               // step of the loop [at]
  bool IncDPIndefinido = false;   // the step has no finite value
  bool PresionesPropias = false;  // of the Tramo, not of the Obra
  bool UnSoloCaso = false;        // one height and one pressure, given from outside
};

/// What a run reads, in calculation units whatever the system of the Obra: stresses in kp/cm2,
/// pressures in at, loads in t/m2, thickness and covers in m, the sheet of a post-tensioned pipe in
/// cm, the concrete cradle of 120 degrees as 3.
struct DatosTramo {
  Obra obra;
  Tramo tramo;
  std::vector<EntradaAjuste> ajustes;  // adjusted Casos of the project
  bool SinAjustes = false;             // their file was refused: the run goes without them
  bool envolvente = false;             // the steel grows until every hypothesis complies
};

/// Loads of one fill height.
struct CargasAltura {
  double Hr = 0;                                  // fill height [m]
  Cargas cargas;                                  // [t/m2]
  double Landa = 0;                               // active earth pressure coefficient [-]
  bool acabada = false;                           // its last pressure is done
  std::optional<CargasContrastadas> contraste{};  // information; none without such a load
};

/// What every reader wants of a Caso, and no more: a long range is kept whole in memory.
struct FilaCaso : PresionesCaso {
  double Hr = 0;                    // fill height [m]
  std::int32_t altura = 0;          // its entry in ResultadoTramo::alturas, from 0
  std::int16_t NumCaso = 0;         // restarts at 1 at every height
  std::int16_t HipotesisRige = 0;   // reinforced: the governing hypothesis
  double AsInt = 0;                 // reinforced: final inner area [cm2/m]
  double AsExt = 0;                 // final outer area [cm2/m]
  double Total = 0;                 // [cm2/m]
  double CAMISA = 0;                // sheet thickness [mm]
  double FIIN = 0, FIEX = 0;        // bar diameters [mm]; post-tensioned: FIIN is the wire's
  double NESPIN = 0, NEXPEX = 0;    // bars of each face, or spirals of the wire [1/m]
  double PPObtenida = 0;            // post-tensioned: net factory test pressure, or a mark [at]
  std::uint32_t avisos = 0;         // warnings met, a bit for each ClaseAviso
  std::int16_t ErrorPostesado = 0;  // of the last check of the design
  bool ajustado = false;            // its reinforcement was fixed by hand
  ResumenVerificacion verificacion;
};

/// What ended a run, and the Caso at which it stood.
struct FalloCorrida {
  ErrorEjecucion error;
  std::int16_t numCaso = 0;  // 0: before the first height
  double Hr = 0;             // [m]
  double DP = 0, MDP = 0;    // [at]
  bool empezado = false;     // this Caso had begun: its pressures stand
};

/// The run of one Tramo. Nothing in it depends on another Tramo, and no row on another row.
struct ResultadoTramo {
  DatosTramo datos;
  Rango rango;
  std::vector<FilaCargas> TablaCargas;  // vertical load table
  Cargas unMetro;                       // loads of 1 m of earth [t/m2]
  RadiosPostesado radios;               // post-tensioned: what the heading shows
  MaterialesPostesado materiales;       // post-tensioned
  bool hayCabecera = false;             // load table and 1-metre loads stand
  std::vector<CargasAltura> alturas;
  std::vector<FilaCaso> filas;
  CuentaVueltas vueltas;              // of all its iterations
  std::optional<FalloCorrida> fallo;  // the rows are those before it
  bool cancelado = false;             // whoever was asked said no

  const CargasAltura& Altura(const FilaCaso& fila) const {
    return alturas[static_cast<std::size_t>(fila.altura)];
  }
};

}  // namespace zorbin
