// Where a command writes: standard output, or a file that takes its name only when it is whole.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <ostream>

#include "persistencia/disco/mdFicheroSalida.h"

namespace zorbin {

class Salida {
 public:
  /// @param fichero  empty for standard output
  /// @throws ErrorSalida
  explicit Salida(const std::filesystem::path& fichero);
  /// Leaves no half-written file behind.
  ~Salida();
  Salida(const Salida&) = delete;
  Salida& operator=(const Salida&) = delete;

  std::ostream& flujo() { return flujo_; }

  /// Ends the output. @throws ErrorSalida when not everything could be written.
  void Cierra();

 private:
  class Deposito;

  std::optional<FicheroSalida> fichero_;
  std::unique_ptr<Deposito> deposito_;
  std::ostream flujo_;
};

}  // namespace zorbin
