// The debug log of a run, gathered in blocks. Calculation writes lines into it; whoever opened
// the log gives the routine that takes the full blocks, so no file is known here.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace zorbin {

class Registro {
 public:
  using Salida = std::function<void(std::string_view)>;

  explicit Registro(Salida salida) : salida_(std::move(salida)) { bloque_.reserve(kBloque + 1024); }

  Registro& operator<<(std::string_view texto) {
    bloque_.append(texto);
    return *this;
  }
  /// A blank and the number in its plain form: shortest digits that read back, point decimal.
  Registro& operator<<(double valor);
  Registro& operator<<(int valor);

  void FinLinea() {
    bloque_.push_back('\n');
    if (bloque_.size() >= kBloque) Vuelca();
  }
  /// Hands on what is gathered. @throws whatever the output throws.
  void Vuelca();

 private:
  static constexpr std::size_t kBloque = 64 * 1024;  // bytes

  std::string bloque_;
  Salida salida_;
};

}  // namespace zorbin
