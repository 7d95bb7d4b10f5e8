// Running text: the words of an element, and their lines.
#pragma once

#include <functional>

#include "listados/maqueta/mdHtml.h"
#include "listados/maqueta/mdTrazos.h"

namespace zorbin::memoria {

enum class Alinea { Justificado, Izquierda, Centro, Derecha };

/// What no space separates.
struct Palabra {
  Caja caja;
  double espacio = 0;     // that follows, at its natural width [pt]
  bool finLinea = false;  // a line break follows
};

/// Text of a reference to an id ("la tabla 4.1"), by the element of the reference.
using Referencia = std::function<QString(const Elemento&)>;

/// Sets the words of what stands in the line within `e`. @throws ErrorFuente on a block within
std::vector<Palabra> Palabras(const Tipografia& tipografia, const Elemento& e, const Tipo& tipo,
                              const Referencia& referencia);

/// Lines of the width `ancho`, the breaks chosen over the whole paragraph. A word wider than the
/// line stands on one of its own and overflows; the caller looks at `Caja::ancho`.
std::vector<Caja> Lineas(const std::vector<Palabra>& palabras, double ancho, Alinea alinea);

/// Width of the words in one line, and of the widest alone.
double AnchoNatural(const std::vector<Palabra>& palabras);
double AnchoMinimo(const std::vector<Palabra>& palabras);

}  // namespace zorbin::memoria
