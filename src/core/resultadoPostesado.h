// What the post-tensioned design of a Caso leaves for its readers: the wire chosen, the factory
// test pressure, and for each hypothesis of the verification the section constants, the losses,
// the stresses and the limit pressures.
//
// Units: kp/cm2, at and cm; moments kp·cm/cm, axial forces kp/cm. Sign: tension is positive.
// Places of the wall: PI, PE inner and outer face of the core (primario); RI, RE inner and outer
// face of the coating (revestimiento); Ac the wire. Sections: crown, haunches, invert.
#pragma once

#include <cstdint>
#include <optional>

#include "base/tablas.h"

namespace zorbin {

enum class ClaseAviso;  // core/resultados.h

inline constexpr int kHipotesisPostesado = 6;

/// Wire and its winding.
struct Alambre {
  double FIPR = 0;  // diameter [cm]
  double NESP = 0;  // spirals [1/m]

  bool operator==(const Alambre&) const = default;
};

/// Radii of the pipe.
struct RadiosPostesado {
  double RadioInt = 0;  // inner face [cm]
  double RadioCam = 0;  // cylinder [cm]
  double RadioNuc = 0;  // outer face of the core [cm]
  double RadioRev = 0;  // outer face of the coating [cm]
};

/// What the materials give, the same in all hypotheses of a Caso.
struct MaterialesPostesado {
  double Ecno = 0;        // modulus of the core at winding [kp/cm2]
  double Ecn = 0;         // modulus of the core at its final strength [kp/cm2]
  double Ecr = 0;         // modulus of the coating [kp/cm2]
  double Fctn = 0;        // tensile strength of the core [kp/cm2]
  double Fctr = 0;        // tensile strength of the coating [kp/cm2]
  double ni = 0;          // modular ratio wire / core at winding [-]
  double n = 0;           // modular ratio wire / core [-]
  double n1 = 0;          // modular ratio wire / coating [-]
  double n2 = 0;          // modular ratio coating / core [-]
  double nc = 0;          // modular ratio cylinder / core, 0 without cylinder [-]
  double RatioChapa = 0;  // the same, with or without cylinder, for its check [-]
  double Delca = 0;       // thickness of the cylinder, 0 without it [cm]
  double Epsc = 0;        // shrinkage of the core, never positive [-]
  double Epsr = 0;        // shrinkage of the coating, never positive [-]
};

/// Homogenised section and Lamé coefficients with one winding.
struct SeccionPostesada {
  double Asp = 0;  // wire section [cm2/cm]
  double sno = 0;  // thickness of the core homogenised with the cylinder [cm]
  double yno = 0;  // inner face to neutral fibre of core and cylinder [cm]
  double sro = 0;  // thickness of the whole wall, homogenised [cm]
  double yi = 0;   // neutral fibre to inner face [cm]
  double ye = 0;   // neutral fibre to outer face of the core [cm]
  double yr = 0;   // neutral fibre to outer face of the coating [cm]
  double Io = 0;   // moment of inertia [cm4/cm]
  double rco = 0;  // outer radius of the core homogenised with the cylinder [cm]
  double rro = 0;  // the same with the coating [cm]
  double A = 0;    // Lamé, core [-]
  double B = 0;    // Lamé, core [-]
  double C = 0;    // Lamé, core [-]
  double Ar = 0;   // Lamé, coating [-]
  double Br = 0;   // Lamé, coating [-]
  double Cr = 0;   // from the wire section [-]
  double k = 0;    // ratio of the Lamé coefficients of core and coating [-]
  double D = 0;    // from the Lamé coefficients and the wire section [-]
};

/// Prestress, its losses, and the stresses without external load. Where the core does not stand
/// the winding, only the values up to SigIniExt are meaningful; the others are 0.
struct PerdidasPostesado {
  double PerdElastica = 0;     // loss by elastic shortening [kp/cm2]
  double SigPostElastica = 0;  // wire after it [kp/cm2]
  double SigIniInt = 0;        // inner face of the core just after winding [kp/cm2]
  double SigIniExt = 0;        // outer face of the core just after winding [kp/cm2]
  bool NucleoAguanta = false;  // both within what the core stands at winding
  double PerdRelajBruta = 0;   // relaxation before its reduction [kp/cm2]
  double SigPostRelaj = 0;     // wire after it [kp/cm2]
  double SigPrimRelaj = 0;     // inner face of the core after it [kp/cm2]
  double PerdFluRet = 0;       // loss by creep and shrinkage [kp/cm2]
  double PresionRev = 0;       // radial pressure between core and coating [kp/cm2]
  double PerdRelaj = 0;        // final loss by relaxation [kp/cm2]
  double SigRes = 0;           // residual stress of the wire [kp/cm2]
  double SigPI = 0;            // final stresses [kp/cm2]
  double SigPE = 0;            // [kp/cm2]
  double SigRI = 0;            // [kp/cm2]
  double SigRE = 0;            // [kp/cm2]
  double PresPrimario = 0;     // test pressure that the core stands before coating [at]
  double PresAgotamiento = 0;  // bursting pressure, 0 without cylinder [at]
};

/// Stresses by the ovalisation of a hypothesis.
struct OvalizacionPostesada {
  Lista<double, kSecciones> OvPI;  // [kp/cm2]
  Lista<double, kSecciones> OvPE;  // [kp/cm2]
  Lista<double, kSecciones> OvRI;  // [kp/cm2]
  Lista<double, kSecciones> OvRE;  // [kp/cm2]
  Lista<double, kSecciones> OvAc;  // [kp/cm2]
  double OvPImax = 0;              // most tensile of the three sections [kp/cm2]
  double OvPEmax = 0;              // [kp/cm2]
  double OvRImax = 0;              // [kp/cm2]
  double OvREmax = 0;              // [kp/cm2]
};

/// Stress by each unit of internal pressure.
struct PorPresion {
  double KPI = 0;  // [kp/cm2 / at]
  double KPE = 0;  // [kp/cm2 / at]
  double KRI = 0;  // [kp/cm2 / at]
  double KRE = 0;  // [kp/cm2 / at]
  double KAc = 0;  // [kp/cm2 / at]
};

/// Pressures at which the faces reach the limit of the hypothesis.
struct LimitesPresion {
  double LimPI = 0;       // [at]
  double LimPE = 0;       // [at]
  double LimRI = 0;       // [at]
  double LimRE = 0;       // [at]
  double PresLimite = 0;  // smallest of the four [at]
  int CaraMenor = 0;      // its face: 1 PI, 2 PE, 3 RI, 4 RE; of equal ones the last
};

/// Stresses of a hypothesis.
struct TensionesHipotesis {
  double PrPI = 0;                  // by the pressure of the hypothesis [kp/cm2]
  double PrPE = 0;                  // [kp/cm2]
  double PrRI = 0;                  // [kp/cm2]
  double PrRE = 0;                  // [kp/cm2]
  double PrAc = 0;                  // [kp/cm2]
  Lista<double, kSecciones> SinPI;  // by ovalisation and final prestress [kp/cm2]
  Lista<double, kSecciones> SinPE;  // [kp/cm2]
  Lista<double, kSecciones> SinRI;  // [kp/cm2]
  Lista<double, kSecciones> SinRE;  // [kp/cm2]
  Lista<double, kSecciones> SinAc;  // [kp/cm2]
  Lista<double, kSecciones> TotPI;  // by all three [kp/cm2]
  Lista<double, kSecciones> TotPE;  // [kp/cm2]
  Lista<double, kSecciones> TotRI;  // [kp/cm2]
  Lista<double, kSecciones> TotRE;  // [kp/cm2]
  Lista<double, kSecciones> TotAc;  // [kp/cm2]
};

/// One hypothesis of the verification. One with an error keeps its loads and what its pass got to:
/// section and initial stresses when the core does not stand the winding, nothing when the spirals
/// do not fit, everything when the concrete fails. With error 91 FIPR and NESP are the other
/// winding that the pass asked for, and the values those of that winding, if it got so far.
struct HipotesisPostesada : Alambre,
                            SeccionPostesada,
                            PerdidasPostesado,
                            OvalizacionPostesada,
                            PorPresion,
                            LimitesPresion,
                            TensionesHipotesis {
  int h = 0;                          // 1..6
  bool hecha = false;                 // the verification got to it
  std::int16_t error = 0;             // 0 none, 5, 6, 9..12, 91
  std::optional<ClaseAviso> texto;    // diagnostic that goes with the error
  double PresHip = 0;                 // pressure [at]
  double LimPrimario = 0;             // limit stress of the core [kp/cm2]
  Lista<double, kSecciones> MomHip;   // moments [kp·cm/cm]
  Lista<double, kSecciones> AxilHip;  // axial forces [kp/cm]
  double TensionChapa = 0;            // stress of the cylinder times 1000 [kp/cm2 · 1000]

  /// Its results go to the listings.
  bool Impresa() const { return hecha && error == 0; }
};

/// What the row of the tabular listing shows: the Caso as it stood before the verification.
struct FilaPostesada : Alambre {
  double PP = 0;                               // 0 when no wire takes the ring force [at]
  std::optional<ClaseAviso> MensajePostesado;  // last diagnostic until then
};

/// How the analysis of a Caso ended.
enum class FinPostesado {
  SinAlambre,     // no wire takes the ring force: nothing was searched
  CambiaAlambre,  // the verification needed another winding and stopped there
  Completo,       // all six hypotheses verified, each with or without error
};

/// Post-tensioned design of one Caso. Nothing in it comes from the Caso before.
struct ResultadoPostesado {
  RadiosPostesado radios;
  MaterialesPostesado materiales;  // Fctn and Fctr among them
  FinPostesado fin = FinPostesado::SinAlambre;
  double FIPR = 0;                             // wire of the last pass [cm]
  double NESP = 0;                             // its spirals [1/m]
  double FIPRDEFI = 0;                         // final wire, 0 when none was found [cm]
  double NESPDEFI = 0;                         // final spirals [1/m]
  std::int16_t ErrorPostesado = 0;             // of the last check: 0, 5, 6, 9..12, 91
  std::optional<ClaseAviso> MensajePostesado;  // last diagnostic of the Caso
  double PP = 0;                               // net factory test pressure, or a mark [at]
  int PPHipotesis = 0;                         // hypothesis of the pass PP rests on, 0 for none
  bool PPConAlambreFinal = false;  // that pass is the one under MDP with the final winding
  double TensionChapa = 0;  // largest of the verified hypotheses, times 1000 [kp/cm2 · 1000]
  double LimiteChapa = 0;   // 80 % of the strength of the cylinder [kp/cm2]
  int Vueltas = 0;          // windings tried, in search and verification
  FilaPostesada fila;
  Lista<HipotesisPostesada, kHipotesisPostesado> hipotesis;  // of the verification
};

/// Values of PP that are no pressure [at].
inline constexpr double kPPSinLimite = 99999.0;      // no place limits it
inline constexpr double kPPAlambreCambia = 99998.0;  // the pass under MDP changed the winding

}  // namespace zorbin
