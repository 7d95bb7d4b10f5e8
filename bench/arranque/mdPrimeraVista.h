// Ends the program as soon as a window has been painted and waits for its user.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace zorbin {

class PrimeraVista : public QObject {
 public:
  explicit PrimeraVista(QWidget& ventana) { ventana.installEventFilter(this); }

 protected:
  bool eventFilter(QObject*, QEvent* suceso) override {
    // A timer of 0 fires when there is nothing else to do.
    if (suceso->type() == QEvent::Paint) QTimer::singleShot(0, qApp, &QApplication::quit);
    return false;
  }
};

}  // namespace zorbin
