// The steel that a Caso needs at its sections beside the steel chosen for it.
#pragma once

#include <array>
#include <string_view>

#include "calculo/ajustes/mdTanteo.h"

namespace zorbin {

/// Mask of the areas on the screen; what is compared and stored are the numbers that it shows.
inline constexpr std::string_view kMascaraArea = "####0.00";

/// `area` as its text reads back.
double AreaMostrada(double area);

inline constexpr int kLineasNecesarias = 3;

/// A line of the check.
struct LineaNecesaria {
  double necesaria = 0;  // [cm2/m]
  double dispuesta = 0;  // [cm2/m]
  bool alerta = false;   // the text of what is provided is below that of what is needed
};

/// A section of the check, with what its working sheet tells.
struct SeccionComprobada {
  double A1 = 0;          // steel on the face that the moment tenses [cm2/m]
  double A2 = 0;          // on the other one [cm2/m]
  double CANTO = 0;       // [cm]
  bool interior = false;  // the tensioned face is the inner one
  Comprobacion1050 c{};
};

/// The lines are crown, haunches and invert; where the factory test governs, which is pure tension,
/// they are outer, inner and total steel, and there are no sections.
struct Comprobacion {
  DatosDelCaso datos;
  Ajuste disp;  // steel chosen [cm2/m]
  bool traccionPura = false;
  std::array<LineaNecesaria, kLineasNecesarias> lineas;
  Lista<SeccionComprobada, kSecciones> secciones;

  /// Line that is nearest to falling short, or shortest, from 0.
  int LineaQueRige() const;
};

/// @param PPNeta  row of the factory test in the table of hypotheses, which only pure tension reads
/// @throws ErrorEjecucion as the formulas
Comprobacion Calculo_Arm_Necesaria(const DatosDelCaso& datos, const FilaHip& PPNeta,
                                   const Ajuste& disp);

}  // namespace zorbin
