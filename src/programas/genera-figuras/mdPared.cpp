#include "programas/genera-figuras/mdPared.h"

#include <numbers>
#include <span>

#include "programas/genera-figuras/mdTramas.h"

namespace zorbin::figuras {

namespace {

constexpr double kEspesor = 17.0;  // drawn thickness of the wall [mm]

/// Concrete of the wall between two distances from the inner face [mm].
struct Capa {
  double desde, hasta;
  Material material;
};

enum class Forma { Chapa, Vuelta, Longitudinal };

/// Steel of the wall: distance of its axis from the inner face, thickness or diameter, and spacing
/// [mm]; a sheet has no spacing.
struct Acero {
  Forma forma;
  double eje, grueso, paso;
};

/// `ri` reaches from the inner face outwards, `re` from the outer face inwards [mm].
struct Composicion {
  std::span<const Capa> capas;
  std::span<const Acero> aceros;
  double ri, re;
};

constexpr Capa kCapasEmbebida[] = {{0.0, 12.0, Material::Hormigon},
                                   {12.0, kEspesor, Material::Mortero}};
constexpr Acero kAcerosEmbebida[] = {{Forma::Chapa, 5.35, 0.7, 0.0},
                                     {Forma::Vuelta, 12.6, 1.2, 2.6}};
constexpr Capa kCapasRevestida[] = {{0.0, 11.3, Material::Hormigon},
                                    {12.0, kEspesor, Material::Mortero}};
constexpr Acero kAcerosRevestida[] = {{Forma::Chapa, 11.65, 0.7, 0.0},
                                      {Forma::Vuelta, 12.6, 1.2, 2.6}};
constexpr Capa kCapasArmado[] = {{0.0, kEspesor, Material::Hormigon}};
constexpr Acero kAcerosArmado[] = {{Forma::Chapa, 5.0, 0.7, 0.0},
                                   {Forma::Vuelta, 5.95, 1.2, 4.2},
                                   {Forma::Longitudinal, 11.05, 0.7, 5.2},
                                   {Forma::Vuelta, 12.0, 1.2, 4.2}};

Composicion ComposicionDe(Pared pared) {
  switch (pared) {
    case Pared::CamisaEmbebida:
      return {kCapasEmbebida, kAcerosEmbebida, 5.0, 5.0};
    case Pared::CamisaRevestida:
      return {kCapasRevestida, kAcerosRevestida, 12.0, 5.0};
    case Pared::Armado:
      break;
  }
  return {kCapasArmado, kAcerosArmado, 5.0, 5.0};
}

/// One of the two sections of the wall; both show the same layers and steels, each in its own
/// shape.
class Vista {
 public:
  explicit Vista(const Composicion& composicion) : c_(composicion) {}
  virtual ~Vista() = default;

  void Pinta(Lapiz& lapiz) const {
    QPainterPath aceros;
    for (const Acero& a : c_.aceros) aceros.addPath(Camino(a));
    for (const Capa& capa : c_.capas) {
      Trama(lapiz, Region(capa.desde, capa.hasta).subtracted(aceros), capa.material);
      if (capa.desde > 0.0) lapiz.Contorno(Cara(capa.desde), Trazo::Fino);
    }
    for (const Acero& a : c_.aceros) PintaAcero(lapiz, a);
    PintaBordes(lapiz);
  }

  virtual void Acota(Lapiz& lapiz) const = 0;

 protected:
  const Composicion& Partes() const { return c_; }

  /// The wall between two distances from the inner face, and the surface at one.
  virtual QPainterPath Region(double desde, double hasta) const = 0;
  virtual QPainterPath Cara(double distancia) const = 0;
  virtual QPainterPath Camino(const Acero& a) const = 0;
  virtual void PintaBordes(Lapiz& lapiz) const = 0;
  /// The bars that this section meets along their axis; it cuts the others across.
  virtual Forma ALoLargo() const = 0;

 private:
  void PintaAcero(Lapiz& lapiz, const Acero& a) const {
    constexpr int kGrisBarra = 205;
    if (a.forma != ALoLargo()) return lapiz.Mancha(Camino(a));
    lapiz.Mancha(Camino(a), kGrisBarra);
    lapiz.Contorno(Camino(a), Trazo::Fino);
  }

  const Composicion& c_;
};

/// Sector of the cross section, seen along the pipe.
class Sector final : public Vista {
 public:
  using Vista::Vista;

  void Acota(Lapiz& lapiz) const override {
    AcotaRadio(lapiz, -13.0, 18.5, 0.0, "D_i/2");
    AcotaRadio(lapiz, kSemi + 5.0, 20.5, kEspesor, "D_e/2");
    lapiz.Contorno(Arco(kCentro, kInterior + kEspesor, kSemi + 1.0, kSemi + 6.3), Trazo::Fino);
  }

 protected:
  QPainterPath Region(double desde, double hasta) const override {
    QPainterPath region = Cara(desde);
    region.connectPath(Cara(hasta).toReversed());
    region.closeSubpath();
    return region;
  }

  QPainterPath Cara(double distancia) const override {
    return Arco(kCentro, kInterior + distancia, -kSemi, kSemi);
  }

  QPainterPath Camino(const Acero& a) const override {
    if (a.forma != Forma::Longitudinal) return Banda(Cara(a.eje), a.grueso);
    const double paso = a.paso / (kInterior + a.eje) * 180.0 / std::numbers::pi;
    const int lado = static_cast<int>((kSemi - paso / 4.0) / paso);
    QPainterPath barras;
    for (int i = -lado; i <= lado; ++i) {
      barras.addPath(Circulo(Polar(kCentro, kInterior + a.eje, i * paso), a.grueso / 2.0));
    }
    return barras;
  }

  void PintaBordes(Lapiz& lapiz) const override {
    lapiz.Contorno(Region(0.0, kEspesor), Trazo::Grueso);
  }

  Forma ALoLargo() const override { return Forma::Vuelta; }

 private:
  static constexpr double kInterior = 26.0;  // inner radius [mm]
  static constexpr double kSemi = 31.0;      // half angle of the sector [degrees]
  static constexpr QPointF kCentro{26.5, 45.5};

  /// Radius from `arranque` to the distance `cara` from the inner face; its centre isn't shown.
  static void AcotaRadio(Lapiz& lapiz, double grados, double arranque, double cara,
                         const QString& texto) {
    const QPointF pie = Polar(kCentro, arranque, grados);
    const QPointF punta = Polar(kCentro, kInterior + cara, grados);
    lapiz.Linea(pie, punta, Trazo::Fino);
    lapiz.Flecha(pie, punta);
    lapiz.Rotulo(pie, texto);
  }
};

/// Longitudinal section: outer face on top.
class Tira final : public Vista {
 public:
  using Vista::Vista;

  void Acota(Lapiz& lapiz) const override {
    const QPointF fuera(3.5, 0.0);
    const double ri = Partes().ri;
    const double re = kEspesor - Partes().re;
    lapiz.Cota({kIzquierda, Y(0.0)}, {kIzquierda, Y(ri)}, "r_i", -fuera);
    lapiz.Cota({kIzquierda, Y(re)}, {kIzquierda, Y(kEspesor)}, "r_e", -fuera);
    lapiz.Cota({kDerecha, Y(0.0)}, {kDerecha, Y(kEspesor)}, "e", fuera);
  }

 protected:
  QPainterPath Region(double desde, double hasta) const override {
    QPainterPath region;
    region.addRect(QRectF({kIzquierda, Y(hasta)}, QPointF{kDerecha, Y(desde)}));
    return region;
  }

  QPainterPath Cara(double distancia) const override {
    return Poligonal({{kIzquierda, Y(distancia)}, {kDerecha, Y(distancia)}});
  }

  QPainterPath Camino(const Acero& a) const override {
    if (a.forma != Forma::Vuelta) return Region(a.eje - a.grueso / 2.0, a.eje + a.grueso / 2.0);
    const int vueltas = static_cast<int>((kDerecha - kIzquierda - a.grueso) / a.paso);
    const double medio = (kIzquierda + kDerecha) / 2.0;
    QPainterPath cortes;
    for (int i = 0; i < vueltas; ++i) {
      const double x = medio + (i - (vueltas - 1) / 2.0) * a.paso;
      cortes.addPath(Circulo({x, Y(a.eje)}, a.grueso / 2.0));
    }
    return cortes;
  }

  void PintaBordes(Lapiz& lapiz) const override {
    for (const double cara : {0.0, kEspesor}) lapiz.Contorno(Cara(cara), Trazo::Grueso);
    for (const double x : {kIzquierda, kDerecha}) {
      lapiz.Contorno(LineaRotura({x, Y(kEspesor)}, {x, Y(0.0)}), Trazo::Fino);
    }
  }

  Forma ALoLargo() const override { return Forma::Longitudinal; }

 private:
  static constexpr double kIzquierda = 9.0, kDerecha = 47.0;
  static constexpr double kCaraInterior = 53.0;  // height on the sheet [mm]

  static double Y(double distancia) { return kCaraInterior - distancia; }
};

}  // namespace

void DibujaPared(Lapiz& lapiz, Pared pared) {
  const Composicion composicion = ComposicionDe(pared);
  const Sector sector(composicion);
  const Tira tira(composicion);
  for (const Vista* vista :
       {static_cast<const Vista*>(&sector), static_cast<const Vista*>(&tira)}) {
    vista->Pinta(lapiz);
    vista->Acota(lapiz);
  }
}

}  // namespace zorbin::figuras
