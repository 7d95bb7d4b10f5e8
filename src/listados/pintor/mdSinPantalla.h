// Fonts and painting for a program without a window.
#pragma once

#include <array>
#include <memory>

class QGuiApplication;

namespace zorbin {

/// Holds the toolkit ready for painting while it lives, on a machine with or without a display.
class AplicacionSinPantalla {
 public:
  AplicacionSinPantalla();
  ~AplicacionSinPantalla();
  AplicacionSinPantalla(const AplicacionSinPantalla&) = delete;
  AplicacionSinPantalla& operator=(const AplicacionSinPantalla&) = delete;

 private:
  // The toolkit keeps references to the words of the program.
  int argumentos_ = 1;
  std::array<char, 7> nombre_{"zorbin"};
  std::array<char*, 2> palabras_{nombre_.data(), nullptr};
  std::unique_ptr<QGuiApplication> aplicacion_;
};

}  // namespace zorbin
