// The text of the summary screen: lines appended to a stream, which may be a screen, a file or a
// text in memory.
#pragma once

#include <ostream>
#include <string_view>

namespace zorbin {

class Pantalla {
 public:
  explicit Pantalla(std::ostream& salida) : salida_(salida) {}

  /// `antes` line ends, the text, `despues` line ends.
  void EscribePantalla(int antes, std::string_view texto, int despues) {
    for (int i = 0; i < antes; ++i) salida_.put('\n');
    salida_ << texto;
    for (int i = 0; i < despues; ++i) salida_.put('\n');
  }

 private:
  std::ostream& salida_;
};

}  // namespace zorbin
