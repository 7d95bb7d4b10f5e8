// Bending moment and axial force of the ring at crown, haunches and invert, for each load.
//
// A table method: each load term is a tabulated coefficient, chosen by bedding and section, times
// a load resultant. Source: Anejo 4 "Cálculo Mecánico" of the Instrucción del Instituto Eduardo
// Torroja. Sign: axial force negative in compression; a positive moment puts the inner face in
// tension.
#pragma once

#include <cstdint>

#include "base/tablas.h"
#include "calculo/rastro/mdRastro.h"

namespace zorbin {

/// Data of one ring under one set of loads.
struct DatosOval {
  double Di = 0;           // internal diameter [m]
  double De = 0;           // external diameter [m]
  double GAMAB = 0;        // unit weight of the pipe [t/m3]
  double GAMAT = 0;        // unit weight of the fill [t/m3]
  double LANDA = 0;        // active earth pressure coefficient [-]
  double Q = 0;            // total vertical load [t/m2]
  double QH = 0;           // second load, origin of the lateral thrust [t/m2]
  double QMovil = 0;       // moving part of Q [t/m2]
  std::int16_t ICUNA = 0;  // bedding of the run, 1..4
};

/// Resultants of the loads, to which the tabulated coefficients belong.
struct ResultantesOval {
  double Dm = 0;  // mean diameter [m]
  double w = 0;   // De / Dm [-]
  double Wp = 0;  // weight of the pipe [t/m]
  double Wf = 0;  // weight of the water [t/m]
  double Wt = 0;  // earth of the spandrels [t/m]
  double Wq = 0;  // vertical load without the moving part [t/m]
  double Wm = 0;  // moving part [t/m]
  double Wl = 0;  // lateral thrust for each metre of height [t/m2]
  double h1 = 0;  // height of earth equivalent to QH [m]
  double h0 = 0;  // the same without the moving part [m]
};

/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
ResultantesOval ResultantesDe(const DatosOval& d, Rastro* rastro = nullptr);

/// Beddings of the run.
inline constexpr std::int16_t kCunaGranular90 = 1;
inline constexpr std::int16_t kCunaHormigon90 = 2;
inline constexpr std::int16_t kCunaHormigon120 = 3;
inline constexpr std::int16_t kCunaMenorDe90 = 4;  // 1.25 times the granular one

/// Moment [m·t/m] and axial force [t/m] at the three sections.
struct EsfuerzoSecciones {
  Lista<double, kSecciones> M;
  Lista<double, kSecciones> N;
};

/// The load terms from which the hypotheses are put together.
struct TerminosOval {
  EsfuerzoSecciones propio;       // weight of the pipe
  EsfuerzoSecciones fluido;       // weight of the water
  EsfuerzoSecciones timpanos;     // earth of the spandrels
  EsfuerzoSecciones vertical;     // vertical load without the moving part
  EsfuerzoSecciones movil;        // moving load
  EsfuerzoSecciones lateral;      // lateral thrust with the moving load
  EsfuerzoSecciones lateralFijo;  // lateral thrust without it
  double factor = 1;              // of every result, by bedding [-]
};

/// Every load term of a ring: coefficient by resultant, by the mean diameter for the moments. The
/// moment of the water has no coefficients of its own and takes those of the own weight: in a
/// thin ring they are the same. Its unit weight is 1 t/m3.
/// Source: the Anejo, for thick-walled rings on beddings of 90 and 120 degrees; "less than 90" is
/// 1.25 times the granular bedding.
/// @throws ErrorEjecucion DivisionPorCero, Desbordamiento; Subindice for a bedding outside 1..4
TerminosOval CalculaTerminos(const DatosOval& d, Rastro* rastro = nullptr);

/// Moments [m·t/m] and axial forces [t/m] of the term TIGEN, a load or a sum of loads:
///     1 own weight                         7 the whole: 6 and the moving load
///     2 water                              8 earth, the thrust without the moving load
///     3 earth, the thrust with the moving  9 spandrels
///     4 moving load                       10 thrust without the moving load
///     5 thrust with the moving load       11 vertical load of the earth
///     6 own weight, water and 3           12 nothing
/// Any other code leaves M and N as they came, but for the factor of the bedding.
/// @throws ErrorEjecucion Desbordamiento
void Oval(const TerminosOval& t, int TIGEN, Lista<double, kSecciones>& M,
          Lista<double, kSecciones>& N, Rastro* rastro = nullptr);

}  // namespace zorbin
