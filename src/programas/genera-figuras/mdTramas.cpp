#include "programas/genera-figuras/mdTramas.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <vector>

namespace zorbin::figuras {

namespace {

enum class Forma { Punto, Canto, Triangulo };

/// Grains of one shape: radius from `radioMin` to `radioMax`, no two centres of all the shapes of a
/// material nearer than `separacion` [mm].
struct Grano {
  Forma forma;
  double radioMin, radioMax;
  double separacion;
};

// The large grains come first and the small ones fill the gaps.
constexpr std::array kRelleno{Grano{Forma::Punto, 0.09, 0.09, 1.7}};
constexpr std::array kGranular{Grano{Forma::Canto, 0.42, 0.62, 1.35},
                               Grano{Forma::Canto, 0.22, 0.30, 0.95},
                               Grano{Forma::Punto, 0.08, 0.08, 0.62}};
constexpr std::array kHormigon{Grano{Forma::Triangulo, 0.42, 0.58, 2.5},
                               Grano{Forma::Punto, 0.10, 0.10, 0.95}};
constexpr std::array kMortero{Grano{Forma::Punto, 0.10, 0.10, 0.66}};

/// Even numbers in [0, 1). The standard distributions differ between libraries; the engine doesn't.
class Azar {
 public:
  double Siguiente() { return static_cast<double>(motor_()) / 4294967296.0; }
  double Entre(double a, double b) { return a + (b - a) * Siguiente(); }

 private:
  std::mt19937 motor_;
};

struct Sitio {
  QPointF centro;
  double radio;
};

bool Dentro(const QPainterPath& region, const Sitio& s) {
  constexpr double kMargen = 0.3;  // clear of the outline, half of which lies inside [mm]
  for (double grados = 0.0; grados < 360.0; grados += 45.0) {
    if (!region.contains(Polar(s.centro, s.radio + kMargen, grados))) return false;
  }
  return true;
}

bool Libre(const std::vector<Sitio>& sitios, const Sitio& s, double separacion) {
  for (const Sitio& otro : sitios) {
    const QPointF d = otro.centro - s.centro;
    const double minimo = std::max(separacion, otro.radio + s.radio + 0.15);
    if (QPointF::dotProduct(d, d) < minimo * minimo) return false;
  }
  return true;
}

void PintaGrano(Lapiz& lapiz, Forma forma, const Sitio& s, double giro) {
  switch (forma) {
    case Forma::Punto:
      lapiz.Mancha(Circulo(s.centro, s.radio));
      break;
    case Forma::Canto:
      lapiz.Contorno(Circulo(s.centro, s.radio), 0.12);
      break;
    case Forma::Triangulo:
      lapiz.Contorno(
          Poligono({Polar(s.centro, s.radio, giro), Polar(s.centro, s.radio, giro + 120.0),
                    Polar(s.centro, s.radio, giro + 240.0)}),
          0.12);
      break;
  }
}

template <std::size_t N>
void Siembra(Lapiz& lapiz, const QPainterPath& region, const std::array<Grano, N>& granos) {
  constexpr double kIntentosPorGrano = 12.0;
  const QRectF caja = region.boundingRect();
  Azar azar;
  std::vector<Sitio> sitios;
  for (const Grano& g : granos) {
    const double cabrian = caja.width() * caja.height() / (g.separacion * g.separacion);
    const int intentos = static_cast<int>(cabrian * kIntentosPorGrano);
    for (int i = 0; i < intentos; ++i) {
      const double x = azar.Entre(caja.left(), caja.right());
      const double y = azar.Entre(caja.top(), caja.bottom());
      const Sitio s{{x, y}, azar.Entre(g.radioMin, g.radioMax)};
      if (!Libre(sitios, s, g.separacion) || !Dentro(region, s)) continue;
      sitios.push_back(s);
      PintaGrano(lapiz, g.forma, s, azar.Entre(0.0, 120.0));
    }
  }
}

}  // namespace

void Trama(Lapiz& lapiz, const QPainterPath& region, Material material) {
  switch (material) {
    case Material::Relleno:
      return Siembra(lapiz, region, kRelleno);
    case Material::Granular:
      return Siembra(lapiz, region, kGranular);
    case Material::Hormigon:
      return Siembra(lapiz, region, kHormigon);
    case Material::Mortero:
      return Siembra(lapiz, region, kMortero);
  }
}

void TramaTerreno(Lapiz& lapiz, const QPainterPath& perfil, const QPainterPath& terreno) {
  constexpr double kBanda = 2.3;  // depth of the band [mm]
  constexpr double kPaso = 1.05;  // between strokes, across the sheet [mm]
  constexpr int kGrupo = 3;       // strokes of a group ...
  constexpr int kCiclo = 5;       // ... and the strokes that would fit with its gap
  lapiz.Recorta(Banda(perfil, 2.0 * kBanda).intersected(terreno));
  const double alto = lapiz.Hoja().height();
  const int trazos = static_cast<int>((lapiz.Hoja().width() + alto) / kPaso);
  for (int i = 0; i < trazos; ++i) {
    if (i % kCiclo >= kGrupo) continue;
    const double x = i * kPaso;
    lapiz.Linea({x, 0.0}, {x - alto, alto}, Trazo::Fino);
  }
  lapiz.Suelta();
}

}  // namespace zorbin::figuras
