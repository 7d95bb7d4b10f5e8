// Use of a check, and the greatest of many.
#pragma once

#include <algorithm>

#include "core/verificacion.h"

namespace zorbin {

/// Value over limit [-]. Nothing asked is no use; something asked of nothing has no bound.
inline double Uso(double valor, double limite) {
  if (valor <= 0.0) return 0.0;
  return limite > 0.0 ? valor / limite : kUsoSinLimite;
}

/// Use of a stress, tension positive, on its way from the prestress to the limit [-]. A prestress
/// that already stands past the limit has nothing to give: it complies only if the total does.
/// @param total, base, limite  [kp/cm2]
inline double UsoTension(double total, double base, double limite) {
  if (limite > base) return std::max(0.0, (total - base) / (limite - base));
  return total > limite ? kUsoSinLimite : 1.0;
}

/// Takes a check into the summary: the greatest use and its kind. One beyond what complies decides
/// the verdict; which of several is told lies with the greatest.
inline void Anota(ResumenVerificacion& r, const ComprobacionCaso& c) {
  if (c.uso > r.uso) {
    r.uso = c.uso;
    r.que = c.que;
  }
}

}  // namespace zorbin
