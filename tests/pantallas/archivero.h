// A person who names a file in the dialogs that ask for one, and presses a button of a screen that
// an action opens.
#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QTimer>
#include <functional>
#include <utility>

namespace zorbin::prueba {

/// Gives the file dialogs a name; without one left it gives them up.
class Archivero : public QObject {
 public:
  explicit Archivero(QStringList rutas) : rutas_(std::move(rutas)) {
    reloj_.setInterval(5);
    connect(&reloj_, &QTimer::timeout, this, [this] { Mira(); });
    reloj_.start();
  }

  QStringList propuestos;  // names that the dialogs came with

 private:
  QTimer reloj_;
  QStringList rutas_;

  void Mira() {
    auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialogo == nullptr || !dialogo->isVisible()) return;
    propuestos += dialogo->selectedFiles();
    if (rutas_.isEmpty()) return dialogo->reject();
    dialogo->selectFile(rutas_.takeFirst());
    static_cast<QDialog*>(dialogo)->done(QDialog::Accepted);
  }
};

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
