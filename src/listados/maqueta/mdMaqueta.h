// From the chapters to the pages: numbering, blocks, pages with running heads, table of contents.
#pragma once

#include <QDir>

#include "listados/maqueta/mdHtml.h"
#include "listados/maqueta/mdParrafo.h"
#include "listados/maqueta/mdTrazos.h"

namespace zorbin::memoria {

inline constexpr double kPaginaAncho = 595.28, kPaginaAlto = 841.89;  // A4 [pt]

struct Capitulo {
  QString fichero;
  Elemento raiz;
};

/// What stands on every page or names the parts; it comes from the cover, portada.html.
struct Rotulos {
  QString documento;  // of the running head
  QString indice;
  QString capitulo, apartado, tabla, figura;
};

/// @throws ErrorFuente naming what the cover lacks
Rotulos LeeRotulos(const Elemento& portada);

/// Pages of the whole document, the cover first. Numbers the elements of the chapters.
/// @param figuras  folder of the pictures
/// @throws ErrorFuente; `fichero` names the chapter in hand
std::vector<Caja> Maqueta(const Tipografia& tipografia, const Rotulos& rotulos,
                          const Elemento& portada, std::vector<Capitulo>& capitulos,
                          const QDir& figuras, QString& fichero);

}  // namespace zorbin::memoria
