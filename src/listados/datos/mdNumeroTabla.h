// Numbers of a table, written as its columns show them.
#pragma once

#include <string>

#include "listados/datos/mdColumnas.h"

namespace zorbin {

/// How a column shows its values: what a value of calculation is multiplied and divided by,
/// and the decimals.
/// It is found once a table, since a name of a conversion is looked for each time.
struct ModoColumna {
  Columna columna;
  double multiplica = 1.0;
  double divide = 1.0;
  int decimales = 0;

  ModoColumna(Columna c, const PalabrasDibujo& palabras);
  double Mostrado(double valor) const { return valor * multiplica / divide; }
};

/// Adds a number with so many decimals, the digits that TextoDecimal gives. Infinity is "∞", what
/// is not a number nothing.
void AnadeNumero(std::string& texto, double valor, int decimales, char separador);

}  // namespace zorbin
