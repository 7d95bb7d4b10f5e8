#include "listados/dibujos/mdLamina.h"

#include <array>
#include <cmath>

namespace zorbin {

namespace {

// Widths of Helvetica from the blank to '~', in thousandths of the em square.
constexpr std::array<short, 95> kAnchos{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr double kOtros = 0.556;    // of the letters beyond ASCII
constexpr double kNegrita = 1.065;  // bold letters are wider by some
constexpr double kAscenso = 0.72;   // capitals over the baseline
constexpr double kDescenso = 0.21;  // under it

double Distancia(Xy p, Xy a, Xy b) {
  const double dx = b.x - a.x, dy = b.y - a.y;
  const double largo2 = dx * dx + dy * dy;
  double u = largo2 > 0 ? ((p.x - a.x) * dx + (p.y - a.y) * dy) / largo2 : 0.0;
  u = std::fmin(1.0, std::fmax(0.0, u));
  return std::hypot(p.x - a.x - u * dx, p.y - a.y - u * dy);
}

bool Toca(const Forma& f, Xy p, double margen) {
  bool dentro = false;
  bool cerca = false;
  for (const auto& c : f.contornos) {
    const std::size_t n = c.size();
    for (std::size_t i = 0; i < n; ++i) {
      if (i + 1 == n && !f.cerrada) break;
      const Xy a = c[i], b = c[(i + 1) % n];
      cerca = cerca || Distancia(p, a, b) <= margen;
      if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x)) {
        dentro = !dentro;
      }
    }
  }
  return cerca || (f.cerrada && f.mancha.fuerza > 0 && dentro);
}

bool Toca(const Redondo& c, Xy p, double margen) {
  const double d = std::hypot(p.x - c.centro.x, p.y - c.centro.y);
  if (std::fabs(d - c.radio) <= margen) return true;
  return c.mancha.fuerza > 0 && d < c.radio && d > c.hueco;
}

bool Toca(const Letrero&, Xy, double) {
  return false;
}

}  // namespace

const char* NombreCapa(Capa capa) {
  constexpr std::array<const char*, kCapas> kNombres{
      "TERRENO",  "RELLENO", "CUNA", "AGUA",   "HORMIGON", "REVESTIMIENTO", "CHAPA", "INTERIOR",
      "EXTERIOR", "ALAMBRE", "EJES", "TRAMAS", "DATOS",    "COTAS",         "TEXTOS"};
  return kNombres[static_cast<std::size_t>(capa)];
}

int QueHayEn(const Lamina& lamina, Xy sitio, double margen) {
  for (auto p = lamina.piezas.rbegin(); p != lamina.piezas.rend(); ++p) {
    const int id = std::visit(
        [&](const auto& x) { return x.id != kSinId && Toca(x, sitio, margen) ? x.id : kSinId; },
        *p);
    if (id != kSinId) return id;
  }
  return kSinId;
}

double AnchoTexto(const std::string& texto, double alto, bool negrita) {
  double ancho = 0;
  for (const char letra : texto) {
    const auto c = static_cast<unsigned char>(letra);
    if ((c & 0xC0u) == 0x80u) continue;  // the rest of a letter beyond ASCII
    if (c < 0x80) {
      ancho += c < ' ' ? 0.0 : kAnchos[c - static_cast<unsigned char>(' ')] / 1000.0;
    } else {
      ancho += kOtros;
    }
  }
  return ancho * alto * (negrita ? kNegrita : 1.0);
}

Marco CajaTexto(const Letrero& r) {
  const double ancho = AnchoTexto(r.texto, r.alto, r.negrita);
  Marco m{r.sitio.x, r.sitio.y, ancho, (kAscenso + kDescenso) * r.alto};
  if (r.anclaX == AnclaX::Centro) m.x -= ancho / 2;
  if (r.anclaX == AnclaX::Derecha) m.x -= ancho;
  if (r.anclaY == AnclaY::Base) m.y -= kAscenso * r.alto;
  if (r.anclaY == AnclaY::Medio) m.y -= kAscenso * r.alto / 2;
  return m;
}

}  // namespace zorbin
