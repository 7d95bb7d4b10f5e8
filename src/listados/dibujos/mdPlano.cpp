#include "listados/dibujos/mdPlano.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zorbin {

namespace {

constexpr double kPasoArco = 2.0 * std::numbers::pi / 180.0;
constexpr double kTope = 1.0;        // half of the stroke that ends a dimension [mm]
constexpr double kSobra = 1.2;       // of an extension line beyond its dimension [mm]
constexpr double kSeparacion = 0.8;  // of a figure from its line [mm]

// Lines of a hatch turned by `angulo` [rad], a step apart, inside the region.
std::vector<Puntos> Lineas(const std::vector<Puntos>& contornos, double angulo, double paso) {
  const double c = std::cos(angulo), s = std::sin(angulo);
  const auto gira = [&](Xy p) { return Xy{c * p.x + s * p.y, -s * p.x + c * p.y}; };
  const auto deshace = [&](Xy p) { return Xy{c * p.x - s * p.y, s * p.x + c * p.y}; };
  double minimo = 1e300, maximo = -1e300;
  std::vector<Puntos> girados = contornos;
  for (auto& contorno : girados) {
    for (auto& p : contorno) {
      p = gira(p);
      minimo = std::min(minimo, p.y);
      maximo = std::max(maximo, p.y);
    }
  }
  std::vector<Puntos> lineas;
  for (double y = (std::floor(minimo / paso) + 0.5) * paso; y < maximo; y += paso) {
    std::vector<double> cortes;
    for (const auto& q : girados) {
      for (std::size_t i = 0; i < q.size(); ++i) {
        const Xy a = q[i], b = q[(i + 1) % q.size()];
        if ((a.y > y) == (b.y > y)) continue;
        cortes.push_back(a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x));
      }
    }
    std::sort(cortes.begin(), cortes.end());
    for (std::size_t i = 0; i + 1 < cortes.size(); i += 2) {
      lineas.push_back({deshace({cortes[i], y}), deshace({cortes[i + 1], y})});
    }
  }
  return lineas;
}

// A number of 0 to 1 that belongs to a cell of a grid.
double Azar(int i, int j, unsigned cual) {
  unsigned h = static_cast<unsigned>(i) * 374761393u + static_cast<unsigned>(j) * 668265263u +
               cual * 2246822519u;
  h = (h ^ (h >> 13u)) * 1274126177u;
  return ((h ^ (h >> 16u)) & 0xFFFFu) / 65535.0;
}

bool Dentro(const std::vector<Puntos>& contornos, Xy p) {
  bool dentro = false;
  for (const auto& c : contornos) {
    for (std::size_t i = 0; i < c.size(); ++i) {
      const Xy a = c[i], b = c[(i + 1) % c.size()];
      if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x)) {
        dentro = !dentro;
      }
    }
  }
  return dentro;
}

// One grain: a speck of sand, a stone of gravel, a triangle of aggregate, three strokes of earth.
Puntos Grano(Trama trama, Xy p, double tamano, double giro) {
  const auto en = [&](double r, double a) { return Polar(p, r * tamano, giro + a); };
  switch (trama) {
    case Trama::Grava: {
      Puntos piedra;
      for (int k = 0; k <= 8; ++k) {
        const double a = k * std::numbers::pi / 4.0;
        piedra.push_back(en(k % 2 == 0 ? 0.36 : 0.29, a));
      }
      return piedra;
    }
    case Trama::Hormigon: {
      const double a = 2.0 * std::numbers::pi / 3.0;
      return {en(0.22, 0), en(0.22, a), en(0.22, -a), en(0.22, 0)};
    }
    case Trama::Tierra:
      return {{p.x - 0.35 * tamano, p.y}, {p.x + 0.35 * tamano, p.y}};
    default:
      return {{p.x - 0.06, p.y}, {p.x + 0.06, p.y}};
  }
}

std::vector<Puntos> Granos(const std::vector<Puntos>& contornos, Trama trama, double paso) {
  Xy minimo{1e300, 1e300}, maximo{-1e300, -1e300};
  for (const auto& c : contornos) {
    for (const auto& p : c) {
      minimo = {std::min(minimo.x, p.x), std::min(minimo.y, p.y)};
      maximo = {std::max(maximo.x, p.x), std::max(maximo.y, p.y)};
    }
  }
  std::vector<Puntos> granos;
  const int columnas = static_cast<int>((maximo.x - minimo.x) / paso) + 1;
  const int filas = static_cast<int>((maximo.y - minimo.y) / paso) + 1;
  for (int j = 0; j < filas; ++j) {
    for (int i = 0; i < columnas; ++i) {
      const double corrida = trama == Trama::Tierra ? 0.5 * (j % 2) : 0.15 + 0.7 * Azar(i, j, 1);
      const double bajada = trama == Trama::Tierra ? 0.5 : 0.15 + 0.7 * Azar(i, j, 2);
      const Xy p{minimo.x + (i + corrida) * paso, minimo.y + (j + bajada) * paso};
      const auto grano = Grano(trama, p, paso, Azar(i, j, 3) * 2.0 * std::numbers::pi);
      const bool cabe =
          std::all_of(grano.begin(), grano.end(), [&](Xy q) { return Dentro(contornos, q); });
      if (cabe) granos.push_back(grano);
    }
  }
  return granos;
}

void Anade(std::vector<Puntos>& a, std::vector<Puntos> b) {
  a.insert(a.end(), std::make_move_iterator(b.begin()), std::make_move_iterator(b.end()));
}

std::vector<Puntos> LineasDe(const std::vector<Puntos>& contornos, Trama trama, double paso) {
  constexpr double kRecto = std::numbers::pi / 2.0;
  switch (trama) {
    case Trama::Ninguna:
      return {};
    case Trama::Diagonal:
      return Lineas(contornos, -kRecto / 2.0, paso);
    case Trama::Contraria:
      return Lineas(contornos, kRecto / 2.0, paso);
    case Trama::Horizontal:
      return Lineas(contornos, 0.0, paso);
    case Trama::Vertical:
      return Lineas(contornos, kRecto, paso);
    case Trama::Cruzada: {
      auto lineas = Lineas(contornos, -kRecto / 2.0, paso);
      Anade(lineas, Lineas(contornos, kRecto / 2.0, paso));
      return lineas;
    }
    default:
      return Granos(contornos, trama, paso);
  }
}

}  // namespace

Puntos Rectangulo(const Marco& m) {
  return {{m.x, m.y}, {m.Derecha(), m.y}, {m.Derecha(), m.Abajo()}, {m.x, m.Abajo()}};
}

Xy Polar(Xy centro, double radio, double angulo) {
  return {centro.x + radio * std::sin(angulo), centro.y - radio * std::cos(angulo)};
}

Puntos Arco(Xy centro, double radio, double desde, double hasta) {
  const int n = std::max(2, static_cast<int>(std::ceil(std::fabs(hasta - desde) / kPasoArco)));
  Puntos p;
  for (int i = 0; i <= n; ++i) p.push_back(Polar(centro, radio, desde + (hasta - desde) * i / n));
  return p;
}

void Plano::EnDetalle(double escala) {
  lamina_.detalles.push_back(escala);
  vista_ = static_cast<int>(lamina_.detalles.size());
}

void Plano::Quebrada(Puntos puntos, Trazo trazo) {
  Quebradas({std::move(puntos)}, trazo);
}

void Plano::Quebradas(std::vector<Puntos> lineas, Trazo trazo) {
  if (lineas.empty()) return;
  lamina_.piezas.emplace_back(Forma{Como({}, trazo), std::move(lineas), false});
}

void Plano::Area(Puntos contorno, Mancha mancha, Trazo trazo) {
  Region({std::move(contorno)}, mancha, trazo);
}

void Plano::Region(std::vector<Puntos> contornos, Mancha mancha, Trazo trazo) {
  lamina_.piezas.emplace_back(Forma{Como(mancha, trazo), std::move(contornos), true});
}

void Plano::Circulo(Xy centro, double radio, Mancha mancha, Trazo trazo) {
  Corona(centro, radio, 0.0, mancha, trazo);
}

void Plano::Corona(Xy centro, double radio, double hueco, Mancha mancha, Trazo trazo) {
  lamina_.piezas.emplace_back(Redondo{Como(mancha, trazo), centro, radio, hueco});
}

void Plano::Rayado(const std::vector<Puntos>& contornos, Trama trama, Tinta tinta, double paso) {
  const double grueso = trama == Trama::Puntos ? 0.3 : kFino;
  const Capa antes = capa_;
  En(Capa::Tramas);
  Quebradas(LineasDe(contornos, trama, paso), {tinta, grueso});
  En(antes);
}

Letrero Plano::RotuloDe(Xy sitio, std::string texto, double alto, Tinta tinta) const {
  Letrero r;
  static_cast<AspectoPieza&>(r) = {
      {tinta, 0.0}, {}, capa_ == Capa::Cotas ? Capa::Cotas : Capa::Textos, kSinId, 0.0, vista_};
  r.sitio = sitio;
  r.texto = std::move(texto);
  r.alto = alto;
  return r;
}

void Plano::Texto(Xy sitio, std::string texto, AnclaX x, AnclaY y, double alto, Tinta tinta) {
  auto r = RotuloDe(sitio, std::move(texto), alto, tinta);
  r.anclaX = x;
  r.anclaY = y;
  lamina_.piezas.emplace_back(std::move(r));
}

void Plano::Negrita(Xy sitio, std::string texto, AnclaX x, AnclaY y, double alto) {
  Texto(sitio, std::move(texto), x, y, alto);
  std::get<Letrero>(lamina_.piezas.back()).negrita = true;
}

void Plano::Encima(Xy sitio, std::string texto, AnclaX x, AnclaY y, double alto, Tinta tinta,
                   bool negrita) {
  Texto(sitio, std::move(texto), x, y, alto, tinta);
  auto& r = std::get<Letrero>(lamina_.piezas.back());
  r.halo = true;
  r.negrita = negrita;
}

void Plano::TextoVertical(Xy sitio, std::string texto, double alto, Tinta tinta) {
  Texto(sitio, std::move(texto), AnclaX::Centro, AnclaY::Base, alto, tinta);
  std::get<Letrero>(lamina_.piezas.back()).giro = 90.0;
}

void Plano::Tope(Xy p) {
  Linea({p.x - kTope * 0.7, p.y + kTope * 0.7}, {p.x + kTope * 0.7, p.y - kTope * 0.7},
        {Tinta::Tenue, kMedio});
}

void Plano::CotaHorizontal(double x1, double x2, double y, double aparte,
                           const std::string& texto) {
  const Capa antes = capa_;
  En(Capa::Cotas);
  const double cota = y + aparte;
  const double signo = aparte < 0 ? -1.0 : 1.0;
  const Trazo trazo{Tinta::Tenue, kFino};
  for (const double x : {x1, x2}) {
    if (std::fabs(aparte) > 0) Linea({x, y + signo * 0.8}, {x, cota + signo * kSobra}, trazo);
  }
  const double ancho = AnchoTexto(texto, kLetraMenor);
  const bool cabe = ancho + 1.0 <= std::fabs(x2 - x1);
  const double fin = std::max(x1, x2) + (cabe ? 0.0 : 2.0);
  Linea({std::min(x1, x2) - (cabe ? 0.0 : 2.0), cota}, {fin, cota}, trazo);
  Tope({x1, cota});
  Tope({x2, cota});
  if (cabe) {
    Texto({(x1 + x2) / 2, cota - kSeparacion}, texto, AnclaX::Centro, AnclaY::Base, kLetraMenor);
  } else {
    Texto({fin + kSeparacion, cota}, texto, AnclaX::Izquierda, AnclaY::Medio, kLetraMenor);
  }
  En(antes);
}

void Plano::CotaVertical(double y1, double y2, double x, double aparte, const std::string& texto) {
  const Capa antes = capa_;
  En(Capa::Cotas);
  const double cota = x + aparte;
  const double signo = aparte < 0 ? -1.0 : 1.0;
  const Trazo trazo{Tinta::Tenue, kFino};
  for (const double y : {y1, y2}) {
    if (std::fabs(aparte) > 0) Linea({x + signo * 0.8, y}, {cota + signo * kSobra, y}, trazo);
  }
  const bool largo = std::fabs(y2 - y1) >= 4.0;
  const double sobra = largo ? 0.0 : 2.0;
  Linea({cota, std::min(y1, y2) - sobra}, {cota, std::max(y1, y2) + sobra}, trazo);
  Tope({cota, y1});
  Tope({cota, y2});
  // Beside a short one the text keeps off the ends of its lines too.
  const double lado = kSeparacion + (largo ? 0.6 : kSobra + 0.4);
  Texto({cota + signo * lado, (y1 + y2) / 2}, texto,
        aparte < 0 ? AnclaX::Derecha : AnclaX::Izquierda, AnclaY::Medio, kLetraMenor);
  En(antes);
}

void Plano::Senal(Xy texto, Xy cosa) {
  const Capa antes = capa_;
  En(Capa::Cotas);
  Linea(texto, cosa, {Tinta::Tenue, kFino});
  Circulo(cosa, 0.35, {Tinta::Tenue, 1.0});
  En(antes);
}

void Plano::Flecha(Xy desde, Xy punta, Tinta tinta) {
  const double a = std::atan2(punta.y - desde.y, punta.x - desde.x);
  const auto ala = [&](double giro) {
    return Xy{punta.x - 2.2 * std::cos(a + giro), punta.y - 2.2 * std::sin(a + giro)};
  };
  Linea(desde, punta, {tinta, kMedio});
  Area({punta, ala(0.25), ala(-0.25)}, {tinta, 1.0});
}

}  // namespace zorbin
