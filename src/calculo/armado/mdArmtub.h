// The reinforcement of the pipe wall for a set of moments and axial forces: bars, or sheet and
// bars, at the inner face, and bars at the outer one.
#pragma once

#include "core/estado_calculo.h"

namespace zorbin {

struct AreasCaras {
  double AsInt;  // [cm2/m]
  double AsExt;  // [cm2/m]
};

/// Steel for the ring tension of the factory test PP, without choosing bars.
/// Reads tramo: Di [m], Fyd [kp/cm2], Icontes0, Adato [cm2/m], CamMax [mm], TipoCamisa;
///       corrida.PP [at] (not PPNeta; the difference is kept).
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
AreasCaras ArmPPNeta(const EstadoCalculo& e);

/// Lays out the areas of the factory test: bars, or sheet and bars, at the inner face, and bars at
/// the outer one. Nothing is added for cracking, which is checked where there is a moment.
/// Reads  tramo: TipoCamisa, CamMax [mm]; caso.armado: ajuste, AreaExterior.
/// Writes caso.armado: CAMISA, FIIN, NESPIN, FIEX, NEXPEX, IESP; caso.avisos, bars that do not fit
///        in one layer.
/// @param as  required areas [cm2/m]
/// @throws ErrorEjecucion as `ReparteArmadura`
void DisponePPNeta(EstadoCalculo& e, const AreasCaras& as);

/// Searches the steel for the hypotheses H1 to H2: classifies every section as composite tension
/// or flexo-compression, couples the two faces where both are in composite tension, and checks
/// the steel ratio (with a sheet) or cracking (without one).
/// Reads  tramo: Esp, Reci, Rece [m], TipoCamisa, CamMax [mm], Icontes0, Adato [cm2/m],
///        TipoControl, SubTipo, Fck, Fct, Fyk, Fyd [kp/cm2], GamaB, GamaY, GamaF;
///        caso.armado: esfuerzos, ajuste, AreaExterior.
/// Writes caso.armado: CAMISA, FIIN, NESPIN, FIEX, NEXPEX, IESP, BRAZO, sinFisuracion,
///        TensionMax, TensionAdm, TensionAdmMin, ErrorPostesado, MomentoTope; caso.avisos, a given
///        warning once a call at most.
/// @throws ErrorEjecucion DivisionPorCero (an axial force of 0 among them), Desbordamiento,
///         SinConvergencia
void ArmTubo(EstadoCalculo& e, int H1, int H2, FaseAviso fase);

}  // namespace zorbin
