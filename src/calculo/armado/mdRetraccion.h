// Limit of the steel ratio recommended for smooth reinforcement on account of shrinkage.
#pragma once

#include <string_view>

namespace zorbin {

struct LimiteRetraccion {
  double ASC;             // limit of As / Acr [-]
  std::string_view paso;  // what the log notes when the ratio passes
};

/// @param Fck  characteristic strength of the concrete [kp/cm2]
/// The limit jumps from 0.1205 to 0.125 at 400 kp/cm2; the method has it so.
LimiteRetraccion LimiteLisas(double Fck);

}  // namespace zorbin
