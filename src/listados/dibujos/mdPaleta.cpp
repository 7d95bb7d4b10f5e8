#include "listados/dibujos/mdPaleta.h"

#include <cmath>

namespace zorbin {

namespace {

struct Fila {
  Tinta tinta;
  std::uint32_t papel, oscuro;  // rgb
};

// The series keep apart for who does not tell red from green, and in grey by their lightness.
constexpr std::array<Fila, kTintas> kColores{{
    {Tinta::Papel, 0xFFFFFF, 0x1B1F24},    {Tinta::Tinta, 0x1F2933, 0xE6EAEE},
    {Tinta::Tenue, 0x66717D, 0x9AA5B1},    {Tinta::Rejilla, 0xDDE2E7, 0x353C44},
    {Tinta::Hormigon, 0xC3C8CE, 0x5A636D}, {Tinta::Revestimiento, 0xE1DCD2, 0x6E675B},
    {Tinta::Barra, 0xC8364B, 0xF0717F},    {Tinta::Chapa, 0x0B6E8A, 0x39B5D6},
    {Tinta::Alambre, 0x7A4FA3, 0xB592DB},  {Tinta::Relleno, 0xC9A66B, 0x8C7142},
    {Tinta::Terreno, 0x8C6A43, 0xB08D62},  {Tinta::Agua, 0x7FB5DE, 0x3B7DB0},
    {Tinta::Acento, 0x0B6E8A, 0x39B5D6},   {Tinta::Cumple, 0x1E8E5A, 0x4CC38A},
    {Tinta::NoCumple, 0xC0392B, 0xFF7B6B}, {Tinta::Serie1, 0x0B6E8A, 0x39B5D6},
    {Tinta::Serie2, 0xE08A1E, 0xF2AE5A},   {Tinta::Serie3, 0xC8364B, 0xF0717F},
    {Tinta::Serie4, 0x7A4FA3, 0xB592DB},   {Tinta::Serie5, 0x3D8B57, 0x69C48A},
    {Tinta::Serie6, 0x44546A, 0xA9B8CC},
}};

constexpr std::uint32_t kPapelClaro = 0xFBFCFD;

Color DeRgb(std::uint32_t rgb) {
  const auto octeto = [rgb](int bits) { return static_cast<std::uint8_t>(rgb >> bits & 0xFFu); };
  return {octeto(16), octeto(8), octeto(0)};
}

}  // namespace

Paleta::Paleta(TemaDibujo tema) {
  for (const auto& fila : kColores) {
    Pon(fila.tinta, DeRgb(tema == TemaDibujo::Oscuro ? fila.oscuro : fila.papel));
  }
  if (tema == TemaDibujo::Claro) Pon(Tinta::Papel, DeRgb(kPapelClaro));
}

Color Paleta::De(const Mancha& mancha) const {
  const Color papel = De(Tinta::Papel), tinta = De(mancha.tinta);
  const auto mezcla = [&mancha](std::uint8_t p, std::uint8_t t) {
    return static_cast<std::uint8_t>(std::lround(p + (t - p) * mancha.fuerza));
  };
  return {mezcla(papel.r, tinta.r), mezcla(papel.g, tinta.g), mezcla(papel.b, tinta.b)};
}

}  // namespace zorbin
