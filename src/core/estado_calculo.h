// The shared state of the calculation: the Obra, the Tramo in hand, the run, and the results of
// the Caso in hand. Whoever works on it receives it by reference.
//
// Units. Outside a run the fields marked [*] hold the unit of the Obra's system (MPa under "SI",
// at or kp/cm2 under "MKS"); during a run they hold MKS values whatever the system, and the
// column tells that unit. A field with a twin (…SI) keeps its SI value there around a run.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/mdRegistro.h"
#include "core/resultados.h"

namespace zorbin {

/// Data of the project, common to all its Tramos.
struct Obra {
  std::int16_t Idioma = 1;              // 1 Spanish, 2 English, 3 Catalan, 4 Portuguese, 5 French
  std::int16_t IdiomaOffset = 0;        // (Idioma - 1) * 5000
  std::string SisUnid = "SI";           // "SI" or "MKS"
  bool GolpeCalculado = false;          // surge calculated, not estimated; decides STP
  std::string NombreObra;               // description, several lines joined by CR LF
  std::string Cliente;                  //
  double Prs1 = 0, Prs2 = 0, Prs3 = 0;  // [*] first and last DP, increment of MDP [at]
  double PrsM1 = 0, PrsM2 = 0;          // [*] first and last MDP [at]
  double Alt1 = 0, Alt2 = 0, Alt3 = 0;  // first and last fill height, increment [m]
  std::string RutaApp;                  // data folder, with its closing separator
  std::string NombreFichero = " ";      // project file; a single blank means none
  bool ObraAbierta = false;             // a file is attached

  double Prs1SI = 0, Prs2SI = 0, Prs3SI = 0, PrsM1SI = 0, PrsM2SI = 0;  // twins [MPa]

  bool EsSI() const { return SisUnid == "SI"; }
};

/// First `Tipologia` of the post-tensioned branch.
inline constexpr std::int16_t kPrimeraPostesada = 2211;
/// `Tipologia` with the cylinder round the core, under the wire.
inline constexpr std::int16_t kPostesadaRevestida = 2221;

/// Data of one pipe section.
struct Tramo {
  std::int16_t NumeroTramo = 0;
  std::string DescriTramo;
  std::int16_t Tipologia = 0;       // 1210 reinforced, 2211 and 2221 post-tensioned
  bool EsArmado = true;             // Tipologia below 2211
  std::int16_t PostFlag = 0;        // 1 post-tensioned, 0 reinforced
  std::int16_t SubTipo = 3;         // 3 reinforced, 0 post-tensioned
  bool Icontes0 = false;            // the outer reinforcement has a maximum
  double Adato = 0;                 // that maximum [cm2/m]
  bool Icontes1 = false;            // a test pressure of the core is given
  double Coepre1 = 0;               // its coefficient on DP [-]
  std::int16_t TipoControl = 0;     // 1 intense, 2 normal
  std::int16_t TipoCamisa = 0;      // 0 bars only, 1 sheet and spirals, 2 sheet only
  double CamMax = 0;                // maximum sheet thickness [mm]
  double Fck = 0, Fct = 0;          // [*] concrete in compression and tension [kp/cm2]
  double Fyk = 0, Fyd = 0;          // [*] steel, characteristic and design [kp/cm2]
  double GamaB = 0;                 // partial factor of the concrete [-]
  double GamaY = 1, GamaF = 1;      // partial factors of steel and actions, fixed [-]
  double Delca = 0;                 // sheet of a post-tensioned pipe [mm; cm in a run]
  double Es = 0, Ep = 0;            // [*] moduli of sheet and wire [kp/cm2]
  double Fckno = 0, Fckn = 0;       // [*] core at winding and final [kp/cm2]
  double Fckr = 0;                  // [*] coating [kp/cm2]
  double SFck = 0, Sf = 0;          // [*] wire: breaking and tensioning stress [kp/cm2]
  double FYKPost = 0;               // [*] sheet steel of a post-tensioned pipe [kp/cm2]
  double Rel = 0;                   // final relaxation [%]
  double Fic = 0, Fir = 0;          // creep of core and coating [-]
  double Epsc = 0, Epsr = 0;        // shrinkage of core and coating [-]
  double Di = 0, De = 0;            // internal and external diameter [m]
  double Esp = 0;                   // wall thickness [cm; m in a run]
  double Reci = 0, Rece = 0;        // internal and external cover [cm; m in a run]
  double Gc = 0;                    // unit weight of the pipe [t/m3]
  std::int16_t TipoCuna = 0;        // bedding: 1 granular 90, 2 concrete 120 (3 in a run)
  std::int16_t TipoApoyo = 0;       // laying and compaction: 11 12 21 22 31
  std::int16_t TipoColocacion = 0;  // 0 trench, 1 trench under embankment, 2 embankment
  double B0 = 0;                    // trench width [m]
  double Gr = 0;                    // unit weight of the fill [t/m3]
  double Fi = 0;                    // internal friction angle of the fill [degrees]
  std::int16_t TipoRelleno = 0;     // kind of fill: 0 11 12 21 22 23
  double Hr1 = 0;                   // from the crown to the natural ground [m]
  std::int16_t IAs = 0;             // settlement ratio 1..3
  double QDato = 0;                 // [*] given total vertical load, 0 to compute it [t/m2]
  std::int16_t IndCar = 0;          // 1: the earth load is computed
  std::int16_t ICar = 0;            // concentrated load 0..4
  double Prs1Tram = 0, Prs2Tram = 0, Prs3Tram = 0;  // [*] own DP range and increment of MDP [at]
  double PrsM1Tram = 0, PrsM2Tram = 0;              // [*] own MDP range [at]
  double Hr0Tramo = 0, Hr0Final = 0, Hr0Delta = 0;  // own fill heights and increment [m]

  double Prs1TramSI = 0, Prs2TramSI = 0, Prs3TramSI = 0;  // twins [MPa]
  double PrsM1TramSI = 0, PrsM2TramSI = 0;                // twins [MPa]
  double FckSI = 0, FctSI = 0, FykSI = 0, FydSI = 0;      // twins [MPa]
  double QDatoSI = 0, EsSI = 0, EpSI = 0;                 // twins [MPa]
  double FcknoSI = 0, FcknSI = 0, FckrSI = 0;             // twins [MPa]
  double SFckSI = 0, SfSI = 0, FYKPostSI = 0;             // twins [MPa]

  bool TieneDPPropia() const { return Prs1Tram > 0 || Prs2Tram > 0; }
};

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
