// Cells of a text of separated values: how one is written, and how a whole file is read.
#pragma once

#include <string>
#include <string_view>

#include "persistencia/entrada/mdCuadro.h"

namespace zorbin {

inline constexpr std::string_view kMarcaUtf8 = "\xEF\xBB\xBF";

/// What stands between the cells where numbers have this decimal separator.
constexpr char SeparadorDeCeldas(char decimal) {
  return decimal == ',' ? ';' : ',';
}

/// Adds a text as a cell: in quotes where it needs them, and with an apostrophe before it where a
/// spreadsheet would run it as a formula (= + - @, or a tabulator that hides them).
void AnadeCelda(std::string& linea, std::string_view texto, char separador);

/// Reads a text of separated values. The separator is the one of ";", tabulator and "," that the
/// first line has outside of quotes, in this order; with ";" or a tabulator numbers may have a
/// decimal comma. Quotes may hold separators, breaks of line and quotes twice. A text that is not
/// UTF-8 is read as Windows-1252.
/// @throws ErrorEntrada for one that is too large or has too many columns, or whose last quote is
/// never closed, with its cell
Cuadro LeeCsv(std::string_view bytes);

}  // namespace zorbin
