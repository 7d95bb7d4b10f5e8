// Captions of the codes in the data block of a Caso. A code without caption reads as an empty
// text.
#pragma once

#include <cstdint>
#include <string>

#include "base/mdCatalogo.h"

namespace zorbin {

std::string TextoDeCamisa(std::int16_t Tipologia, const Catalogo& textos);
std::string TextoDeCuna(std::int16_t TipoCuna, const Catalogo& textos);  // value of the run, 1..4
std::string TextoDeColocacion(std::int16_t TipoApoyo, const Catalogo& textos);
std::string TextoDeCarga(std::int16_t ICar, const Catalogo& textos);
std::string TextoDeHipotesis(int h, const Catalogo& textos);  // reinforced design, 1..5

}  // namespace zorbin
