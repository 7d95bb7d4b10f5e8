#include "programas/zorbin-calc/mdTerminal.h"

#include <array>
#include <cstdio>

namespace zorbin {

namespace {

// A code that commands, at the start of a text, and its bytes; 0 bytes for none.
struct Mando {
  unsigned codigo = 0;
  std::size_t bytes = 0;
};

bool TuerceLaEscritura(unsigned codigo) {
  return codigo == 0x200E || codigo == 0x200F || codigo == 0x061C ||
         (codigo >= 0x2028 && codigo <= 0x202E) || (codigo >= 0x2066 && codigo <= 0x2069);
}

Mando MandoEn(std::string_view texto) {
  const auto byte = [&](std::size_t i) {
    return i < texto.size() ? static_cast<unsigned char>(texto[i]) : 0u;
  };
  const unsigned b = byte(0);
  if (b == '\n' || b == '\t') return {};
  if (b < 0x20 || b == 0x7F) return {b, 1};
  if (b == 0xC2 && byte(1) >= 0x80 && byte(1) < 0xA0) return {byte(1), 2};
  if (b == 0xD8 && byte(1) == 0x9C) return {0x061C, 2};
  const unsigned codigo = ((b & 0x0Fu) << 12) | ((byte(1) & 0x3Fu) << 6) | (byte(2) & 0x3Fu);
  if (b == 0xE2 && TuerceLaEscritura(codigo)) return {codigo, 3};
  return {};
}

}  // namespace

std::string ParaTerminal(std::string_view texto) {
  std::string salida;
  salida.reserve(texto.size());
  while (!texto.empty()) {
    const Mando mando = MandoEn(texto);
    if (mando.bytes == 0) {
      salida.push_back(texto.front());
      texto.remove_prefix(1);
      continue;
    }
    std::array<char, 8> numero{};
    std::snprintf(numero.data(), numero.size(), mando.codigo < 0x100 ? "\\x%02X" : "\\u%04X",
                  mando.codigo);
    salida += numero.data();
    texto.remove_prefix(mando.bytes);
  }
  return salida;
}

}  // namespace zorbin
