// An advisory lock on a file, against another program that would write it at the same time.
#pragma once

#include <filesystem>

namespace zorbin {

/// Asks the system for a lock, as flock does. Another one stands in where there is none to ask.
using PideCerrojo = int (*)(int descriptor, int operacion);
int CerrojoDelSistema(int descriptor, int operacion);

class Cerrojo {
 public:
  enum class Estado {
    Tomado,       // nobody else takes it while this lives
    Ocupado,      // another program has it
    SinCerrojos,  // this file system has no locks
  };

  /// Opens the file, which is created when it does not exist, and tries the lock without waiting.
  /// @throws ErrorFichero when the file cannot be opened for writing
  explicit Cerrojo(const std::filesystem::path& ruta, PideCerrojo pide = CerrojoDelSistema);
  ~Cerrojo();
  Cerrojo(const Cerrojo&) = delete;
  Cerrojo& operator=(const Cerrojo&) = delete;

  Estado estado() const { return estado_; }

 private:
  int descriptor_;
  Estado estado_;
};

}  // namespace zorbin
