// Numbers as people read and write them: decimal texts, masks, rounding.
//
// A number is rounded by the decimal digits it shows, half away from zero: 0.125 gives 0.13 and
// 2.675 gives 2.68, although the nearest double of the latter lies below. The locale of the
// process never plays a part; the separator is an argument.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/mdCatalogo.h"

namespace zorbin {

/// `valor` with exactly `decimales` decimals and at least one integer digit. Never "-0", an
/// exponent or a thousands mark. @throws ErrorEjecucion Desbordamiento when it is not finite.
std::string TextoDecimal(double valor, int decimales, char separador);

/// `valor` by a mask such as "#####0.00": its zeros before the point are the digits shown at
/// least, those after it the decimals. @throws ErrorEjecucion as TextoDecimal.
std::string FormatoMascara(double valor, std::string_view mascara, char separador);

/// A number as a file holds it: optional sign, digits, one decimal separator of either kind. Blanks
/// are ignored and an empty text is 0. No value for anything else: letters, exponents, a second
/// separator, a number out of range.
std::optional<double> NumeroTexto(std::string_view texto);

/// A number that a person typed, or why it is none.
struct Tecleado {
  std::optional<double> valor;
  Mensaje falta;  // where there is no value
};

/// Reads what a person typed, as NumeroTexto does, but for the texts that people read in two ways.
/// Either separator is the decimal one, except where what follows it looks like thousands: one to
/// three digits without a leading zero, the separator that is not `separador`, three digits. That
/// one is refused with both readings. A group of digits may be set off by a blank, also by the
/// narrow one that the labels use.
/// @param separador  decimal separator in force
Tecleado NumeroTecleado(std::string_view texto, char separador);

/// Decimal separator of a language of the catalogue, 1 to 5: English has a point, the others a
/// comma.
char SeparadorDeIdioma(int idioma);

/// Decimal separator of the machine's locale, ',' or '.'.
char SeparadorDeLaMaquina();

}  // namespace zorbin
