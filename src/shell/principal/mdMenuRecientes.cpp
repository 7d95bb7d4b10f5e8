#include "shell/principal/mdMenuRecientes.h"

#include <QFileInfo>

namespace zorbin {

MenuRecientes::MenuRecientes(const Preferencias& preferencias, QWidget* padre)
    : QMenu(padre), preferencias_(preferencias) {}

void MenuRecientes::Renueva() {
  clear();
  const auto rutas = preferencias_.ObrasRecientes();
  int n = 0;
  for (const auto& ruta : rutas) {
    QString texto = QFileInfo(ruta).fileName() + " - " + QFileInfo(ruta).absolutePath();
    texto.replace(QLatin1Char('&'), QStringLiteral("&&"));
    texto.replace(QLatin1Char('\t'), QLatin1Char(' '));  // what follows one is taken for a key
    auto* accion = addAction(QStringLiteral("&%1 ").arg(++n) + texto);
    connect(accion, &QAction::triggered, this, [this, ruta] { emit obraPedida(ruta); });
  }
  setEnabled(!rutas.isEmpty());
}

}  // namespace zorbin
