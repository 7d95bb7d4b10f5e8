#include "linea/mdSalida.h"

#include <unistd.h>

#include <cerrno>
#include <iostream>
#include <system_error>

namespace zorbin {

namespace {

std::string CausaDelSistema() {
  return std::generic_category().message(errno != 0 ? errno : EIO);
}

}  // namespace

Salida::Salida(const std::filesystem::path& fichero) : fichero_(fichero) {
  if (fichero_.empty()) return;
  std::error_code error;
  // A device or a pipe has no name to give at the end; a link keeps leading where it leads.
  if (std::filesystem::is_symlink(fichero_, error)) {
    fichero_ = std::filesystem::weakly_canonical(fichero_, error);
  }
  const bool provisional = !std::filesystem::exists(fichero_, error) ||
                           std::filesystem::is_regular_file(fichero_, error);
  provisional_ = fichero_;
  if (provisional) provisional_ += "." + std::to_string(getpid()) + ".tmp";
  errno = 0;
  escritura_.open(provisional_, std::ios::binary | std::ios::trunc);
  if (!escritura_) throw ErrorSalida(fichero_.string(), CausaDelSistema());
}

Salida::~Salida() {
  if (!escritura_.is_open()) return;
  escritura_.close();
  std::error_code error;
  if (provisional_ != fichero_) std::filesystem::remove(provisional_, error);
}

std::ostream& Salida::flujo() {
  return fichero_.empty() ? std::cout : static_cast<std::ostream&>(escritura_);
}

void Salida::Cierra() {
  errno = 0;
  if (fichero_.empty()) {
    if (!std::cout.flush()) throw ErrorSalida("stdout", CausaDelSistema());
    return;
  }
  if (!escritura_.flush()) throw ErrorSalida(fichero_.string(), CausaDelSistema());
  escritura_.close();
  std::error_code error;
  if (provisional_ != fichero_) std::filesystem::rename(provisional_, fichero_, error);
  if (error) throw ErrorSalida(fichero_.string(), error.message());
}

}  // namespace zorbin
