// Formulas in a light notation, set as two-dimensional mathematics.
//
//   x_a^2  \frac{a}{b}  \dfrac{a}{b}  \sqrt{a}  \left( a \right)  \sum_{i=1}^{n}  \text{word}
//   a &= b \\ &= c            rows with aligned columns
//   \cases{a & x > 1 \\ b & x \le 1}
//   \v{expression}{8,17}      the number 8,17, which the check compares with the expression
//
// A single letter is a variable in italics; a run of letters is a word, set upright. Greek letters
// and functions go by their names (\mu, \Sigma, \tan). A command that is not known is an error.
#pragma once

#include <QString>
#include <vector>

#include "listados/maqueta/mdTrazos.h"

namespace zorbin::memoria {

/// A number of the text that a calculation must confirm.
struct Dato {
  int linea;
  QString expresion;
  QString texto;
};

enum class Clase { Normal, Palabra, Funcion, Binario, Relacion, Abre, Cierra, Coma };
enum class Forma { Simbolo, Grupo, Fraccion, Raiz, Cercado, Filas, Espacio, Suma };

struct Nodo;
using Nodos = std::vector<Nodo>;

struct Nodo {
  Forma forma = Forma::Simbolo;
  Clase clase = Clase::Normal;
  QString texto;  // of a symbol; the two delimiters of Cercado
  Letra letra = Letra::Recta;
  double em = 0;              // width of Espacio
  bool despliegue = false;    // Fraccion at full size wherever it stands
  std::vector<Nodos> partes;  // Fraccion: both terms; Filas: the cells, row by row; else one
  int columnas = 0;           // of Filas
  bool porCasos = false;      // Filas behind a brace
  Nodos sub, sup;
};

struct Formula {
  Nodos nodos;
  std::vector<Dato> datos;
};

/// @param linea  line of the file where the text starts
/// @throws ErrorFuente naming the line of an unknown command or an unclosed brace
Formula LeeFormula(const QString& texto, int linea);

/// @param despliegue  set on a line of its own, at full size
Caja ComponeFormula(const Tipografia& tipografia, const Formula& formula, double cuerpo,
                    bool despliegue);

}  // namespace zorbin::memoria
