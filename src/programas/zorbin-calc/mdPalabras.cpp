#include "programas/zorbin-calc/mdPalabras.h"

#include <algorithm>

#include "base/mdNumeros.h"
#include "base/textos.h"
#include "programas/zorbin-calc/mdVigia.h"

namespace zorbin {

std::int16_t IdiomaDeLinea(std::string_view codigo) {
  const auto i = std::find(kIdiomasDeLinea.begin(), kIdiomasDeLinea.end(), codigo);
  return i == kIdiomasDeLinea.end() ? std::int16_t{0}
                                    : static_cast<std::int16_t>(i - kIdiomasDeLinea.begin() + 1);
}

void PonIdiomaDeLinea(Catalogo& textos, std::string_view codigo) {
  const auto idioma = IdiomaDeLinea(codigo);
  if (textos.PonIdioma(idioma) != idioma) Queja(textos.Texto(txt::IdiomaSinInstalar));
}

char SeparadorDeLinea(std::string_view palabra) {
  if (palabra.empty()) return SeparadorDeLaMaquina();
  return palabra == "coma" ? ',' : '.';
}

}  // namespace zorbin
