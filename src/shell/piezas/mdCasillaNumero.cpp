#include "shell/piezas/mdCasillaNumero.h"

#include <QGuiApplication>
#include <QTimer>

namespace zorbin {

CasillaNumero::CasillaNumero(QWidget* padre) : QLineEdit(padre) {
  setAlignment(Qt::AlignRight);
  setInputMethodHints(Qt::ImhFormattedNumbersOnly);
}

void CasillaNumero::Selecciona() {
  selectAll();
  if (QGuiApplication::mouseButtons() == Qt::NoButton) return;
  QTimer::singleShot(0, this, [this] {
    if (hasFocus()) selectAll();
  });
}

}  // namespace zorbin
