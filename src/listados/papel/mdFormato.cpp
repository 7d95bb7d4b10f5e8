#include "listados/papel/mdFormato.h"

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

// Bytes of the first `n` characters.
std::size_t Bytes(std::string_view texto, std::size_t n) {
  return Primeros(texto, n).size();
}

}  // namespace

std::string Blancos(int n) {
  return std::string(n > 0 ? static_cast<std::size_t>(n) : 0, ' ');
}

std::string ALaDerecha(std::string texto, int ancho) {
  const int falta = ancho - static_cast<int>(Largo(texto));
  return falta > 0 ? Blancos(falta) + texto : texto;
}

std::string FormatoEntero(int n, int ancho) {
  return ALaDerecha(TextoEntero(n), ancho);
}

std::string FormatoTexto(std::string_view texto, int ancho) {
  const std::string corto(Primeros(texto, static_cast<std::size_t>(ancho)));
  return corto + Blancos(ancho - static_cast<int>(Largo(corto)));
}

std::string EstiloNumeros::FormatoNumero(double valor, int ancho, int decimales,
                                         std::string_view conversion, bool conUnidad) const {
  std::string unidad;
  const double v = Convierte(valor, conversion, si, unidad, decimales);
  std::string texto = ALaDerecha(TextoDecimal(v, decimales, separador), ancho);
  if (conUnidad) texto += " " + unidad;
  return texto;
}

std::pair<std::string, std::string> PartirTexto(std::string_view texto, int ancho) {
  const auto limite = static_cast<std::size_t>(ancho);
  if (Largo(texto) < limite) {
    const auto salto = texto.find('\r');
    if (salto == std::string_view::npos) return {std::string(texto), {}};
  }
  const auto salto = texto.find('\r');
  if (salto != std::string_view::npos && salto <= Bytes(texto, limite)) {
    std::size_t sigue = salto + 1;
    if (sigue < texto.size() && texto[sigue] == '\n') ++sigue;
    return {std::string(texto.substr(0, salto)), std::string(Recorta(texto.substr(sigue)))};
  }
  std::size_t corte = Bytes(texto, limite);
  auto blanco = corte;
  while (blanco > 0 && static_cast<unsigned char>(texto[blanco - 1]) > ' ') --blanco;
  if (blanco > 1) corte = blanco - 1;
  return {std::string(texto.substr(0, corte)), std::string(Recorta(texto.substr(corte)))};
}

}  // namespace zorbin
