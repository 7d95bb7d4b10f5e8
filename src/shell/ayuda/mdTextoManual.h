// The text of the page shown: where each section stands in it, and what is found in it.
#pragma once

#include <QHash>
#include <QString>
#include <vector>

#include "shell/ayuda/mdManual.h"

class QTextDocument;

namespace zorbin {

class TextoManual {
 public:
  TextoManual() = default;
  TextoManual(const QTextDocument& documento, const Manual& manual);

  struct Palabra {
    int lugar = 0;  // position in the document
    int largo = 0;
  };
  struct Hallazgo {
    std::size_t apartado = 0;  // of the manual
    std::vector<Palabra> palabras;
  };

  /// The sections that hold all the words, each as the beginning of one; without capitals or
  /// accents. What a section holds ends where the next one begins, of whatever level.
  std::vector<Hallazgo> Busca(const QString& palabras) const;

  /// Section of a position: the last that begins at it or before; the first one above all.
  std::size_t ApartadoEn(int lugar) const;

  bool Existe(const QString& ancla) const { return anclas_.contains(ancla); }

 private:
  QString plegado_;
  QHash<QString, int> anclas_;
  std::vector<int> inicios_;  // of each section

  std::vector<Palabra> BuscaEn(int desde, int hasta, const QStringList& palabras) const;
};

}  // namespace zorbin
