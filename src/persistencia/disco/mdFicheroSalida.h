// A file that a result is written to: a listing, a summary, a PDF.
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

#include "persistencia/disco/mdDescriptor.h"

namespace zorbin {

/// An output that can't be written: its name, and why in the words of the system.
class ErrorSalida : public std::runtime_error {
 public:
  ErrorSalida(std::string nombre, const std::string& causa)
      : std::runtime_error(causa), nombre_(std::move(nombre)) {}
  const std::string& nombre() const { return nombre_; }

 private:
  std::string nombre_;
};

/// Writes beside the file that was asked for and gives it that name once all is on the disk, so
/// that what fails leaves the file of before, or none. A link is followed; a device or a pipe is
/// written as it stands. A file that was there keeps owner, group and rights. Where a new one could
/// not have what that one has (other names, an owner that only the administrator can give it, an
/// access list), the whole bytes are copied into that one: a power cut in that instant may leave it
/// half written, and then they are beside it.
class FicheroSalida {
 public:
  /// @throws ErrorSalida
  explicit FicheroSalida(const std::filesystem::path& ruta);
  /// Without an end nothing is left.
  ~FicheroSalida();
  FicheroSalida(const FicheroSalida&) = delete;
  FicheroSalida& operator=(const FicheroSalida&) = delete;

  /// @throws ErrorSalida
  void Escribe(std::string_view bytes);
  /// The file has its name when this returns. @throws ErrorSalida
  void Termina();

  /// What is written is shown on a screen.
  bool esTerminal() const;

 private:
  std::string nombre_;  // as it was asked for
  std::filesystem::path ruta_;
  std::filesystem::path provisional_;  // empty for a device or a pipe, and at the end
  Descriptor descriptor_;

  bool enSuSitio_ = false;  // the file that was there takes the bytes
  void HeredaDe(const struct stat& antes);
  Causa CopiaEnSuSitio();
  void AbreProvisional();
  void Comprueba(Causa causa) const;
};

/// Writes all of it where the last write ended.
[[nodiscard]] Causa EscribeSeguido(const Descriptor& d, std::string_view bytes);

}  // namespace zorbin
