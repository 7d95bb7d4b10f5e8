#include "listados/dibujos/mdTablaDibujo.h"

#include <cmath>

#include "base/mdTextos.h"

namespace zorbin {

namespace {

constexpr double kFila = 5.6;        // of a table [mm]
constexpr double kLineaDato = 4.8;   // of a list
constexpr double kLineaTexto = 3.9;  // of a paragraph
constexpr double kAire = 1.6;        // between a text and the edge of its cell
constexpr double kRadioMarca = 2.4;
constexpr Trazo kRaya{Tinta::Tenue, kFino};

void Celda(Plano& plano, const Marco& caja, const std::string& texto, AnclaX ancla, bool negrita,
           Tinta tinta) {
  const std::string cabe = Recortado(texto, caja.ancho - 2 * kAire, kLetraMenor, negrita);
  const double x = ancla == AnclaX::Izquierda ? caja.x + kAire
                   : ancla == AnclaX::Centro  ? caja.Centro().x
                                              : caja.Derecha() - kAire;
  const Xy sitio{x, caja.Centro().y};
  if (negrita) {
    plano.Negrita(sitio, cabe, ancla, AnclaY::Medio, kLetraMenor);
  } else {
    plano.Texto(sitio, cabe, ancla, AnclaY::Medio, kLetraMenor, tinta);
  }
}

}  // namespace

double PintaTabla(Plano& plano, Xy sitio, const std::vector<ColumnaTabla>& columnas,
                  const std::vector<FilaTabla>& filas) {
  plano.En(Capa::Textos);
  double ancho = 0;
  for (const auto& c : columnas) ancho += c.ancho;
  const double alto = kFila * static_cast<double>(filas.size() + 1);
  plano.Area(Rectangulo({sitio.x, sitio.y, ancho, kFila}), {Tinta::Rejilla, 0.5});
  Xy celda = sitio;
  for (std::size_t i = 0; i < columnas.size(); ++i) {
    const auto& c = columnas[i];
    const Marco cabeza{celda.x, sitio.y, c.ancho, kFila};
    Celda(plano, cabeza, c.titulo, c.ancla, false, Tinta::Tenue);
    for (std::size_t j = 0; j < filas.size(); ++j) {
      const Marco caja{celda.x, sitio.y + kFila * static_cast<double>(j + 1), c.ancho, kFila};
      Celda(plano, caja, filas[j].celdas[i], c.ancla, filas[j].negrita, Tinta::Tinta);
    }
    if (i > 0) plano.Linea({celda.x, sitio.y}, {celda.x, sitio.y + alto}, kRaya);
    celda.x += c.ancho;
  }
  for (std::size_t j = 1; j <= filas.size(); ++j) {
    const double y = sitio.y + kFila * static_cast<double>(j);
    plano.Linea({sitio.x, y}, {sitio.x + ancho, y}, kRaya);
  }
  plano.Area(Rectangulo({sitio.x, sitio.y, ancho, alto}), {}, {Tinta::Tinta, kMedio});
  return sitio.y + alto;
}

double PintaFicha(Plano& plano, Xy sitio, double ancho, const std::string& titulo,
                  const std::vector<DatoFicha>& datos) {
  plano.En(Capa::Textos);
  plano.Negrita({sitio.x, sitio.y + 3.4}, Recortado(titulo, ancho, kLetra, true), AnclaX::Izquierda,
                AnclaY::Base);
  sitio.y += 5.0;
  plano.Linea(sitio, {sitio.x + ancho, sitio.y}, {Tinta::Tinta, kMedio});
  for (const auto& [que, cuanto] : datos) {
    const double y = sitio.y + 3.6;
    const std::string valor =
        Recortado(cuanto, ancho - AnchoTexto(que, kLetraMenor) - kAire, kLetraMenor);
    plano.Texto({sitio.x, y}, que, AnclaX::Izquierda, AnclaY::Base, kLetraMenor, Tinta::Tenue);
    plano.Texto({sitio.x + ancho, y}, valor, AnclaX::Derecha, AnclaY::Base, kLetraMenor);
    sitio.y += kLineaDato;
  }
  return sitio.y;
}

std::vector<std::string> EnLineas(const std::string& texto, double ancho, double alto) {
  std::vector<std::string> lineas{""};
  for (std::size_t desde = 0; desde < texto.size();) {
    const auto hasta = std::min(texto.find(' ', desde), texto.size());
    const std::string palabra = texto.substr(desde, hasta - desde);
    desde = hasta + 1;
    std::string& linea = lineas.back();
    const std::string junta = linea.empty() ? palabra : linea + " " + palabra;
    if (linea.empty() || AnchoTexto(junta, alto) <= ancho) {
      linea = junta;
    } else {
      lineas.push_back(palabra);
    }
  }
  return lineas;
}

double PintaParrafo(Plano& plano, Xy sitio, double ancho, const std::string& texto) {
  plano.En(Capa::Textos);
  for (const auto& linea : EnLineas(texto, ancho, kLetraMenor)) {
    sitio.y += kLineaTexto;
    plano.Texto(sitio, linea, AnclaX::Izquierda, AnclaY::Base, kLetraMenor);
  }
  return sitio.y;
}

void PintaMarca(Plano& plano, Xy sitio, int numero, Xy cosa) {
  plano.En(Capa::Cotas);
  const double largo = std::hypot(cosa.x - sitio.x, cosa.y - sitio.y);
  const double fuera = largo > 0 ? kRadioMarca / largo : 0.0;
  plano.Senal({sitio.x + (cosa.x - sitio.x) * fuera, sitio.y + (cosa.y - sitio.y) * fuera}, cosa);
  plano.Circulo(sitio, kRadioMarca, {Tinta::Papel, 1.0}, {Tinta::Tinta, kMedio});
  plano.Negrita(sitio, TextoEntero(numero), AnclaX::Centro, AnclaY::Medio, kLetraMenor);
}

}  // namespace zorbin
