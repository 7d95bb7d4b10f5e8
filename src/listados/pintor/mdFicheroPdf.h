// The file under a PDF writer.
#pragma once

#include <QIODevice>
#include <filesystem>
#include <optional>

#include "listados/pintor/mdPintor.h"
#include "persistencia/disco/mdFicheroSalida.h"

namespace zorbin {

/// A file that fails, as the painter tells it.
template <class Accion>
auto EnFichero(const Accion& accion) {
  try {
    return accion();
  } catch (const ErrorSalida& error) {
    throw ErrorPintor(error.what());
  }
}

/// The PDF writer never looks back at what became of its bytes: this device writes them whole, or
/// remembers that it could not.
class FicheroPdf : public QIODevice {
 public:
  explicit FicheroPdf(const std::filesystem::path& ruta) : salida_(ruta) { open(WriteOnly); }

  /// @throws ErrorSalida of the first write that failed, or of the end
  void Cierra() {
    close();
    Comprueba();
    salida_.Termina();
  }

  /// @throws ErrorSalida where a write has failed
  void Comprueba() const {
    if (fallo_) throw ErrorSalida(*fallo_);
  }

 protected:
  qint64 readData(char*, qint64) override { return -1; }

  qint64 writeData(const char* datos, qint64 cuantos) override {
    try {
      if (!fallo_) salida_.Escribe({datos, static_cast<std::size_t>(cuantos)});
    } catch (const ErrorSalida& error) {  // it may not pass through the toolkit
      fallo_ = error;
    }
    return fallo_ ? -1 : cuantos;
  }

 private:
  FicheroSalida salida_;
  std::optional<ErrorSalida> fallo_;
};

}  // namespace zorbin
