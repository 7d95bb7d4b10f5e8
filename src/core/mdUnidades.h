// Unit systems: the state in calculation units, and the named conversions of the listings.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/campos/mdDatos.h"
#include "core/estado_calculo.h"

namespace zorbin {

inline constexpr double kFactorFuerza = 10.0;  // t to kN, and kp to N
inline constexpr double kRelacionMDPDP = 1.1;  // default MDP / DP of the capture [-]

/// Takes the fill heights in force: the Tramo's own, or the Obra's where it has none.
/// Writes Hr, Hr0Actual, Hr0FinalActual [m] and, with the Obra's heights, Hr0Delta.
void EligeAlturas(EstadoCalculo& e);

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

/// Takes the pressures in force into DPIni, DPFin, MDPIni, MDPFin and PendienteMDP, in the units
/// that the state holds. A slope that is not finite becomes 0, which leaves the step undefined.
void EligePresiones(EstadoCalculo& e);

/// Holds the state in calculation units while it lives, whatever ends its life; the pressures in
/// force and their step are then found. Afterwards the data that depend on the system have the
/// values of before, and Fct is the one that follows from Fck.
class EnUnidadesDeCalculo {
 public:
  explicit EnUnidadesDeCalculo(EstadoCalculo& e);
  ~EnUnidadesDeCalculo();
  EnUnidadesDeCalculo(const EnUnidadesDeCalculo&) = delete;
  EnUnidadesDeCalculo& operator=(const EnUnidadesDeCalculo&) = delete;

 private:
  EstadoCalculo& e_;
  Obra obra_;
  Tramo tramo_;
};

/// `valor` by one of the conversions "", "at->MPa", "Kp/cm2->MPa", "T/M2->MPa", "T/M2->kN/M2",
/// "T->kN", "mT->mkN", "kp/cm->N/cm", "kp.cm/cm->N.m/cm". Writes the unit text and may change the
/// count of decimals. An unknown name gives -999999999.0 and leaves the unit as it was.
double Convierte(double valor, std::string_view conversion, bool si, std::string& unidad,
                 int& decimales);

}  // namespace zorbin
