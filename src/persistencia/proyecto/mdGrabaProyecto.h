// The save of a whole Obra with the files beside it: however it ends, all of them read as before it
// or all as after it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/campos/obra.h"
#include "core/campos/tramo.h"
#include "core/mdAjustes.h"
#include "persistencia/registros/mdRegistros.h"
#include "persistencia/zrx/mdZrx.h"

namespace zorbin {

/// A Tramo of the Obra, in its place.
struct TramoAGrabar {
  std::string numero;
  Tramo datos;
  std::string otras;     // unknown keys of its entry, as ExtrasTramo has them
  bool intacto = false;  // the block at this place stays as the file has it
};

/// All that an Obra is. Entries of Tramos are made of `tramos`; `extras` brings what was left when
/// each Tramo had taken its own: unknown keys of the whole, and entries that fit no Tramo.
struct ProyectoAGrabar {
  Obra obra;
  std::vector<TramoAGrabar> tramos;
  std::vector<EntradaAjuste> ajustes;  // in their places, free ones included
  Extras extras;
};

/// Saves all that changes: the Obra, its adjustments and its extras. The file of one that says
/// nothing is not made. A file beside it that can't be understood stays while there is nothing to
/// write into it; extras are otherwise set aside first.
/// The caller has closed the adjustments (FicheroDpe): what holds them, in this program or another,
/// makes the save be refused at once.
/// @param f  open for writing
/// @param separador  decimal separator of the machine
/// @return what the person should know, although it is saved
/// @throws ErrorFichero naming the field that can't be stored, or the disk's refusal; all is then
/// as before, or will be when the Obra is opened again, and the message says which
std::vector<Mensaje> GrabaProyecto(FicheroRegistros& f, const ProyectoAGrabar& proyecto,
                                   const Catalogo& textos, char separador);

/// Saves the whole Obra under another name, with the files beside it. What that name has of
/// another Obra, to which the person has agreed, is replaced: Obra, adjustments and extras.
/// @param origen  from which untouched blocks are copied as they are; none where all are written
/// @return the new file, open for writing and locked; its avisos() tell of its opening
/// @throws SoloParaLeer where another program has that Obra, or its rights forbid it
/// @throws ErrorFichero as GrabaProyecto; also for a file that is no Obra, which is not written
/// over
FicheroRegistros GrabaProyectoComo(const std::filesystem::path& ruta,
                                   const ProyectoAGrabar& proyecto, const FicheroRegistros* origen,
                                   const Catalogo& textos, char separador);

}  // namespace zorbin
