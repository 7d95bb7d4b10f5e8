// Verdict of a reinforced Caso: the steel finally provided, laid out or adjusted by hand, against
// every section of every hypothesis. The design looks at the hypothesis with the largest total
// alone, and in it at one section of each sign of moment.
//
// Source: the hand calculation of Anejo 4 "Cálculo Mecánico" of the Instrucción del Instituto
// Eduardo Torroja for reinforced or prestressed pipes (needed steel, limit moment, least steel,
// cracking), each formula where it is written: mdLineas.h, mdFlecom.h, mdTrcom.h, mdFisuracion.h.
#pragma once

#include <array>
#include <optional>
#include <span>

#include "calculo/armado/mdFisuracion.h"
#include "calculo/armado/mdTrcom.h"
#include "calculo/rastro/mdRastro.h"
#include "core/verificacion.h"

namespace zorbin {

/// What a reinforced Tramo is checked with, the same in all its Casos. Faces: 0 inner, 1 outer.
struct DatosVerificacion {
  DatosSeccion seccion;
  std::array<double, 2> recubrimiento{};  // [m]
  double BRAZO = 0;                       // lever arm between the layers [cm]
  std::array<double, 2> CANTO{};          // useful depth [cm]
  double Fcad = 0;                        // reduced strength of the concrete [kp/cm2]
  double minimaTraccion = 0;              // [cm2/m]
  std::array<double, 2> minimaFlexion{};  // [cm2/m]
  std::array<double, 2> momentoLimite{};  // [m·t/m]
  std::optional<double> tope;             // outer maximum [cm2/m]
  std::int16_t TipoCamisa = 0;
  double CamMax = 0;  // [mm]
  double ASC = 0;     // limit of the steel ratio, smooth bars [-]
  ParedFisuracion pared;
};

/// @param t  in calculation units
/// @throws ErrorEjecucion as the design of its first Caso does for the same data
DatosVerificacion DatosDeVerificacion(const Tramo& t);

/// Steel of both faces.
struct ArmaduraDispuesta {
  double AsInt = 0, AsExt = 0;         // [cm2/m]
  double FIIN = 0, FIEX = 0;           // bar diameters [mm]
  double NESPIN = 0, NEXPEX = 0;       // bars [1/m]; 0 of an adjusted Caso, which has none
  bool ajustada = false;               // fixed by hand
  bool exteriorPorFisuracion = false;  // outer bars were added against cracking
};

/// The steel that the design of a Caso ends with.
ArmaduraDispuesta DispuestaDe(const ResultadoArmado& r);

/// Greatest use of each kind. A face that falls short shows which one.
struct UsosArmado {
  std::array<double, 2> armadura{};    // of each face, in flexure or tension, or the least steel
  std::array<double, 2> fisuracion{};  // of each face
  double prueba = 0;                   // factory test, in all
  double momento = 0;                  // limit moment
  double ineludible = 0;               // outer steel asked whatever the inner one
};

/// The verdict in short; it allocates nothing. A moment past its limit is allowed no use above 1:
/// no steel was calculated for it.
/// @param r       esfuerzos, TablaHip(1), HipotesisRige, IESP
/// @param sinSolucion  the design found no outer area within its maximum
/// @param usos    where they are wanted
ResumenVerificacion ResumeArmado(const DatosVerificacion& d, const ResultadoArmado& r,
                                 const ArmaduraDispuesta& a, bool sinSolucion,
                                 UsosArmado* usos = nullptr);

/// The same verdict with its checks, in the order factory test, hypotheses, faces.
/// @param rastro  takes the steps of every section that is checked
Verificacion VerificaArmado(const DatosVerificacion& d, const ResultadoArmado& r,
                            const ArmaduraDispuesta& a, bool sinSolucion, Rastro* rastro = nullptr);

/// Whether a search ended without an outer area within its maximum.
bool SinSolucionExterior(std::span<const Aviso> avisos);

}  // namespace zorbin
