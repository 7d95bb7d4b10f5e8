// Files of numbered records: 128 bytes each, a 16-bit little-endian length, the text in
// Windows-1252, and bytes without meaning. A record never written, or past the end of the file,
// reads as an empty text.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "persistencia/disco/mdErrorFichero.h"
#include "persistencia/disco/mdFicheroSeguro.h"

namespace zorbin {

inline constexpr int kMaxTexto = 126;  // bytes

/// No quantity of a pipe is larger, in any unit: a number beyond it is no number.
inline constexpr double kMayorNumero = 1e12;

/// Records that are written wait until they are all written together, at the end of a Transaccion
/// or by Vacia; reading sees them at once.
class FicheroRegistros {
 public:
  enum class Modo { Lectura, LecturaEscritura };

  /// Opens the file. For writing: a save that did not come to its end is undone, and a file that
  /// does not exist is made by its first save; it is never truncated.
  /// @throws SoloParaLeer where the file can be read and not written
  /// @throws ErrorFichero
  FicheroRegistros(std::filesystem::path ruta, Modo modo, PideCerrojo pide = CerrojoDelSistema);

  /// Records in memory, that nothing is saved of.
  /// @param nombre  of the file that they are, or will be
  static FicheroRegistros EnMemoria(std::filesystem::path nombre, std::string contenido = {});

  const std::filesystem::path& ruta() const { return ruta_; }
  std::string Nombre() const { return ruta_.string(); }
  bool SoloLectura() const { return disco_ == nullptr && !enMemoria_; }
  /// False on a file system without locks, and when only reading.
  bool ConCerrojo() const { return disco_ && disco_->ConCerrojo(); }
  /// What the person should know of the opening.
  const std::vector<Mensaje>& avisos() const { return avisos_; }
  /// What the file holds, without the records that wait.
  const std::string& Contenido() const { return disco_ ? disco_->contenido() : leido_; }

  /// Makes ready for saves, for a file that stays open: the first one then costs what the others
  /// do.
  void PreparaGrabado();

  /// Number of the last record of which there is at least a byte.
  int UltimoRegistro() const;

  /// Text of a record, numbered from 1. @throws ErrorFichero for a length over 126, a text that
  /// the end of the file cuts, or a byte that is no character.
  std::string LeeRegistro(int numero) const;

  /// A record, numbered from 1, filled with zeros. @throws ErrorFichero for a text over 126 bytes,
  /// or when the file is open for reading only.
  void EscribeRegistro(int numero, const std::string& ansi);

  /// Records of another file as they are, whatever they hold; none past its end.
  void CopiaRegistros(const FicheroRegistros& de, int primero, int ultimo);

  /// Whether the records that wait would change the file.
  bool Cambia() const;

  /// What a save that was refused left in doubt is settled, so that the file is what Contenido
  /// says.
  /// @throws ErrorFichero where the disk still refuses it
  void Asienta();

  /// Brings the records written to the disk, all or none; within a Transaccion that is left to it.
  /// @throws ErrorFichero; none of them is then written
  void Vacia();

 private:
  friend class Transaccion;

  /// A record before it was written within a Transaccion.
  struct Anterior {
    int numero = 0;
    std::optional<Bloque> bloque;  // that waited
  };

  explicit FicheroRegistros(std::filesystem::path ruta) : ruta_(std::move(ruta)) {}
  std::string_view Bytes(int registro) const;
  void Pon(int numero, const Bloque& datos);
  void VuelveA(std::size_t lugar);
  void Graba();

  std::filesystem::path ruta_;
  std::unique_ptr<FicheroSeguro> disco_;  // none when only reading
  std::string leido_;                     // when only reading
  bool enMemoria_ = false;
  std::vector<Mensaje> avisos_;
  Bloques pendientes_;
  std::vector<Anterior> anteriores_;  // of the Transaccion that is open
  int transacciones_ = 0;
};

/// What is written to a file while this lives reaches it whole or not at all. Inside another one it
/// is a part of that.
class Transaccion {
 public:
  explicit Transaccion(FicheroRegistros& f);
  /// Without Confirma nothing that was written remains.
  ~Transaccion();
  Transaccion(const Transaccion&) = delete;
  Transaccion& operator=(const Transaccion&) = delete;

  /// On the disk when this returns, unless it is inside another one. Once only.
  /// @throws ErrorFichero; nothing of it is then in the file
  void Confirma();

 private:
  FicheroRegistros& f_;
  std::size_t lugar_;
  bool abierta_ = true;
};

/// A field's text as the bytes of a record. @throws ErrorFichero, naming the field, for a
/// character outside the code page or a text over 126 bytes.
std::string BytesDeCampo(const std::string& fichero, const std::string& campo,
                         std::string_view utf8);

}  // namespace zorbin
