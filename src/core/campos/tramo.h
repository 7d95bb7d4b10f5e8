// The data of a Tramo. What is known of each stands in its row of the table (mdTablaDatos.h).
//
// Fields marked [*] hold the unit of the Obra's system: MPa under "SI", at or kp/cm2 or t/m2 under
// "MKS". Data taken to calculation units hold the MKS value whatever the system; the column tells
// that unit.
#pragma once

#include <cstdint>
#include <string>

namespace zorbin {

/// Values of `Tipologia`: reinforced, and post-tensioned with embedded or lined cylinder.
inline constexpr std::int16_t kArmada = 1210;
inline constexpr std::int16_t kEmbebida = 2211;
inline constexpr std::int16_t kRevestida = 2221;
inline constexpr std::int16_t kPrimeraPostesada = kEmbebida;

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
  bool Envolvente = false;                          // its design grows until all of it complies

  bool TieneDPPropia() const { return Prs1Tram > 0 || Prs2Tram > 0; }
  bool operator==(const Tramo&) const = default;
};

}  // namespace zorbin
