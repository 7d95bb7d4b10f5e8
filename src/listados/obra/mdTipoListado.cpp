#include "listados/obra/mdTipoListado.h"

#include "listados/obra/mdListadoNormal.h"
#include "listados/obra/mdListadoPantalla.h"
#include "listados/obra/mdListadoTabular.h"

namespace zorbin {

std::unique_ptr<Listado> CreaListado(TipoListado tipo, const MediosPapel& medios) {
  switch (tipo) {
    case TipoListado::Tabular:
      return std::make_unique<ListadoTabular>(medios);
    case TipoListado::Pantalla:
      return std::make_unique<ListadoPantalla>(medios);
    case TipoListado::Normal:
    case TipoListado::Lame:
      break;
  }
  return std::make_unique<ListadoNormal>(medios, tipo == TipoListado::Lame);
}

}  // namespace zorbin
