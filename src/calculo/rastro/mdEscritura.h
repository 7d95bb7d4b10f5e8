// A step as it stands on paper and on the screen: the formula in symbols, with its figures, and its
// result, in the units of the Obra, as mathematics and as plain text.
//
//   const auto x = EscribePaso(paso, si, SeparadorDeIdioma(idioma));
//   x.simbolos.formula   A_T = \frac{PP\, R}{f_{yd}} \cdot 10^{4}      for LeeFormula
//   x.cifras.formula     \frac{12,5 \cdot 0,4}{4200} \cdot 10^{4}
//   x.resultado.formula  11,905
//   x.unidad             cm²/m
//   textos[x.etiqueta]   what it calculates, or what follows from the relation
//   x.numero             7.2, of the technical report; x.ancla says of what: ec-, tab-, ap-
// The printed figures are rounded to 4 to 7 significant digits, as many as make the printed result
// follow from them within its last digit; where 7 do not suffice (`porIntervalo`) the result lies
// within what the roundings of the figures leave open.
#pragma once

#include <string>
#include <vector>

#include "calculo/rastro/mdExpresion.h"
#include "calculo/rastro/mdRastro.h"

namespace zorbin {

/// The same line for a typesetter (listados/maqueta/mdFormula.h) and for a plain text.
struct LineaPaso {
  std::string formula;
  std::string llano;
};

/// A value as it is printed.
struct Cifra {
  double valor = 0;   // of the printed digits
  double margen = 0;  // half of the last digit; 0 of one that is printed whole
  std::string formula, llano;
};

struct SimboloPaso {
  std::string formula, llano;  // without its figure
  std::string_view unidad;
  Cifra cifra;
};

struct PasoEscrito {
  LineaPaso simbolos;              // the whole formula in symbols
  LineaPaso cifras;                // the same with figures, of a result without its symbol
  Cifra resultado;                 // none of a relation
  SimboloPaso simbolo;             // of the result; none of a relation
  std::string_view unidad;         // of the result: "cm²/m", "" of a number
  std::vector<SimboloPaso> datos;  // what stands on the right side
  int etiqueta = 0;                // entry of the catalogue
  std::string_view numero, ancla;  // in the technical report
  bool esRelacion = false;
  bool porIntervalo = false;
};

/// @param si          whether the Obra is in SI
/// @param separador   decimal sign
/// A relation that the rounded figures would not show keeps more digits.
PasoEscrito EscribePaso(const Paso& paso, bool si, char separador);

/// All in one line: "A_T = PP·R/f_yd·10^4 = 12,5·0,4/4200·10^4 = 11,905 cm²/m".
std::string TextoLlano(const PasoEscrito& paso);

/// Expression of a formula whose figures are in the units printed.
const Expresion& EnUnidades(Formula formula, bool si);

}  // namespace zorbin
