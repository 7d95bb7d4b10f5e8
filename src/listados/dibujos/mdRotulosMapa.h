// Names inside the areas of a map of cells: one in each area that has room for it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "listados/dibujos/mdPlano.h"

namespace zorbin {

/// A map of cells by rows; cells side by side with the same key other than 0 are an area.
struct CeldasMapa {
  std::vector<int> claves;
  std::size_t columnas = 1;
  Marco marco;  // on the sheet [mm]
};

struct RotuloArea {
  Xy centro;  // on the sheet [mm]
  std::string texto;
  Marco caja;
};

/// The largest areas first; each takes the first of its texts that fits inside, near its middle.
/// @param textos    of a key, the preferred one first
/// @param ocupados  where none may stand, nor may one stand on another
std::vector<RotuloArea> RotulosDeAreas(const CeldasMapa& celdas,
                                       const std::function<std::vector<std::string>(int)>& textos,
                                       std::vector<Marco> ocupados);

bool SePisan(const Marco& a, const Marco& b);

}  // namespace zorbin
