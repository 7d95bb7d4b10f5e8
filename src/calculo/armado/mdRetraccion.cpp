#include "calculo/armado/mdRetraccion.h"

#include <array>
#include <limits>

namespace zorbin {

namespace {

// ASC = (Fck - desde) · pendiente / 100 + base, up to and including `hasta`.
struct Banda {
  double hasta;      // [kp/cm2]
  double desde;      // [kp/cm2]
  double pendiente;  // [-]
  double base;       // [-]
  std::string_view paso;
};

constexpr double kSinFin = std::numeric_limits<double>::max();

// clang-format off
constexpr std::array<Banda, 5> kBandas{{
    {350.0,     0.0, 0.0,   0.096, "FCK <= 350# and ASCR <= 0.096"},
    {400.0,   350.0, 0.049, 0.096, "350# < FCK And FCK <= 400# and ASCR <= ASC"},
    {500.0,   400.0, 0.075, 0.125, "400# < FCK And FCK <= 500# and ASCR <= ASC"},
    {600.0,   500.0, 0.13,  0.2,   "500# < FCK And FCK <= 600# and ASCR <= ASC"},
    {kSinFin,   0.0, 0.0,   0.33,  "FCK > 600# and ASCR <= 0.33"},
}};
// clang-format on

}  // namespace

LimiteRetraccion LimiteLisas(double Fck, Rastro* rastro) {
  const Banda* banda = &kBandas.back();
  for (const auto& b : kBandas) {
    if (Fck <= b.hasta) {
      banda = &b;
      break;
    }
  }
  const double ASC = (Fck - banda->desde) * banda->pendiente / 100.0 + banda->base;
  if (rastro) {
    rastro->Anota(Formula::LimiteRetraccion, {Fck, banda->desde, banda->pendiente, banda->base},
                  ASC);
  }
  return {ASC, banda->paso};
}

}  // namespace zorbin
