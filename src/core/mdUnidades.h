// Unit systems: the switch of the state between screen and calculation units, and the named
// conversions of the listings. 1 MPa counts as 10 at and as 10 kp/cm2, by design.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/estado_calculo.h"

namespace zorbin {

inline constexpr double kFactorTension = 10.0;  // MPa to at or kp/cm2
inline constexpr double kFactorCarga = 100.0;   // MPa to t/m2, for QDato
inline constexpr double kFactorFuerza = 10.0;   // t to kN, and kp to N
inline constexpr double kRelacionMDPDP = 1.1;   // default MDP / DP of the capture [-]

/// Tensile strength from the compressive one: 0.45 (Fck Fck)^(1/3). The formula is applied to
/// each unit as it stands, so the value in MPa is not a tenth of the one in kp/cm2; that
/// difference is kept on purpose.
double FctDeFck(double Fck);

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

/// Takes the pressures in force into DPIni, DPFin, MDPIni, MDPFin and PendienteMDP, in the units
/// that the state holds. A slope that is not finite becomes 0, which leaves the step undefined.
void EligePresiones(EstadoCalculo& e);

/// "ParaCalculo" brings the state to calculation units and finds the pressure step IncDP;
/// "ParaPantalla" brings it back to the units of the Obra. Case does not matter. The calls go in
/// pairs: use EnUnidadesDeCalculo.
void PreparaUnidades(EstadoCalculo& e, std::string_view modo);

/// Holds the state in calculation units while it lives, whatever ends its life.
class EnUnidadesDeCalculo {
 public:
  explicit EnUnidadesDeCalculo(EstadoCalculo& e) : e_(e) { PreparaUnidades(e_, "ParaCalculo"); }
  ~EnUnidadesDeCalculo() { PreparaUnidades(e_, "ParaPantalla"); }
  EnUnidadesDeCalculo(const EnUnidadesDeCalculo&) = delete;
  EnUnidadesDeCalculo& operator=(const EnUnidadesDeCalculo&) = delete;

 private:
  EstadoCalculo& e_;
};

/// A value in both systems.
struct ParUnidades {
  double mks;
  double si;
};

/// Both values of a field that the screen holds in one of the systems.
ParUnidades Pareja(double valorPantalla, bool pantallaEnSI, double factor);

/// `valor` by one of the conversions "", "at->MPa", "Kp/cm2->MPa", "T/M2->MPa", "T/M2->kN/M2",
/// "T->kN", "mT->mkN", "kp/cm->N/cm", "kp.cm/cm->N.m/cm". Writes the unit text and may change the
/// count of decimals. An unknown name gives -999999999.0 and leaves the unit as it was.
double Convierte(double valor, std::string_view conversion, bool si, std::string& unidad,
                 int& decimales);

}  // namespace zorbin
