// What a datum measures, its unit in each system, and the way from one to the other. Values are
// converted where they enter and leave (file, screen, listing, run); formulas know one unit.
#pragma once

#include <string_view>

namespace zorbin {

inline constexpr double kFactorTension = 10.0;  // MPa to at or kp/cm2, by design
inline constexpr double kFactorCarga = 100.0;   // MPa to t/m2, for QDato

enum class Magnitud {
  Coeficiente,
  Presion,
  Tension,
  Carga,
  Longitud,
  Grueso,
  Chapa,
  Cuantia,
  PesoEspecifico,
  Angulo,
  Porcentaje,
  Codigo,
  Marca,
  Texto,
};

struct Unidades {
  std::string_view mks;
  std::string_view si;
  double factor = 1.0;  // the SI value times this is the MKS value

  /// Whether the value depends on the system.
  constexpr bool Escala() const { return factor != 1.0; }
};

const Unidades& UnidadesDe(Magnitud magnitud);

/// A value in both systems.
struct ParUnidades {
  double mks;
  double si;
};

/// Both values of a quantity that the Obra holds in one of the systems. The one it holds comes back
/// as it is.
ParUnidades Pareja(double valor, bool enSI, Magnitud magnitud);

}  // namespace zorbin
