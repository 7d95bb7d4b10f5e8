// The ring of a Caso under one of its hypotheses, all round: what its tables give at crown,
// haunches and invert, the laws that pass through them, and how far the true extremes lie from the
// three.
#pragma once

#include <optional>

#include "calculo/anillo/mdAnillo.h"
#include "core/resultado.h"

namespace zorbin {

struct AnilloCaso {
  int hipotesis = 0;
  LeyesAnillo leyes;              // M [m·t/m], N [t/m]
  Lista<double, kSecciones> M;    // of the design [m·t/m]
  Lista<double, kSecciones> N;    // of the design [t/m]
  double presion = 0;             // ring force of the pressure within N [t/m]
  bool sinMomento = false;        // the hypothesis is a pressure alone
  FuncionAnillo::Extremo mayorM;  // inner face in tension
  FuncionAnillo::Extremo menorM;  // outer face in tension
};

/// Hypotheses of a design: 5 of a reinforced one, 6 of a post-tensioned one.
int CuentaHipotesis(const DatosTramo& datos);

/// The hypothesis that asks for most in a Caso: the governing one, or, post-tensioned, that of the
/// check with the greatest use; 0 where no hypothesis was checked.
int HipotesisQueRige(const DatosTramo& datos, const FilaCaso& fila);

/// Moments of a hypothesis at the three sections [m·t/m].
Lista<double, kSecciones> MomentosDe(const ResultadoCaso& caso, int h);

/// M and N of a hypothesis: the sum of its load terms with the factor of the bedding. In a
/// reinforced design N holds the ring force of the pressure too; in a post-tensioned one, whose
/// pressure goes to the thick cylinder, it does not.
/// @param caso  the whole of `fila`
/// @param h     1 to CuentaHipotesis
/// @throws ErrorEjecucion Subindice for another hypothesis
AnilloCaso AnilloDe(const ResultadoTramo& tramo, const FilaCaso& fila, const ResultadoCaso& caso,
                    int h);

/// A moment beyond those of the three sections.
struct ExcesoMomento {
  FuncionAnillo::Extremo extremo;  // [m·t/m]
  double secciones = 0;            // greatest of that sign at crown, haunches or invert [m·t/m]
  double exceso = 0;  // of the greatest one of either sign, where none has that sign [-]
};

/// Where a moment passes by more than this what the three sections have, it is told [-].
inline constexpr double kExcesoQueSeDice = 0.01;

/// @param interior  of the moments that put the inner face in tension, or else the outer one
/// @return none where the three sections hold the greatest moment within kExcesoQueSeDice
std::optional<ExcesoMomento> ExcesoDe(const AnilloCaso& anillo, bool interior);

}  // namespace zorbin
