// Where a command writes: standard output, or a file that takes its name only when it is whole.
#pragma once

#include <filesystem>
#include <fstream>
#include <ostream>
#include <stdexcept>

namespace zorbin {

class ErrorSalida : public std::runtime_error {
 public:
  ErrorSalida(std::string nombre, const std::string& causa)
      : std::runtime_error(causa), nombre_(std::move(nombre)) {}
  const std::string& nombre() const { return nombre_; }

 private:
  std::string nombre_;
};

class Salida {
 public:
  /// @param fichero  empty for standard output
  /// @throws ErrorSalida
  explicit Salida(const std::filesystem::path& fichero);
  /// Leaves no half-written file behind.
  ~Salida();
  Salida(const Salida&) = delete;
  Salida& operator=(const Salida&) = delete;

  std::ostream& flujo();

  /// Ends the output. @throws ErrorSalida when not everything could be written.
  void Cierra();

 private:
  std::filesystem::path fichero_;
  std::filesystem::path provisional_;
  std::ofstream escritura_;
};

}  // namespace zorbin
