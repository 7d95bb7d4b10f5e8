// A listing of an Obra as a document: its sheets have a foot that tells whose they are and how
// many.
#pragma once

#include <functional>

#include "listados/obra/mdTipoListado.h"

namespace zorbin {

struct DatosDocumento {
  std::string obra;      // description, several lines
  std::string cliente;   //
  std::string fichero;   // name of the project file
  std::string programa;  // name and version
  const Catalogo& textos;
  EstiloNumeros estilo;
  Fecha fecha;
};

class DocumentoObra {
 public:
  /// Hands the Tramos of the Obra to a listing; called twice, since the foot of the first sheet
  /// tells how many there are.
  using Lectura = std::function<void(Listado&)>;

  DocumentoObra(TipoListado tipo, DatosDocumento datos, Lectura lee);

  int hojas() const { return hojas_; }  // 0 where the Tramos have nothing to show
  void Escribe(DestinoHojas& destino) const;

 private:
  TipoListado tipo_;
  DatosDocumento datos_;
  Lectura lee_;
  int hojas_ = 0;

  void EnHojas(DestinoHojas& destino) const;
};

}  // namespace zorbin
