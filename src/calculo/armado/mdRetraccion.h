// Limit of the steel ratio recommended for smooth reinforcement on account of shrinkage: with more
// steel, what holds the concrete back cracks it. Source: Anejo 4 "Cálculo Mecánico" of the
// Instrucción del Instituto Eduardo Torroja.
#pragma once

#include <string_view>

#include "calculo/rastro/mdRastro.h"

namespace zorbin {

/// Limit of a strength.
struct LimiteRetraccion {
  double ASC;             // limit of As / Acr [-]
  std::string_view paso;  // what the log notes when the ratio passes
};

/// 0.096 up to 350 kp/cm2, straight lines up to 600, 0.33 above. The lines do not meet at 400, so
/// a concrete just above it is allowed 0.125 and one of 400 only 0.1205.
/// @param Fck  characteristic strength of the concrete [kp/cm2]
LimiteRetraccion LimiteLisas(double Fck, Rastro* rastro = nullptr);

}  // namespace zorbin
