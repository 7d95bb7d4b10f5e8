// Who has a file open for writing: a mark beside the file tells a second program whom to ask. The
// mark is no lock; it may be missing or stale.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/mdCatalogo.h"

namespace zorbin {

struct Titular {
  std::string usuario;
  std::string equipo;  // name of the host
  std::string desde;   // "21/11/2026 09:30", when it opened the file
  int proceso = 0;
  std::uint64_t arranque = 0;  // tells the process from a later one of the same number
};

/// This program, from now on.
Titular EsteTitular();

/// Whether its process is at work on this machine. False also where that can't be known, as with
/// another machine.
bool SigueVivo(const Titular& titular);
bool EsDeEsteEquipo(const Titular& titular);

/// File of the mark that belongs to a file.
std::filesystem::path RutaMarca(const std::filesystem::path& fichero);

std::string TextoMarca(const Titular& titular);
/// No value for anything that is not the text of a mark.
std::optional<Titular> LeeTextoMarca(std::string_view texto);
std::optional<Titular> LeeMarca(const std::filesystem::path& fichero);

/// The mark of this program while it lives. Where the folder takes none, there is none.
class Marca {
 public:
  explicit Marca(const std::filesystem::path& fichero);
  ~Marca();
  Marca(const Marca&) = delete;
  Marca& operator=(const Marca&) = delete;

 private:
  std::filesystem::path ruta_;
  bool puesta_ = false;
};

}  // namespace zorbin
