#include "listados/dibujos/mdDesarrollo.h"

#include <algorithm>
#include <cmath>

#include "base/textos.h"
#include "listados/dibujos/mdTablaDibujo.h"

namespace zorbin {

namespace {

constexpr double kMm = 1000.0;  // of a metre
// Paper round the unrolled metre [mm]: title and marks over it, dimensions beside and below it.
constexpr double kEncima = 15.0;
constexpr double kDebajo = 9.0;
constexpr double kIzquierda = 13.0;
constexpr double kDerecha = 20.0;
constexpr double kMarca = 9.0;  // of the marks under the title

bool EsEspira(Partida p) {
  return p == Partida::EspirasInteriores || p == Partida::EspirasExteriores ||
         p == Partida::Alambre;
}

class Pintor {
 public:
  Pintor(Plano& plano, const Marco& sitio, double escala, const Jaula& jaula,
         const PalabrasDibujo& w)
      : plano_(plano), sitio_(sitio), jaula_(jaula), w_(w), ancho_(jaula.Desarrollo()) {
    vista_.escala = escala;
    vista_.origen = {sitio.x + kIzquierda, sitio.y + kEncima};
  }

  void Pinta() {
    const bool fuera = std::any_of(jaula_.capas.begin(), jaula_.capas.end(), [](const auto& c) {
      return c.capa->partida == Partida::EspirasExteriores;
    });
    for (const auto& c : jaula_.capas) {
      plano_.En(CapaDe(c.capa->partida, fuera));
      if (c.capa->partida == Partida::Chapa) Chapa(*c.capa);
      if (EsEspira(c.capa->partida)) Espiras(*c.capa);
      if (c.capa->partida == Partida::Longitudinales) Barras(*c.capa);
    }
    plano_.En(Capa::Ejes);
    plano_.Area(Rectangulo({P(0, 0).x, P(0, 0).y, vista_.L(ancho_), vista_.L(kLargoDesarrollo)}),
                {}, {Tinta::Tenue, kFino, Patron::Discontinuo});
    Cotas();
    Rotulos();
  }

 private:
  Plano& plano_;
  const Marco& sitio_;
  const Jaula& jaula_;
  const PalabrasDibujo& w_;
  double ancho_;
  Vista vista_;

  Xy P(double x, double y) const { return vista_.P(x, y); }

  void Chapa(const CapaMedida& c) {
    const double ancho = c.desarrollo * kMm;
    plano_.Area(Rectangulo({P(0, 0).x, P(0, 0).y, vista_.L(ancho), vista_.L(kLargoDesarrollo)}),
                {Tinta::Chapa, 0.15}, {Tinta::Chapa, kMedio});
  }

  // Height of a spiral where it begins, the first of those in sight at minus a part of its step.
  void Espiras(const CapaMedida& c) {
    const double paso = c.Paso();
    if (!(paso > 0) || ancho_ <= 0) return;
    std::vector<Puntos> lineas;
    for (double y = -paso / 2; y < kLargoDesarrollo; y += paso) {
      // At its slope, as far as it lies within the metre.
      const double x0 = std::max(0.0, -y / paso * ancho_);
      const double x1 = std::min(1.0, (kLargoDesarrollo - y) / paso) * ancho_;
      if (x1 <= x0) continue;
      lineas.push_back({P(x0, y + paso * x0 / ancho_), P(x1, y + paso * x1 / ancho_)});
    }
    plano_.Quebradas(std::move(lineas), {TintaDe(c.partida), Grueso(c)});
  }

  void Barras(const CapaMedida& c) {
    if (!(c.numero > 0)) return;
    std::vector<Puntos> lineas;
    const double paso = ancho_ / c.numero;
    for (double x = paso / 2; x < ancho_; x += paso) {
      lineas.push_back({P(x, 0), P(x, kLargoDesarrollo)});
    }
    plano_.Quebradas(std::move(lineas), {Tinta::Tinta, Grueso(c)});
  }

  // Bars are as thick as they are, unless that would not be seen.
  double Grueso(const CapaMedida& c) const { return std::max(kFino, vista_.L(c.grueso)); }

  void Cotas() {
    const double abajo = P(0, kLargoDesarrollo).y, derecha = P(ancho_, 0).x;
    plano_.CotaHorizontal(P(0, 0).x, derecha, abajo, 5.5, "π·Ø " + w_.Corto(ancho_, 0));
    plano_.CotaVertical(P(0, 0).y, abajo, P(0, 0).x, -4.0, w_.Corto(kLargoDesarrollo, 0));
    for (const auto& [marca, c] : jaula_.capas) {
      const double paso = c->Paso();
      if (!(paso > 0)) continue;
      // Of the spiral in the middle, at its right end.
      const double y = (std::floor(kLargoDesarrollo / paso / 2.0) + 0.5) * paso;
      if (y + paso > kLargoDesarrollo) continue;
      plano_.CotaVertical(P(0, y).y, P(0, y + paso).y, derecha, 4.0,
                          w_.Con(txt::HojaPaso, {w_.Corto(paso, 1)}));
    }
  }

  void Rotulos() {
    plano_.En(Capa::Textos);
    const std::string titulo =
        jaula_.titulo + " · " + w_.Con(txt::HojaDesarrollo, {w_.Corto(vista_.escala, 2)});
    plano_.Texto({sitio_.x, sitio_.y + 3.4}, Recortado(titulo, sitio_.ancho, kLetra));
    double parte = 0.2;
    for (const auto& [marca, c] : jaula_.capas) {
      const Xy cosa = Cosa(*c, parte);
      PintaMarca(plano_, {cosa.x - 3.0, sitio_.y + kMarca}, marca, cosa);
      parte += 0.25;
    }
  }

  // A place of the layer, at a part of the circumference.
  Xy Cosa(const CapaMedida& c, double parte) const {
    constexpr double kDentro = 0.12;
    double x = parte * ancho_, y = kDentro * kLargoDesarrollo;
    const double paso = c.Paso();
    if (paso > 0) y = -paso / 2 + paso * (std::ceil((y + paso / 2) / paso) + parte);
    if (c.partida == Partida::Longitudinales && c.numero > 0) {
      const double entre = ancho_ / c.numero;
      x = (std::floor(x / entre) + 0.5) * entre;
    }
    return P(x, std::min(y, kLargoDesarrollo));
  }
};

}  // namespace

double Jaula::Desarrollo() const {
  double mayor = 0;
  for (const auto& c : capas) mayor = std::max(mayor, kPi * c.capa->diametro * kMm);
  return mayor;
}

double EscalaDesarrollo(double desarrollo, const Marco& sitio) {
  return EscalaRedonda(std::max(desarrollo / (sitio.ancho - kIzquierda - kDerecha),
                                kLargoDesarrollo / (sitio.alto - kEncima - kDebajo)));
}

void PintaDesarrollo(Plano& plano, const Marco& sitio, double escala, const Jaula& jaula,
                     const PalabrasDibujo& w) {
  plano.EnDetalle(escala);
  Pintor(plano, sitio, escala, jaula, w).Pinta();
  plano.EnPrincipal();
}

Capa CapaDe(Partida partida, bool exterior) {
  switch (partida) {
    case Partida::Chapa:
      return Capa::Chapa;
    case Partida::Alambre:
      return Capa::Alambre;
    default:
      return exterior ? Capa::Exterior : Capa::Interior;
  }
}

Tinta TintaDe(Partida partida) {
  return partida == Partida::Chapa     ? Tinta::Chapa
         : partida == Partida::Alambre ? Tinta::Alambre
                                       : Tinta::Barra;
}

}  // namespace zorbin
