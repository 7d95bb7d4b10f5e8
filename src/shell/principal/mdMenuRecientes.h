// The menu of the Obras that were open last.
#pragma once

#include <QMenu>

#include "shell/piezas/mdPreferencias.h"

namespace zorbin {

class MenuRecientes : public QMenu {
  Q_OBJECT

 public:
  MenuRecientes(const Preferencias& preferencias, QWidget* padre);

  void Renueva();

 signals:
  void obraPedida(const QString& ruta);

 private:
  const Preferencias& preferencias_;
};

}  // namespace zorbin
