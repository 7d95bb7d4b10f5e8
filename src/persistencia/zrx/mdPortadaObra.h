// What the cover of a report says of an Obra, kept beside it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zorbin {

struct PortadaObra {
  std::string autor;
  std::string revisor;
  std::string revision;
  std::string fecha;
  std::string logo;   // bytes of a PNG or SVG picture, empty for none
  std::string otras;  // unknown keys, a JSON object; empty for none

  bool DiceAlgo() const { return *this != PortadaObra{}; }
  bool operator==(const PortadaObra&) const = default;
};

/// A larger picture is refused [bytes].
inline constexpr std::size_t kMaxBytesLogo = 1'000'000;

std::string EnBase64(std::string_view bytes);
/// No value for what is none.
std::optional<std::string> DeBase64(std::string_view texto);

}  // namespace zorbin
