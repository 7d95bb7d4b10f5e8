// What goes wrong with a file of the person's, in words of the catalogue.
#pragma once

#include <stdexcept>

#include "base/mdCatalogo.h"

namespace zorbin {

/// A file that can't be read or written, or that is not what it should be. It says in an entry of
/// the catalogue which file, which record, and what was expected.
class ErrorFichero : public std::runtime_error {
 public:
  explicit ErrorFichero(Mensaje mensaje)
      : std::runtime_error("error of a file"), mensaje_(std::move(mensaje)) {}
  const Mensaje& mensaje() const { return mensaje_; }

 private:
  Mensaje mensaje_;
};

}  // namespace zorbin
