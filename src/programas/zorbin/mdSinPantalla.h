// The application of the toolkit is made where there is a display. Without one the toolkit would
// end the program with an abort and words of its own.
#pragma once

#include <QtGlobal>
#include <cstdint>

namespace zorbin {

/// Language of the catalogue that the desktop speaks, 1 to 5; Spanish for another one.
std::int16_t IdiomaDelSistema();

/// While this lives, a failure of the toolkit to begin is told in a sentence on standard error, in
/// the language of the system, and ends the program with code 1. Its warnings wait until it goes.
class EsperaPantalla {
 public:
  EsperaPantalla();
  ~EsperaPantalla();
  EsperaPantalla(const EsperaPantalla&) = delete;
  EsperaPantalla& operator=(const EsperaPantalla&) = delete;

 private:
  QtMessageHandler antes_;
};

}  // namespace zorbin
