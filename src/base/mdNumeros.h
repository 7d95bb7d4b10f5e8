// Numbers as people read and write them: decimal texts, masks, rounding.
//
// A number is rounded by the decimal digits it shows, half away from zero: 0.125 gives 0.13 and
// 2.675 gives 2.68, although the nearest double of the latter lies below. The locale of the
// process never plays a part; the separator is an argument.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zorbin {

/// `valor` with exactly `decimales` decimals and at least one integer digit. Never "-0", an
/// exponent or a thousands mark. @throws ErrorEjecucion Desbordamiento when it is not finite.
std::string TextoDecimal(double valor, int decimales, char separador);

/// `valor` by a mask such as "#####0.00": its zeros before the point are the digits shown at
/// least, those after it the decimals. @throws ErrorEjecucion as TextoDecimal.
std::string FormatoMascara(double valor, std::string_view mascara, char separador);

/// A number typed or stored by a person: optional sign, digits, one decimal separator of either
/// kind. Blanks are ignored and an empty text is 0. No value for anything else: letters,
/// exponents, a second separator, a number out of range.
std::optional<double> NumeroTexto(std::string_view texto);

/// Decimal separator of the machine's locale, ',' or '.'.
char SeparadorDeLaMaquina();

}  // namespace zorbin
