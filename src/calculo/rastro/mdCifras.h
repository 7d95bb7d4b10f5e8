// Numbers of significant digits, and how many of them a printed formula needs.
#pragma once

#include <span>
#include <vector>

#include "calculo/rastro/mdEscritura.h"

namespace zorbin {

inline constexpr int kMenosCifras = 4;
inline constexpr int kMasCifras = 7;

/// `valor` with so many significant digits: fewer where they say it whole, more up to the units.
Cifra EnCifras(double valor, int pedidas, char separador);

/// A constant of a formula, as many digits as it has.
Cifra Constante(double valor, char separador);

struct CifrasPaso {
  std::vector<Cifra> datos;
  Cifra resultado;
  bool porIntervalo = false;
};

/// Figures of a step, in printed units.
CifrasPaso EligeCifras(const Expresion& e, std::span<const double> datos, double resultado,
                       char separador);

}  // namespace zorbin
