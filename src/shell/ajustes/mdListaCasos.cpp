#include "shell/ajustes/mdListaCasos.h"

#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kVistos = 25;  // of the open list

}  // namespace

ListaCasos::ListaCasos(const QString& nombre, QWidget* padre) : QComboBox(padre) {
  setObjectName(QStringLiteral("cbCasos"));
  setAccessibleName(nombre);
  setToolTip(nombre);
  setMaxVisibleItems(kVistos);
}

void ListaCasos::Muestra(const Ajustes& a) {
  const auto casos = CasosDe(a);
  for (int i = 0; i < static_cast<int>(casos.size()); ++i) {
    const auto& caso = casos[static_cast<std::size_t>(i)];
    const QString texto = Q(caso.texto) + (caso.ajustado ? QStringLiteral("  ✎") : QString());
    if (i == count()) addItem(texto);
    if (itemText(i) != texto) setItemText(i, texto);
  }
  setCurrentIndex(CasoEnMano(a));
  setEnabled(a.t.pantalla.estado == EstadoAjuste::Libre);
}

}  // namespace zorbin
