// Bending moment and axial force all round the ring, in closed form.
//
// The model of which the tables of mdOval.h hold the values at three places: a thin elastic ring on
// the mean radius R = Dm/2, inextensible, in bending only, loaded on the extrados, of radius w·R.
//   own weight        uniform along the ring
//   water             pressure Gw·R·(1 - cos a) of a pipe just full
//   vertical load     uniform over the horizontal projection of the upper half
//   spandrels         the earth between the horizontal through the extrados crown and the extrados
//   lateral thrust    horizontal, uniform or growing with the depth under the crown, from the crown
//                     down to the edge of the bedding
//   granular bed      reaction radial, uniform over the angle of the bedding
//   concrete cradle   reaction radial, growing in proportion to the angle from 0 at the invert to
//                     its greatest at the edges of the cradle
// The reaction has the resultant of the load. With `a` the angle from the crown, 0 to pi, the force
// and the moment at the crown follow from the closed ring: the integrals of M and of M·(1 - cos a)
// over the half ring are 0.
// Sign: axial force negative in compression; a positive moment puts the inner face in tension.
// Source: S. P. Timoshenko and J. M. Gere, "Theory of Elastic Stability" (1961), for the equations
// of the thin ring; the loads and reactions are those with which the tabulated coefficients of the
// Anejo 4 "Cálculo Mecánico" of the Instrucción del Instituto Eduardo Torroja come out, within
// 3.1e-5·W·Dm in M and 9.5e-5·W in N for w of 1 to 1.2, which is the rounding of its tables.
#pragma once

#include <array>
#include <cstdint>

#include "calculo/anillo/mdSumaTrig.h"

namespace zorbin {

/// A function of the angle from the crown, 0 to pi [rad], in three pieces: down to the haunch, to
/// the edge of the bedding, to the invert.
class FuncionAnillo {
 public:
  static constexpr std::size_t kPiezas = 3;

  FuncionAnillo() = default;
  /// @param borde  edge of the bedding, pi/2 to pi [rad]
  FuncionAnillo(const std::array<SumaTrig, kPiezas>& piezas, double borde)
      : piezas_(piezas), borde_(borde) {}

  double operator()(double angulo) const { return piezas_[Pieza(angulo)](angulo); }
  double Integral() const;
  FuncionAnillo Por(const SumaTrig& factor) const;
  FuncionAnillo Mas(const FuncionAnillo& otra, double veces) const;
  FuncionAnillo MasConstante(double valor) const;

  struct Extremo {
    double angulo = 0;  // from the crown [rad]
    double valor = 0;
  };
  Extremo Mayor() const { return Busca(1.0); }
  Extremo Menor() const { return Busca(-1.0); }

 private:
  std::array<SumaTrig, kPiezas> piezas_;
  double borde_ = 0;

  std::size_t Pieza(double angulo) const;
  std::array<double, kPiezas + 1> Bordes() const;
  Extremo Busca(double signo) const;
};

/// Moment and axial force of a ring.
struct LeyesAnillo {
  FuncionAnillo M;
  FuncionAnillo N;
};

enum class CargaAnillo { Propio, Agua, Timpanos, Vertical, LateralUniforme, LateralLineal };
inline constexpr std::size_t kCargasAnillo = 6;

/// Half of the angle of a bedding of the run [rad]: where its reaction ends, from the invert.
/// @param ICUNA  1 granular of 90 degrees, 2 concrete of 90, 3 concrete of 120, 4 as 1
/// @throws ErrorEjecucion Subindice for any other
double SemianguloCuna(std::int16_t ICUNA);

/// The ring under a load of resultant W = 1: M [W·Dm], N [W].
/// @param ICUNA  bedding of the run, 1..4; 4 is as 1, without its factor of 1.25
/// @param w      radius of the extrados over the mean one, 1 to 2 [-]
/// @throws ErrorEjecucion Subindice for a bedding outside 1..4
LeyesAnillo LeyesUnitarias(CargaAnillo carga, std::int16_t ICUNA, double w);

/// Resultants of the loads [t/m]: of the lateral thrust, Wl by the height of earth over the crown
/// for the uniform part, and by De for the one that grows.
using ResultantesAnillo = std::array<double, kCargasAnillo>;

/// The ring under a sum of loads: M [m·t/m], N [t/m].
/// @param Dm     mean diameter [m]
/// @throws ErrorEjecucion as `LeyesUnitarias`
LeyesAnillo LeyesDe(const ResultantesAnillo& cargas, std::int16_t ICUNA, double w, double Dm);

}  // namespace zorbin
