// The wire from its tensioning to its final state, and the stresses that ovalisation and pressure
// add: elastic shortening of the core, relaxation of the steel, creep and shrinkage of both
// concretes.
//
// Source: Anejo 4 "Cálculo Mecánico" of the Instrucción del Instituto Eduardo Torroja. Units
// kp/cm2, at and cm. Sign: tension is positive; a positive moment stretches the inner face.
#pragma once

#include "calculo/rastro/mdRastro.h"
#include "core/campos/tramo.h"
#include "core/resultados.h"

namespace zorbin {

/// Stress that the core may have just after winding [kp/cm2].
/// @param Fckno  its strength then [kp/cm2]
constexpr double LimiteZunchado(double Fckno) {
  return 0.55 * Fckno;
}

/// Losses, residual stress, and stresses of core and coating without external load.
///     elastic      ni Sf (RadioNuc + RadioInt) / (4 Cr (RadioNuc - RadioInt)): half the
///     shortening,
///                  as the spirals are wound one after another
///     creep and shrinkage of both concretes together, as the coating holds the core back
///     relaxation   Rel Sf (1 - 2 PerdFluRet / Sf): the wire relaxes less while it shortens
/// It ends early, with NucleoAguanta false, when the stress of the core just after winding is above
/// its limit. The residual stress is cut at 60 % of the breaking stress. Where creep and shrinkage
/// take more than half of Sf the relaxation comes out negative, which gives stress back: beyond
/// that the formula is not valid, and nothing refuses it. Reads Sf, SFck, Fckno, Ep [kp/cm2], Rel
/// [%], Fic, Fir, PostFlag of the Tramo.
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
PerdidasPostesado PerdidasYTensiones(const Tramo& t, const MaterialesPostesado& m,
                                     const RadiosPostesado& r, const SeccionPostesada& s,
                                     Rastro* rastro = nullptr);

/// Stresses by ovalisation: the homogenised section stays plane, each material with its modulus.
/// @param MomHip   moments at crown, haunches, invert [kp·cm/cm]
/// @param AxilHip  axial forces there [kp/cm]
/// @param FIPR     wire diameter [cm]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
OvalizacionPostesada TensionesOvalizacion(const MaterialesPostesado& m, const SeccionPostesada& s,
                                          double FIPR, const Lista<double, kSecciones>& MomHip,
                                          const Lista<double, kSecciones>& AxilHip,
                                          Rastro* rastro = nullptr);

/// Stresses by each unit of internal pressure: core and coating are two of Lamé's cylinders that
/// share their contact, with the wire between them.
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
PorPresion CoeficientesPresion(const MaterialesPostesado& m, const SeccionPostesada& s,
                               Rastro* rastro = nullptr);

}  // namespace zorbin
