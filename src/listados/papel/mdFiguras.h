// Which picture belongs to a pipe, a bedding or a laying: catalogue entries that hold the names of
// the files.
#pragma once

#include <cstdint>

#include "base/textos.h"

namespace zorbin {

/// Section of the pipe wall, by typology; 0 for one without a picture of its own.
constexpr int FiguraTubo(std::int16_t Tipologia) {
  if (Tipologia == 1210) return txt::FiguraTubo2110;
  if (Tipologia == 2211) return txt::FiguraTubo2211;
  return Tipologia == 2221 ? txt::FiguraTubo2221 : 0;
}

/// Detail of the bedding, by the value of the run.
constexpr int FiguraCuna(std::int16_t TipoCuna) {
  const bool hormigon = TipoCuna == 2 || TipoCuna == 3;
  return txt::FigurasCuna[hormigon ? static_cast<std::size_t>(TipoCuna - 1) : 0];
}

/// Laying, by bedding (1 granular, others concrete) and kind 0 to 2.
constexpr int FiguraColocacion(std::int16_t TipoCuna, std::int16_t TipoColocacion) {
  const auto& figuras =
      TipoCuna == 1 ? txt::FigurasColocacionGranular : txt::FigurasColocacionHormigon;
  return figuras[TipoColocacion >= 0 && TipoColocacion <= 2
                     ? static_cast<std::size_t>(TipoColocacion)
                     : 0];
}

}  // namespace zorbin
