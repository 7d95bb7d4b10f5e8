// The text of the summary of a calculation, made as it is looked at.
#pragma once

#include <atomic>
#include <map>
#include <ostream>
#include <shared_mutex>

#include "sesion/trabajo/mdTextoLargo.h"
#include "sesion/trabajo/mdTrabajo.h"

namespace zorbin {

class Pantalla;
class Resumen;

/// First block: the verdicts, and what has to be known before. Then one for each Caso, and one for
/// the end of each Tramo. Last one: what was not done. A Caso that cannot be written, since a
/// number of it is none, ends its Tramo in the calculation too as one that cannot be calculated
/// does: the first block is then another, and those of the Casos behind it are empty. It is found
/// when its block is made for the first time, and until all have been made nobody else reads the
/// calculation.
class ResumenPorBloques : public FuenteTexto {
 public:
  explicit ResumenPorBloques(Calculo& calculo);

  std::size_t Bloques() const override { return comienzos_.back() + 1; }
  std::string Bloque(std::size_t i) override;
  bool CambiaElPrimero() override { return cambia_.exchange(false); }

 private:
  Calculo& calculo_;
  std::vector<std::size_t> comienzos_;  // block that each Tramo begins with; then the last one
  std::map<std::size_t, std::string> rotos_;  // what stands of each Caso that cannot be written
  std::shared_mutex cerrojo_;
  std::atomic<bool> cambia_ = false;

  std::size_t TramoDe(std::size_t bloque) const;
  void Escribe(std::size_t i, std::ostream& flujo) const;
  void EscribeDelTramo(std::size_t tramo, std::size_t bloque, Pantalla& pantalla,
                       Resumen& resumen) const;
  bool Roto(std::size_t tramo) const;
};

}  // namespace zorbin
