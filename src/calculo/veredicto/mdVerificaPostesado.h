// Verdict of a post-tensioned Caso: the stress of each place of the wall against its limit, in
// every hypothesis, with the winding finally chosen.
//
// Source: Anejo 4 "Cálculo Mecánico" of the Instrucción del Instituto Eduardo Torroja for
// reinforced or prestressed pipes; the limits are those of the search.
#pragma once

#include "calculo/rastro/mdRastro.h"
#include "core/campos/tramo.h"
#include "core/resultados.h"
#include "core/verificacion.h"

namespace zorbin {

/// The verdict in short; it allocates nothing.
/// @param t   Fckno, Fckn, Fckr, SFck [kp/cm2], Tipologia, Icontes1, Coepre1
/// @param DP, MDP  pressures of the Caso [at]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
ResumenVerificacion ResumePostesado(const Tramo& t, const ResultadoPostesado& r, double DP,
                                    double MDP);

/// The same verdict with its checks: those of the winding, then each hypothesis in turn with its
/// sections, core before coating and inner face before outer.
Verificacion VerificaPostesado(const Tramo& t, const ResultadoPostesado& r, double DP, double MDP,
                               Rastro* rastro = nullptr);

}  // namespace zorbin
