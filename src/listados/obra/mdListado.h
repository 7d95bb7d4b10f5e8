// A reader of results: whatever is made of the Tramos of an Obra, one after another.
#pragma once

#include <functional>
#include <string>

#include "calculo/corrida/mdCalculaTramo.h"

namespace zorbin {

/// A Caso before its reader: the row, the loads of its height, and the whole of it.
struct VistaCaso {
  const ResultadoTramo& tramo;
  const FilaCaso& fila;
  const CargasAltura& altura;
  const ResultadoCaso& caso;
  bool primero;       // of the Tramo
  bool abreAltura;    // first pressure of a height
  bool cierraAltura;  // last pressure of a height

  const Tramo& Datos() const { return tramo.datos.tramo; }
  const ResultadoArmado& Armado() const { return caso.Armado(); }
  const ResultadoPostesado& Postesado() const { return caso.Postesado(); }
};

/// Asked now and then whether to go on; false ends the work.
using SigueListado = std::function<bool()>;

/// A listing, summary or data file. What a Tramo was named in the list goes with it.
class Listado {
 public:
  virtual ~Listado() = default;
  /// @return false where whoever was asked said no
  virtual bool Tramo(const ResultadoTramo& resultado, int posicion, const std::string& numero,
                     const SigueListado& sigue) = 0;
};

/// Shows a Caso of a result, calculated again whole. @param i  its row, from 0
void LeeCaso(const ResultadoTramo& resultado, std::size_t i,
             const std::function<void(const VistaCaso&)>& lee);

/// Shows the Casos of a result one after another, each calculated again whole, and asks before each
/// whether to go on. @return false where whoever was asked said no
bool RecorreCasos(const ResultadoTramo& resultado, const SigueListado& sigue,
                  const std::function<void(const VistaCaso&)>& lee);

/// What stands of the Caso that broke off a run, where one had begun; null where none had.
const FalloCorrida* CasoRoto(const ResultadoTramo& resultado);

}  // namespace zorbin
