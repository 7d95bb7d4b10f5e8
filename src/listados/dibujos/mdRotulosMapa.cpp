#include "listados/dibujos/mdRotulosMapa.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace zorbin {

namespace {

constexpr double kAire = 1.0;                   // round a text [mm]
constexpr std::array kHolguras{2.2, 1.5, 1.0};  // of the room to that of the text, tried in order
constexpr double kMinimo = kLetraMenor * kLetraMenor;  // of an area that is looked at [mm2]

using Celda = std::size_t;

class Areas {
 public:
  explicit Areas(const CeldasMapa& c)
      : c_(c),
        filas_(c.claves.size() / c.columnas),
        dx_(c.marco.ancho / static_cast<double>(c.columnas)),
        dy_(c.marco.alto / static_cast<double>(filas_)) {}

  /// Those worth a look, by their cells, the largest first.
  std::vector<std::vector<Celda>> Todas() const {
    std::vector<std::vector<Celda>> areas;
    std::vector<bool> vista(c_.claves.size());
    for (Celda i = 0; i < c_.claves.size(); ++i) {
      if (vista[i] || c_.claves[i] == 0) continue;
      auto area = Extiende(i, vista);
      if (static_cast<double>(area.size()) * dx_ * dy_ >= kMinimo) areas.push_back(std::move(area));
    }
    std::ranges::stable_sort(areas, [](auto& a, auto& b) { return a.size() > b.size(); });
    return areas;
  }

  /// Middle of the place nearest to that of the area where a box of so much [mm] is inside it.
  std::optional<Xy> Sitio(const std::vector<Celda>& area, double ancho, double alto,
                          const std::function<bool(Xy)>& libre) const {
    const auto n = static_cast<std::size_t>(std::ceil(ancho / dx_));
    const auto m = static_cast<std::size_t>(std::ceil(alto / dy_));
    if (n > c_.columnas || m > filas_ || n * m > area.size()) return std::nullopt;
    const auto sumas = Sumas(area);
    const Xy medio = Medio(area);
    std::optional<Xy> mejor;
    double menor = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i + m <= filas_; ++i) {
      for (std::size_t j = 0; j + n <= c_.columnas; ++j) {
        if (Cuantas(sumas, i, j, n, m) != n * m) continue;
        const Xy p = EnHoja(static_cast<double>(j) + static_cast<double>(n) / 2,
                            static_cast<double>(i) + static_cast<double>(m) / 2);
        const double lejos = std::hypot(p.x - medio.x, p.y - medio.y);
        if (lejos >= menor || !libre(p)) continue;
        menor = lejos;
        mejor = p;
      }
    }
    return mejor;
  }

 private:
  const CeldasMapa& c_;
  std::size_t filas_;
  double dx_, dy_;

  Xy EnHoja(double columna, double fila) const {
    return {c_.marco.x + columna * dx_, c_.marco.y + fila * dy_};
  }

  std::vector<Celda> Extiende(Celda desde, std::vector<bool>& vista) const {
    std::vector<Celda> area{desde};
    vista[desde] = true;
    const auto toma = [&](Celda i) {
      if (vista[i] || c_.claves[i] != c_.claves[desde]) return;
      vista[i] = true;
      area.push_back(i);
    };
    for (std::size_t k = 0; k < area.size(); ++k) {
      const Celda i = area[k], columna = i % c_.columnas;
      if (columna > 0) toma(i - 1);
      if (columna + 1 < c_.columnas) toma(i + 1);
      if (i >= c_.columnas) toma(i - c_.columnas);
      if (i + c_.columnas < c_.claves.size()) toma(i + c_.columnas);
    }
    return area;
  }

  Xy Medio(const std::vector<Celda>& area) const {
    double x = 0, y = 0;
    for (const Celda i : area) {
      x += static_cast<double>(i % c_.columnas) + 0.5;
      y += static_cast<double>(i / c_.columnas) + 0.5;
    }
    return EnHoja(x / static_cast<double>(area.size()), y / static_cast<double>(area.size()));
  }

  // Cells of the area above and to the left of each corner.
  std::vector<std::size_t> Sumas(const std::vector<Celda>& area) const {
    const std::size_t ancho = c_.columnas + 1;
    std::vector<std::size_t> s((filas_ + 1) * ancho);
    for (const Celda i : area) s[(i / c_.columnas + 1) * ancho + i % c_.columnas + 1] = 1;
    for (std::size_t i = 1; i <= filas_; ++i) {
      for (std::size_t j = 1; j < ancho; ++j) {
        s[i * ancho + j] += s[(i - 1) * ancho + j] + s[i * ancho + j - 1];
        s[i * ancho + j] -= s[(i - 1) * ancho + j - 1];
      }
    }
    return s;
  }

  std::size_t Cuantas(const std::vector<std::size_t>& s, std::size_t i, std::size_t j,
                      std::size_t n, std::size_t m) const {
    const std::size_t ancho = c_.columnas + 1;
    return s[(i + m) * ancho + j + n] + s[i * ancho + j] - s[i * ancho + j + n] -
           s[(i + m) * ancho + j];
  }
};

}  // namespace

bool SePisan(const Marco& a, const Marco& b) {
  return a.x < b.Derecha() && b.x < a.Derecha() && a.y < b.Abajo() && b.y < a.Abajo();
}

std::vector<RotuloArea> RotulosDeAreas(const CeldasMapa& celdas,
                                       const std::function<std::vector<std::string>(int)>& textos,
                                       std::vector<Marco> ocupados) {
  const Areas areas(celdas);
  std::vector<RotuloArea> puestos;
  const auto pon = [&](const std::vector<Celda>& area, const std::string& texto) {
    const double ancho = AnchoTexto(texto, kLetraMenor) + 2 * kAire;
    const double alto = kLetraMenor + 2 * kAire;
    const auto caja = [&](Xy p) { return Marco{p.x - ancho / 2, p.y - alto / 2, ancho, alto}; };
    const auto libre = [&](Xy p) {
      return std::ranges::none_of(ocupados, [&](const Marco& o) { return SePisan(o, caja(p)); });
    };
    for (const double holgura : kHolguras) {
      const auto sitio = areas.Sitio(area, ancho * holgura, alto * holgura, libre);
      if (!sitio) continue;
      ocupados.push_back(caja(*sitio));
      puestos.push_back({*sitio, texto, ocupados.back()});
      return true;
    }
    return false;
  };
  for (const auto& area : areas.Todas()) {
    for (const auto& texto : textos(celdas.claves[area.front()])) {
      if (pon(area, texto)) break;
    }
  }
  return puestos;
}

}  // namespace zorbin
