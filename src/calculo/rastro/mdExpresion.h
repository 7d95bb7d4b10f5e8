// Expressions of the formulas: read from a line of text, evaluated, and bounded.
//
//   A1 = (eps + A0/(Aotra + A0))*T        M/N <= z/2
//
// + - * / ^, parentheses, sqrt abs min max exp tang (of degrees) ent (floor), pi, and one relation
// = <= < >= > at the top. A number with an exponent (1e4) is a factor between units and belongs to
// no formula: it goes where the units of the figures are others.
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace zorbin {

enum class Op {
  Numero,
  FactorUnidades,
  Pi,
  Simbolo,
  Suma,
  Resta,
  Producto,
  Cociente,
  Potencia,
  Opuesto,
  Raiz,
  Abs,
  Min,
  Max,
  Exp,
  Tan,
  Ent,
};

enum class Relacion { Igual, MenorIgual, Menor, MayorIgual, Mayor };

struct Arbol {
  Op op = Op::Numero;
  double numero = 0;  // Numero, FactorUnidades
  int simbolo = -1;   // place among those of the expression
  std::vector<Arbol> hijos;
};

/// Both sides of a formula. The symbols are those of the sides that are calculated, in the order in
/// which they appear; that of the result is kept apart, and of a relation it is empty.
struct Expresion {
  std::string_view resultado;
  Relacion relacion = Relacion::Igual;
  Arbol izquierda;  // of a relation
  Arbol derecha;
  std::vector<std::string_view> simbolos;

  bool EsRelacion() const { return resultado.empty(); }
};

/// @param texto  outlives the expression
/// @throws std::invalid_argument with what is wrong and where: the text is a constant of the
/// program
Expresion LeeExpresion(std::string_view texto);

/// A value, and a bound of the terms that it was added up from: what it may lose to rounding is a
/// part of that.
struct Evaluado {
  double valor = 0;
  double cota = 0;
};
Evaluado Evalua(const Arbol& a, std::span<const double> valores);

struct Intervalo {
  double menor = 0, mayor = 0;
};
/// Bounds of the value for symbols between theirs; infinite where a divisor may be 0.
Intervalo Acota(const Arbol& a, std::span<const Intervalo> valores);

/// Whether `x relacion y`; for Igual, always.
bool SeCumple(Relacion relacion, double x, double y);

}  // namespace zorbin
