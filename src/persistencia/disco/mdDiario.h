// The journal of a save, beside the file: what the save is about to change, as it was. A save that
// did not come to its end is undone from it.
//
// The journal `NAME-diario`, little-endian. A header of 64 bytes:
//
//   0   8  "ZORDIARI"; zeros: the journal is void, there is nothing to undo
//   8   4  version, 1
//   12  4  number of records
//   16  8  length of the file before the save
//   24  8  length of the file after it
//   32  8  sum of the checksums of the records that the save leaves as they are, each with its
//          number (8) before its 128 bytes: whose journal this is
//   40  8  checksum of header and records with these 8 bytes at zero: the journal is complete
//   48  8  a number that no other journal of this file had: who reads meanwhile sees a new save
//   56  8  zeros
//
// and 272 bytes for each record that changes, in ascending order: its number (4), zeros (4), the
// checksum of the rest (8), its 128 bytes before and its 128 bytes after. What follows has no
// meaning. Checksums are of 64 bits: for each word of 8 bytes, and each byte of what is left of the
// last one, h = (h ^ word) * 0x100000001b3, h = h ^ (h >> 32), from 0xcbf29ce484222325.
//
// The order of a save: journal written and made durable, with its name in the folder; records
// written and made durable; journal made void. As the journal holds what comes after too, one that
// is complete beside a file that has all of it belongs to a save that came to its end. So making it
// void needs no disk, and a save waits for the disk twice. The journal stays in the folder, void,
// while the file is open: to make and remove it at every save would cost twice as much again.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "persistencia/disco/mdDescriptor.h"

namespace zorbin {

inline constexpr int kBytesRegistro = 128;
/// Records that the 16-bit arithmetic of the format can name.
inline constexpr int kMaxRegistros = 32767;
inline constexpr std::size_t kMaxContenido =
    static_cast<std::size_t>(kMaxRegistros) * kBytesRegistro;

/// The bytes of a record.
using Bloque = std::array<char, kBytesRegistro>;
/// By the number of the record, from 1.
using Bloques = std::map<int, Bloque>;

/// Place of a record in the file.
constexpr std::size_t Desde(int registro) {
  return static_cast<std::size_t>(registro - 1) * kBytesRegistro;
}

struct CambioRegistro {
  int numero = 0;
  Bloque antes{};
  Bloque despues{};
};

/// What a save changes in a file.
struct Cambios {
  std::uint64_t largoAntes = 0;  // bytes
  std::uint64_t largoDespues = 0;
  std::uint64_t resto = 0;  // sum of the checksums of the records that stay
  std::vector<CambioRegistro> registros;
};

/// Sum of the checksums of all records of a file.
std::uint64_t SumaDeRegistros(std::string_view contenido);
/// The same after a save that leaves the file its length.
std::uint64_t SumaDespues(const Cambios& cambios);

/// What `bloques` change; records that stay as they are are left out.
/// @param contenido  bytes of the file, kMaxContenido at most
/// @param largo      of the file
/// @param suma       of its records
Cambios CalculaCambios(std::string_view contenido, std::uint64_t largo, std::uint64_t suma,
                       const Bloques& bloques);
Cambios CalculaCambios(std::string_view contenido, std::uint64_t largo, const Bloques& bloques);

/// How a file stands to a save.
enum class Encaje {
  Antes,       // nothing of it is in the file
  AMedias,     // some of it
  Despues,     // all of it
  OtroFichero  // the save was another file's
};
Encaje Encaja(const Cambios& cambios, std::string_view contenido, std::uint64_t largo);

/// The contents as they were before a save that fits.
std::string ComoAntes(const Cambios& cambios, std::string contenido);

/// Brings the file on the disk to one side of the save or the other.
[[nodiscard]] Causa EscribeAntes(const Descriptor& d, const Cambios& cambios);
[[nodiscard]] Causa EscribeDespues(const Descriptor& d, const Cambios& cambios);

// ---- The journal

std::filesystem::path RutaDiario(const std::filesystem::path& fichero);

std::string BytesDiario(const Cambios& cambios, std::uint64_t serie = 0);

struct DiarioLeido {
  enum class Estado {
    Falta,
    Nulo,        // there is nothing to undo
    Incompleto,  // its save never began to change the file
    Completo,
    MasNuevo,  // of a later version of the program
    Ajeno,     // no journal
  };
  Estado estado = Estado::Falta;
  Cambios cambios{};  // of a complete one
};
DiarioLeido InterpretaDiario(std::string_view bytes);

/// Bytes of the journal found beside a file; no value when there is none.
/// @return why it can't be read
[[nodiscard]] Causa LeeDiario(const std::filesystem::path& fichero,
                              std::optional<std::string>& bytes);

/// Whether two readings of it found the same save, made void meanwhile or not.
bool MismoGrabado(const std::optional<std::string>& a, const std::optional<std::string>& b);

/// The journal of a file that is open for writing. It goes away with this, unless it is kept.
class Diario {
 public:
  /// @param nuestro  nobody else has a journal of this file: its lock is ours
  Diario(const std::filesystem::path& fichero, bool nuestro);
  ~Diario();
  Diario(const Diario&) = delete;
  Diario& operator=(const Diario&) = delete;

  const std::filesystem::path& ruta() const { return ruta_; }

  /// Makes a void one, so that no save has to wait for its name to be on the disk.
  [[nodiscard]] Causa Prepara(mode_t permisos);

  /// The journal and its name are on the disk when this returns without a cause. One that is no
  /// longer in its place is made anew; what lies there, unless it is void, is set aside first.
  /// @param permisos  of the file it protects
  [[nodiscard]] Causa Escribe(const Cambios& cambios, mode_t permisos);

  /// Nothing is to be undone from now on. Where the disk refuses it, the journal tells of what the
  /// file already is, and that undoes nothing.
  void Anula();

  /// The file can't do without it: it stays when this goes.
  void Conserva(bool si) { seConserva_ = si; }

 private:
  [[nodiscard]] Causa Crea(mode_t permisos);
  [[nodiscard]] Causa HazSitio() const;
  [[nodiscard]] Causa Fija(std::string bytes);

  std::filesystem::path ruta_;
  Descriptor d_;
  std::uint64_t largo_ = 0;
  std::uint64_t serie_;
  bool nombreEnDisco_ = false;
  bool nuestro_;
  bool seConserva_ = false;
};

}  // namespace zorbin
