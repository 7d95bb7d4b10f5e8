// The texts of records: numbers as a person writes them, and the code page.
#include <array>
#include <cmath>

#include "base/mdAnsi.h"
#include "base/mdNumeros.h"
#include "fuzz/comun.h"

namespace zorbin::hostil {

namespace {

constexpr std::array<std::string_view, 6> kMascaras{"#####0",     "#####0.0",    "#####0.00",
                                                    "#####0.000", "#####0.0000", "#######0"};

void PruebaNumero(std::string_view texto) {
  const auto valor = NumeroTexto(texto);
  if (!valor) return;
  Exige(std::isfinite(*valor) && !(*valor == 0 && std::signbit(*valor)), "a number is a number");
  for (const auto mascara : kMascaras) {
    const std::string escrito = FormatoMascara(*valor, mascara, ',');
    const auto leido = NumeroTexto(escrito);
    Exige(leido.has_value(), "what is written can be read", escrito);
    Exige(FormatoMascara(*leido, mascara, ',') == escrito, "a number is written the same", escrito);
    const double paso = mascara.find('.') == mascara.npos ? 1.0 : 0.1;
    Exige(std::fabs(*leido - *valor) <= paso + std::fabs(*valor) * 1e-15, "and near", escrito);
  }
}

void PruebaPagina(std::string_view bytes) {
  if (const auto utf8 = DeAnsi(bytes)) {
    const auto vuelta = AAnsi(*utf8);
    Exige(vuelta.sobra.empty() && vuelta.bytes == bytes, "the code page there and back");
  }
  const auto ansi = AAnsi(bytes);
  if (!ansi.sobra.empty()) return;
  const auto vuelta = DeAnsi(ansi.bytes);
  Exige(!vuelta || *vuelta == bytes, "a text has one way to be written");
}

}  // namespace

void Prueba(std::string_view datos) {
  PruebaNumero(datos);
  PruebaPagina(datos);
}

}  // namespace zorbin::hostil
