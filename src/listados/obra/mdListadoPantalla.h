// The listing "Pantalla": the summary of each Caso on paper.
#pragma once

#include "listados/obra/mdListadoPapel.h"

namespace zorbin {

class ListadoPantalla : public ListadoPapel {
 public:
  using ListadoPapel::ListadoPapel;

  void Progreso(const EstadoCalculo& e) override;
  void Caso(const EstadoCalculo& e) override;
  void AcabaTramo(const EstadoCalculo& e, const ErrorCorrida* fallo) override {
    LineasPagina += Cierre(e, fallo);
  }

 private:
  int LineasPagina = 0;  // lines used on the page, of 72

  void SaltoSiHaceFalta(const EstadoCalculo& e, int lineas);
  void Aviso(const EstadoCalculo& e, const zorbin::Aviso& aviso);
  void DatosCaso(const EstadoCalculo& e);
  void TablaHipotesis(const EstadoCalculo& e);
  void Armadura(const EstadoCalculo& e);
  void Postesado(const EstadoCalculo& e);
  void CabezaPostesado(const EstadoCalculo& e);
  void FilaHipotesis(const HipotesisPostesada& h);
  void ListadoAlambre(const EstadoCalculo& e);
};

}  // namespace zorbin
