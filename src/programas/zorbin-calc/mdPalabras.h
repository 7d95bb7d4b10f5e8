// What the words of the command line stand for, and its exit codes.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/mdCatalogo.h"

namespace zorbin {

enum CodigoSalida : int {
  kHecho = 0,
  kFicheroRechazado = 1,
  kPalabrasMalas = 2,
  kFalloDeCorrida = 3,
  kSalidaImposible = 4,
};

/// Codes of the languages on the command line, in the order of their numbers.
inline constexpr std::array<std::string_view, kIdiomas> kIdiomasDeLinea{"es", "en", "ca", "pt",
                                                                        "fr"};

/// Number of the language of a code, 0 for none.
std::int16_t IdiomaDeLinea(std::string_view codigo);

/// Puts the catalogue into the language of a code; Spanish, said on standard error, where that is
/// not installed.
void PonIdiomaDeLinea(Catalogo& textos, std::string_view codigo);

/// Decimal separator of "coma" or "punto"; that of the machine for an empty word.
char SeparadorDeLinea(std::string_view palabra);

}  // namespace zorbin
