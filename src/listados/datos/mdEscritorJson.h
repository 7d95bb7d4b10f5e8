// Writes JSON as it goes: values one after another into a block of bytes, and the block to a stream
// when it is full. No document is held in memory. It writes no blanks; where a line ends is said by
// whoever writes.
#pragma once

#include <array>
#include <concepts>
#include <cstring>
#include <memory>
#include <optional>
#include <ostream>
#include <string_view>

#include "base/tablas.h"

namespace zorbin {

class EscritorJson {
 public:
  explicit EscritorJson(std::ostream& salida);

  void Abre(char llave) {  // { or [
    char* p = Separa();
    *p = llave;
    fin_ = p + 1;
    coma_ = false;
  }
  void Cierra(char llave) {  // } or ]
    coma_ = false;
    char* p = Separa();
    *p = llave;
    fin_ = p + 1;
  }
  void FinLinea() { finLinea_ = true; }  // before the next value, behind its comma
  void Clave(std::string_view nombre);   // a short name without marks
  void Acaba();                          // the last line
  /// What is in the block, to the stream.
  void Vuelca();

  /// The shortest digits that read back to the same double, "15.0" for a whole number, an exponent
  /// below 1e-4 and from 1e15 on; a number that is not finite is null.
  void Valor(double x);
  void Valor(std::integral auto n) { Entero(n); }
  void Valor(bool si) { Literal(si ? "true" : "false"); }
  void Valor(std::string_view texto);  // UTF-8; what is none is replaced
  void Valor(const std::string& texto) { Valor(std::string_view(texto)); }
  void Valor(std::nullopt_t) { Literal("null"); }
  template <class T, int N>
  void Valor(const Lista<T, N>& l) {
    Abre('[');
    for (const auto& x : l.v) Valor(x);
    Cierra(']');
  }
  template <class T, int N, int M>
  void Valor(const Tabla<T, N, M>& t) {
    Valor(t.filas);
  }

  template <class T>
  void Campo(std::string_view nombre, const T& valor) {
    Clave(nombre);
    Valor(valor);
  }

 private:
  static constexpr std::size_t kBloque = 64 * 1024;  // bytes
  static constexpr std::size_t kCorto = 64;          // that any number, key or mark takes at most
  static constexpr unsigned kBitsMemoria = 9;

  // Texts of numbers written before: those of a height come back at each of its pressures, and to
  // find the shortest digits of a number takes ten times as long as to copy them.
  struct Escrito {
    double x = 0;
    std::uint8_t largo = 0;
    std::array<char, 24> texto;  // no positive number takes more
  };

  std::ostream& salida_;
  std::unique_ptr<std::array<Escrito, 1u << kBitsMemoria>> memoria_ =
      std::make_unique<std::array<Escrito, 1u << kBitsMemoria>>();
  std::unique_ptr<char[]> bloque_ = std::make_unique<char[]>(kBloque);
  char* fin_ = bloque_.get();
  bool coma_ = false;      // a value stands before the next one
  bool finLinea_ = false;  // the next value begins a line

  // Room for what is short, without a look at each byte.
  char* Sitio() {
    if (fin_ + kCorto > bloque_.get() + kBloque) Vuelca();
    return fin_;
  }
  char* Separa() {
    char* p = Sitio();
    if (coma_) *p++ = ',';
    if (finLinea_) *p++ = '\n';
    coma_ = true;
    finLinea_ = false;
    return p;
  }
  void Pon(std::string_view bytes);
  void Literal(std::string_view bytes);
  void Entero(std::int64_t n);
  const Escrito& Recuerda(double x);
};

}  // namespace zorbin
