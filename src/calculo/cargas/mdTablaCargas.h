#pragma once

#include <vector>

#include "core/resultado.h"

namespace zorbin {

std::vector<FilaCargas> TablaCargas(const Tramo& t, const Rango& r, const Cargas& dadas = {});

Cargas CargasUnMetro(const Tramo& t, const Cargas& dadas = {});

}  // namespace zorbin
