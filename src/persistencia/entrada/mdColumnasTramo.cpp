#include "persistencia/entrada/mdColumnasTramo.h"

#include <algorithm>
#include <array>

namespace zorbin {

bool TieneColumna(const Ficha& ficha) {
  constexpr std::array<std::string_view, 8> kDeducidos{
      "NumeroTramo", "EsArmado", "PostFlag", "SubTipo", "GamaY", "GamaF", "Fct", "De"};
  return !ficha.deSesion && std::ranges::find(kDeducidos, ficha.nombre) == kDeducidos.end();
}

std::vector<const Dato<Tramo>*> ColumnasDeTramo() {
  std::vector<const Dato<Tramo>*> columnas;
  for (const auto& dato : TablaDe(Tramo{})) {
    if (TieneColumna(dato.ficha)) columnas.push_back(&dato);
  }
  return columnas;
}

std::string UnidadDe(const Ficha& ficha, bool si) {
  const auto& unidades = UnidadesDe(ficha.magnitud);
  return std::string(si ? unidades.si : unidades.mks);
}

std::string Cabecera(const Ficha& ficha, bool si) {
  const std::string unidad = UnidadDe(ficha, si);
  return std::string(ficha.nombre) + (unidad.empty() ? "" : " (" + unidad + ")");
}

}  // namespace zorbin
