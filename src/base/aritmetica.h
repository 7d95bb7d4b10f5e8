// Checked arithmetic of a run.
//
// The method was written for a machine that stops at a division by zero, an overflow or an
// invalid operation. IEEE doubles go on with infinities and NaN, so the run stops itself: every
// quotient whose divisor the data could make 0 goes through Div, every loop without a bound of its
// own watches its variable with Finito, and 16-bit integers refuse what does not fit.
#pragma once

#include <cmath>
#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace zorbin {

/// What ended a run. The texts stand in the catalogue.
enum class CausaError {
  DivisionPorCero,
  Desbordamiento,
  Subindice,
  SinConvergencia,
  DemasiadasVueltas,
  DemasiadosCasos,
  IncrementoPresion,
  IncrementoAltura,
};

/// An error that ends the run of a Tramo. `dato` names the field, file or routine at fault where
/// the cause alone would not tell a person what to mend; otherwise it is empty.
class ErrorEjecucion : public std::exception {
 public:
  explicit ErrorEjecucion(CausaError causa, std::string dato = {})
      : causa_(causa), dato_(std::move(dato)) {}
  CausaError causa() const { return causa_; }
  const std::string& dato() const { return dato_; }
  const char* what() const noexcept override { return "error of a run"; }

 private:
  CausaError causa_;
  std::string dato_;
};

/// Rounds allowed to an iteration that the method leaves unbounded [-].
inline constexpr int kMaxVueltas = 100'000;

/// Work allowed to all the iterations of a Caso, and of a run, in rounds of the shortest of them
/// [-]: a tenth of a second, and some seconds. The hardest plausible pipes ask for some thousands a
/// Caso.
inline constexpr std::int64_t kMaxVueltasCaso = 20'000'000;
inline constexpr std::int64_t kMaxVueltasCorrida = 1'000'000'000;

/// Counts the rounds of a run. Each iteration ends by itself or by kMaxVueltas; one inside another,
/// in every Caso of a long range, would still go on for days.
class CuentaVueltas {
 public:
  void EmpiezaCaso() { antes_ = total_; }

  /// @param n  work of one round, in rounds of the shortest iteration
  /// @throws ErrorEjecucion DemasiadasVueltas
  void Suma(int n) {
    total_ += n;
    if (total_ - antes_ > kMaxVueltasCaso || total_ > kMaxVueltasCorrida) {
      throw ErrorEjecucion(CausaError::DemasiadasVueltas);
    }
  }
  std::int64_t total() const { return total_; }

 private:
  std::int64_t total_ = 0;
  std::int64_t antes_ = 0;  // of this Caso
};

/// π as the loads and the reinforced design write it.
inline constexpr double kPi = 3.1415926535898;

/// `x` itself. @throws ErrorEjecucion Desbordamiento when it is infinite or no number.
inline double Finito(double x) {
  if (!std::isfinite(x)) throw ErrorEjecucion(CausaError::Desbordamiento);
  return x;
}

/// a / b. @throws ErrorEjecucion DivisionPorCero for b = 0, Desbordamiento for a result that is
/// not finite.
inline double Div(double a, double b) {
  if (b == 0.0) throw ErrorEjecucion(CausaError::DivisionPorCero);
  return Finito(a / b);
}

/// Floor.
inline double Int(double x) {
  return std::floor(x);
}

/// A real as a 16-bit integer, half to even. @throws ErrorEjecucion Desbordamiento outside
/// -32768..32767 or for NaN.
inline std::int16_t I16(double x) {
  const double r = std::nearbyint(x);
  if (!(r >= -32768.0 && r <= 32767.0)) throw ErrorEjecucion(CausaError::Desbordamiento);
  return static_cast<std::int16_t>(r);
}

/// a + b in 16 bits. @throws ErrorEjecucion Desbordamiento.
inline std::int16_t Suma16(std::int16_t a, std::int16_t b) {
  return I16(static_cast<double>(a) + b);
}

}  // namespace zorbin
