#include "programas/zorbin/mdAplicacion.h"

#include <QTimer>

namespace zorbin {

bool Aplicacion::notify(QObject* quien, QEvent* suceso) {
  try {
    return QApplication::notify(quien, suceso);
  } catch (...) {
    Aparta(std::current_exception());
    return false;
  }
}

// A box cannot stand in the middle of a painting: it waits for the event to be over. What fails
// again while one is told, as each painting of the same screen may, goes to standard error.
void Aplicacion::Aparta(const std::exception_ptr& fallo) {
  try {
    std::rethrow_exception(fallo);
  } catch (const std::exception& error) {
    qCritical("ZORBIN: %s", error.what());
  } catch (...) {
    qCritical("ZORBIN: unknown failure");
  }
  if (diciendo_ || !dice_) return;
  diciendo_ = true;
  QTimer::singleShot(0, this, [this, fallo] {
    try {
      Di(fallo);
    } catch (...) {  // not even the box stands: it was told on standard error
    }
    diciendo_ = false;
  });
}

void Aplicacion::Di(const std::exception_ptr& fallo) {
  try {
    std::rethrow_exception(fallo);
  } catch (const std::exception& error) {
    dice_(&error);
  } catch (...) {
    dice_(nullptr);
  }
}

}  // namespace zorbin
