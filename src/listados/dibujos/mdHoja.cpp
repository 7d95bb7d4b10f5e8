#include "listados/dibujos/mdHoja.h"

#include <array>
#include <cmath>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

constexpr double kAltoCabecera = 14.0;
constexpr double kAnchoEscala = 34.0;

// Units as the drawings write them, for those of the listings.
struct UnidadDibujada {
  std::string_view listado, dibujo;
};
constexpr std::array<UnidadDibujada, 5> kUnidades{
    {{"kN/M2", "kN/m²"}, {"T/M2", "t/m²"}, {"m.kN", "m·kN"}, {"m.t", "m·t"}, {"kp/cm2", "kp/cm²"}}};

std::string Escrita(const std::string& unidad) {
  for (const auto& u : kUnidades) {
    if (u.listado == unidad) return std::string(u.dibujo);
  }
  return unidad;
}

constexpr std::array<double, 8> kEscalas{1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 7.5};

}  // namespace

std::string PalabrasDibujo::Numero(double valor, int decimales, std::string_view conversion) const {
  if (conversion.empty()) return estilo_.FormatoNumero(valor, 0, decimales);
  return estilo_.FormatoNumero(valor, 0, decimales, conversion) + " " + Unidad(conversion);
}

std::string PalabrasDibujo::Corto(double valor, int decimales) const {
  std::string texto = TextoDecimal(valor, decimales, estilo_.separador);
  if (decimales == 0) return texto;
  while (texto.back() == '0') texto.pop_back();
  if (texto.back() == estilo_.separador) texto.pop_back();
  return texto;
}

std::string PalabrasDibujo::Unidad(std::string_view conversion) const {
  std::string unidad;
  int decimales = 0;
  Convierte(0.0, conversion, estilo_.si, unidad, decimales);
  return Escrita(unidad);
}

double PalabrasDibujo::Convertido(double valor, std::string_view conversion) const {
  std::string unidad;
  int decimales = 0;
  return Convierte(valor, conversion, estilo_.si, unidad, decimales);
}

const std::string& PalabrasDibujo::Hipotesis(bool armado, int h) const {
  const auto i = static_cast<std::size_t>(h - 1);
  return T(armado ? txt::DibHipotesisArmado[i] : txt::DibHipotesisPostesado[i]);
}

std::string PalabrasDibujo::TramoEnLetra(const Tramo& t) const {
  return Con(txt::DibTramo, {TextoEntero(t.NumeroTramo), t.DescriTramo});
}

std::string PalabrasDibujo::CasoEnLetra(const FilaCaso& f) const {
  return Con(txt::DibCaso, {Metros(f.Hr), Presion(f.DP), Presion(f.MDP)});
}

std::string Recortado(const std::string& texto, double ancho, double alto, bool negrita) {
  if (AnchoTexto(texto, alto, negrita) <= ancho) return texto;
  std::string corto;
  for (std::size_t n = Largo(texto); n > 0; --n) {
    corto = std::string(Primeros(texto, n)) + "…";
    if (AnchoTexto(corto, alto, negrita) <= ancho) break;
  }
  return corto;
}

double EscalaRedonda(double minimo) {
  if (!(minimo > 0) || !std::isfinite(minimo)) return 1.0;
  const double decena = std::pow(10.0, std::floor(std::log10(minimo)));
  for (const double e : kEscalas) {
    if (e * decena >= minimo * (1.0 - 1e-9)) return e * decena;
  }
  return 10.0 * decena;
}

Lamina LaminaVacia(const HojaDibujo& hoja) {
  Lamina lamina;
  lamina.ancho = hoja.ancho;
  lamina.alto = hoja.alto;
  return lamina;
}

Lamina LaminaSinDatos(const PalabrasDibujo& palabras, const HojaDibujo& hoja) {
  Lamina lamina = LaminaVacia(hoja);
  Plano plano(lamina);
  constexpr double kMargen = 2.0;
  const Marco m{kMargen, kMargen, hoja.ancho - 2 * kMargen, hoja.alto - 2 * kMargen};
  plano.Area(Rectangulo(m), {}, {Tinta::Rejilla, kMedio, Patron::Discontinuo});
  plano.En(Capa::Textos);
  plano.Texto(m.Centro(), Recortado(palabras.T(txt::DibFaltanDatos), m.ancho, kLetra),
              AnclaX::Centro, AnclaY::Medio, kLetra, Tinta::Tenue);
  return lamina;
}

Marco PonCabecera(Plano& plano, const HojaDibujo& hoja, const std::string& titulo,
                  const std::string& subtitulo) {
  const double margen = hoja.cabecera ? 4.0 : 1.5;
  Marco m{margen, margen, hoja.ancho - 2 * margen, hoja.alto - 2 * margen};
  if (!hoja.cabecera) return m;
  plano.En(Capa::Textos);
  plano.Negrita({m.x, m.y + 4.0}, Recortado(titulo, m.ancho - kAnchoEscala, kLetraMayor, true),
                AnclaX::Izquierda, AnclaY::Base, kLetraMayor);
  plano.Texto({m.x, m.y + 8.8}, Recortado(subtitulo, m.ancho, kLetra), AnclaX::Izquierda,
              AnclaY::Base, kLetra, Tinta::Tenue);
  plano.Linea({m.x, m.y + 11.0}, {m.Derecha(), m.y + 11.0}, {Tinta::Rejilla, kMedio});
  return {m.x, m.y + kAltoCabecera, m.ancho, m.alto - kAltoCabecera};
}

void PonEscala(Plano& plano, const HojaDibujo& hoja, const PalabrasDibujo& palabras,
               double escala) {
  plano.lamina().escala = escala;
  if (!hoja.cabecera) return;
  plano.En(Capa::Textos);
  plano.Texto({hoja.ancho - 4.0, 8.2}, palabras.Con(txt::DibEscala, {palabras.Corto(escala, 2)}),
              AnclaX::Derecha, AnclaY::Base, kLetra);
}

}  // namespace zorbin
