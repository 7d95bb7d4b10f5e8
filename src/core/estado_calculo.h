// The shared state of the calculation: the Obra, the Tramo in hand, the run, and the results of
// the Caso in hand. Whoever works on it receives it by reference.
//
// Units. Outside a run Obra and Tramo hold the units of the Obra's system; during a run they hold
// MKS values whatever the system (EnUnidadesDeCalculo).
#pragma once

#include <cstdint>
#include <vector>

#include "base/mdRegistro.h"
#include "core/campos/obra.h"
#include "core/campos/tramo.h"
#include "core/resultados.h"

namespace zorbin {

/// One entry of the file of adjusted Casos.
struct EntradaAjuste {
  double DP = 0;     // [at]
  double Tramo = 0;  // number of the Tramo
  double Hr = 0;     // [m]
  Ajuste areas;

  bool Libre() const { return DP == 0 && Tramo == 0 && Hr == 0; }
};

/// Working fields of a run. The loads (`Q`, `QTerraplen`, `QTierras`, `QMovil`, `Impacto`,
/// `TerraplenRige`) are those of the current height.
struct Corrida : Cargas {
  double Hr = 0;                             // fill height of the Caso [m]
  double DP = 0, MDP = 0, STP = 0, PP = 0;   // pressures of the Caso [at]
  double PPNeta = 0;                         // net factory test pressure [at]
  double DPActual = 0, IncDP = 0;            // pressure loop: variable and step [at]
  bool IncDPIndefinido = false;              // the step has no finite value
  double DPIni = 0, DPFin = 0;               // pressure range of the Tramo [at]
  double MDPIni = 0, MDPFin = 0;             // [at]
  double PendienteMDP = 1;                   // slope of MDP over DP [-]
  double Hr0Actual = 0, Hr0FinalActual = 0;  // height range of the Tramo [m]
  double Landa = 0;                          // active earth pressure coefficient [-]
  double Q1m = 0, QTerraplen1m = 0;          // loads of 1 m of earth [t/m2]
  double QTierras1m = 0, QMovil1m = 0;       // [t/m2]
  std::int16_t NumCaso = 0;                  // restarts at 1 at every height
  std::int16_t CuentaCasos = 0;              // Casos of this run
  bool PrimerCaso = false;                   // first Caso of the run
  bool MiraCargas = false;                   // first pressure of a height
  bool ParaCalculoActivo = false;            // the state holds calculation units
  CuentaVueltas vueltas;                     // of all the iterations of this run
  std::vector<FilaCargas> TablaCargas;       // vertical load table of the Tramo
  std::vector<EntradaAjuste> ajustes;        // adjusted Casos of the project
  bool SinAjustes = false;                   // their file was refused: the run goes without them
  Registro* registro = nullptr;              // debug log, none when null
};

/// The Caso in hand of a run that is listened to.
struct CasoEnCurso : TerminosAnillo {
  std::vector<Aviso> avisos;
  ResultadoArmado armado;
  ResultadoPostesado postesado;
};

/// The whole state.
struct EstadoCalculo {
  Obra obra;
  Tramo tramo;
  Corrida corrida;
  CasoEnCurso caso;
};

}  // namespace zorbin
