// The manual as its file says it: sections, index and the page to show.
//
// A section is a heading h1, h2 or h3 whose first child is <a name="...">; an entry of the index is
// a word of the attribute title="word; word" of any <a name="...">.
#pragma once

#include <QColor>
#include <QString>
#include <vector>

namespace zorbin {

struct ApartadoManual {
  int nivel = 1;  // 1 to 3
  QString ancla;
  QString titulo;
};

struct EntradaIndice {
  QString texto;
  QString ancla;
};

struct Manual {
  QString html;
  QString idioma;  // attribute lang of the page; empty when it has none
  std::vector<ApartadoManual> apartados;
  std::vector<EntradaIndice> indice;  // as an index is read: by the alphabet of its language
};

/// A page of any kind: what is not understood is passed over.
Manual InterpretaManual(const QString& html);

/// How the page is shown.
struct Vestido {
  QColor tinta;  // of the text of the theme
  QColor papel;  // of its background
  double escala = 1;
};

/// The page with the colours (#rrggbb) and lengths (pt, px) of its style sheet carried over to the
/// theme: written as black ink on white paper, black becomes the ink and white the paper, and the
/// rest keeps its hue in between.
QString VisteManual(const QString& html, const Vestido& vestido);
QColor ColorVestido(const QColor& color, const Vestido& vestido);

/// A text to compare with what a person types: no capitals, no accents; each character in its
/// place.
QString Pliega(const QString& texto);

/// Place of the first word of a folded text that begins as `palabra`, from a place on; -1: none.
qsizetype BuscaPalabra(QStringView texto, const QString& palabra, qsizetype desde = 0);

/// Titles that lead down to a section, its own the last.
QString CaminoDe(const Manual& manual, std::size_t apartado);

}  // namespace zorbin
