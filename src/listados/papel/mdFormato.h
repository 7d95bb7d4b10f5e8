// Fields of fixed width, from which every listing is made. Widths count characters.
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace zorbin {

/// The decimal text of n with blanks on the left up to `ancho`; a longer number isn't cut.
std::string FormatoEntero(int n, int ancho);

/// `texto` with blanks on the right up to `ancho`, or its first `ancho` characters.
std::string FormatoTexto(std::string_view texto, int ancho);

/// `texto` with blanks on the left up to `ancho`; a longer one isn't cut.
std::string ALaDerecha(std::string texto, int ancho);

/// n blanks.
std::string Blancos(int n);

/// How numbers look: the unit system and the decimal separator of the listing.
struct EstiloNumeros {
  bool si = true;
  char separador = ',';

  /// `valor` by the named conversion in `ancho` columns. The conversion may change `decimales`
  /// before the field is laid out; a number too wide for the field isn't cut. With `conUnidad` a
  /// blank and the unit follow, outside the width. @throws ErrorEjecucion Desbordamiento when the
  /// value is not finite.
  std::string FormatoNumero(double valor, int ancho, int decimales,
                            std::string_view conversion = {}, bool conUnidad = false) const;
};

/// Cuts a line of at most `ancho` characters from a text of several lines (CR LF between them),
/// also from one that would fit whole but for its line break.
/// @return the line and the remainder, which is trimmed.
std::pair<std::string, std::string> PartirTexto(std::string_view texto, int ancho);

}  // namespace zorbin
