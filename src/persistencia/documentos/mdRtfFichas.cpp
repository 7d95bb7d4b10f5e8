#include "persistencia/documentos/mdRtfFichas.h"

#include <algorithm>

namespace zorbin {

namespace {

using Clase = FichaRtf::Clase;

constexpr int kMaxNumero = 1000000000;

bool EsLetra(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool EsCifra(char c) {
  return c >= '0' && c <= '9';
}

std::optional<int> CifraHexadecimal(char c) {
  if (EsCifra(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return std::nullopt;
}

FichaRtf DeByte(Clase clase, char c) {
  return {.clase = clase, .byte = static_cast<unsigned char>(c)};
}

}  // namespace

FichaRtf FichasRtf::Siguiente() {
  // The line breaks of the file are there for its reader only.
  while (!Acaba() && (bytes_[lugar_] == '\r' || bytes_[lugar_] == '\n')) ++lugar_;
  if (Acaba()) return {};
  const char c = bytes_[lugar_++];
  if (c == '{') return {.clase = Clase::Abre};
  if (c == '}') return {.clase = Clase::Cierra};
  if (c == '\\') return Control();
  return DeByte(Clase::Byte, c);
}

FichaRtf FichasRtf::Control() {
  if (Acaba()) return {};
  if (EsLetra(bytes_[lugar_])) return Palabra();
  const char c = bytes_[lugar_++];
  if (c == '\'') return Hexadecimal();
  if (c == '\r' || c == '\n') return {.clase = Clase::Palabra, .palabra = "par"};
  return DeByte(Clase::Simbolo, c);
}

FichaRtf FichasRtf::Hexadecimal() {
  if (bytes_.size() - lugar_ < 2) {
    lugar_ = bytes_.size();
    return {};
  }
  const auto alta = CifraHexadecimal(bytes_[lugar_]);
  const auto baja = CifraHexadecimal(bytes_[lugar_ + 1]);
  if (!alta || !baja) return {.clase = Clase::Nada};
  lugar_ += 2;
  return {.clase = Clase::Byte, .byte = static_cast<unsigned char>(*alta * 16 + *baja)};
}

FichaRtf FichasRtf::Palabra() {
  const std::size_t desde = lugar_;
  while (!Acaba() && EsLetra(bytes_[lugar_])) ++lugar_;
  FichaRtf ficha{.clase = Clase::Palabra, .palabra = bytes_.substr(desde, lugar_ - desde)};
  ficha.numero = Numero();
  if (Acaba()) return {};  // cut: the word or its number may go on
  if (bytes_[lugar_] == ' ') ++lugar_;
  if (ficha.palabra == "bin") {
    const auto datos = static_cast<std::size_t>(std::max(ficha.numero.value_or(0), 0));
    lugar_ += std::min(datos, bytes_.size() - lugar_);
  }
  return ficha;
}

std::optional<int> FichasRtf::Numero() {
  const bool negativo = !Acaba() && bytes_[lugar_] == '-';
  const std::size_t cifras = lugar_ + (negativo ? 1 : 0);
  if (cifras >= bytes_.size() || !EsCifra(bytes_[cifras])) return std::nullopt;
  long long n = 0;
  for (lugar_ = cifras; !Acaba() && EsCifra(bytes_[lugar_]); ++lugar_) {
    n = std::min<long long>(n * 10 + (bytes_[lugar_] - '0'), kMaxNumero);
  }
  return static_cast<int>(negativo ? -n : n);
}

}  // namespace zorbin
