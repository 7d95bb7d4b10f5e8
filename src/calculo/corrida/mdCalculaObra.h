// The runs of several Tramos on several cores. What comes of them is the same for any number of
// threads, and comes in the order of the Tramos.
#pragma once

#include <cstddef>
#include <functional>

#include "base/mdRegistro.h"
#include "calculo/corrida/mdCalculaTramo.h"

namespace zorbin {

/// Tramos to run, by their place from 0. `datos` is asked on any of the threads, several at a time;
/// the others on the thread of the caller, or one after another.
struct TareaObra {
  std::size_t cuantos = 0;
  std::function<DatosTramo(std::size_t)> datos;
  /// The next result, in order. @return whether to go on
  std::function<bool(std::size_t, ResultadoTramo&&)> toma;
  /// Asked before each Caso of the Tramo whose result comes next, from any thread but one at a
  /// time, and once before a result of which nobody was asked; false ends all of them: that Tramo
  /// comes as cancelled, or not at all, and none after it.
  std::function<bool(std::size_t, const AvanceCorrida&)> sigue;
  Registro* registro = nullptr;  // debug log, none when null
};

/// Threads that the machine runs at once, 1 at least.
int HilosDeLaMaquina();

/// @param hilos  1 runs all on the thread of the caller
/// @return false where `sigue` ended it
/// @throws whatever `datos`, `toma` or `sigue` throw
bool CalculaObra(const TareaObra& tarea, int hilos = HilosDeLaMaquina());

}  // namespace zorbin
