#include "calculo/anillo/mdSumaTrig.h"

#include <algorithm>

namespace zorbin {

namespace {

using Complejo = std::complex<double>;
constexpr Complejo kI{0.0, 1.0};

std::size_t Lugar(int i) {
  return static_cast<std::size_t>(i);
}

}  // namespace

SumaTrig SumaTrig::Cos(int k) {
  SumaTrig f;
  f.z_[0][Lugar(kOrden + k)] += 0.5;
  f.z_[0][Lugar(kOrden - k)] += 0.5;
  return f;
}

SumaTrig SumaTrig::Sen(int k) {
  SumaTrig f;
  f.z_[0][Lugar(kOrden + k)] -= 0.5 * kI;
  f.z_[0][Lugar(kOrden - k)] += 0.5 * kI;
  return f;
}

SumaTrig SumaTrig::Angulo() {
  SumaTrig f;
  f.z_[1][kOrden] = 1.0;
  return f;
}

SumaTrig& SumaTrig::operator+=(const SumaTrig& otra) {
  for (std::size_t p = 0; p < z_.size(); ++p) {
    for (std::size_t i = 0; i < z_[p].size(); ++i) z_[p][i] += otra.z_[p][i];
  }
  return *this;
}

SumaTrig operator*(const SumaTrig& a, const SumaTrig& b) {
  constexpr int n = SumaTrig::kOrden;
  SumaTrig f;
  const auto suma = [&](const SumaTrig::Fila& x, const SumaTrig::Fila& y, std::size_t p) {
    for (int j = -n; j <= n; ++j) {
      if (x[Lugar(j + n)] == 0.0) continue;
      for (int k = std::max(-n, -n - j); k <= std::min(n, n - j); ++k) {
        f.z_[p][Lugar(j + k + n)] += x[Lugar(j + n)] * y[Lugar(k + n)];
      }
    }
  };
  suma(a.z_[0], b.z_[0], 0);
  suma(a.z_[0], b.z_[1], 1);
  suma(a.z_[1], b.z_[0], 1);
  return f;
}

double SumaTrig::operator()(double x) const {
  const Complejo e = std::polar(1.0, x);
  Complejo suma = z_[0][kOrden] + x * z_[1][kOrden];
  Complejo ek = 1.0;
  for (int k = 1; k <= kOrden; ++k) {
    ek *= e;
    // The terms of k and -k are conjugates of each other.
    suma += 2.0 * (z_[0][Lugar(kOrden + k)] + x * z_[1][Lugar(kOrden + k)]) * ek;
  }
  return suma.real();
}

SumaTrig SumaTrig::Derivada() const {
  SumaTrig f;
  for (int k = -kOrden; k <= kOrden; ++k) {
    const auto i = Lugar(k + kOrden);
    const Complejo ik = kI * static_cast<double>(k);
    f.z_[0][i] = ik * z_[0][i] + z_[1][i];
    f.z_[1][i] = ik * z_[1][i];
  }
  return f;
}

Complejo SumaTrig::Primitiva(double x) const {
  Complejo suma = z_[0][kOrden] * x + z_[1][kOrden] * (x * x / 2.0);
  for (int k = -kOrden; k <= kOrden; ++k) {
    if (k == 0) continue;
    const auto i = Lugar(k + kOrden);
    const Complejo ik = kI * static_cast<double>(k);
    const Complejo e = std::polar(1.0, static_cast<double>(k) * x);
    suma += e * (z_[0][i] / ik + z_[1][i] * (x / ik - 1.0 / (ik * ik)));
  }
  return suma;
}

double SumaTrig::Integral(double a, double b) const {
  return (Primitiva(b) - Primitiva(a)).real();
}

}  // namespace zorbin
