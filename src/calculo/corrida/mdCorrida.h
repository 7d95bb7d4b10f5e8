// The run of a Tramo: expands it into its Casos, fill heights outside and pressures inside, and
// takes each through loads, ovalisation and design. It prints nothing: at fixed points it hands
// the state to its listeners, and every listing is one of them.
#pragma once

#include <exception>
#include <span>

#include "core/estado_calculo.h"

namespace zorbin {

/// A reader of a run. The calls come in the order of the members; all but the Caso's are for
/// those who need them.
class OyenteCorrida {
 public:
  virtual ~OyenteCorrida() = default;
  /// A Caso begins: its pressures and the loads of its height stand.
  virtual void Progreso(const EstadoCalculo&) {}
  /// The first Caso of the run: load table and 1-metre loads stand as well.
  virtual void Cabecera(const EstadoCalculo&) {}
  /// A Caso is designed.
  virtual void Caso(const EstadoCalculo&) {}
  /// The last pressure of a height is done.
  virtual void FinAltura(const EstadoCalculo&) {}
  /// The run is over, the state still in calculation units.
  virtual void FinCorrida(const EstadoCalculo&) {}
};

using Oyentes = std::span<OyenteCorrida* const>;

/// An arithmetic failure of a run with the place where it arose.
class ErrorCorrida : public std::exception {
 public:
  ErrorCorrida(ErrorEjecucion error, const EstadoCalculo& e)
      : error_(std::move(error)),
        numeroTramo_(e.tramo.NumeroTramo),
        numCaso_(e.corrida.NumCaso),
        Hr_(e.corrida.Hr),
        DP_(e.corrida.DP) {}
  const ErrorEjecucion& error() const { return error_; }
  int numeroTramo() const { return numeroTramo_; }
  int numCaso() const { return numCaso_; }  // 0: before the first height
  double Hr() const { return Hr_; }         // [m]
  double DP() const { return DP_; }         // [at]
  const char* what() const noexcept override { return error_.what(); }

 private:
  ErrorEjecucion error_;
  std::int16_t numeroTramo_;
  std::int16_t numCaso_;
  double Hr_;
  double DP_;
};

/// A value of the forced arguments that stands for "not given".
inline constexpr double kSinForzar = -1.0;

/// Runs the Tramo in the state, which holds calculation units (EnUnidadesDeCalculo).
/// With a height [m] and a pressure [at] given (above -0.5) it calculates that one Caso; the
/// caller gives both or none.
/// Writes corrida and caso, which starts clean. At the end the captured values stand again, but for
/// tramo.Hr1, which
///        a trench laying leaves at De, and tramo.Hr0Delta, which the Obra's heights replace.
/// @throws ErrorCorrida; obra and tramo are then as they were on entry
void CalculaCasos(EstadoCalculo& e, double hrForzada, double prsForzada, Oyentes oyentes);

}  // namespace zorbin
