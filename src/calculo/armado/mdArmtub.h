// The reinforcement of the pipe wall for the moments and axial forces of a hypothesis: bars, or
// sheet and bars, at the inner face, and bars at the outer one. Source: Anejo 4 "Cálculo Mecánico"
// of the Instrucción del Instituto Eduardo Torroja.
#pragma once

#include <optional>
#include <vector>

#include "calculo/rastro/mdRastro.h"
#include "core/campos/tramo.h"
#include "core/resultados.h"

namespace zorbin {

/// Steel of the two faces.
struct AreasCaras {
  double AsInt;  // [cm2/m]
  double AsExt;  // [cm2/m]
};

/// What the search of a hypothesis finds.
struct AceroBuscado : AceroArmado {
  SinFisuracion sinFisuracion;       // steel before the cracking check, without sheet
  double TensionMax = 0;             // largest concrete tension of the cracking check [kp/cm2]
  std::optional<double> TensionAdm;  // stress allowed beside it [kp/cm2]; none without tension
  double TensionAdmMin = 0;          // smallest stress allowed [kp/cm2]
  std::int16_t ErrorPostesado = 0;   // 0 none, 2 shrinkage limit, 4 limit moment
  bool MomentoTope = false;
};

/// Lever arm between the two layers [m]: the wall less its covers.
double BrazoEntreCapas(const Tramo& t);

/// Areas for the ring tension of the factory test, PP Di / 2 over Fyd, without choosing bars: half
/// at each face, less outside where it has a maximum. A sheet alone takes the inner face in whole
/// steps within its own maximum, and the outer one the rest, which may come out negative.
/// With a maximum outside, that sheet comes out in whole cm2/m, up to 5 more than needed.
/// @param t   Di [m], Fyd [kp/cm2], Icontes0, Adato [cm2/m], CamMax [mm], TipoCamisa
/// @param PP  factory test pressure [at]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
AreasCaras ArmPPNeta(const Tramo& t, double PP, Rastro* rastro = nullptr);

/// Lays out the areas of the factory test: bars, or sheet and bars, at the inner face, and bars at
/// the outer one. Nothing is added for cracking, which is checked where there is a moment.
/// @param t       TipoCamisa, CamMax [mm]
/// @param as      required areas [cm2/m]
/// @param ajuste  hand adjustment of the Caso, if it has one
/// @param avisos  bars that do not fit in one layer are added
/// @throws ErrorEjecucion as `ReparteArmadura`
AceroArmado DisponePPNeta(const Tramo& t, const AreasCaras& as, const std::optional<Ajuste>& ajuste,
                          std::vector<Aviso>& avisos, Rastro* rastro = nullptr);

/// Searches the steel of a hypothesis: classifies every section as composite tension (between the
/// layers) or flexo-compression, couples the two faces where both are in composite tension, and
/// checks the steel ratio (with a sheet) or cracking (without one).
/// @param t          Esp, Reci, Rece [m], TipoCamisa, CamMax [mm], Icontes0, Adato [cm2/m],
///                   TipoControl, SubTipo, Fck, Fct, Fyk, Fyd [kp/cm2], GamaB, GamaY, GamaF
/// @param esfuerzos  of the hypotheses [m·t/m, t/m]
/// @param hipotesis  1..5
/// @param fase       goes with the warnings
/// @param ajuste     hand adjustment of the Caso, if it has one
/// @param marcha     rounds and warnings are added, a given warning once a call at most
/// @throws ErrorEjecucion DivisionPorCero (an axial force of 0 among them), Desbordamiento,
///         SinConvergencia, DemasiadasVueltas
AceroBuscado ArmTubo(const Tramo& t, const Esfuerzos& esfuerzos, int hipotesis, FaseAviso fase,
                     const std::optional<Ajuste>& ajuste, Marcha& marcha, Rastro* rastro = nullptr);

}  // namespace zorbin
