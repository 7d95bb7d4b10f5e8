// Sums of sines and cosines, also times the angle: what the statics of a ring are made of. They can
// be added, multiplied and integrated without leaving the class, so that nothing is integrated
// numerically.
#pragma once

#include <array>
#include <complex>

namespace zorbin {

/// f(x) = sum over p of 0, 1 and k of -4..4 of z(p, k) x^p e^(ikx), whose imaginary part is 0.
class SumaTrig {
 public:
  SumaTrig() = default;
  SumaTrig(double constante) { z_[0][kOrden] = constante; }

  static SumaTrig Cos(int k = 1);
  static SumaTrig Sen(int k = 1);
  static SumaTrig Angulo();

  SumaTrig& operator+=(const SumaTrig& otra);
  friend SumaTrig operator+(SumaTrig a, const SumaTrig& b) { return a += b; }
  friend SumaTrig operator-(const SumaTrig& a, const SumaTrig& b) { return a + (-1.0) * b; }

  /// What would pass order 4, or hold the angle squared, is lost: the factors are chosen so that it
  /// is nothing.
  friend SumaTrig operator*(const SumaTrig& a, const SumaTrig& b);

  double operator()(double x) const;
  SumaTrig Derivada() const;

  /// Integral from `a` to `b`, in closed form.
  double Integral(double a, double b) const;

 private:
  static constexpr int kOrden = 4;
  using Fila = std::array<std::complex<double>, 2 * kOrden + 1>;
  std::array<Fila, 2> z_{};

  std::complex<double> Primitiva(double x) const;
};

}  // namespace zorbin
