#include "listados/dibujos/mdDibujoAnillo.h"

#include <algorithm>
#include <cmath>

#include "base/mdTextos.h"
#include "base/textos.h"

namespace zorbin {

namespace {

constexpr int kPasos = 120;                         // of half a diagram
constexpr double kParteLey = 0.42;                  // of the radius of the ring, its greatest value
constexpr double kNoEsSeccion = 4.0 * kPi / 180.0;  // from one of the three [rad]

double Grados(double angulo) {
  return angulo * 180.0 / kPi;
}

struct Ley {
  const FuncionAnillo& f;
  const Lista<double, kSecciones>& valores;
  std::string titulo, unidad;
  std::string_view conversion;
  int decimales;
  Tinta tinta;
};

class Diagrama {
 public:
  Diagrama(Plano& plano, const Marco& m, const Ley& ley, const PalabrasDibujo& w)
      : plano_(plano), ley_(ley), w_(w), marco_(m) {
    mayor_ = ley.f.Mayor();
    menor_ = ley.f.Menor();
    const double limite = std::max(std::fabs(mayor_.valor), std::fabs(menor_.valor));
    const double parte = limite > 0 ? kParteLey / limite : 0.0;
    const double sitio =
        std::max(8.0, std::min(m.ancho / 2 - kCifras, (m.alto - kTitulo) / 2 - kPie));
    radio_ = sitio / (1.0 + parte * std::max(0.0, mayor_.valor));
    porUnidad_ = radio_ * parte;
    centro_ = {m.Centro().x, m.y + kTitulo + (m.alto - kTitulo) / 2};
  }

  void Pinta() {
    plano_.En(Capa::Datos);
    const auto curva = Curva();
    plano_.Region({Circulo(), curva}, {ley_.tinta, 0.16});
    Radios();
    plano_.Circulo(centro_, radio_, {}, {Tinta::Tinta, kGrueso});
    plano_.Area(curva, {}, {ley_.tinta, 0.35});
    for (int s = 1; s <= kSecciones; ++s) Seccion(s);
    for (const auto* e : {&mayor_, &menor_}) Extremo(*e);
    plano_.En(Capa::Textos);
    plano_.Negrita({centro_.x, marco_.y + 4.0}, ley_.titulo + ", " + ley_.unidad, AnclaX::Centro,
                   AnclaY::Base);
  }

 private:
  static constexpr double kTitulo = 6.0;   // over the diagram [mm]
  static constexpr double kCifras = 15.0;  // beside it
  static constexpr double kPie = 6.0;      // over and under it

  Plano& plano_;
  const Ley& ley_;
  const PalabrasDibujo& w_;
  const Marco marco_;
  Xy centro_;
  double radio_ = 0, porUnidad_ = 0;
  FuncionAnillo::Extremo mayor_, menor_;

  double R(double valor) const { return radio_ + porUnidad_ * valor; }

  Puntos Circulo() const { return Arco(centro_, radio_, 0.0, 2.0 * kPi); }

  Puntos Curva() const {
    Puntos derecha, entera;
    for (int i = 0; i <= kPasos; ++i) {
      const double a = kPi * i / kPasos;
      derecha.push_back(Polar(centro_, R(ley_.f(a)), a));
    }
    entera = derecha;
    for (auto p = derecha.rbegin() + 1; p != derecha.rend(); ++p) {
      entera.push_back({2.0 * centro_.x - p->x, p->y});
    }
    return entera;
  }

  void Radios() {
    std::vector<Puntos> lineas;
    for (int grados = -165; grados <= 180; grados += 15) {
      const double a = grados * kPi / 180.0;
      lineas.push_back({Polar(centro_, radio_, a), Polar(centro_, R(ley_.f(std::fabs(a))), a)});
    }
    plano_.Quebradas(lineas, {ley_.tinta, kFino});
  }

  std::string Cifra(double valor) const {
    const std::string texto =
        TextoSigno(valor) +
        w_.Numero(std::fabs(w_.Convertido(valor, ley_.conversion)), ley_.decimales);
    return texto;
  }

  static std::string TextoSigno(double valor) { return valor > 0 ? "+" : valor < 0 ? "−" : ""; }

  // The figure stands beyond the ring and its diagram.
  void Seccion(int s) {
    const double a = (s - 1) * kPi / 2.0;
    const double valor = ley_.valores(s);
    const double fuera = std::max(radio_, R(valor)) + 2.0;
    plano_.En(Capa::Datos);
    const auto punto = [&](double angulo) {
      plano_.Linea(Polar(centro_, radio_, angulo), Polar(centro_, R(valor), angulo),
                   {ley_.tinta, 0.5});
      plano_.Circulo(Polar(centro_, R(valor), angulo), 0.8, {ley_.tinta, 1.0});
    };
    punto(a);
    if (s == RINONES) punto(-a);
    const Xy p = Polar(centro_, fuera, a);
    const auto x = s == RINONES ? AnclaX::Izquierda : AnclaX::Centro;
    const auto y = s == CLAVE ? AnclaY::Base : s == RINONES ? AnclaY::Medio : AnclaY::Arriba;
    plano_.Encima(p, Cifra(valor), x, y, kLetra, Tinta::Tinta, true);
  }

  // On the left half, where no figure of a section stands.
  void Extremo(const FuncionAnillo::Extremo& e) {
    for (const double seccion : {0.0, kPi / 2.0, kPi}) {
      if (std::fabs(e.angulo - seccion) < kNoEsSeccion) return;
    }
    if (porUnidad_ == 0) return;
    const Xy p = Polar(centro_, R(e.valor), -e.angulo);
    plano_.En(Capa::Datos);
    plano_.Circulo(p, 1.0, {Tinta::Papel, 1.0}, {ley_.tinta, 0.35});
    const Xy fuera = Polar(centro_, std::max(radio_, R(e.valor)) + 3.0, -e.angulo);
    if (R(e.valor) < radio_) plano_.Senal(fuera, p);
    plano_.Encima({fuera.x - 0.6, fuera.y}, Cifra(e.valor), AnclaX::Derecha, AnclaY::Base,
                  kLetraMenor);
    plano_.Encima({fuera.x - 0.6, fuera.y + 3.2}, w_.Corto(Grados(e.angulo), 0) + "°",
                  AnclaX::Derecha, AnclaY::Base, kLetraMenor, Tinta::Tenue);
  }
};

constexpr double kLineaNota = 4.4;

// A panel, which has no room, is told no more than what passes the three sections.
std::vector<std::string> Notas(const AnilloCaso& anillo, bool armado, bool panel,
                               const PalabrasDibujo& w) {
  std::vector<std::string> notas;
  if (!panel) {
    notas.push_back(w.T(txt::DibHaciaFuera));
    if (!armado) notas.push_back(w.T(txt::DibSinPresion));
    if (armado && anillo.presion > 0) {
      notas.push_back(w.Con(txt::DibConPresion, {w.Numero(anillo.presion, 1, "T->kN") + "/m"}));
    }
  }
  for (auto& texto : TextoExcesos(anillo, w)) notas.push_back(std::move(texto));
  return notas;
}

void PintaNotas(Plano& plano, const Marco& m, const std::vector<std::string>& notas) {
  double y = m.Abajo() - kLineaNota * static_cast<double>(notas.size() - 1) - 0.8;
  plano.En(Capa::Textos);
  for (const auto& nota : notas) {
    plano.Texto({m.x, y}, Recortado(nota, m.ancho, kLetraMenor), AnclaX::Izquierda, AnclaY::Base,
                kLetraMenor, Tinta::Tenue);
    y += kLineaNota;
  }
}

}  // namespace

std::vector<std::string> TextoExcesos(const AnilloCaso& anillo, const PalabrasDibujo& w) {
  if (anillo.sinMomento) return {w.T(txt::DibSinMomento)};
  std::vector<std::string> lineas;
  for (const bool interior : {true, false}) {
    const auto exceso = ExcesoDe(anillo, interior);
    if (!exceso) continue;
    lineas.push_back(
        w.Con(interior ? txt::DibExcesoInterior : txt::DibExcesoExterior,
              {w.Numero(100.0 * exceso->exceso, 0), w.Corto(Grados(exceso->extremo.angulo), 0)}));
  }
  if (lineas.empty()) lineas.push_back(w.T(txt::DibSinExceso));
  return lineas;
}

Lamina DibujaAnillo(const CasoDibujado& caso, int hipotesis, const PalabrasDibujo& w,
                    const HojaDibujo& hoja, LeyesDibujadas leyes) {
  const auto anillo = AnilloDe(caso.tramo, caso.fila, caso.caso, hipotesis);
  const bool armado = caso.caso.EsArmado();
  Lamina lamina = LaminaVacia(hoja);
  Plano plano(lamina);
  const Marco m = PonCabecera(
      plano, hoja,
      w.Con(txt::DibTituloAnillo, {TextoEntero(hipotesis), w.Hipotesis(armado, hipotesis)}),
      w.TramoEnLetra(caso.Datos()) + " · " + w.CasoEnLetra(caso.fila));
  const auto notas = Notas(anillo, armado, !hoja.cabecera, w);
  const double alturaNotas = kLineaNota * static_cast<double>(notas.size()) + 2.0;
  const Ley M{anillo.leyes.M, anillo.M, w.T(txt::DibMomentos), w.Unidad("mT->mkN") + "/m",
              "mT->mkN",      2,        Tinta::Serie3};
  const Ley N{anillo.leyes.N, anillo.N, w.T(txt::DibAxiles), w.Unidad("T->kN") + "/m",
              "T->kN",        1,        Tinta::Serie1};
  std::vector<const Ley*> pedidas;
  if (leyes != LeyesDibujadas::Axiles) pedidas.push_back(&M);
  if (leyes != LeyesDibujadas::Momentos) pedidas.push_back(&N);
  Marco sitio{m.x, m.y, m.ancho / static_cast<double>(pedidas.size()), m.alto - alturaNotas};
  for (const Ley* ley : pedidas) {
    Diagrama(plano, sitio, *ley, w).Pinta();
    sitio.x += sitio.ancho;
  }
  PintaNotas(plano, m, notas);
  return lamina;
}

}  // namespace zorbin
