// A disk without a battery: what a folder may hold after a power cut. Writes that were not synced
// may be there or not, sector by sector and in any order; so may names.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "fallos/fallos.h"

namespace zorbin::fallos {

/// A change that has not been synced: a sector of a write, a length, or a name.
struct Pendiente {
  std::string nombre;  // last name of the file, to tell a journal from what it protects
  ino_t nodo = 0;
  std::size_t desde = 0;
  std::string bytes;     // of a write
  bool esLargo = false;  // `desde` is the new length
  bool esNombre = false;
  std::string viejo;  // of a name that changes or goes
  std::string nuevo;  // of a name that comes
};

class Disco {
 public:
  /// Takes the folder as it is: all of it is on the disk.
  explicit Disco(const std::filesystem::path& carpeta);

  void Apunta(const fallos_suceso& suceso);

  /// The same disk, whose files as a program sees them stand now in this folder.
  void Muda(const std::filesystem::path& carpeta);

  const std::vector<Pendiente>& pendientes() const { return pendientes_; }

  /// Files after a power cut, by name.
  /// @param llega  whether a pending change, by its place, reached the disk
  std::map<std::string, std::string> TrasApagon(
      const std::function<bool(std::size_t)>& llega) const;

 private:
  void Asienta(const std::function<bool(const Pendiente&)>& cuales);
  void ApuntaEscritura(const fallos_suceso& s);
  std::string NombreDe(ino_t nodo) const;

  using Nodos = std::map<ino_t, std::string>;
  using Nombres = std::map<std::string, ino_t>;
  static void Hace(const Pendiente& p, Nodos& nodos, Nombres& nombres);

  Nodos nodos_;      // on the disk
  Nombres nombres_;  // on the disk
  Nombres vivos_;    // as the program sees them
  std::vector<Pendiente> pendientes_;
};

/// Makes a folder hold these files and nothing else.
void PonFicheros(const std::filesystem::path& carpeta,
                 const std::map<std::string, std::string>& ficheros);

}  // namespace zorbin::fallos
