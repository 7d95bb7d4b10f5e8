// The reinforcement of the pipe wall for a set of moments and axial forces: bars, or sheet and
// bars, at the inner face, and bars at the outer one.
#pragma once

#include <optional>
#include <vector>

#include "core/estado_calculo.h"

namespace zorbin {

struct AreasCaras {
  double AsInt;  // [cm2/m]
  double AsExt;  // [cm2/m]
};

struct AceroBuscado : AceroArmado {
  SinFisuracion sinFisuracion;       // steel before the cracking check, without sheet
  double TensionMax = 0;             // largest concrete tension of the cracking check [kp/cm2]
  std::optional<double> TensionAdm;  // stress allowed beside it [kp/cm2]; none without tension
  double TensionAdmMin = 0;          // smallest stress allowed [kp/cm2]
  std::int16_t ErrorPostesado = 0;   // 0 none, 2 shrinkage limit, 4 limit moment
  bool MomentoTope = false;
};

double BrazoEntreCapas(const Tramo& t);

AreasCaras ArmPPNeta(const Tramo& t, double PP);

AceroArmado DisponePPNeta(const Tramo& t, const AreasCaras& as, const std::optional<Ajuste>& ajuste,
                          std::vector<Aviso>& avisos);

AceroBuscado ArmTubo(const Tramo& t, const Esfuerzos& esfuerzos, int hipotesis, FaseAviso fase,
                     const std::optional<Ajuste>& ajuste, Marcha& marcha);

}  // namespace zorbin
