// The fill heights of a Tramo, and the named conversions of the listings.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/campos/mdDatos.h"

namespace zorbin {

inline constexpr double kFactorFuerza = 10.0;  // t to kN, and kp to N
inline constexpr double kRelacionMDPDP = 1.1;  // default MDP / DP of the capture [-]

/// Fill heights of a Tramo.
struct Alturas {
  double Hr0 = 0, Hr0Final = 0;  // first and last [m]
  double Hr0Delta = 0;           // their increment [m]
  bool AlturasPropias = false;   // of the Tramo, not of the Obra
};

/// The fill heights in force: the Tramo's own, or the Obra's where it has none.
Alturas AlturasDe(const Obra& o, const Tramo& t);

/// A step this near to the last height of a range lands on it [m].
inline constexpr double kEngancheAltura = 0.01;

/// The height after h in a range [m]: a step that comes within kEngancheAltura of the last one
/// lands on it. None after the last height, or with a step of 0.
std::optional<double> AlturaSiguiente(double h, double paso, double ultima);

/// The height before h in a range that the steps begin at its first height [m], also from a last
/// height that a step landed on. None before the first one, or with a step that does not advance.
std::optional<double> AlturaAnterior(double h, double paso, double primera);

/// Where the steps of a range miss its last height [m].
struct AlturaFuera {
  double ultima;      // height that the range asks for, and no Caso has
  double alcanzada;   // greatest one that the steps reach
  double incremento;  // longest whole number of cm, not above the step, that reaches it; 0 for none
};
/// None where the steps land on the last height, and where there is no range or no step.
std::optional<AlturaFuera> AlturaFueraDe(double primera, double ultima, double paso);

/// `valor` by one of the conversions "", "at->MPa", "Kp/cm2->MPa", "T/M2->MPa", "T/M2->kN/M2",
/// "T->kN", "mT->mkN", "kp/cm->N/cm", "kp.cm/cm->N.m/cm". Writes the unit text and may change the
/// count of decimals. An unknown name gives -999999999.0 and leaves the unit as it was.
double Convierte(double valor, std::string_view conversion, bool si, std::string& unidad,
                 int& decimales);

}  // namespace zorbin
