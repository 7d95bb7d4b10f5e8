// Pictograms of the toolbar and of the marks in fields, drawn in the colours of the theme in force.
#pragma once

#include <QIcon>
#include <QPalette>

namespace zorbin {

enum class Icono {
  Nueva,
  Abrir,
  Grabar,
  Imprimir,
  NuevoTramo,
  Duplicar,
  Deshacer,
  Rehacer,
  Calcular,
  Ajustar,
  Hidraulico,
  Medios,
  Ayuda,
  Requerido,
  Bloqueado,
  Rechazado,
};

QIcon DibujaIcono(Icono icono, const QPalette& paleta);

}  // namespace zorbin
