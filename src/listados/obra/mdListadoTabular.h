// The listing "Tabular": a row for each Caso, on landscape pages.
#pragma once

#include "listados/obra/mdListadoPapel.h"

namespace zorbin {

class ListadoTabular : public ListadoPapel {
 public:
  using ListadoPapel::ListadoPapel;

 private:
  int LineasResto = 0;     // lines left on the page
  double HrAnterior = -1;  // height of the row before; a Tramo shows each height once [m]

  void Caso(const VistaCaso& v) override;
  void CasoSinAcabar(const ResultadoTramo& resultado, const FalloCorrida& roto) override;
  void Ocupa(int lineas) override { LineasResto -= lineas; }

  void Cabecera(const ResultadoTramo& r);
  void EntradasDelTramo(const std::vector<std::string>& entradas);
  void CabeceraPagina(const Obra& obra);
  void PaginaNueva(const Obra& obra);
  void FilaTramo(const zorbin::Tramo& t);
  void Leyenda(const DatosTramo& d);
  void ResumenTabular(const DatosTramo& d);
  std::string CampoAltura(double Hr);
  void FilaArmado(const VistaCaso& v);
  void DatosPostesado(const VistaCaso& v);
  void CabeceraTabularPostesado(const DatosTramo& d);
  void FilaTabular(const VistaCaso& v);
  std::string AreasArmado(const VistaCaso& v) const;
  std::string VeredictoArmado(const VistaCaso& v) const;
  std::string VeredictoPostesado(const VistaCaso& v) const;
  void FinAltura();
};

}  // namespace zorbin
