// The application of the toolkit, and the last place where a failure can be told.
#pragma once

#include <QApplication>
#include <exception>
#include <functional>

namespace zorbin {

/// An exception that an event leaves behind would end the program: it is told instead, once the
/// event is over, and the program goes on with what was typed.
class Aplicacion : public QApplication {
  Q_OBJECT

 public:
  /// How a failure is told; the exception is null for one without words.
  using Dice = std::function<void(const std::exception*)>;

  Aplicacion(int& argumentos, char** palabras) : QApplication(argumentos, palabras) {}

  /// Until it is given, and with an empty one, failures are told on standard error.
  void PonVoz(Dice dice) { dice_ = std::move(dice); }

  bool notify(QObject* quien, QEvent* suceso) override;

 private:
  Dice dice_;
  bool diciendo_ = false;

  void Aparta(const std::exception_ptr& fallo);
  void Di(const std::exception_ptr& fallo);
};

}  // namespace zorbin
