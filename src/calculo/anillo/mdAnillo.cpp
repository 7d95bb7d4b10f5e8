#include "calculo/anillo/mdAnillo.h"

#include <cmath>
#include <functional>

#include "base/aritmetica.h"
#include "calculo/cargas/mdOval.h"

namespace zorbin {

namespace {

constexpr double kMedio = kPi / 2.0;
constexpr int kPasosPorPieza = 24;
constexpr int kBisecciones = 48;

using Piezas = std::array<SumaTrig, FuncionAnillo::kPiezas>;

// Moment and axial force of the loads between the crown and the section, on R = 1 and W = 1, with
// nothing acting at the crown.
struct Primarias {
  Piezas M;
  Piezas N;
};

const SumaTrig c = SumaTrig::Cos();
const SumaTrig s = SumaTrig::Sen();
const SumaTrig a = SumaTrig::Angulo();

// The same function in the pieces from `desde` to the end.
Piezas Desde(std::size_t desde, const SumaTrig& f) {
  Piezas x;
  for (std::size_t i = desde; i < x.size(); ++i) x[i] = f;
  return x;
}

// Acts down to the place `hasta`, where the first `n` pieces end: below it sine and cosine of what
// lies above stay those of the place.
Piezas Cortada(std::size_t n, double hasta,
               const std::function<SumaTrig(const SumaTrig& seno, const SumaTrig& coseno,
                                            const SumaTrig& angulo)>& f) {
  const SumaTrig arriba = f(s, c, a);
  const SumaTrig abajo = f(std::sin(hasta), std::cos(hasta), hasta);
  Piezas x;
  for (std::size_t i = 0; i < x.size(); ++i) x[i] = i < n ? arriba : abajo;
  return x;
}

Primarias Suma(const Primarias& x, const Primarias& y) {
  Primarias z = x;
  for (std::size_t i = 0; i < z.M.size(); ++i) {
    z.M[i] += y.M[i];
    z.N[i] += y.N[i];
  }
  return z;
}

// A radial load gives the same moment, on the radius of 1, as axial force.
Primarias Reaccion(std::int16_t ICUNA) {
  const double alfa = SemianguloCuna(ICUNA);
  const double borde = kPi - alfa;
  const SumaTrig coseno = std::cos(borde) * c + std::sin(borde) * s;  // of a - borde
  const SumaTrig seno = std::cos(borde) * s - std::sin(borde) * c;
  SumaTrig f;
  if (ICUNA == kCunaHormigon90 || ICUNA == kCunaHormigon120) {
    const double k = 0.5 / (alfa * std::sin(alfa) + std::cos(alfa) - 1.0);
    f = -k * (kPi - a - alfa * coseno + seno);
  } else {
    f = -0.5 / std::sin(alfa) * (1.0 - coseno);
  }
  return {Desde(2, f), Desde(2, f)};
}

Primarias Propio() {
  return {Desde(0, 0.5 / kPi * (1.0 - c - a * s)), Desde(0, -0.5 / kPi * (a * s))};
}

Primarias Agua() {
  const SumaTrig f = 1.0 / kPi * (1.0 - c - 0.5 * (a * s));
  return {Desde(0, f), Desde(0, f)};
}

Primarias Vertical(double w) {
  return {
      Cortada(1, kMedio,
              [w](const auto& sx, const auto&, const auto&) {
                return -0.5 * (s * sx - 0.5 * w * (sx * sx));
              }),
      Cortada(1, kMedio, [](const auto& sx, const auto&, const auto&) { return -0.5 * (s * sx); })};
}

Primarias Timpanos(double w) {
  const double k = 1.0 / (2.0 - kPi / 2.0);
  const auto peso = [k](const SumaTrig& sx, const SumaTrig& cx, const SumaTrig& ax) {
    return k * (sx - 0.5 * ax - 0.5 * (sx * cx));
  };
  return {Cortada(1, kMedio,
                  [k, w, &peso](const auto& sx, const auto& cx, const auto& ax) {
                    const SumaTrig brazo = 0.5 * (sx * sx) - 1.0 / 3.0 * (1.0 - cx * cx * cx);
                    return k * w * brazo - peso(sx, cx, ax) * s;
                  }),
          Cortada(1, kMedio, [&peso](const auto& sx, const auto& cx, const auto& ax) {
            return -1.0 * (peso(sx, cx, ax) * s);
          })};
}

// Its resultant is that of the tables: Wl·h, for two sides that take half of it by radius each.
Primarias LateralUniforme(double w, double borde) {
  return {Cortada(2, borde,
                  [w](const auto& sx, const auto& cx, const auto&) {
                    return 0.5 * (c * (1.0 - cx) - 0.5 * w * (sx * sx));
                  }),
          Cortada(2, borde,
                  [](const auto&, const auto& cx, const auto&) { return 0.5 * (c * (1.0 - cx)); })};
}

Primarias LateralLineal(double w, double borde) {
  return {Cortada(2, borde,
                  [w](const auto& sx, const auto& cx, const auto&) {
                    const SumaTrig brazo = 0.5 * (sx * sx) - 1.0 / 3.0 * (1.0 - cx * cx * cx);
                    return 0.25 * (0.5 * (c * (1.0 - cx) * (1.0 - cx)) - w * brazo);
                  }),
          Cortada(2, borde, [](const auto&, const auto& cx, const auto&) {
            return 0.125 * (c * (1.0 - cx) * (1.0 - cx));
          })};
}

Primarias PrimariasDe(CargaAnillo carga, std::int16_t ICUNA, double w) {
  const double borde = kPi - SemianguloCuna(ICUNA);
  switch (carga) {
    case CargaAnillo::Propio:
      return Suma(Propio(), Reaccion(ICUNA));
    case CargaAnillo::Agua:
      return Suma(Agua(), Reaccion(ICUNA));
    case CargaAnillo::Timpanos:
      return Suma(Timpanos(w), Reaccion(ICUNA));
    case CargaAnillo::Vertical:
      return Suma(Vertical(w), Reaccion(ICUNA));
    case CargaAnillo::LateralUniforme:
      return LateralUniforme(w, borde);
    case CargaAnillo::LateralLineal:
      return LateralLineal(w, borde);
  }
  return {};
}

// Closes the ring: what acts at the crown adds A + B cos a to the moment and B cos a to the force.
LeyesAnillo Cierra(const Primarias& p, double borde) {
  const FuncionAnillo M(p.M, borde);
  const double A = -M.Integral() / kPi;
  const double B = -2.0 / kPi * M.Por(c).Integral();
  const FuncionAnillo unos(Desde(0, 1.0), borde);
  // By Dm = 2R, as the tables have it.
  return {FuncionAnillo().Mas(M, 0.5).Mas(unos, 0.5 * A).Mas(unos.Por(c), 0.5 * B),
          FuncionAnillo(p.N, borde).Mas(unos.Por(c), B)};
}

}  // namespace

double SemianguloCuna(std::int16_t ICUNA) {
  switch (ICUNA) {
    case kCunaGranular90:
    case kCunaHormigon90:
    case kCunaMenorDe90:
      return kPi / 4.0;
    case kCunaHormigon120:
      return kPi / 3.0;
    default:
      throw ErrorEjecucion(CausaError::Subindice);
  }
}

std::array<double, FuncionAnillo::kPiezas + 1> FuncionAnillo::Bordes() const {
  return {0.0, kMedio, borde_, kPi};
}

std::size_t FuncionAnillo::Pieza(double angulo) const {
  if (angulo <= kMedio) return 0;
  return angulo <= borde_ ? 1 : 2;
}

double FuncionAnillo::Integral() const {
  const auto bordes = Bordes();
  double suma = 0;
  for (std::size_t i = 0; i < kPiezas; ++i) suma += piezas_[i].Integral(bordes[i], bordes[i + 1]);
  return suma;
}

FuncionAnillo FuncionAnillo::Por(const SumaTrig& factor) const {
  FuncionAnillo f = *this;
  for (auto& pieza : f.piezas_) pieza = pieza * factor;
  return f;
}

FuncionAnillo FuncionAnillo::Mas(const FuncionAnillo& otra, double veces) const {
  FuncionAnillo f(piezas_, otra.borde_);
  for (std::size_t i = 0; i < kPiezas; ++i) f.piezas_[i] += veces * otra.piezas_[i];
  return f;
}

FuncionAnillo FuncionAnillo::MasConstante(double valor) const {
  FuncionAnillo f = *this;
  for (auto& pieza : f.piezas_) pieza += valor;
  return f;
}

// The derivative changes its sign at an extreme inside a piece.
FuncionAnillo::Extremo FuncionAnillo::Busca(double signo) const {
  const auto bordes = Bordes();
  Extremo mejor{0.0, (*this)(0.0)};
  const auto prueba = [&](double angulo, const SumaTrig& pieza) {
    const double valor = pieza(angulo);
    if (signo * valor > signo * mejor.valor) mejor = {angulo, valor};
  };
  for (std::size_t i = 0; i < kPiezas; ++i) {
    const SumaTrig derivada = piezas_[i].Derivada();
    const double paso = (bordes[i + 1] - bordes[i]) / kPasosPorPieza;
    for (int j = 0; j < kPasosPorPieza; ++j) {
      double x = bordes[i] + j * paso;
      double y = x + paso;
      prueba(y, piezas_[i]);
      if (signo * derivada(x) <= 0 || signo * derivada(y) >= 0) continue;
      for (int k = 0; k < kBisecciones; ++k) {
        const double m = (x + y) / 2.0;
        (signo * derivada(m) > 0 ? x : y) = m;
      }
      prueba(x, piezas_[i]);
    }
  }
  return mejor;
}

LeyesAnillo LeyesUnitarias(CargaAnillo carga, std::int16_t ICUNA, double w) {
  return Cierra(PrimariasDe(carga, ICUNA, w), kPi - SemianguloCuna(ICUNA));
}

LeyesAnillo LeyesDe(const ResultantesAnillo& cargas, std::int16_t ICUNA, double w, double Dm) {
  const double borde = kPi - SemianguloCuna(ICUNA);
  LeyesAnillo x{{{}, borde}, {{}, borde}};
  for (std::size_t i = 0; i < kCargasAnillo; ++i) {
    if (cargas[i] == 0) continue;
    const auto unidad = LeyesUnitarias(static_cast<CargaAnillo>(i), ICUNA, w);
    x.M = x.M.Mas(unidad.M, cargas[i] * Dm);
    x.N = x.N.Mas(unidad.N, cargas[i]);
  }
  return x;
}

}  // namespace zorbin
