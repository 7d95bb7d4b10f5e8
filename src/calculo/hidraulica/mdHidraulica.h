// Velocity and flow, or velocity and slope, of a series of diameters by three formulas. Water with
// a kinematic viscosity of 1.31e-6 m2/s, g = 9.8 m/s2.
//
// Sources: C. F. Colebrook, "Turbulent flow in pipes" (1939), in its form explicit in the slope;
// Darcy-Weisbach with the factor of Poiseuille, Blasius and Kármán-Nikuradse by bands of the
// Reynolds number; Hazen-Williams with the coefficient 0.849 (the usual one is 0.8494).
#pragma once

#include <array>
#include <cstdint>
#include <exception>
#include <optional>

#include "calculo/hidraulica/mdDiametros.h"

namespace zorbin {

inline constexpr double kViscosidad = 1.31e-06;  // kinematic, of water [m2/s]

enum class MetodoHidraulico : std::int16_t {
  PrandtlColebrook = 0,
  DarcyWeissbach = 1,
  HazenWilliams = 2,
};

enum class DatoHidraulico : std::int16_t { Ninguno = -1, Pendiente = 0, Caudal = 1 };

/// Results of a diameter; a quantity that the operation does not give has no value.
struct FilaHidraulica {
  double DiamMM = 0;               // [mm]
  double VLlena = 0;               // [m/s]
  std::optional<double> QLlena;    // [m3/s]
  std::optional<double> VParcial;  // [m/s]
  std::optional<double> QParcial;  // [m3/s]
  std::optional<double> JLlena;    // [m/m]; -1 when no friction factor was found
  std::optional<double> JParcial;  // [m/m]
  std::optional<double> JExacta;   // by PendienteColebrook, where the flow is turbulent [m/m]
  std::optional<double> ReLlena;   // [-]; -1 as JLlena
  std::optional<double> Cwh;       // Hazen coefficient of this diameter [-]
  bool critico = false;            // ReLlena above 2400 and at most 4000
};

struct ResultadoHidraulico {
  MetodoHidraulico metodo = MetodoHidraulico::DarcyWeissbach;
  DatoHidraulico tipoDato = DatoHidraulico::Pendiente;
  double dato = 0;       // slope [m/m] or flow [m3/s]
  double rugosidad = 0;  // [mm]; Hazen coefficient, 0 for the rule by diameter
  std::array<FilaHidraulica, kDiametros> filas{};
};

/// Which input a formula can't take.
enum class FaltaHidraulica {
  RugosidadNegativa,
  RugosidadExcesiva,  // the roughness reaches the size of the pipe: a logarithm turns its sign
  DatoInsuficiente,   // a slope or a flow so small that the logarithm turns its sign
};

class ErrorHidraulico : public std::exception {
 public:
  explicit ErrorHidraulico(FaltaHidraulica falta) : falta_(falta) {}
  FaltaHidraulica falta() const { return falta_; }
  const char* what() const noexcept override { return "input out of the range of the formula"; }

 private:
  FaltaHidraulica falta_;
};

/// Bands of the Reynolds number in the friction factor of Darcy-Weissbach.
enum class BandaReynolds { Laminar, Critica, Lisa, Transicion, Rugosa, Ninguna };

/// Band of Re for a roughness ks [m] in a diameter D [m]. Every upper limit belongs to its band.
BandaReynolds BandaDeReynolds(double Re, double ks, double D);

/// Friction factor by the band of Re [-]; 1 in the critical band, -1 when Re is no number.
/// @throws ErrorHidraulico RugosidadExcesiva
double FactorFriccion(double Re, double ks, double D);

/// V = -W log10(ks/14.8/R + 1.255 ν/R/W), W = sqrt(32 g R J) [m/s].
/// @param R   hydraulic radius [m]
/// @param J   slope [m/m]
/// @param ks  roughness [m]
/// @throws ErrorHidraulico where V would not be positive
double VelocidadPrandtl(double R, double J, double ks);

/// V = 0.849 Cwh R^0.63 J^0.54 [m/s]. @throws ErrorHidraulico RugosidadNegativa
double VelocidadHazen(double R, double J, double Cwh);

/// Slope of Hazen-Williams for a velocity [m/m], the inverse of VelocidadHazen.
double PendienteHazen(double R, double V, double Cwh);

/// Friction coefficient of Prandtl-Colebrook for a known velocity VLlena [m/s]: one evaluation
/// from a start value; it is not carried on to convergence, by design.
/// @throws ErrorHidraulico where the logarithm would not be negative
double Calcula_CLANDA(const Diametro& d, double VLlena, double ks);

/// Friction factor of Colebrook [-], the root of 1/sqrt(f) = -2 log10(ks/3.7/D + 2.51/Re/sqrt(f)),
/// to the last digits. Meant for turbulent flow, Re above 4000; below it is the root still.
/// @param Re  Reynolds number [-]
/// @param ks  roughness [m]
/// @param D   diameter [m]
/// @throws ErrorHidraulico where no root is above 0: ks of 3.7 D, Re of some units
double FactorColebrook(double Re, double ks, double D);

/// Slope of a full pipe by the exact equation, J = f V²/(2 g D) [m/m], for a velocity [m/s]: the
/// inverse of VelocidadPrandtl. The operations of a given flow have approximations of their own.
/// @throws ErrorHidraulico as FactorColebrook
double PendienteColebrook(double D, double V, double ks);

/// The same for a flow Q [m3/s].
double PendienteColebrookCaudal(double D, double Q, double ks);

struct Friccion {
  double V = 0;   // [m/s]
  double Re = 0;  // [-]
  double F = 0;   // [-]
};

/// Darcy-Weissbach for a slope, iterated with the velocity from V0 [m/s]. It ends at a step of
/// 1 % of V, or of 10 % after 16 rounds, or after 2,000 rounds, so V and Re may disagree where V
/// swings between two bands. In the critical band V is the velocity of that round.
Friccion CalculaF(double J, double ks, double D, double V0);

/// The friction factor for a known velocity, without iteration; F = -1 when no band fits.
Friccion CalculaF_P(double ks, double D, double VLlena);

/// The six operations. J [m/m], Q [m3/s], roughness [mm] or Hazen coefficient.
/// @throws ErrorHidraulico; ErrorEjecucion DivisionPorCero, Desbordamiento: no result holds an
///         infinity
ResultadoHidraulico PrColeBrook_Pendiente(double J, double Rugosidad);
ResultadoHidraulico PrColeBrook_Caudal(double Q, double Rugosidad);
ResultadoHidraulico DarcyWeiss_Pendiente(double J, double Rugosidad);
ResultadoHidraulico DarcyWeiss_Caudal(double Q, double Rugosidad);
ResultadoHidraulico Hazen_Pendiente(double J, double Cwh);
ResultadoHidraulico Hazen_Caudal(double Q, double Cwh);

/// The operation of a method and a kind of datum; `Ninguno` counts as a slope.
ResultadoHidraulico CalculaHidraulica(MetodoHidraulico metodo, DatoHidraulico tipoDato, double dato,
                                      double rugosidad);

}  // namespace zorbin
