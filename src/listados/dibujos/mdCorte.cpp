#include "listados/dibujos/mdCorte.h"

#include <algorithm>
#include <cmath>

namespace zorbin {

namespace {

constexpr double kMm = 1000.0;  // of a metre

// A round one, some four times as long as the wall is thick [mm].
double LargoCorte(double espesor) {
  return std::clamp(std::ceil(4.0 * espesor / 50.0) * 50.0, 150.0, 1000.0);
}

}  // namespace

Corte::Corte(Plano& plano, const ParedDibujada& pared, const Marco& sitio)
    : plano_(plano), pared_(pared), largo_(LargoCorte(pared.espesor)) {
  vista_.escala = EscalaRedonda(
      std::max(largo_ / (sitio.ancho - 2 * kCotas), pared.espesor / (sitio.alto - kPies)));
  vista_.origen = {sitio.x + (sitio.ancho - vista_.L(largo_)) / 2,
                   sitio.y + (sitio.alto - kPies - vista_.L(pared.espesor)) / 2};
}

void Corte::Pinta(const PalabrasDibujo& w) {
  plano_.En(Capa::Hormigon);
  Banda(0.0, pared_.espesor, {Tinta::Hormigon, 0.55});
  if (pared_.nucleo > 0) {
    plano_.En(Capa::Revestimiento);
    Banda(pared_.nucleo, pared_.espesor, {Tinta::Revestimiento, 0.8});
    plano_.En(Capa::Hormigon);
  }
  plano_.Rayado({Rectangulo(Caja(0.0, pared_.espesor))}, Trama::Hormigon, Tinta::Tenue, 4.0);
  plano_.Area(Rectangulo(Caja(0.0, pared_.espesor)), {}, {Tinta::Tinta, kGrueso});
  if (pared_.nucleo > 0) Raya(pared_.nucleo, {Tinta::Tinta, kFino});
  for (const auto& a : pared_.acero) {
    plano_.En(a.capa);
    plano_.Macizo(a.grueso);
    a.porMetro > 0 ? PintaBarras(a) : Chapa(a);
  }
  plano_.Macizo(0.0);
  Cotas(w);
}

Marco Corte::Caja(double desde, double hasta) const {
  return {vista_.origen.x, Y(hasta), vista_.L(largo_), vista_.L(hasta - desde)};
}

void Corte::Banda(double desde, double hasta, Mancha m) {
  plano_.Area(Rectangulo(Caja(desde, hasta)), m);
}

void Corte::Raya(double d, Trazo trazo) {
  plano_.Linea({vista_.origen.x, Y(d)}, {vista_.P(largo_, 0).x, Y(d)}, trazo);
}

void Corte::Chapa(const CapaAcero& a) {
  Raya(a.distancia, {a.tinta, std::max(kMinimoAcero, vista_.L(a.grueso))});
}

// Where they stand along the cut [mm].
std::vector<double> Corte::Barras(const CapaAcero& a) const {
  const double paso = kMm / a.porMetro;
  const int n = static_cast<int>(std::floor(largo_ * a.porMetro / kMm + 1e-9));
  const double primera = (largo_ - (n - 1) * paso) / 2.0;
  std::vector<double> sitios;
  for (int i = 0; i < std::max(1, n); ++i) {
    sitios.push_back(n > 0 ? primera + i * paso : largo_ / 2.0);
  }
  return sitios;
}

void Corte::PintaBarras(const CapaAcero& a) {
  for (const double x : Barras(a)) {
    plano_.Circulo({vista_.P(x, 0).x, Y(a.distancia)},
                   std::max(kMinimoAcero / 2, vista_.L(a.grueso) / 2), {a.tinta, 1.0});
  }
}

Xy Corte::EnCapa(const CapaAcero& a, double fraccion) const {
  double x = fraccion * largo_;
  if (a.porMetro > 0) {
    const auto barras = Barras(a);
    x = *std::min_element(barras.begin(), barras.end(),
                          [x](double p, double q) { return std::fabs(p - x) < std::fabs(q - x); });
  }
  return {vista_.P(x, 0).x, Y(a.distancia)};
}

void Corte::Cotas(const PalabrasDibujo& w) {
  const double izquierda = vista_.origen.x, derecha = vista_.P(largo_, 0).x;
  plano_.CotaVertical(Y(pared_.espesor), Y(0.0), izquierda, -5.0,
                      "e " + w.Corto(pared_.espesor, 1));
  // Covers beyond the wall would leave the sheet.
  if (pared_.Reci < pared_.espesor) {
    plano_.CotaVertical(Y(pared_.Reci), Y(0.0), derecha, 4.0, "ri " + w.Corto(pared_.Reci, 1));
  }
  if (pared_.Rece < pared_.espesor) {
    plano_.CotaVertical(Y(pared_.espesor), Y(pared_.espesor - pared_.Rece), derecha, 4.0,
                        "re " + w.Corto(pared_.Rece, 1));
  }
}

}  // namespace zorbin
