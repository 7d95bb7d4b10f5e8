#include "calculo/cargas/mdMarstonCompleta.h"

#include <algorithm>
#include <cmath>

#include "base/aritmetica.h"
#include "calculo/cargas/mdMarston.h"

namespace zorbin {

namespace {

constexpr int kMitades = 200;  // of an interval, more than a double can be halved
constexpr int kTerminos = 20;  // of a series whose variable is below 1

// e^u, f1 = (e^u - 1)/u, and what is left of e^u after two and three terms of its series, over u²
// and u³. Each is continuous at 0.
struct Exponencial {
  double e, f1, f2, f3;
};

Exponencial DesdeLaSerie(double u) {
  double termino = 1.0 / 6.0;
  double f3 = termino;
  for (int n = 4; n < 4 + kTerminos; ++n) {
    termino *= u / n;
    f3 += termino;
  }
  const double f2 = 0.5 + u * f3;
  const double f1 = 1.0 + u * f2;
  return {1.0 + u * f1, f1, f2, f3};
}

Exponencial CalculaExponencial(double u) {
  if (std::fabs(u) < 1.0) return DesdeLaSerie(u);
  const double f1 = std::expm1(u) / u;
  const double f2 = (f1 - 1.0) / u;
  return {std::exp(u), f1, f2, (f2 - 0.5) / u};
}

// The equation, lengths over D; k and rsdp have the same sign.
struct Ecuacion {
  double k, rsdp, h;

  double Presion(double x) const {
    const auto u = CalculaExponencial(k * x);
    return (h - x) * u.e + x * u.f1;
  }

  // Whether the plane lies above x. Times the sign of k the equation starts below 0 and crosses it
  // once at most. Beyond the range of a double it is above 0, or no number, which says the same.
  bool PlanoEncima(double x) const {
    const auto u = CalculaExponencial(k * x);
    const double s = (h - x) * u.e + x * u.f1;
    const double falta = k * x * x * ((h - x) * u.f2 + x * u.f3) - rsdp * (h - s / 3.0);
    return (k < 0 ? -falta : falta) < 0;
  }

  double Plano() const {
    double bajo = 0;
    double alto = h;
    for (int i = 0; i < kMitades; ++i) {
      const double medio = bajo + (alto - bajo) / 2.0;
      (PlanoEncima(medio) ? bajo : alto) = medio;
    }
    return bajo;
  }
};

IgualAsiento Resuelve(double Kmu, double rsdp, double D, double H, int signo) {
  const double h = Div(Finito(H), D);
  if (h == 0.0) throw ErrorEjecucion(CausaError::DivisionPorCero);
  if (!(h > 0 && D > 0 && Finito(Kmu) >= 0 && Finito(rsdp) * signo >= 0)) {
    throw ErrorEjecucion(CausaError::Desbordamiento);
  }
  if (rsdp == 0.0) return {};
  const Ecuacion ecuacion{signo * 2.0 * Kmu, rsdp, h};
  const bool completa = Kmu == 0.0 || ecuacion.PlanoEncima(h);
  const double x = completa ? h : ecuacion.Plano();
  return {Finito(ecuacion.Presion(x) / h), x * D, completa};
}

CargaContrastada Menor(const CargaContrastada& a, const CargaContrastada& b) {
  return {std::min(a.metodo, b.metodo), std::min(a.completa, b.completa)};
}

}  // namespace

IgualAsiento TerraplenCompleto(double Kmu, double rsdp, double De, double H) {
  return Resuelve(Kmu, rsdp, De, H, 1);
}

IgualAsiento NegativaCompleta(double Kmu, double rsdp, double B, double H) {
  return Resuelve(Kmu, rsdp, B, H, -1);
}

std::optional<CargasContrastadas> CargasCompletas(const DatosTerraplen& d, double H) {
  const bool terraplenada = d.TipoApoyo == 21 || d.TipoApoyo == 22;
  if (d.cargaDada || !(terraplenada || d.TipoApoyo > 30)) return std::nullopt;
  const double t = TanGrados(45.0 - d.Fi / 2.0);
  const double Ka = t * t;
  const double Mu = TanGrados(d.Fi);
  const double r = terraplenada ? kRazonComparacion : RazonAsentamiento(d.IAs);
  const double prisma = d.Gr * H;
  CargasContrastadas q;
  q.terraplen = {Finito(CoefTerraplen(2.0 * Ka * Mu, r, d.Hr1, d.De, H) * prisma),
                 Finito(TerraplenCompleto(Ka * Mu, r * Div(d.Hr1, d.De), d.De, H).C * prisma)};
  q.adoptada = q.terraplen;
  if (terraplenada) {
    const double p = Div(d.Hr1, d.B0);
    const double ancho = d.TipoApoyo == 21 ? Div(d.B0, d.De) : 1.0;
    q.negativa = {
        Finito(CoefZanjaTerraplenada(Ka, Mu, d.Hr1, d.B0, H) * prisma * ancho),
        Finito(NegativaCompleta(Ka * Mu, CoefAsentamiento(p) * p, d.B0, H).C * prisma * ancho)};
    q.adoptada = Menor(*q.negativa, q.terraplen);
  }
  return q;
}

}  // namespace zorbin
