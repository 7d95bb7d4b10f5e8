// The listing "Normal": every datum, load, moment and hypothesis, page by page.
#pragma once

#include <optional>

#include "listados/obra/mdListadoPapel.h"

namespace zorbin {

class ListadoNormal : public ListadoPapel {
 public:
  /// @param conCoefLame  adds the Lamé coefficients of post-tensioned Tramos
  explicit ListadoNormal(const MediosPapel& medios, bool conCoefLame = false)
      : ListadoPapel(medios, NombresHipotesis::Diseno), conCoefLame_(conCoefLame) {}

 private:
  bool conCoefLame_;

  void Caso(const VistaCaso& v) override;
  void CasoSinAcabar(const ResultadoTramo& resultado, const FalloCorrida& roto) override;

  // Page heads
  void NumeraPagina();
  /// @param caso  null on a page of its height
  void RotulaPagina(const zorbin::Tramo& t, double Hr, const FilaCaso* caso);
  void PaginaDeAltura(const zorbin::Tramo& t, double Hr);
  void PaginaDeCaso(const VistaCaso& v);
  void Titulo(int texto);

  // Heading of the Tramo
  void Cabecera(const ResultadoTramo& r);
  void Materiales(const DatosTramo& d);
  void Tubo(const zorbin::Tramo& t);
  void Colocacion(const zorbin::Tramo& t);
  void Relleno(const zorbin::Tramo& t);
  void Hipotesis(const ResultadoTramo& r);
  void TablaDeCargas(const ResultadoTramo& r);
  void CabezaDeCargas();
  std::string FilaDeCargas(double De, const FilaCargas& fila) const;
  void CargasPorAltura(const ResultadoTramo& r);
  void CabezaPorAltura(const std::optional<CargasContrastadas>& contraste);
  std::string FilaPorAltura(double De, const CargasAltura& altura) const;

  /// Makes room for lines of a table: where the sheet has none, another one repeats its head.
  template <typename Cabeza>
  void HaceSitio(const ResultadoTramo& r, int lineas, Cabeza cabeza) {
    if (papel_.Caben(lineas)) return;
    PaginaDeAltura(r.datos.tramo, r.alturas.front().Hr);
    cabeza();
  }

  // Ovalisation, at the first pressure of a height
  void Ovalizacion(const VistaCaso& v);
  void DatosOvalizacion(const VistaCaso& v);
  void BloqueOvalizacion(const VistaCaso& v, int hipotesis);

  // Reinforced design
  void DisenoArmado(const VistaCaso& v);
  void EsfuerzosDeDiseno(const VistaCaso& v);
  void ArmaduraPorHipotesis(const VistaCaso& v);
  void CalculoQueRige(const VistaCaso& v);
  void SinFisuracionBloque(const SinFisuracion& s);
  void Resultado(const VistaCaso& v);
  void UnAviso(const Aviso& aviso);
  void Veredicto(const VistaCaso& v);

  // Post-tensioned design (mdListadoNormalPostesado.cpp)
  void DatosPostesado(const ResultadoTramo& resultado);
  void Postesado(const VistaCaso& v);
  void CabeceraHipotesis(const VistaCaso& v, const Alambre& alambre, int hipotesis);
  void AvisoPostesado(const VistaCaso& v, const Aviso& aviso);
  void ListadoHipotesis(const VistaCaso& v, const HipotesisPostesada& h);
  void PerdidasYTensiones(const VistaCaso& v, const HipotesisPostesada& h);
  void CoeficientesLame(const VistaCaso& v, const HipotesisPostesada& h);
  void TablasDeTensiones(bool si, const HipotesisPostesada& h);
  void Encabezado(int texto, std::string_view detras = {});
};

}  // namespace zorbin
