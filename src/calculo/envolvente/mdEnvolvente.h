// Enveloping design: from the steel of the method, which is that of one section of one hypothesis,
// the faces that fall short anywhere grow until the whole Caso complies.
//
// The checks are those of the verdict (mdVerificaArmado.h) and their sources stand there. The
// growth is a search by increment like the method's own, in its step of 0.5 cm2/m, and need not be
// the least steel that complies.
#pragma once

#include <span>

#include "calculo/veredicto/mdVerificaArmado.h"

namespace zorbin {

struct DisenoEnvolvente {
  ResultadoArmado armado;       // steel that complies, or else the method's
  ArmaduraDispuesta dispuesta;  // the same
  ResumenVerificacion resumen;  // its verdict
  bool sinSolucion = false;     // it is the method's, found without outer area in its maximum
  int rondas = 0;               // of growth
};

/// Each round every face that falls short grows by 0.5 cm2/m and is laid out again, 400 rounds at
/// most; the factory test, which asks for a total, grows the inner face. Under an outer maximum the
/// inner face grows once the outer one is there: it takes more of the axial force.
/// The method's design stays, with its verdict, where no steel helps: it complies, was adjusted by
/// hand, could not be checked, has a moment past its limit, or an outer face that flexure or
/// cracking takes past its maximum.
/// Where the method found no solution its areas are no start: the hypothesis with the largest total
/// among the others gives it.
/// @param metodo, avisos  of the method's design
/// @throws ErrorEjecucion as the formulas
DisenoEnvolvente Envuelve(const DatosVerificacion& d, const ResultadoArmado& metodo,
                          std::span<const Aviso> avisos, Rastro* rastro = nullptr);

}  // namespace zorbin
