// What is read beside an Obra: adjusted Casos and extras, as they stand between two saves.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "core/mdAjustes.h"
#include "persistencia/registros/mdRegistros.h"
#include "persistencia/zrx/mdZrx.h"

namespace zorbin {

struct Acompanantes {
  std::vector<EntradaAjuste> ajustes;
  bool SinAjustes = false;  // their file was refused; `avisos` has why
  Extras extras;
  bool SinExtras = false;       // the same
  std::vector<Mensaje> avisos;  // of what was refused
};

/// An Obra and the files beside it at one moment.
struct FotoProyecto {
  /// Nothing where there is no file, or why it can't be read.
  using Fichero = std::variant<std::monostate, std::string, Mensaje>;

  FicheroRegistros obra;
  std::optional<std::string> conjunto;
  Fichero dpe, zrx;
};

/// Reads all of them, and writes nothing; another program may be saving them meanwhile.
/// @throws ErrorFichero
FotoProyecto LeeFoto(const std::filesystem::path& ruta);

/// What the files beside the Obra say. While a save of all of them stands half done they are seen
/// as before it, like the Obra; one that is refused takes nothing else with it.
/// @throws ErrorFichero where that save is of a later version of the program
Acompanantes LeeAcompanantes(const FotoProyecto& foto);

/// Those of an Obra that is open for writing: nobody else saves it.
Acompanantes LeeAcompanantes(const FicheroRegistros& f);

}  // namespace zorbin
