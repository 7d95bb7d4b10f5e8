// The verdict of a Caso: what was checked on the steel finally provided, how far each check is
// used, and whether the Caso complies.
#pragma once

#include <cstdint>
#include <limits>
#include <vector>

namespace zorbin {

/// A use up to it complies [-]. Where the design and the check look at the same section they differ
/// by 1.0031 at most: bars come in whole numbers, with 0.02 of one spared, and iterations end
/// within 0.01 cm2/m.
inline constexpr double kUsoCumple = 1.005;

/// Use of a check that nothing could meet [-].
inline constexpr double kUsoSinLimite = std::numeric_limits<double>::infinity();

enum class Veredicto : std::uint8_t { Cumple, NoCumple, SinComprobar };

enum class QueComprueba : std::uint8_t {
  Armadura,              // steel needed / provided on the face in tension [cm2/m]
  PruebaFabrica,         // total steel needed by the factory test / provided [cm2/m]
  ArmaduraMinima,        // least steel of the face / provided [cm2/m]
  MomentoLimite,         // moment / limit moment [m·t/m]
  Fisuracion,            // tension of the concrete / allowed [kp/cm2]
  TopeExterior,          // outer steel provided / its maximum [cm2/m]
  ExteriorIneludible,    // outer steel asked whatever the inner one / its maximum [cm2/m]
  Espesor,               // wall or wire too small: there is no design
  FuerzaAlambre,         // ring force / that of the thickest wire [t/m]
  Zunchado,              // core at winding: stress / allowed [kp/cm2]
  PruebaNucleo,          // core test pressure / that which the core stands [at]
  TensionNucleo,         // stress / limit of the core, tension positive [kp/cm2]
  TensionRevestimiento,  // the same of the coating [kp/cm2]
  TensionChapa,          // stress / limit of the cylinder [kp/cm2]
  Alambre,               // the hypothesis asks for another winding than the final one
};

enum class CaraPared : std::uint8_t { Ninguna, Interior, Exterior };

/// One check. `uso` is value over limit, but for the stresses of a post-tensioned wall, whose limit
/// may be 0 or a compression: there it is the part of the way from the prestress to the limit that
/// loads and pressure use up.
struct ComprobacionCaso {
  QueComprueba que;
  std::int8_t hipotesis = 0;  // 1 to 5, post-tensioned 1 to 6; 0 where it is of none
  std::int8_t seccion = 0;    // CLAVE, RINONES, SOLERA; 0 where it is of none
  CaraPared cara = CaraPared::Ninguna;
  double valor = 0;
  double limite = 0;
  double uso = 0;
};

/// Why a Caso does not comply, or could not be checked.
enum class MotivoVeredicto : std::uint8_t {
  Ninguno,
  Comprobacion,         // of no complying check; `que` of the summary tells which is used most
  MomentoLimite,        // a moment is past the limit moment: the formulas give no steel
  FlexionSobreTope,     // flexure asks for more outer steel than its maximum
  FisuracionSobreTope,  // cracking takes the outer face past its maximum
  SinSolucion,          // no outer steel within its maximum: the areas found are no design
  FalloCorrida,         // the calculation failed
  AxilNulo,             // an axial force of 0, which the formulas divide by
  PruebaOtraPasada,     // post-tensioned: PP rests on a pass of another hypothesis or winding
  CapasDeAjuste,        // adjusted by hand: layers and spacing depend on bars that nobody chose
};

/// What a Caso that complies is told besides; a bit each.
enum AvisoVerificacion : std::uint32_t {
  kAvisoRetraccion = 1u << 0,         // steel ratio above what shrinkage recommends, smooth bars
  kAvisoCapasInterior = 1u << 1,      // inner bars too close for one layer
  kAvisoCapasExterior = 1u << 2,      // outer bars too close for one layer
  kAvisoSeparacionAlambre = 1u << 3,  // spirals closer than the least spacing of their wire
  kAvisoFisuracionPrueba = 1u << 4,   // cracks in the factory test
  kAvisoPruebaBaja = 1u << 5,         // PP obtained below 1.2 MDP
  kAvisoTopePorRedondeo = 1u << 6,    // whole bars pass the outer maximum by less than one
};

/// The verdict in short, which every row of a run keeps.
struct ResumenVerificacion {
  Veredicto veredicto = Veredicto::SinComprobar;
  MotivoVeredicto motivo = MotivoVeredicto::Ninguno;
  QueComprueba que = QueComprueba::Armadura;  // the check with the greatest use
  std::int8_t hipotesis = 0;                  // post-tensioned: the hypothesis that uses most
  std::uint32_t avisos = 0;                   // of AvisoVerificacion
  double uso = 0;                             // the greatest [-]

  bool operator==(const ResumenVerificacion&) const = default;

  /// The steel found may be shown as one to build.
  bool OfreceArmadura() const { return motivo != MotivoVeredicto::SinSolucion; }
};

/// The verdict with all its checks.
struct Verificacion : ResumenVerificacion {
  std::vector<ComprobacionCaso> comprobaciones;
};

}  // namespace zorbin
