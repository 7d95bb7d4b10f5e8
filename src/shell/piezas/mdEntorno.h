// What every screen is given: the texts, the machine's notation, the settings, the paper. Nothing
// of it is global.
#pragma once

#include <QString>
#include <functional>

#include "base/mdCatalogo.h"
#include "persistencia/tablas/mdTablas.h"
#include "shell/piezas/mdImpresion.h"
#include "shell/piezas/mdPreferencias.h"

class QWidget;

namespace zorbin {

struct Entorno {
  Catalogo& textos;
  const TablasCatalogo& tablas;
  Preferencias& preferencias;
  ServicioImpresion& impresion;
  char SeparadorDecimal = ',';

  /// Opens the manual at an anchor.
  std::function<void(const QString& ancla)> ayuda = [](const QString&) {};
};

}  // namespace zorbin
