// Section constants of a post-tensioned pipe, as a thick cylinder under radial pressure (Lamé
// coefficients) and as a thin curved section under moment and axial force (homogenised section).
//
// The ring is a concrete core with a steel cylinder in it or beside it, a wire wound under tension
// round the core, and a concrete coating over the wire. Source: Anejo 4 "Cálculo Mecánico" of the
// Instrucción del Instituto Eduardo Torroja, after G. Lamé and E. Clapeyron (1833) for the thick
// cylinder. All in kp/cm2 and cm.
#pragma once

#include "calculo/rastro/mdRastro.h"
#include "core/campos/tramo.h"
#include "core/resultados.h"

namespace zorbin {

/// Modulus of a concrete [kp/cm2] of strength `fck` [kp/cm2].
///     39453.505 (fck + 80)^(1/3) beta,  beta = 1.3 - fck/4000, at most 1.175
/// That is 8500 (fck + 8)^(1/3) beta in MPa, with 10 kp/cm2 to a MPa.
/// Source: the Spanish code of structural concrete (EHE), tangent modulus. Valid up to 1,000
/// kp/cm2.
/// @throws ErrorEjecucion Desbordamiento below -80 kp/cm2
double ModuloElastico(double fck, Rastro* rastro = nullptr);

/// Tensile strength of a concrete [kp/cm2] of strength `fck` [kp/cm2]: 0.452 fck^(2/3) up to 500,
/// 1.28 fck^(1/2) above: 0.21 fck^(2/3) and 0.7·0.58 fck^(1/2) in MPa. The branches do not meet
/// (28.47 and 28.62 at 500). A reinforced pipe takes 0.45 fck^(2/3) at any strength, see
/// FctDeFck.
/// Source: the Spanish code of structural concrete (EHE), lower characteristic strength. Valid up
/// to 1,000 kp/cm2.
/// @throws ErrorEjecucion Desbordamiento for a negative strength
double ResistenciaTraccion(double fck, Rastro* rastro = nullptr);

/// Radii of the four cylindrical faces [cm].
/// Reads Di, De, Reci, Rece [m]: in a post-tensioned pipe Reci is the concrete inside the cylinder
/// and Rece the thickness of the coating.
/// @throws ErrorEjecucion Desbordamiento
RadiosPostesado Radios(const Tramo& t, Rastro* rastro = nullptr);

/// Moduli, strengths and modular ratios of the materials; shrinkage as shortening.
/// Reads Fckno, Fckn, Fckr, Ep, Es [kp/cm2], PostFlag, Delca [cm], Epsc, Epsr (of either sign).
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
MaterialesPostesado Materiales(const Tramo& t, Rastro* rastro = nullptr);

/// Constants of the section with the winding `a`. The core enters Lamé's formulas with the cylinder
/// spread over its thickness.
/// @throws ErrorEjecucion DivisionPorCero for no coating or no wire, Desbordamiento
SeccionPostesada PropiedadesSeccion(const MaterialesPostesado& m, const RadiosPostesado& r,
                                    const Alambre& a, Rastro* rastro = nullptr);

}  // namespace zorbin
