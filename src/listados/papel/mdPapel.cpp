#include "listados/papel/mdPapel.h"

#include <algorithm>

#include "base/mdTextos.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

namespace {

constexpr double kMargenSuperior = 4.0;  // [mm]
constexpr double kMargenDerecho = 5.0;   // [mm]
constexpr double kAireRegla = 0.6;       // between a rule and the line below it [mm]
constexpr double kMmGrosor = 0.4 / 5.0;  // of a unit of line width [mm]

}  // namespace

Papel::Papel(DestinoHojas& destino, Orientacion orientacion)
    : destino_(destino), y_(kMargenSuperior) {
  hoja_.orientacion = orientacion;
}

void Papel::Linea(int margen, std::string_view texto) {
  if (!Caben(1)) Entrega();
  std::string linea = Blancos(margen) + std::string(texto);
  const auto letras = static_cast<double>(
      Largo(std::string_view(linea).substr(0, linea.find_last_not_of(' ') + 1)));
  const double cabe = hoja_.Ancho() - kMargenDerecho;
  const double ancho = letras * AnchoColumna(cuerpo_);
  const double cuerpo = ancho > cabe ? cuerpo_ * cabe / ancho : cuerpo_;
  hoja_.textos.push_back({y_, cuerpo, negrita_, subrayado_, std::move(linea)});
  y_ += AltoLinea(cuerpo_);
}

void Papel::LineasEnBlanco(int n) {
  for (int i = 0; i < n && Caben(1); ++i) Linea(0, " ");
}

int Papel::LineasQueCaben() const {
  return static_cast<int>((hoja_.Alto() - kAltoPie - y_) / AltoLinea(cuerpo_));
}

bool Papel::Caben(int n) const {
  return y_ + n * AltoLinea(cuerpo_) <= hoja_.Alto() - kAltoPie;
}

void Papel::Regla(double x1, double x2, double bajo, int grosor) {
  y_ += bajo;
  hoja_.reglas.push_back({x1, x2, y_, grosor * kMmGrosor});
  y_ += kAireRegla;
}

void Papel::Figura(const std::string& nombre, double x, double y, double ancho, double alto) {
  hoja_.figuras.push_back({nombre, x, y, ancho, alto});
}

void Papel::NuevaPagina() {
  Entrega();
}

void Papel::FinDocumento() {
  if (!hoja_.textos.empty()) Entrega();
}

void Papel::Entrega() {
  destino_.RecibeHoja(hoja_);
  ++hojas_;
  hoja_.textos.clear();
  hoja_.reglas.clear();
  hoja_.figuras.clear();
  y_ = kMargenSuperior;
}

}  // namespace zorbin
