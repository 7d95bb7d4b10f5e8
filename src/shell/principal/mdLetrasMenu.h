// The letters by which the entries of the menus answer to the keyboard.
#pragma once

#include <QString>
#include <utility>
#include <vector>

#include "base/mdCatalogo.h"

class QAction;

namespace zorbin {

/// Letters that the tabs of the capture answer to, in capitals: the menus take others.
QString LetrasDePestanas(const Catalogo& textos);

/// Gives each entry its text with a letter of its own; where the text marks one, it is that.
/// @param usadas  letters that others have, in capitals
void ReparteLetras(const std::vector<std::pair<QAction*, QString>>& entradas, QString usadas = {});

}  // namespace zorbin
