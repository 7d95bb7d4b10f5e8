// The wire from its tensioning to its final state, and the stresses that ovalisation and pressure
// add: elastic shortening of the core, relaxation of the steel, creep and shrinkage of both
// concretes.
//
// Source: Anejo 4 "Cálculo Mecánico" of the Instrucción del Instituto Eduardo Torroja. Units
// kp/cm2, at and cm. Sign: tension is positive; a positive moment stretches the inner face.
#pragma once

#include "core/estado_calculo.h"

namespace zorbin {

/// Stress that the core may have just after winding [kp/cm2].
/// @param Fckno  its strength then [kp/cm2]
constexpr double LimiteZunchado(double Fckno) {
  return 0.55 * Fckno;
}

/// Losses, residual stress, and stresses of core and coating without external load. It ends early,
/// with NucleoAguanta false, when the stress of the core just after winding is above its limit.
/// The residual stress is cut at 60 % of the breaking stress; with high creep the loss by
/// relaxation turns negative, and is left so.
/// Reads Sf, SFck, Fckno, Ep [kp/cm2], Rel [%], Fic, Fir, PostFlag of the Tramo.
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
PerdidasPostesado PerdidasYTensiones(const Tramo& t, const MaterialesPostesado& m,
                                     const RadiosPostesado& r, const SeccionPostesada& s);

/// @param MomHip   [kp·cm/cm]
/// @param AxilHip  [kp/cm]
/// @param FIPR     wire diameter [cm]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
OvalizacionPostesada TensionesOvalizacion(const MaterialesPostesado& m, const SeccionPostesada& s,
                                          double FIPR, const Lista<double, kSecciones>& MomHip,
                                          const Lista<double, kSecciones>& AxilHip);

/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
PorPresion CoeficientesPresion(const MaterialesPostesado& m, const SeccionPostesada& s);

}  // namespace zorbin
