// Look-up of the reinforcement that an engineer fixed by hand for a Caso.
#pragma once

#include <optional>
#include <vector>

#include "core/resultados.h"

namespace zorbin {

/// One entry of the file of adjusted Casos.
struct EntradaAjuste {
  double DP = 0;     // [at]
  double Tramo = 0;  // number of the Tramo
  double Hr = 0;     // [m]
  Ajuste areas;

  bool Libre() const { return DP == 0 && Tramo == 0 && Hr == 0; }
  bool operator==(const EntradaAjuste&) const = default;
};

/// Position of the entry of a Caso, from 1; or minus the position of the last free entry, 0 when
/// there is none. An entry is the Caso's when its Tramo is equal and its pressure [at] and height
/// [m] lie nearer than 0.05: 6.00 and 6.04 are the same Caso, 6.00 and 6.05 are not.
int BuscaCaso(const std::vector<EntradaAjuste>& entradas, double DP, int NumeroTramo, double Hr);

/// The areas that stand for a Caso, if it has an adjustment.
std::optional<Ajuste> AjusteDelCaso(const std::vector<EntradaAjuste>& entradas, double DP,
                                    int NumeroTramo, double Hr);

}  // namespace zorbin
