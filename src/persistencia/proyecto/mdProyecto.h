// A project as its files held it when they were read, for whoever calculates or checks it. Nothing
// of it changes, and no file stays open.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/mdAjustes.h"
#include "persistencia/registros/mdRegistros.h"
#include "persistencia/zrb/mdZrb.h"
#include "persistencia/zrx/mdZrx.h"

namespace zorbin {

struct Proyecto {
  FicheroRegistros fichero;  // as it was read; its Tramos are in no other form
  Obra obra;                 // in the units of its system
  ListaTramos lista;
  std::vector<EntradaAjuste> ajustes;  // reinforcements adjusted by hand
  bool SinAjustes = false;             // their file was refused; `avisos` has why
  Extras extras;                       // what the records have no place for; each Tramo's in it
  bool SinExtras = false;              // their file was refused; `avisos` has why
  std::vector<Mensaje> avisos;         // what a person should know, although it opens
  std::vector<DanoObra> danos;         // what was not to be had of one that was salvaged
};

/// Reads the project and the files beside it. Every Tramo is looked at, so that a damaged file is
/// refused before anything of it is calculated; a file beside it that is refused takes nothing else
/// with it.
/// @throws ErrorFichero
Proyecto LeeProyecto(const std::filesystem::path& ruta);

/// What can be had of a project, whole or damaged: a Tramo that cannot be read has no number in the
/// list, and `danos` names it. Nothing is written.
/// @throws ErrorFichero for a file that cannot be read, or is no Obra
Proyecto RescataProyecto(const std::filesystem::path& ruta);

/// A Tramo that was asked for, in the units of its Obra.
struct TramoPedido {
  int posicion;        // in the list, from 1
  std::string numero;  // its text there
  Tramo tramo;
};

/// The Tramos at some positions in the order given, as stored; without positions those of the whole
/// Obra in file order. A blank record has the value of the Tramo before it here, and NumeroTramo
/// is the number of the list, by which adjusted Casos are looked up. What the extras say of each is
/// in it.
/// @throws ErrorFichero
std::vector<TramoPedido> TramosPedidos(const Proyecto& proyecto,
                                       const std::vector<int>& posiciones = {});

/// Positions that have a number, from 1, in file order.
std::vector<int> PosicionesDe(const ListaTramos& lista);

/// Position of the Tramo with a number, from 1; 0 when the list does not have it.
int PosicionDe(const ListaTramos& lista, int numero);

}  // namespace zorbin
