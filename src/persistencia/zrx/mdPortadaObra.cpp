#include "persistencia/zrx/mdPortadaObra.h"

#include <cstdint>

namespace zorbin {

namespace {

constexpr std::string_view kLetras =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

}  // namespace

std::string EnBase64(std::string_view bytes) {
  std::string texto;
  texto.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    std::uint32_t tres = 0;
    for (std::size_t k = 0; k < 3; ++k) {
      tres = tres << 8 | (i + k < bytes.size() ? static_cast<unsigned char>(bytes[i + k]) : 0u);
    }
    for (std::size_t k = 0; k < 4; ++k) {
      texto += i + k <= bytes.size() ? kLetras[tres >> (18 - 6 * k) & 63u] : '=';
    }
  }
  return texto;
}

std::optional<std::string> DeBase64(std::string_view texto) {
  if (texto.size() % 4 != 0) return std::nullopt;
  while (!texto.empty() && texto.back() == '=') texto.remove_suffix(1);
  std::string bytes;
  std::uint32_t junta = 0;
  int bits = 0;
  for (const char letra : texto) {
    const auto valor = kLetras.find(letra);
    if (valor == std::string_view::npos) return std::nullopt;
    junta = junta << 6 | static_cast<std::uint32_t>(valor);
    bits += 6;
    if (bits < 8) continue;
    bits -= 8;
    bytes += static_cast<char>(junta >> bits & 255u);
  }
  return bytes;
}

}  // namespace zorbin
