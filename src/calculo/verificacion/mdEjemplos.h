// Examples published elsewhere, worked with the functions of this program; and how far the
// simplified formulas of the method lie from the equations that they simplify. The technical
// report shows these figures.
//
// Sources: A. P. Moser, "Buried pipe design", examples 3.1 and 3.2 and table 2.2 (after M. G.
// Spangler and R. L. Handy); worked problems of thick cylinders (Lamé and Clapeyron 1833); design
// tables of sewers (Colebrook 1939); a worked network (Hazen and Williams 1905).
#pragma once

#include <array>
#include <string_view>
#include <vector>

namespace zorbin {

/// One published figure, and that of this program for the same inputs, in the same unit.
struct EjemploPublicado {
  std::string_view clave;
  double publicado = 0;
  double zorbin = 0;

  double Diferencia() const { return (zorbin / publicado - 1.0) * 100.0; }  // [%]
};

/// Every example, by families. @throws ErrorEjecucion, ErrorHidraulico
std::vector<EjemploPublicado> EjemplosPublicados();

/// Fill heights at which the embankment formulas are set side by side, over De or B [-].
inline constexpr std::array<double, 6> kAlturasContraste{{2, 4, 6, 8, 10, 20}};

struct Rango {
  double min = 0, max = 0;
};

/// Excess of the load of the method over that of the full equation of equal settlement.
struct ExcesoDelMetodo {
  double rsdp = 0;                                     // settlement times projection ratio [-]
  std::array<double, kAlturasContraste.size()> dif{};  // at each height [%]
  Rango usual;                                         // at heights of 6 to 10 [%]
};

/// Positive projection, K·mu 0.19. @throws ErrorEjecucion
std::vector<ExcesoDelMetodo> ExcesosTerraplen();

/// Negative projection; `dif` for K·mu 0.19, `usual` for 0.13 and 0.19. @throws ErrorEjecucion
std::vector<ExcesoDelMetodo> ExcesosNegativa();

/// Excess of the slope for a given flow over that of the exact equation of Colebrook [%], in the
/// series of diameters, at velocities of 0.5 to 5 m/s and with the roughness that each offers.
struct ExcesosDePendiente {
  Rango prandtl, darcy;
};

/// @throws ErrorEjecucion, ErrorHidraulico
ExcesosDePendiente CalculaExcesosDePendiente();

}  // namespace zorbin
