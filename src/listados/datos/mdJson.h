// The results of an Obra as JSON, one object, written as they are read: nothing is held back, and
// each Caso stands on a line of its own. Numbers read back to the same double. Data are in the
// units of the Obra's system as captured; results are in calculation units (t, m, kp/cm2, at,
// cm2/m).
#pragma once

#include <map>
#include <ostream>

#include "base/mdCatalogo.h"
#include "listados/datos/mdEscritorJson.h"
#include "listados/obra/mdListado.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

class ListadoJson : public Listado {
 public:
  /// @param fichero     the Obra, as a failure names it
  /// @param capturados  Tramos by position, in the units of their Obra; they outlive the listing
  ListadoJson(std::ostream& salida, std::string fichero,
              const std::map<int, zorbin::Tramo>& capturados, const Catalogo& textos,
              EstiloNumeros estilo)
      : j_(salida),
        fichero_(std::move(fichero)),
        capturados_(capturados),
        textos_(textos),
        estilo_(estilo) {}

  void EmpiezaObra(const Obra& obra);
  void AcabaObra();

  /// @throws std::out_of_range for a position that was not captured
  bool Tramo(const ResultadoTramo& resultado, int posicion, const std::string& numero,
             const SigueListado& sigue) override;

 private:
  EscritorJson j_;
  std::string fichero_;
  const std::map<int, zorbin::Tramo>& capturados_;
  const Catalogo& textos_;
  EstiloNumeros estilo_;
};

}  // namespace zorbin
