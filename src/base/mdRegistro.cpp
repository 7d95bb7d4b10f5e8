#include "base/mdRegistro.h"

#include <array>
#include <charconv>
#include <utility>

namespace zorbin {

namespace {

template <class T>
void Anade(std::string& bloque, T valor) {
  std::array<char, 32> letras;
  const auto fin = std::to_chars(letras.data(), letras.data() + letras.size(), valor);
  bloque.push_back(' ');
  bloque.append(letras.data(), fin.ptr);
}

}  // namespace

Registro& Registro::operator<<(double valor) {
  Anade(bloque_, valor);
  return *this;
}

Registro& Registro::operator<<(int valor) {
  Anade(bloque_, valor);
  return *this;
}

void Registro::Vuelca() {
  if (bloque_.empty()) return;
  // Taken out first: what the output refused is not offered to it a second time.
  const std::string lleno = std::exchange(bloque_, {});
  salida_(lleno);
  bloque_.reserve(kBloque + 1024);
}

}  // namespace zorbin
