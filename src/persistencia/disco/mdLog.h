// The debug log of the runs.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/mdRegistro.h"
#include "persistencia/disco/mdCarpetaPropia.h"

namespace zorbin {

/// Bytes of a log at most.
inline constexpr std::uint64_t kMaxLog = 50'000'000;

/// The file Debugpim_cal.txt of a folder, which only the person may read, appended to in blocks.
/// One that would grow beyond its limit becomes Debugpim_cal.anterior.txt, in place of the one
/// before. A log that cannot be written stops no calculation: the rest is lost, and whoever asks is
/// told.
class FicheroLog {
 public:
  /// @param maximo  bytes
  explicit FicheroLog(const std::filesystem::path& carpeta, std::uint64_t maximo = kMaxLog);
  FicheroLog(const FicheroLog&) = delete;
  FicheroLog& operator=(const FicheroLog&) = delete;

  Registro& registro() { return registro_; }

  /// Name of the file where it could not be written; else empty.
  std::string SinEscribir() const { return causa_ == 0 ? std::string() : ruta_.string(); }

 private:
  [[nodiscard]] Causa Abre();
  [[nodiscard]] Causa Cabe(std::uint64_t bytes);
  void Escribe(std::string_view bloque);

  std::filesystem::path ruta_;
  std::uint64_t maximo_;
  Descriptor d_;
  Causa causa_ = 0;
  Registro registro_;
};

}  // namespace zorbin
