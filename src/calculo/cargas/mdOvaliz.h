#pragma once

#include "core/estado_calculo.h"

namespace zorbin {

TerminosAnillo Ovalizacion(const Tramo& t, const Cargas& altura, const Cargas& unMetro,
                           double Landa);

}  // namespace zorbin
