// The closed formulas of the hand calculation: the steel that a section needs for a moment and an
// axial force. The routines carry the line numbers of that calculation.
//
// Units: area cm2 per metre of pipe, length cm, force kp/m, moment kp·cm/m, stress kp/cm2. An axial
// force is positive in tension; a moment is a magnitude. `BRAZO` is the lever arm between the two
// layers, `CANTO` the useful depth, `Fcad` the reduced strength of the concrete.
#pragma once

#include "calculo/rastro/mdRastro.h"
#include "core/resultados.h"

namespace zorbin {

/// Moment [kp·cm/m] of one in m·t/m.
double CalculaM(double m);

/// Pressure that the governing hypothesis adds [at]: `PP`, none, `STP`, `DP`, `MDP`; `DP` for any
/// other value.
double PresionQueRige(int HipotesisRige, const PresionesCaso& p);

/// Axial force of a section with a pressure added [kp/m].
/// @param n  without pressure [t/m]  @param presion  [at]  @param d  internal diameter [m]
double CalculaN(double n, double presion, double d);

/// Factors of the flexo-compression.
struct CoeficientesFlexion {
  double K1;  // [-]
  double K2;  // [-]
};
CoeficientesFlexion CoeficientesDeFlexion(double M, double N, double BRAZO, double CANTO,
                                          double Fcad);

/// Flexo-compression. @throws ErrorEjecucion DivisionPorCero for N, CANTO, Fcad or fyd of 0
double Linea_5240(double M, double N, double BRAZO, double CANTO, double Fcad, double fyd);

struct AreaSeccion {
  double area;
  bool traccion;  // the section is in composite tension
};

/// The section is in composite tension: N not negative and the eccentricity within the layers.
bool EsTraccionCompuesta(double M, double N, double BRAZO);

/// Composite tension with the layers alike, or else flexo-compression. @throws as Linea_5240
AreaSeccion Linea_5050(double N, double M, double BRAZO, double fyd, double CANTO, double Fcad);

/// Composite tension: area x of the layer that the moment tenses, given the area A of the other.
/// Solves x·fyd = M/BRAZO + N·x/(x + A).
double Linea_6000(double BRAZO, double fyd, double A, double N, double M);

/// Composite tension: area x of the other layer, given the area A of the one that the moment
/// tenses. Solves A·fyd = M/BRAZO + N·A/(x + A). It is negative where A is enough alone.
double Linea_6030(double fyd, double BRAZO, double A, double N, double M);

/// The check of one section: what it needs on its tensioned face, and the terms of the way there.
struct Comprobacion1050 {
  bool traccion;
  double r;       // share of the axial force that the face takes, in composite tension [-]
  double K1, K2;  // in flexo-compression
  double necesaria;
};

/// @param A1  steel on the tensioned face  @param A2  steel on the other
/// @throws ErrorEjecucion DivisionPorCero for N, BRAZO or fyd of 0
Comprobacion1050 Lineas_1050(double A1, double A2, double M, double BRAZO, double N, double fyd,
                             double CANTO, double Fcad, Rastro* rastro = nullptr);

}  // namespace zorbin
