// The listing "Pantalla": the summary of each Caso on paper.
#pragma once

#include "listados/obra/mdListadoPapel.h"

namespace zorbin {

class ListadoPantalla : public ListadoPapel {
 public:
  using ListadoPapel::ListadoPapel;

 private:
  int LineasPagina = 0;  // lines used on the page, of 72

  void Caso(const VistaCaso& v) override;
  void CasoSinAcabar(const ResultadoTramo& resultado, const FalloCorrida& roto) override;
  void Ocupa(int lineas) override { LineasPagina += lineas; }

  void CabezaCaso(const zorbin::Tramo& t, int NumCaso, double DP, double MDP, int detras = 0);
  void SaltoSiHaceFalta(const VistaCaso& v, int lineas);
  void Aviso(const VistaCaso& v, const zorbin::Aviso& aviso);
  void DatosCaso(const VistaCaso& v);
  void TablaHipotesis(const VistaCaso& v);
  void Armadura(const VistaCaso& v);
  void Postesado(const VistaCaso& v);
  void Veredicto(const VistaCaso& v);
  void CabezaPostesado(bool si);
  void FilaHipotesis(const HipotesisPostesada& h);
  void ListadoAlambre(const VistaCaso& v);
};

}  // namespace zorbin
