// A strip: what a page takes whole.
#pragma once

#include <memory>

#include "listados/maqueta/mdTrazos.h"

namespace zorbin::memoria {

/// A strip of the width of the text. Its box has the origin at the left end of its baseline.
struct Franja {
  Caja caja;
  double antes = 0;   // space above, which the top of a page swallows [pt]
  bool pega = false;  // stays with the next one
  bool nuevaPagina = false;
  std::shared_ptr<const Caja> cabecera;  // repeated at the top when a page breaks before
  int nivel = 0;                         // of a heading: 1 chapter, 2 section
  QString numero, titulo;                // of a heading
  QString ancla;                         // name by which links lead here; empty for none
  int linea = 0;
};

}  // namespace zorbin::memoria
