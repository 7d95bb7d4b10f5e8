#include "hidraulica/mdRenglon.h"

#include <utility>

namespace zorbin {

void Renglones::Linea(int margen, std::string texto, bool negrita) {
  renglones_.push_back({blancas_, margen, std::move(texto), negrita, kTamanoRenglon});
  blancas_ = 0;
}

std::vector<Renglon> Renglones::Cierra() {
  if (blancas_ > 0) {
    --blancas_;
    Linea(0, {});
  }
  return std::exchange(renglones_, {});
}

}  // namespace zorbin
