// The listing "Tabular": a row for each Caso, on landscape pages.
#pragma once

#include "listados/obra/mdListadoPapel.h"

namespace zorbin {

class ListadoTabular : public ListadoPapel {
 public:
  using ListadoPapel::ListadoPapel;

  void Cabecera(const EstadoCalculo& e) override;
  void Caso(const EstadoCalculo& e) override;
  void AcabaTramo(const EstadoCalculo& e, const ErrorCorrida* fallo) override {
    LineasResto -= Cierre(e, fallo);
  }
  void FinAltura(const EstadoCalculo& e) override;

 private:
  int LineasResto = 0;     // lines left on the page
  double HrAnterior = -1;  // height of the row before; a run shows each height once [m]

  void CabeceraPagina(const EstadoCalculo& e);
  void PaginaNueva(const EstadoCalculo& e);
  void FilaTramo(const EstadoCalculo& e);
  void ResumenTabular(const EstadoCalculo& e);
  std::string CampoAltura(const EstadoCalculo& e);
  void FilaArmado(const EstadoCalculo& e);
  void DatosPostesado(const EstadoCalculo& e);
  void CabeceraTabularPostesado(const EstadoCalculo& e);
  void FilaTabular(const EstadoCalculo& e);
};

}  // namespace zorbin
