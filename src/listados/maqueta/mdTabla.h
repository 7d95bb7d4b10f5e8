// Tables: a line above, a line under the heads, a line below.
#pragma once

#include "listados/maqueta/mdBloques.h"

namespace zorbin::memoria {

/// Rows of a table as strips. The attribute `cols` tells the alignment of each column by a letter,
/// l c r; `cuerpo` the size of the letters. A row of <th> at the top is repeated on every page; a
/// table of up to half a page stays in one piece.
/// @throws ErrorFuente when it is wider than the text
std::vector<Franja> FranjasDeTabla(const Tipografia& tipografia, const Referencia& referencia,
                                   const Elemento& tabla);

}  // namespace zorbin::memoria
