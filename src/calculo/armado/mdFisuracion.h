// Cracking check of a pipe without sheet: the tension of the homogenised section against what the
// concrete allows, with steel added where it is not enough.
//
// Source: Anejo 4 "Cálculo Mecánico" of the Instrucción del Instituto Eduardo Torroja: modular
// ratio 11, safety 1.7 on the tensile strength (1.6 under intense control), and a strength that
// rises with the gradient of the stresses, from 1 in pure tension to 1.4 in bending.
#pragma once

#include <optional>

#include "calculo/rastro/mdRastro.h"
#include "core/campos/tramo.h"
#include "core/resultados.h"

namespace zorbin {

/// Wall homogenised with its steel.
struct SeccionHomogenea {
  double A;  // [cm2/m]
  double x;  // centroid from the inner face [cm]
  double I;  // [cm4/m]
};

/// Wall of a metre of pipe as the cracking check sees it.
struct ParedFisuracion {
  double e = 0;           // thickness [cm]
  double ri = 0, re = 0;  // inner and outer cover [cm]
  double Fct = 0;         // [kp/cm2]
  double controlFis = 0;  // safety factor of the concrete in tension [-]
};

/// @param t  Esp, Reci, Rece [m], Fct [kp/cm2], SubTipo, TipoControl
/// @throws ErrorEjecucion Subindice for a SubTipo outside 1..3
ParedFisuracion ParedDe(const Tramo& t);

/// @param Ri, Re  areas of the inner and outer face [cm2/m]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
SeccionHomogenea Homogeneiza(const ParedFisuracion& p, double Ri, double Re,
                             Rastro* rastro = nullptr);

/// Tension of the concrete beside the one allowed.
struct TensionFisuracion {
  double Sx;  // largest tension, by bending and axial force [kp/cm2]
  double Sa;  // allowed [kp/cm2]
};

/// Of the face that the moment tenses. The allowed tension, Fct over its safety factor, grows with
/// the ratio of bending to mean stress, up to 1.4 times.
/// @param M  [m·t/m]  @param N  tension positive [t/m]
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
TensionFisuracion TensionDeFisuracion(const ParedFisuracion& p, const SeccionHomogenea& h, double M,
                                      double N, Rastro* rastro = nullptr);

/// The check of one hypothesis.
class Fisuracion {
 public:
  /// @param t          Esp, Reci, Rece [m], Fct [kp/cm2], SubTipo, TipoControl
  /// @param esfuerzos  of the hypotheses [m·t/m, t/m]; outlives the check
  /// @param hipotesis  1..5
  /// @param vueltas    of the run; the check adds its own
  /// @throws ErrorEjecucion Subindice for a SubTipo outside 1..3
  Fisuracion(const Tramo& t, const Esfuerzos& esfuerzos, int hipotesis, CuentaVueltas& vueltas,
             Rastro* rastro = nullptr);

  /// Adds steel in steps of 0.5 cm2/m until every section of the hypothesis passes. A second call
  /// keeps the largest tension found by the first until steel has to grow again.
  /// @param Ri, Re  areas of the inner and outer face [cm2/m], in and out
  /// @throws ErrorEjecucion SinConvergencia: the tension may saturate, and then no steel helps
  void Comprueba(double& Ri, double& Re);

  double TensionMax() const { return tensionMax_; }                 // [kp/cm2]
  std::optional<double> TensionAdm() const { return tensionAdm_; }  // beside TensionMax [kp/cm2]
  double TensionAdmMin() const { return tensionAdmMin_; }           // [kp/cm2]

 private:
  const Esfuerzos& esfuerzos_;
  CuentaVueltas& vueltas_;
  Rastro* rastro_;
  const int h_;
  const ParedFisuracion pared_;
  double tensionMax_ = 0;
  std::optional<double> tensionAdm_;
  double tensionAdmMin_ = 1e20;

  bool Pasa(const SeccionHomogenea& h, double M, double N);
  bool PasanTodas(double& Ri, double& Re);
};

}  // namespace zorbin
