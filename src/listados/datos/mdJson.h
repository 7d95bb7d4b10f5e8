// The results of an Obra as JSON, one object, written as the run goes: nothing is held back, and
// each Caso stands on a line of its own. Numbers read back to the same double. Data are in the
// units of the Obra's system as captured; results are in calculation units (t, m, kp/cm2, at,
// cm2/m).
#pragma once

#include <ostream>

#include "base/mdCatalogo.h"
#include "listados/obra/mdFlujo.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

class ListadoJson : public OyenteObra {
 public:
  ListadoJson(std::ostream& salida, const std::string& fichero, const Catalogo& textos,
              EstiloNumeros estilo)
      : salida_(salida), fichero_(fichero), textos_(textos), estilo_(estilo) {}

  void EmpiezaObra(const EstadoCalculo& e);
  void AcabaObra();

  void EmpiezaTramo(const EstadoCalculo& e, int posicion, const std::string& numero) override;
  void Caso(const EstadoCalculo& e) override;
  void AcabaTramo(const EstadoCalculo& e, const ErrorCorrida* fallo) override;

 private:
  std::ostream& salida_;
  std::string fichero_;
  const Catalogo& textos_;
  EstiloNumeros estilo_;
  bool hayTramo_ = false;
  bool hayCaso_ = false;
  std::string tramo_;  // number of the one in hand
};

}  // namespace zorbin
