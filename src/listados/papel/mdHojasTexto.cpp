#include "listados/papel/mdHojasTexto.h"

#include <algorithm>

#include "base/mdTextos.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

namespace {

constexpr double kBajoRegla = 1.0;  // the line under a rule begins above it [mm]
constexpr double kHolgura = 0.01;   // of two heights that are the same [mm]

std::size_t Columna(double x) {
  return static_cast<std::size_t>(x / AnchoColumna(kCuerpoNormal) + 0.5);
}

// The line in which a height of the sheet falls.
std::size_t Fila(const std::vector<TextoHoja>& textos, double y) {
  std::size_t fila = 0;
  while (fila + 1 < textos.size() && textos[fila + 1].y <= y) ++fila;
  return fila;
}

std::string SinBlancosFinales(const std::string& linea) {
  return linea.substr(0, linea.find_last_not_of(' ') + 1);
}

}  // namespace

void HojasTexto::RecibeHoja(const Hoja& hoja) {
  std::vector<std::string> lineas;
  for (const auto& t : hoja.textos) lineas.push_back(SinBlancosFinales(t.texto));
  if (lineas.empty()) lineas.emplace_back();
  const double fin = hoja.textos.empty() ? 0.0 : hoja.textos.back().y + AltoLinea(kCuerpoNormal);
  for (const auto& f : hoja.figuras) {
    const auto fila = f.y < fin - kHolgura ? Fila(hoja.textos, f.y) : hoja.textos.size();
    if (fila >= lineas.size()) lineas.resize(fila + 1);
    auto& linea = lineas[fila];
    const int hueco = static_cast<int>(Columna(f.x)) - static_cast<int>(Largo(linea));
    linea += Blancos(std::max(1, hueco)) + "[" + f.nombre + "]";
  }
  // From the last one up, for a rule without a blank line takes a line of its own.
  for (auto r = hoja.reglas.rbegin(); r != hoja.reglas.rend(); ++r) {
    const auto fila =
        lineas.begin() + static_cast<std::ptrdiff_t>(Fila(hoja.textos, r->y + kBajoRegla));
    const auto regla =
        std::string(Columna(r->x1), ' ') + std::string(Columna(r->x2) - Columna(r->x1), '_');
    if (fila->empty()) {
      *fila = regla;
    } else {
      lineas.insert(fila, regla);
    }
  }
  for (const auto& linea : lineas) salida_ << linea << '\n';
  salida_ << '\f';
}

}  // namespace zorbin
