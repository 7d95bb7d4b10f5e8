// Colours of the drawings: on paper, and on a light and a dark screen.
#pragma once

#include <array>
#include <cstdint>

#include "listados/dibujos/mdLamina.h"

namespace zorbin {

struct Color {
  std::uint8_t r = 0, g = 0, b = 0;

  bool operator==(const Color&) const = default;
};

enum class TemaDibujo : std::uint8_t { Papel, Claro, Oscuro };

class Paleta {
 public:
  explicit Paleta(TemaDibujo tema);

  /// A window gives its own colours to what it knows better.
  void Pon(Tinta tinta, Color color) { colores_[Lugar(tinta)] = color; }
  Color De(Tinta tinta) const { return colores_[Lugar(tinta)]; }
  /// Opaque: the colour mixed with that of the paper.
  Color De(const Mancha& mancha) const;

 private:
  std::array<Color, kTintas> colores_{};

  static std::size_t Lugar(Tinta tinta) { return static_cast<std::size_t>(tinta); }
};

}  // namespace zorbin
