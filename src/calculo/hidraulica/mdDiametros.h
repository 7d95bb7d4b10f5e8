// Series of diameters of the hydraulic calculator and the geometry of the circle running full and
// partly full. The partial fill is a single one, up to the half-angle of 2.64 radians.
#pragma once

#include "base/tablas.h"

namespace zorbin {

inline constexpr int kDiametros = 15;
inline constexpr double kAnguloParcial = 2.64;  // half-angle of the partial fill [rad]

struct Diametro {
  double DiamMM = 0;       // [mm]
  double DiamM = 0;        // [m]
  double RhLlena = 0;      // hydraulic radius [m]
  double AreaLlena = 0;    // [m2]
  double AreaParcial = 0;  // [m2]
  double RhParcial = 0;    // wetted perimeter 2.64 DiamM [m]
};

/// Geometry of one diameter [mm]. @throws ErrorEjecucion DivisionPorCero, Desbordamiento
Diametro GeometriaDiametro(double DiamMM);

/// The series: 600, 700, ... 2000 mm.
Lista<Diametro, kDiametros> CargaDiametros();

}  // namespace zorbin
