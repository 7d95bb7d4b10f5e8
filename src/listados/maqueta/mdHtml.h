// The sources of the report: a small subset of HTML with formulas between dollars.
//
// Blocks: h1 h2 h3 p ul ol li table caption tr th td figure img figcaption div aside datos, and
// $$…$$ on its own. In the line: b i code span a br, and $…$. A tilde is a space that does not
// break.
#pragma once

#include <QMap>
#include <QString>
#include <vector>

namespace zorbin::memoria {

/// A tag, a text (no name) or a formula ("$" in the line, "$$" on its own).
struct Elemento {
  QString nombre;
  QString texto;  // of a text, a formula, and the raw inside of datos
  int linea = 0;
  QMap<QString, QString> atributos;
  std::vector<Elemento> hijos;
  QString numero;  // of what is numbered

  bool EsTexto() const { return nombre.isEmpty(); }
  QString Atributo(const QString& cual) const { return atributos.value(cual); }
};

/// The whole file under a nameless root. @throws ErrorFuente
Elemento LeeHtml(const QString& texto);

/// Text of an element and all within, formulas left out.
QString TextoLlano(const Elemento& e);

}  // namespace zorbin::memoria
