// The one table of the data of Obra and Tramo. File, screen, draft, results as JSON, comparison of
// versions and the change of units go through it: a datum is told in its row and nowhere else.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "core/campos/mdCampo.h"
#include "core/campos/mdMagnitud.h"
#include "core/campos/obra.h"
#include "core/campos/tramo.h"

namespace zorbin {

/// Least value of a number that may be zero: zero passes, whatever its last digits say.
inline constexpr double kNadaBajoCero = -1e-10;
/// Least value of a number that must be more than zero.
inline constexpr double kAlgo = 1e-10;

/// What is known of a datum.
struct Ficha {
  std::string_view nombre = {};  // of the variable: key of the results, name in the file's messages
  Magnitud magnitud = Magnitud::Coeficiente;
  bool deSesion = false;     // of the program at work, not of the project: neither filed nor kept
  bool enResultados = true;  // the results repeat it
  int registro = 0;     // of the project file: of the header, or offset in the block; 0 for none
  int registroMks = 0;  // a second one, with the MKS value alone, that nobody reads
  bool seLee = true;    // written only: it follows from others
  std::string_view mascara = "#####0.00";      // under MKS
  std::string_view mascaraSI = {};             // under SI, where another
  std::string_view mascaraFichero = {};        // of the file, where another
  std::string_view mascaraTecleada = {};       // of what was typed, where another
  double minimo = 0;                           // on leaving the field
  std::optional<double> defecto = {};          // under MKS
  std::optional<double> defectoSI = {};        // under SI, where another
  std::span<const std::int16_t> codigos = {};  // of a code, all that it may be
  bool anulaAjustes = false;                   // a change voids the hand adjustments of the Tramo
  Campo campo = {};                            // its field on the screen; without name for none

  bool Escala() const { return UnidadesDe(magnitud).Escala(); }
  constexpr bool EnPantalla() const { return !campo.nombre.empty(); }
  std::string_view Mascara(bool si) const { return si && !mascaraSI.empty() ? mascaraSI : mascara; }
  std::string_view MascaraFichero(bool si) const {
    return mascaraFichero.empty() ? Mascara(si) : mascaraFichero;
  }
  std::string_view MascaraTecleada(bool si) const {
    return mascaraTecleada.empty() ? Mascara(si) : mascaraTecleada;
  }
  std::optional<double> Defecto(bool si) const { return si && defectoSI ? defectoSI : defecto; }
};

template <class Bloque>
using Miembro =
    std::variant<double Bloque::*, std::int16_t Bloque::*, bool Bloque::*, std::string Bloque::*>;

/// A row of the table: the variable, and what is known of it.
template <class Bloque>
struct Dato {
  Miembro<Bloque> miembro;
  Ficha ficha;
};

/// The rows in the order in which the results tell the data.
std::span<const Dato<Obra>> TablaDe(const Obra&);
std::span<const Dato<Tramo>> TablaDe(const Tramo&);

/// Calls `f(ficha, variable)` for every datum of an Obra or of a Tramo.
template <class Bloque, class F>
void RecorreDatos(Bloque& bloque, const F& f) {
  for (const auto& dato : TablaDe(bloque)) {
    std::visit([&](const auto miembro) { f(dato.ficha, bloque.*miembro); }, dato.miembro);
  }
}

/// Calls `f(ficha, miembro)` for every number of an Obra or of a Tramo.
template <class Bloque, class F>
void RecorreNumeros(const F& f) {
  for (const auto& dato : TablaDe(Bloque{})) {
    if (const auto* miembro = std::get_if<double Bloque::*>(&dato.miembro)) {
      f(dato.ficha, *miembro);
    }
  }
}

// ---- Units

/// Tensile strength of the concrete from the compressive one: 0.45 (Fck Fck)^(1/3).
/// @param Fck  [kp/cm2]. The coefficient belongs to that unit.
/// @return [kp/cm2]
double FctDeFck(double Fck);

/// The same in the unit of a system: that of a run, converted.
double FctEnSistema(double Fck, bool si);

/// The Obra with its pressures in at, whatever its system.
Obra ObraEnCalculo(const Obra& obra);

/// The Tramo with pressures in at, stresses in kp/cm2 and the given load in t/m2.
/// @param si  its Obra is in SI; Fct then follows from the converted Fck
Tramo TramoEnCalculo(const Tramo& tramo, bool si);

}  // namespace zorbin
