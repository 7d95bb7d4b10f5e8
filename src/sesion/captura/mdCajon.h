// Where drafts are kept: a folder of the person's state, a file a program at work.
//
// A draft belongs to the program that wrote it until that one is gone; then whoever starts next may
// take it. Two that start at once cannot take the same one.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "persistencia/disco/mdErrorFichero.h"
#include "sesion/captura/mdBorrador.h"

namespace zorbin {

/// Folder of the drafts when none is given, beside the logs.
std::filesystem::path CarpetaBorradores();

struct BorradorHallado {
  std::filesystem::path ruta;
  Borrador borrador;
};

struct Hallazgo {
  std::vector<BorradorHallado> borradores;       // the latest first
  std::vector<std::filesystem::path> ilegibles;  // set aside under these names
};

class Cajon {
 public:
  explicit Cajon(std::filesystem::path carpeta = CarpetaBorradores());

  /// The file of this program's draft.
  const std::filesystem::path& ruta() const { return ruta_; }

  /// Keeps a draft in place of the one before. On the disk when this returns.
  /// @throws ErrorFichero naming the file; the one before is then still there
  void Guarda(const std::string& texto) const;
  /// There is nothing to keep any more. @throws ErrorFichero
  void Borra() const;

  /// Drafts of programs that ended without taking them away. One that is no draft is set aside,
  /// so that it is told once and stays for whoever wants to look at it.
  Hallazgo Busca() const;

  /// Makes a draft this program's. @return false when another program was faster
  bool Toma(const std::filesystem::path& ruta) const;
  /// Gives the draft that was taken its name back.
  void Devuelve(const std::filesystem::path& ruta) const;

 private:
  std::filesystem::path carpeta_;
  std::filesystem::path ruta_;
};

}  // namespace zorbin
