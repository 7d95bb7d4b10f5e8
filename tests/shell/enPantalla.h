// A person who works on a screen that an action opens and waits for.
#pragma once

#include <QApplication>
#include <QTimer>
#include <functional>
#include <utility>

namespace zorbin::prueba {

/// Does something on the first modal screen of a class that opens.
template <class Pantalla>
class EnPantalla : public QObject {
 public:
  explicit EnPantalla(std::function<void(Pantalla&)> que) : que_(std::move(que)) {
    reloj_.setInterval(5);
    connect(&reloj_, &QTimer::timeout, this, [this] {
      auto* pantalla = qobject_cast<Pantalla*>(QApplication::activeModalWidget());
      if (pantalla == nullptr || !pantalla->isVisible()) return;
      reloj_.stop();
      ++veces;
      que_(*pantalla);
    });
    reloj_.start();
  }

  int veces = 0;

 private:
  QTimer reloj_;
  std::function<void(Pantalla&)> que_;
};

}  // namespace zorbin::prueba
