// Tables of plain cells, as results fill them: many rows, quickly set.
#pragma once

#include <vector>

#include "listados/maqueta/mdFranja.h"

namespace zorbin::memoria {

struct CeldaCuadro {
  QString texto;
  bool formula = false;  // in the notation of formulas; otherwise plain, as it is
  bool negrita = false;
  QString destino = {};  // anchor that it leads to
};

struct FilaCuadro {
  std::vector<CeldaCuadro> celdas;
  bool negrita = false;
  bool corte = false;  // a stronger line above
};

/// A head over one or more columns.
struct CabezaCuadro {
  QString texto;
  int abarca = 1;
};

struct Cuadro {
  QString columnas;                                // alignment of each by a letter, l c r
  std::vector<std::vector<CabezaCuadro>> cabezas;  // rows of heads, repeated on every page
  std::vector<FilaCuadro> filas;
  double cuerpo = 8.5;  // less where it would be too wide
  bool ancho = true;    // as wide as the text; otherwise as its cells, in the middle
};

/// Rows as strips. Heads stay with two rows, and the last two rows stay together; a table of up to
/// a third of a page stays in one piece. Nothing is too wide: letters are made smaller, and long
/// words cut.
/// @param ancho  of the text [pt]
std::vector<Franja> FranjasDeCuadro(const Tipografia& tipografia, const Cuadro& cuadro,
                                    double ancho);

/// A plain text in lines of a width at most; a word longer than a line is cut.
std::vector<QString> Renglones(const Tipografia& tipografia, const QString& texto, const Tipo& tipo,
                               double ancho);

/// What of a text fits a width, with an ellipsis where it is cut.
QString Acortado(const Tipografia& tipografia, const QString& texto, const Tipo& tipo,
                 double ancho);

}  // namespace zorbin::memoria
