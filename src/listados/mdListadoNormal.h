// The listing "Normal": every datum, load, moment and hypothesis, page by page.
#pragma once

#include "listados/mdListadoPapel.h"

namespace zorbin {

class ListadoNormal : public ListadoPapel {
 public:
  using ListadoPapel::ListadoPapel;

  void Cabecera(const EstadoCalculo& e) override;
  void Caso(const EstadoCalculo& e) override;

 private:
  // Page heads
  void CabeceraPagina(const EstadoCalculo& e, bool miraCargas, bool conObra);
  void PaginaNueva(const EstadoCalculo& e, bool miraCargas);
  void Titulo(int texto);

  // Heading of the Tramo
  void Materiales(const EstadoCalculo& e);
  void Tubo(const EstadoCalculo& e);
  void Colocacion(const EstadoCalculo& e);
  void Relleno(const EstadoCalculo& e);
  void Hipotesis(const EstadoCalculo& e);
  void TablaDeCargas(const EstadoCalculo& e);
  std::string FilaDeCargas(const EstadoCalculo& e, const FilaCargas& fila) const;

  // Ovalisation, at the first pressure of a height
  void Ovalizacion(const EstadoCalculo& e);
  void DatosOvalizacion(const EstadoCalculo& e);
  void BloqueOvalizacion(const EstadoCalculo& e, int hipotesis);

  // Reinforced design
  void DisenoArmado(const EstadoCalculo& e);
  void EsfuerzosDeDiseno(const EstadoCalculo& e);
  void ArmaduraPorHipotesis(const EstadoCalculo& e);
  void CalculoQueRige(const EstadoCalculo& e);
  void SinFisuracionBloque(const SinFisuracion& s);
  void Resultado(const EstadoCalculo& e);
  void UnAviso(const Aviso& aviso);
};

}  // namespace zorbin
