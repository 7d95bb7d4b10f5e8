#include "listados/datos/mdNumeroTabla.h"

#include <array>
#include <charconv>
#include <cmath>

#include "base/mdNumeros.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

constexpr std::array<double, 7> kPotencias{1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
constexpr double kMayorRapido = 1e12;  // its decimals are exact enough to find the last digit
constexpr double kCercaDelMedio = 1e-3;

}  // namespace

ModoColumna::ModoColumna(Columna c, const PalabrasDibujo& w)
    : columna(c), decimales(De(c).decimales) {
  std::string unidad;
  const double factor = Convierte(1.0, De(c).conversion, w.Estilo().si, unidad, decimales);
  if (factor >= 1.0) multiplica = factor;
  if (factor < 1.0) divide = std::round(1.0 / factor);
}

void AnadeNumero(std::string& texto, double valor, int decimales, char separador) {
  if (std::isnan(valor)) return;
  if (!std::isfinite(valor)) {
    texto += "∞";
    return;
  }
  const auto lugar = static_cast<std::size_t>(decimales);
  const double crecido = lugar < kPotencias.size() ? std::fabs(valor) * kPotencias[lugar] : 1e300;
  const double resto = crecido - std::floor(crecido);
  // Beside a half the shortest digits decide, which take longer to find.
  if (crecido > kMayorRapido || std::fabs(resto - 0.5) < kCercaDelMedio) {
    texto += TextoDecimal(valor, decimales, separador);
    return;
  }
  const auto entero = static_cast<std::uint64_t>(crecido + 0.5);
  std::array<char, 24> cifras;
  const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), entero).ptr;
  const auto largo = static_cast<std::size_t>(fin - cifras.data());
  if (valor < 0 && entero != 0) texto += '-';
  if (decimales == 0) {
    texto.append(cifras.data(), largo);
    return;
  }
  const std::size_t enteras = largo > lugar ? largo - lugar : 0;
  if (enteras == 0) texto += '0';
  texto.append(cifras.data(), enteras);
  texto += separador;
  if (largo < lugar) texto.append(lugar - largo, '0');
  texto.append(cifras.data() + enteras, largo - enteras);
}

}  // namespace zorbin
