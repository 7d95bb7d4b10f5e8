// The file beside the project with what its records have no place for: JSON, UTF-8.
//
//   {
//    "version": 1,
//    "tramos": [
//     {"numero": "2", "descripcion": "Tramo de cabecera", "envolvente": true}
//    ]
//   }
//
// A key that is absent means its default. Keys that this version does not know are kept.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/mdCatalogo.h"
#include "persistencia/zrx/mdPortadaObra.h"

namespace zorbin {

/// Larger ones, those nested deeper, and those with more keys in an object or
/// more entries, are refused.
inline constexpr std::size_t kMaxBytesZrx = 2'000'000;
inline constexpr int kMaxNivelesZrx = 32;
inline constexpr int kMaxClavesZrx = 1000;
inline constexpr std::size_t kMaxEntradasZrx = 2000;

/// An entry. It is the Tramo's whose number and description it carries.
struct ExtrasTramo {
  std::string numero;
  std::string descripcion;
  bool Envolvente = false;
  std::string otras;  // unknown keys, a JSON object; empty for none

  bool DiceAlgo() const { return Envolvente || !otras.empty(); }
  bool operator==(const ExtrasTramo&) const = default;
};

struct Extras {
  std::vector<ExtrasTramo> tramos;
  PortadaObra portada;  // of the report
  std::string otras;    // unknown keys of the whole, a JSON object; empty for none
  std::string ajeno;    // the file as it is, where a later version of the program wrote it

  bool operator==(const Extras&) const = default;
};

/// Name of the file that belongs to a project, as RutaDpe.
std::filesystem::path RutaZrx(const std::filesystem::path& obra);

/// @param zrx  name of the file, for the messages
/// @throws ErrorFichero naming what is wrong
Extras ExtrasDeTexto(std::string_view texto, const std::filesystem::path& zrx);

/// Of the file; none where there is no file. @throws ErrorFichero
Extras LeeExtras(const std::filesystem::path& zrx);

/// Text of the file, without the entries that say nothing; empty where nothing is said. That of a
/// later version is the one it had.
std::string TextoDeExtras(const Extras& extras);

/// Takes the entry of a Tramo out of the others. @return none where there is none
std::optional<ExtrasTramo> TomaExtras(Extras& extras, std::string_view numero,
                                      std::string_view descripcion);

/// What the person should know of a file that was read: its later version, and the entries left,
/// which fit no Tramo.
std::vector<Mensaje> AvisosDeExtras(const Extras& extras, const std::filesystem::path& zrx);

}  // namespace zorbin
