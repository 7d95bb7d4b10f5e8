// The listing "Normal": every datum, load, moment and hypothesis, page by page.
#pragma once

#include "listados/obra/mdListadoPapel.h"

namespace zorbin {

class ListadoNormal : public ListadoPapel {
 public:
  /// @param conCoefLame  adds the Lamé coefficients of post-tensioned Tramos
  explicit ListadoNormal(const MediosPapel& medios, bool conCoefLame = false)
      : ListadoPapel(medios), conCoefLame_(conCoefLame) {}

  void Cabecera(const EstadoCalculo& e) override;
  void Caso(const EstadoCalculo& e) override;

 private:
  bool conCoefLame_;

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

  // Post-tensioned design (mdListadoNormalPostesado.cpp)
  void DatosPostesado(const EstadoCalculo& e);
  void Postesado(const EstadoCalculo& e);
  void CabeceraHipotesis(const EstadoCalculo& e, const Alambre& alambre, int hipotesis);
  void AvisoPostesado(const EstadoCalculo& e, const Aviso& aviso);
  void ListadoHipotesis(const EstadoCalculo& e, const HipotesisPostesada& h);
  void PerdidasYTensiones(const EstadoCalculo& e, const HipotesisPostesada& h);
  void CoeficientesLame(const EstadoCalculo& e, const HipotesisPostesada& h);
  void TablasDeTensiones(const EstadoCalculo& e, const HipotesisPostesada& h);
  void Encabezado(int texto, std::string_view detras = {});
};

}  // namespace zorbin
