// Where the debug log of a run is kept.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>

#include "base/mdRegistro.h"

namespace zorbin {

/// Folder of the logs when none is given: $XDG_STATE_HOME/zorbin, or ~/.local/state/zorbin.
std::filesystem::path CarpetaRegistros();

/// The file Debugpim_cal.txt of a folder, opened once for a run and appended to in blocks. It is
/// never truncated and grows without limit.
class FicheroLog {
 public:
  /// @throws ErrorEjecucion Registro, with the name of the file, when it cannot be opened
  explicit FicheroLog(const std::filesystem::path& carpeta);
  FicheroLog(const FicheroLog&) = delete;
  FicheroLog& operator=(const FicheroLog&) = delete;

  /// @throws ErrorEjecucion Registro from its writing when the disk refuses
  Registro& registro() { return registro_; }

 private:
  struct Cierra {
    // Nothing is left to be written: the file has no buffer.
    void operator()(std::FILE* f) const { std::fclose(f); }
  };

  void Escribe(std::string_view bloque);

  std::filesystem::path ruta_;
  std::unique_ptr<std::FILE, Cierra> fichero_;
  Registro registro_;
};

}  // namespace zorbin
