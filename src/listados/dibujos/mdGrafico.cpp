#include "listados/dibujos/mdGrafico.h"

#include <algorithm>
#include <cmath>

namespace zorbin {

namespace {

constexpr double kMuestra = 7.0;  // of a line in the legend [mm]
constexpr double kLineaLeyenda = 4.8;
constexpr std::size_t kPocosPuntos = 16;  // a line of so few shows where they are
constexpr double kMargen = 1e-9;

double PasoRedondo(double ancho, int cuantas) {
  const double bruto = ancho / std::max(1, cuantas);
  const double decena = std::pow(10.0, std::floor(std::log10(bruto)));
  for (const double k : {1.0, 2.0, 5.0}) {
    if (k * decena >= bruto * (1.0 - kMargen)) return k * decena;
  }
  return 10.0 * decena;
}

double Parte(const EjeGrafico& e, double v) {
  const double u = e.hasta != e.desde ? (v - e.desde) / (e.hasta - e.desde) : 0.5;
  return e.alReves ? 1.0 - u : u;
}

double Valor(const EjeGrafico& e, double parte) {
  return e.desde + (e.alReves ? 1.0 - parte : parte) * (e.hasta - e.desde);
}

// The segment from `a` to `b` within the frame; false where nothing of it is.
bool Recorta(const Marco& m, Xy& a, Xy& b) {
  double u0 = 0, u1 = 1;
  const double dx = b.x - a.x, dy = b.y - a.y;
  const auto lado = [&](double p, double q) {
    if (p == 0) return q >= 0;
    const double u = q / p;
    if (p < 0) u0 = std::max(u0, u);
    if (p > 0) u1 = std::min(u1, u);
    return u0 <= u1;
  };
  if (!lado(-dx, a.x - m.x) || !lado(dx, m.Derecha() - a.x) || !lado(-dy, a.y - m.y) ||
      !lado(dy, m.Abajo() - a.y)) {
    return false;
  }
  const Xy desde = a;
  a = {desde.x + u0 * dx, desde.y + u0 * dy};
  b = {desde.x + u1 * dx, desde.y + u1 * dy};
  return true;
}

std::vector<Puntos> Trozos(const EjesEnLamina& ejes, const std::vector<Xy>& puntos) {
  std::vector<Puntos> trozos;
  Xy ultimo{};
  bool sigue = false;
  for (std::size_t i = 1; i < puntos.size(); ++i) {
    const Xy &p = puntos[i - 1], &q = puntos[i];
    if (!std::isfinite(p.x + p.y + q.x + q.y)) {
      sigue = false;
      continue;
    }
    Xy a = ejes.P(p.x, p.y), b = ejes.P(q.x, q.y);
    if (!Recorta(ejes.marco, a, b)) {
      sigue = false;
      continue;
    }
    if (sigue && std::hypot(a.x - ultimo.x, a.y - ultimo.y) < 1e-6) {
      trozos.back().push_back(b);
    } else {
      trozos.push_back({a, b});
    }
    ultimo = b;
    sigue = true;
  }
  return trozos;
}

}  // namespace

Xy EjesEnLamina::P(double vx, double vy) const {
  return {marco.x + Parte(x, vx) * marco.ancho, marco.Abajo() - Parte(y, vy) * marco.alto};
}

Xy EjesEnLamina::Valores(Xy p) const {
  return {Valor(x, (p.x - marco.x) / marco.ancho), Valor(y, (marco.Abajo() - p.y) / marco.alto)};
}

bool EjesEnLamina::Contiene(Xy p) const {
  return p.x >= marco.x && p.x <= marco.Derecha() && p.y >= marco.y && p.y <= marco.Abajo();
}

std::string ValoresEn(const EjesEnLamina& ejes, Xy sitio, const PalabrasDibujo& w) {
  const Xy v = ejes.Valores(sitio);
  return ejes.x.titulo + ": " + w.Numero(v.x, 2) + "   " + ejes.y.titulo + ": " + w.Numero(v.y, 2);
}

std::vector<double> Marcas(double desde, double hasta, int cuantas) {
  std::vector<double> v;
  if (!(hasta > desde) || !std::isfinite(hasta - desde)) return {desde};
  const double paso = PasoRedondo(hasta - desde, cuantas);
  const double margen = paso * 1e-6;
  for (double k = std::ceil((desde - margen) / paso); k * paso <= hasta + margen; ++k) {
    v.push_back(k == 0 ? 0.0 : k * paso);
  }
  return v;
}

int DecimalesDe(const std::vector<double>& marcas) {
  if (marcas.size() < 2) return 2;
  const double paso = marcas[1] - marcas[0];
  return std::clamp(static_cast<int>(std::ceil(-std::log10(paso) - 1e-6)), 0, 6);
}

EjeGrafico EjeRedondo(std::string titulo, double minimo, double maximo) {
  if (!(maximo > minimo)) {
    const double lado = maximo != 0 ? std::fabs(maximo) * 0.1 : 1.0;
    minimo -= lado;
    maximo += lado;
  }
  const double paso = PasoRedondo(maximo - minimo, 6);
  return {std::move(titulo), std::floor(minimo / paso + kMargen) * paso,
          std::ceil(maximo / paso - kMargen) * paso};
}

void PintaEjes(Plano& plano, const EjesEnLamina& e, const PalabrasDibujo& w, bool rejilla) {
  const Marco& m = e.marco;
  const auto xs = Marcas(e.x.desde, e.x.hasta, std::max(4, static_cast<int>(m.ancho / 22.0)));
  const auto ys = Marcas(e.y.desde, e.y.hasta, std::max(4, static_cast<int>(m.alto / 14.0)));
  plano.En(Capa::Ejes);
  const Trazo hilo{Tinta::Rejilla, kFino}, marca{Tinta::Tenue, kFino};
  for (const double v : xs) {
    const double x = e.P(v, e.y.desde).x;
    if (rejilla) plano.Linea({x, m.y}, {x, m.Abajo()}, hilo);
    plano.Linea({x, m.Abajo()}, {x, m.Abajo() + 1.2}, marca);
    plano.Texto({x, m.Abajo() + 2.0}, w.Numero(v, DecimalesDe(xs)), AnclaX::Centro, AnclaY::Arriba,
                kLetraMenor, Tinta::Tenue);
  }
  for (const double v : ys) {
    const double y = e.P(e.x.desde, v).y;
    if (rejilla) plano.Linea({m.x, y}, {m.Derecha(), y}, hilo);
    plano.Linea({m.x - 1.2, y}, {m.x, y}, marca);
    plano.Texto({m.x - 2.0, y}, w.Numero(v, DecimalesDe(ys)), AnclaX::Derecha, AnclaY::Medio,
                kLetraMenor, Tinta::Tenue);
  }
  plano.Area(Rectangulo(m), {}, marca);
  plano.Texto({m.Centro().x, m.Abajo() + 9.6}, e.x.titulo, AnclaX::Centro, AnclaY::Base);
  plano.TextoVertical({m.x - 12.5, m.Centro().y}, e.y.titulo);
}

void PintaSeries(Plano& plano, const EjesEnLamina& ejes, const std::vector<SerieGrafico>& series) {
  plano.En(Capa::Datos);
  for (std::size_t i = 0; i < series.size(); ++i) {
    const auto& s = series[i];
    plano.Id(static_cast<int>(i));
    plano.Quebradas(Trozos(ejes, s.puntos), {s.tinta, 0.45, s.patron});
    if (s.puntos.size() <= kPocosPuntos) {
      for (const auto& p : s.puntos) {
        if (!std::isfinite(p.x + p.y)) continue;
        const Xy q = ejes.P(p.x, p.y);
        if (ejes.Contiene(q)) plano.Circulo(q, 0.8, {s.tinta, 1.0});
      }
    }
  }
  plano.Id(kSinId);
}

void PintaLeyendaSeries(Plano& plano, Xy sitio, const std::vector<SerieGrafico>& series) {
  plano.En(Capa::Textos);
  for (const auto& s : series) {
    plano.Linea({sitio.x, sitio.y - 1.0}, {sitio.x + kMuestra, sitio.y - 1.0},
                {s.tinta, 0.5, s.patron});
    plano.Texto({sitio.x + kMuestra + 1.8, sitio.y}, s.nombre, AnclaX::Izquierda, AnclaY::Base,
                kLetraMenor);
    sitio.y += kLineaLeyenda;
  }
}

double AnchoLeyenda(const std::vector<SerieGrafico>& series) {
  double ancho = 0;
  for (const auto& s : series) ancho = std::max(ancho, AnchoTexto(s.nombre, kLetraMenor));
  return series.empty() ? 0.0 : kMuestra + 1.8 + ancho;
}

LaminaConEjes DibujaGrafico(const std::string& titulo, const std::string& subtitulo,
                            const EjeGrafico& x, const EjeGrafico& y,
                            const std::vector<SerieGrafico>& series, const PalabrasDibujo& w,
                            const HojaDibujo& hoja) {
  LaminaConEjes l{LaminaVacia(hoja), {{}, x, y}};
  Plano plano(l.lamina);
  const Marco m = PonCabecera(plano, hoja, titulo, subtitulo);
  const double leyenda = AnchoLeyenda(series) + 5.0;
  l.ejes.marco = {m.x + kMargenEjeY, m.y + 3.0, m.ancho - kMargenEjeY - leyenda - 1.0,
                  m.alto - 4.0 - kMargenEjeX};
  PintaEjes(plano, l.ejes, w);
  PintaSeries(plano, l.ejes, series);
  PintaLeyendaSeries(plano, {l.ejes.marco.Derecha() + 4.0, l.ejes.marco.y + 3.0}, series);
  return l;
}

}  // namespace zorbin
