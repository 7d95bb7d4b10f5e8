#include "listados/informe/mdAligeraPdf.h"

#include <array>
#include <charconv>
#include <cmath>

namespace zorbin {

namespace {

constexpr double kGrande = 10.0;
constexpr int kDecimalesGrande = 1;
constexpr int kDecimales = 4;

bool DeNumero(char c) {
  return (c >= '0' && c <= '9') || c == '.' || c == '-';
}

void AnadeNumero(std::string& texto, std::string_view ficha) {
  double valor = 0;
  const auto leido = std::from_chars(ficha.data(), ficha.data() + ficha.size(), valor);
  std::array<char, 64> cifras;
  const int decimales = std::fabs(valor) >= kGrande ? kDecimalesGrande : kDecimales;
  const auto puesto = std::to_chars(cifras.data(), cifras.data() + cifras.size(), valor,
                                    std::chars_format::fixed, decimales);
  if (leido.ptr != ficha.data() + ficha.size() || puesto.ec != std::errc{}) {
    texto += ficha;
    return;
  }
  std::string_view corto(cifras.data(), static_cast<std::size_t>(puesto.ptr - cifras.data()));
  corto = corto.substr(0, corto.find_last_not_of('0') + 1);
  if (corto.ends_with('.')) corto.remove_suffix(1);
  texto += corto == "-0" ? "0" : corto;
}

}  // namespace

std::string Aligerado(std::string_view pagina) {
  if (pagina.find('(') != std::string_view::npos) return std::string(pagina);
  std::string texto;
  texto.reserve(pagina.size());
  for (std::size_t i = 0; i < pagina.size();) {
    std::size_t fin = i;
    while (fin < pagina.size() && DeNumero(pagina[fin])) ++fin;
    const auto ficha = pagina.substr(i, fin - i);
    if (ficha.find('.') != std::string_view::npos) {
      AnadeNumero(texto, ficha);
    } else {
      if (fin == i) ++fin;
      texto += pagina.substr(i, fin - i);
    }
    i = fin;
  }
  return texto;
}

}  // namespace zorbin
