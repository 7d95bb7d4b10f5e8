#include "listados/obra/mdDocumento.h"

#include "base/mdTextos.h"
#include "listados/papel/mdPie.h"

namespace zorbin {

DocumentoObra::DocumentoObra(TipoListado tipo, DatosDocumento datos, Lectura lee)
    : tipo_(tipo), datos_(std::move(datos)), lee_(std::move(lee)) {
  CuentaHojas cuenta;
  EnHojas(cuenta);
  hojas_ = cuenta.hojas();
}

void DocumentoObra::Escribe(DestinoHojas& destino) const {
  const std::string titulo(Recorta(datos_.obra.substr(0, datos_.obra.find('\r'))));
  TextosPie pie{{titulo, std::string(Recorta(datos_.cliente)), datos_.fichero},
                datos_.programa + " · " + datos_.fecha.dia};
  HojasConPie conPie(destino, std::move(pie), hojas_, datos_.textos);
  EnHojas(conPie);
}

void DocumentoObra::EnHojas(DestinoHojas& destino) const {
  Papel papel(destino, OrientacionDe(tipo_));
  lee_(*CreaListado(tipo_, {papel, datos_.textos, datos_.estilo, datos_.fecha}));
  papel.FinDocumento();
}

}  // namespace zorbin
