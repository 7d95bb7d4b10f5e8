// Files of numbered records: 128 bytes each, a 16-bit little-endian length, the text in
// Windows-1252, and bytes without meaning. A record never written, or past the end of the file,
// reads as an empty text.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include "recursos/mdCatalogo.h"

namespace zorbin {

inline constexpr int kBytesRegistro = 128;
inline constexpr int kMaxTexto = 126;  // bytes

/// No quantity of a pipe is larger, in any unit: a number beyond it is no number.
inline constexpr double kMayorNumero = 1e12;

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

class FicheroRegistros {
 public:
  /// EscrituraSiPuede: a file that may only be read opens all the same, and refuses every writing.
  enum class Modo { Lectura, LecturaEscritura, EscrituraSiPuede };

  /// Opens the file; for writing it is created when it does not exist, and never truncated.
  /// @throws ErrorFichero
  FicheroRegistros(std::filesystem::path ruta, Modo modo);

  const std::filesystem::path& ruta() const { return ruta_; }
  std::string Nombre() const { return ruta_.string(); }

  /// Number of the last record of which the file has at least a byte.
  int UltimoRegistro() const;

  /// Text of a record, numbered from 1. @throws ErrorFichero for a length over 126, a text that
  /// the end of the file cuts, or a byte that is no character.
  std::string LeeRegistro(int numero) const;

  /// Writes a record, numbered from 1, filled with zeros. @throws ErrorFichero for a text over 126
  /// bytes, or when the disk refuses it.
  void EscribeRegistro(int numero, const std::string& ansi);

  /// Hands everything written to the system. @throws ErrorFichero
  void Vacia();

 private:
  std::filesystem::path ruta_;
  std::fstream fichero_;
  std::string porQueNo_;   // cause of the system, of a file that may only be read
  std::string contenido_;  // of the file, as far as records can be numbered
};

/// A field's text as the bytes of a record. @throws ErrorFichero, naming the field, for a
/// character outside the code page or a text over 126 bytes.
std::string BytesDeCampo(const std::string& fichero, const std::string& campo,
                         std::string_view utf8);

}  // namespace zorbin
