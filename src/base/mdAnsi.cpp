#include "base/mdAnsi.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace zorbin {

namespace {

// Characters of the bytes 0x80 to 0x9F; 0 where there is none. The others are those of Latin-1.
constexpr std::array<std::uint16_t, 32> kAltos{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr CaracterUtf8 kSinCaracter{0xFFFD, 1};

// A character has one sequence only: a longer one for it is none, nor is half a surrogate pair.
bool EsSuya(char32_t codigo, std::size_t bytes) {
  const char32_t minimo = bytes == 4 ? 0x10000 : bytes == 3 ? 0x800 : 0x80;
  return codigo >= minimo && codigo <= 0x10FFFF && !(codigo >= 0xD800 && codigo < 0xE000);
}

std::optional<char> ByteAnsi(char32_t codigo) {
  if (codigo < 0x80 || (codigo >= 0xA0 && codigo <= 0xFF)) return static_cast<char>(codigo);
  const auto alto = std::find(kAltos.begin(), kAltos.end(), codigo);
  if (alto == kAltos.end()) return std::nullopt;
  return static_cast<char>(0x80 + (alto - kAltos.begin()));
}

}  // namespace

std::optional<char32_t> CaracterAnsi(unsigned char byte) {
  if (byte < 0x80 || byte >= 0xA0) return byte;
  const std::uint16_t codigo = kAltos[byte - 0x80u];
  if (codigo == 0) return std::nullopt;
  return codigo;
}

void AnadeUtf8(std::string& texto, char32_t c) {
  const auto byte = [&texto](char32_t b) { texto.push_back(static_cast<char>(b)); };
  const auto resto = [&byte, &c](unsigned bits) { byte(0x80 | ((c >> bits) & 0x3F)); };
  if (c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) c = 0xFFFD;
  if (c < 0x80) {
    byte(c);
  } else if (c < 0x800) {
    byte(0xC0 | (c >> 6));
    resto(0);
  } else if (c < 0x10000) {
    byte(0xE0 | (c >> 12));
    resto(6);
    resto(0);
  } else {
    byte(0xF0 | (c >> 18));
    resto(12);
    resto(6);
    resto(0);
  }
}

CaracterUtf8 PrimerCaracter(std::string_view utf8) {
  const auto b = static_cast<unsigned char>(utf8[0]);
  if (b < 0x80) return {b, 1};
  const std::size_t n = b >= 0xF0 ? 4 : b >= 0xE0 ? 3 : 2;
  if (b < 0xC2 || b > 0xF4 || utf8.size() < n) return kSinCaracter;
  auto codigo = static_cast<char32_t>(b & (0x7Fu >> n));
  for (std::size_t i = 1; i < n; ++i) {
    const auto c = static_cast<unsigned char>(utf8[i]);
    if ((c & 0xC0) != 0x80) return kSinCaracter;
    codigo = (codigo << 6) | (c & 0x3Fu);
  }
  return EsSuya(codigo, n) ? CaracterUtf8{codigo, n} : kSinCaracter;
}

std::optional<std::string> DeAnsi(std::string_view bytes) {
  std::string texto;
  for (const char c : bytes) {
    const auto codigo = CaracterAnsi(static_cast<unsigned char>(c));
    if (!codigo) return std::nullopt;
    AnadeUtf8(texto, *codigo);
  }
  return texto;
}

TextoAnsi AAnsi(std::string_view utf8) {
  TextoAnsi r;
  while (!utf8.empty()) {
    const CaracterUtf8 c = PrimerCaracter(utf8);
    const auto byte = ByteAnsi(c.codigo);
    if (!byte) {
      r.sobra = std::string(utf8.substr(0, c.bytes));
      return r;
    }
    r.bytes.push_back(*byte);
    utf8.remove_prefix(c.bytes);
  }
  return r;
}

}  // namespace zorbin
