#include "calculo/mapa/mdMalla.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <thread>

#include "calculo/anillo/mdAnilloCaso.h"

namespace zorbin {

namespace {

constexpr double kAlturaMinima = 0.3;   // shown [m]
constexpr double kPresionMinima = 0.1;  // [at]
constexpr std::size_t kAlturasPorHilo = 4;
constexpr unsigned kMaxHilos = 8;
constexpr double kDePresion = 2.0 / 3.0;

constexpr std::int16_t kParedDelgada = 1;  // of ErrorPostesado in a reinforced pipe

std::optional<double> AceroDe(const FilaCaso& f, bool armado) {
  if (!f.verificacion.OfreceArmadura()) return std::nullopt;
  if (armado) return f.ErrorPostesado == kParedDelgada ? std::nullopt : std::optional(f.Total);
  if (f.FIIN <= 0) return std::nullopt;
  return f.NESPIN * kPi * f.FIIN * f.FIIN / 400.0;
}

PuntoMalla PuntoDe(const ResultadoTramo& x, const FilaCaso& fila, bool conMomentos) {
  PuntoMalla p{fila, AceroDe(fila, x.datos.tramo.EsArmado), HipotesisQueRige(x.datos, fila)};
  if (!conMomentos || p.hipotesis == 0) return p;
  const auto M = MomentosDe(CasoEntero(x, fila), p.hipotesis);
  p.mayorM = std::max({M(CLAVE), M(RINONES), M(SOLERA)});
  p.menorM = std::min({M(CLAVE), M(RINONES), M(SOLERA)});
  return p;
}

// One height. A run of it goes on from the pressure after the one at which another failed.
class FilaMalla {
 public:
  FilaMalla(const DatosTramo& datos, bool conMomentos, Malla& malla)
      : datos_(datos), conMomentos_(conMomentos), malla_(malla) {}

  void Calcula(std::size_t altura) {
    const auto n = malla_.ejes.presiones.size();
    for (std::size_t k = 0; k < n; k += CalculaDesde(altura, k)) {
    }
  }

 private:
  const DatosTramo& datos_;
  const bool conMomentos_;
  Malla& malla_;

  // @return points that are settled
  std::size_t CalculaDesde(std::size_t altura, std::size_t k) {
    const auto& DP = malla_.ejes.presiones;
    const std::size_t quedan = DP.size() - k;
    Rango r = RangoDeUnCaso(datos_, malla_.ejes.alturas[altura], DP[k]);
    const bool iguales = Regular(k);
    if (iguales) {
      r.UltimaDP = DP.back();
      r.IncDP = DP[k + 1] - DP[k];
      r.UnSoloCaso = false;
    }
    const auto x = CalculaTramo(datos_, r);
    if (!x.alturas.empty()) malla_.cargas[altura] = x.alturas.front();
    const std::size_t hechos = std::min(x.filas.size(), quedan);
    for (std::size_t i = 0; i < hechos; ++i) Pon(altura, k + i, x, x.filas[i]);
    if (x.alturas.empty()) return quedan;  // it has no loads: no pressure would help
    return std::min(quedan, hechos + (x.fallo ? 1 : 0));
  }

  // The pressures from `k` on are a step apart, as a run goes through them.
  bool Regular(std::size_t k) const {
    const auto& DP = malla_.ejes.presiones;
    if (k + 1 >= DP.size()) return false;
    const double paso = DP[k + 1] - DP[k];
    for (std::size_t i = k + 1; i < DP.size(); ++i) {
      if (std::fabs(DP[i] - DP[i - 1] - paso) > 1e-9 * DP.back()) return false;
    }
    return paso > 0;
  }

  void Pon(std::size_t altura, std::size_t presion, const ResultadoTramo& x, const FilaCaso& fila) {
    auto& punto = malla_.puntos[altura * malla_.ejes.presiones.size() + presion];
    try {
      punto = PuntoDe(x, fila, conMomentos_);
    } catch (const ErrorEjecucion&) {
      punto.reset();
    }
  }
};

std::vector<double> Repartidos(double desde, double hasta, int n) {
  std::vector<double> v;
  for (int i = 0; i < n; ++i) v.push_back(desde + (hasta - desde) * i / (n - 1));
  return v;
}

// Of `v` at most `n`, with both ends.
std::vector<double> Algunos(const std::vector<double>& v, std::size_t n) {
  if (v.size() <= n || n < 2) return v;
  std::vector<double> x;
  for (std::size_t i = 0; i < n; ++i) x.push_back(v[i * (v.size() - 1) / (n - 1)]);
  return x;
}

// Threads for so many heights: a few of them are not worth one.
unsigned Hilos(std::size_t alturas) {
  const auto pedidos = static_cast<unsigned>(alturas / kAlturasPorHilo);
  return std::clamp(std::min(pedidos, std::thread::hardware_concurrency()), 1u, kMaxHilos);
}

// The lowest pressure at which MDP is one.
double PresionConMDP(const Rango& r) {
  if (r.PendienteMDP <= 0) return kPresionMinima;
  return std::max(kPresionMinima, r.DPIni - r.MDPIni / r.PendienteMDP + kPresionMinima);
}

}  // namespace

Malla CalculaMalla(const DatosTramo& datos, const EjesMalla& ejes, bool conMomentos,
                   const SigueMalla& sigue) {
  Malla malla;
  malla.ejes = ejes;
  malla.cargas.resize(ejes.alturas.size());
  malla.puntos.resize(ejes.alturas.size() * ejes.presiones.size());
  // No height knows another: each thread takes the next one that nobody has.
  std::atomic<std::size_t> siguiente{0};
  std::atomic<bool> basta{false};
  const auto trabaja = [&](const SigueMalla& pregunta) {
    FilaMalla fila(datos, conMomentos, malla);
    while (!basta) {
      if (pregunta && !pregunta()) {
        basta = true;
        return;
      }
      const std::size_t i = siguiente++;
      if (i >= ejes.alturas.size()) return;
      fila.Calcula(i);
    }
  };
  {
    std::vector<std::jthread> otros;
    for (unsigned n = 1; n < Hilos(ejes.alturas.size()); ++n) {
      otros.emplace_back([&trabaja] { trabaja({}); });
    }
    trabaja(sigue);
  }
  malla.entera = !basta;
  return malla;
}

EjesMalla EjesAlrededor(const DatosTramo& datos, int columnas, int filas) {
  const Rango r = RangoDe(datos);
  const double H1 = std::max(r.Hr0, r.Hr0Final);
  const double P1 = std::max(r.PrimeraDP, r.UltimaDP);
  const double alto = std::max(H1 - r.Hr0, H1 / 2.0);
  const double ancho = std::max(P1 - r.PrimeraDP, P1 / 2.0);
  return {
      Repartidos(std::max(r.Hr0 - alto / 2.0, std::min(kAlturaMinima, r.Hr0)), H1 + alto, filas),
      Repartidos(std::max(r.PrimeraDP - kDePresion * ancho, PresionConMDP(r)),
                 P1 + kDePresion * ancho, columnas)};
}

EjesMalla EjesDelTramo(const DatosTramo& datos, std::size_t cuantas) {
  const Rango r = RangoDe(datos);
  EjesMalla ejes;
  std::optional<double> h = r.Hr0;
  while (h && *h <= r.Hr0Final && ejes.alturas.size() < kMaxCasosCorrida) {
    ejes.alturas.push_back(*h);
    h = AlturaSiguiente(*h, r.Hr0Delta, r.Hr0Final);
  }
  std::optional<double> DP = r.PrimeraDP;
  while (DP && ejes.presiones.size() < kMaxCasosCorrida) {
    ejes.presiones.push_back(*DP);
    DP = r.IncDP > 0 ? PresionSiguiente(*DP, r) : std::nullopt;
  }
  return {Algunos(ejes.alturas, cuantas), Algunos(ejes.presiones, cuantas)};
}

}  // namespace zorbin
