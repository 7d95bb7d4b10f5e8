// The files beside an Obra, its companions, and their save together with it. Each has the name of
// the Obra with another extension.
//
// What a companion held before a save lies meanwhile in `OBRA-conjunto`, a text and then the bytes:
//
//   ZORCONJUNTO 1
//   1234567890 checksum of all that follows, a SumaDeRegistros
//   8320 987654321         length of the Obra before the save, and its SumaDeRegistros
//   .dpe 1280              a companion and its length; "-" where there was none
//   .zrx -
//                          an empty line, and the bytes of the companions in their order
//
// The order of a save: what the companions are to hold written beside them; this file made durable;
// the companions put in their place, each of them durable; the save of the Obra, which is that of
// all; this file made void and removed. While the Obra is as before, so are its companions, for
// whoever reads them and for the next opening, which brings them back. Where the Obra itself does
// not change, it is the removal that makes the save.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "persistencia/disco/mdDescriptor.h"
#include "persistencia/disco/mdErrorFichero.h"

namespace zorbin {

inline constexpr std::string_view kExtensionDpe = ".dpe";
inline constexpr std::string_view kExtensionZrx = ".zrx";

/// A companion and what it holds; nothing where there is no file.
struct Companera {
  std::string extension;
  std::optional<std::string> bytes;
};

/// Name of a companion: the extension of the Obra replaced, or added to an Obra that has that
/// extension itself.
std::filesystem::path RutaCompanera(const std::filesystem::path& obra, std::string_view extension);

/// What a save of several files is undone from.
struct Conjunto {
  std::uint64_t largo = 0;  // of the Obra before
  std::uint64_t suma = 0;   // of its records
  std::vector<Companera> antes;

  /// Whether an Obra is as it was before the save.
  bool EsAntes(std::string_view contenido) const;
};

Conjunto ConjuntoDe(std::string_view contenido, std::vector<Companera> antes);

std::filesystem::path RutaConjunto(const std::filesystem::path& obra);
std::string TextoDeConjunto(const Conjunto& conjunto);
/// No value for one that is not whole: its save changed nothing yet, or has been done.
/// @throws ErrorFichero for one of a later version of the program
std::optional<Conjunto> InterpretaConjunto(std::string_view bytes,
                                           const std::filesystem::path& obra);

/// Its bytes, none where there is no file. @throws ErrorFichero where it can't be read
std::optional<std::string> BytesDeConjunto(const std::filesystem::path& obra);

/// Whether what the person sees of a companion is not what lies on the disk.
/// @param contenido  of the Obra, as it is read
std::optional<Conjunto> ConjuntoPendiente(const std::optional<std::string>& bytes,
                                          const std::filesystem::path& obra,
                                          std::string_view contenido);

/// Brings the companions back to what they were before a save that did not come to its end, and
/// removes what tells of it. It may break off at any point and be done again.
/// @param contenido  of the Obra, open for writing and with its own save undone
/// @return what the person should know
/// @throws ErrorFichero where it can't be done
std::vector<Mensaje> RecuperaConjunto(const std::filesystem::path& obra,
                                      std::string_view contenido);

/// On the disk, with its name, when this returns without a cause.
[[nodiscard]] Causa EscribeConjunto(const std::filesystem::path& obra, const Conjunto& conjunto);
/// Nothing is undone from it any more.
[[nodiscard]] Causa QuitaConjunto(const std::filesystem::path& obra);

/// Writes what a companion is to hold beside it, durable, where it changes nothing yet. A link is
/// followed, the rights are those of before, or the Obra's.
[[nodiscard]] Causa PreparaCompanera(const std::filesystem::path& obra, const Companera& companera);

/// What was prepared takes the place of the companion, or this one goes; durable when it returns
/// without a cause. Whole or not at all, but where `guardaAntes` keeps the one before, to which a
/// full disk can go back.
[[nodiscard]] Causa PonCompanera(const std::filesystem::path& obra, const Companera& companera,
                                 bool guardaAntes);

/// The companion is again what it was; durable when it returns without a cause.
[[nodiscard]] Causa RestauraCompanera(const std::filesystem::path& obra,
                                      const Companera& companera);

/// What a save left beside the companions; nobody asked for those names.
void QuitaRestos(const std::filesystem::path& obra);

}  // namespace zorbin
