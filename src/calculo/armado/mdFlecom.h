// Flexo-compression: the steel of the tensioned face of a section that is not wholly in tension.
#pragma once

#include <optional>

#include "calculo/armado/mdTrcom.h"

namespace zorbin {

/// Area of the tensioned face [cm2/m], never below 0.04 Fck GamaY d / (Fyk GamaB), on the useful
/// depth d. No value when the moment is beyond the limit moment 0.35 Fck d2 / GamaB; the test
/// takes the moment reduced to the layer, the area the plain one.
/// @param M     magnitude of the moment [m·t/m]
/// @param N     axial force, tension positive [t/m]
/// @param ESP   wall thickness [m]
/// @param r     cover of the tensioned layer [m]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
std::optional<double> FlexoCompuesta(const DatosSeccion& s, double M, double N, double ESP,
                                     double r);

}  // namespace zorbin
