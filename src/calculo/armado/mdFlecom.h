// Flexo-compression: the steel of the tensioned face of a section that is not wholly in tension.
//
// Source: the simplified method of the limit moment of the Instituto Eduardo Torroja, in the form
// of Anejo 4 "Cálculo Mecánico" of its Instrucción: with the moment at the layer over Fcd d2, the
// steel is 0.97 (1 + m) m, up to a limit moment of 0.35.
#pragma once

#include <optional>

#include "calculo/armado/mdTrcom.h"

namespace zorbin {

/// Limit moment of a section [m·t/m], 0.35 Fck d2 / GamaB on the useful depth d.
/// @param d  ESP less the cover of the tensioned layer [m]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
double MomentoLimite(const DatosSeccion& s, double d, Rastro* rastro = nullptr);

/// What is compared with it [m·t/m]: the magnitude of the moment, in compression taken to the
/// tensioned layer.
/// @param N  axial force, tension positive [t/m]  @param r  cover of the tensioned layer [m]
/// @throws ErrorEjecucion Desbordamiento
double MomentoReducido(const DatosSeccion& s, double M, double N, double ESP, double r,
                       Rastro* rastro = nullptr);

/// The least steel of the tensioned face in flexo-compression [cm2/m]: 0.04 Fck GamaY d / (Fyk
/// GamaB), on the useful depth d [m].
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
double MinimaFlexion(const DatosSeccion& s, double d, Rastro* rastro = nullptr);

/// Area of the tensioned face [cm2/m], never below 0.04 Fck GamaY d / (Fyk GamaB), on the useful
/// depth d = ESP - r. No value when the moment is beyond the limit moment 0.35 Fck d2 / GamaB,
/// where the concrete would crush first; compression counts for that test as a moment at the layer.
/// @param M     magnitude of the moment [m·t/m]
/// @param N     axial force, tension positive [t/m]
/// @param ESP   wall thickness [m]
/// @param r     cover of the tensioned layer [m]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
std::optional<double> FlexoCompuesta(const DatosSeccion& s, double M, double N, double ESP,
                                     double r, Rastro* rastro = nullptr);

}  // namespace zorbin
