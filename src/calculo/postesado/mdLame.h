// Section constants of a post-tensioned pipe, as a thick cylinder under radial pressure (Lamé
// coefficients) and as a thin curved section under moment and axial force (homogenised section).
//
// The ring is a concrete core with a steel cylinder in it or beside it, a wire wound under tension
// round the core, and a concrete coating over the wire. Source: Anejo 4 "Cálculo Mecánico" of the
// Instrucción del Instituto Eduardo Torroja. All in kp/cm2 and cm.
#pragma once

#include "core/estado_calculo.h"

namespace zorbin {

/// Modulus of a concrete [kp/cm2] of strength `fck` [kp/cm2].
///     39453.505 (fck + 80)^(1/3) beta,  beta = 1.3 - fck/4000, at most 1.175
/// @throws ErrorEjecucion Desbordamiento below -80 kp/cm2
double ModuloElastico(double fck);

/// Tensile strength of a concrete [kp/cm2] of strength `fck` [kp/cm2]: 0.452 fck^(2/3) up to 500,
/// 1.28 fck^(1/2) above. The branches do not meet (28.47 and 28.62 at 500), and the strength of a
/// reinforced pipe follows another rule.
/// @throws ErrorEjecucion Desbordamiento for a negative strength
double ResistenciaTraccion(double fck);

/// Reads Di, De, Reci, Rece [m]: in a post-tensioned pipe Reci is the concrete inside the cylinder
/// and Rece the thickness of the coating.
RadiosPostesado Radios(const Tramo& t);

/// Reads Fckno, Fckn, Fckr, Ep, Es [kp/cm2], PostFlag, Delca [cm], Epsc, Epsr (of either sign).
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
MaterialesPostesado Materiales(const Tramo& t);

/// Constants of the section with the winding `a`.
/// @throws ErrorEjecucion DivisionPorCero for no coating or no wire, Desbordamiento
SeccionPostesada PropiedadesSeccion(const MaterialesPostesado& m, const RadiosPostesado& r,
                                    const Alambre& a);

}  // namespace zorbin
