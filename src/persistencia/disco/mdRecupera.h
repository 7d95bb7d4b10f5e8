// What an opening does with a save that did not come to its end.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "persistencia/disco/mdDescriptor.h"
#include "persistencia/disco/mdErrorFichero.h"

namespace zorbin {

/// Undoes the save that the journal beside a file tells of, and removes the journal. One that is
/// another file's is set aside under a name of its own. It may break off at any point and be done
/// again.
/// @param f       open for writing and locked
/// @param ruta    of the file, without symbolic links
/// @param nombre  that the person knows it by
/// @return what the person should know
/// @throws ErrorFichero where it can't be done; the journal is then still there
std::vector<Mensaje> Recupera(const Descriptor& f, const std::filesystem::path& ruta,
                              const std::string& nombre);

/// A journal that lies where a file is going to be made is of no use to it.
std::vector<Mensaje> RetiraDiario(const std::filesystem::path& ruta, const std::string& nombre);

struct ContenidoLeido {
  std::string bytes;
  std::vector<Mensaje> avisos;
};

/// Bytes of a file that is only read, kMaxContenido at most, as they are between two saves: what a
/// save has half changed is seen as it was before. Nothing is written and nobody is waited for
/// longer than a save takes.
/// @throws ErrorFichero
ContenidoLeido LeeSinEscribir(const std::filesystem::path& ruta);

}  // namespace zorbin
