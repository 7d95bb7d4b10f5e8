// The program at work on an Obra in a folder, as a person does it: what it saves, and how the file
// stands after each save. The ground of the tests of failing disks.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "persistencia/dpe/mdDpe.h"
#include "sesion/captura/guion.h"

namespace zorbin::fallos {

namespace fs = std::filesystem;

/// One run of the program.
class Sesion {
 public:
  explicit Sesion(const fs::path& carpeta);

  void Teclea(Ed campo, const std::string& texto);
  void EligeElTramo(const std::string& numero);

  fs::path carpeta;
  EstadoCalculo e;
  prueba::Guion voz;
  Captura c;
  std::optional<FicheroDpe> dpe;
  std::optional<FicheroRegistros> abierta;  // an Obra that is saved as a whole
  std::string queja;                        // of a save that was refused
};

struct Escena {
  std::string nombre;
  std::string fichero;                           // the one that is opened
  std::function<void(const fs::path&)> prepara;  // the folder before the program starts
  std::function<void(Sesion&)> abre;
  std::vector<std::function<bool(Sesion&)>> grabados;
  int puntos = 0;  // at which a fault is injected, at least
};

/// Of the header, of a Tramo, of a new one, two in a row, a new Obra, of the adjustments, and of an
/// Obra with all that lies beside it.
const std::vector<Escena>& Escenas();
const std::vector<Escena>& EscenasDeConjunto();

/// Names and bytes of files.
using Ficheros = std::map<std::string, std::string>;
Ficheros FicherosDe(const fs::path& carpeta);

/// Those that a person has: an Obra and its companions, without what a save keeps beside them.
Ficheros EstadoDe(const fs::path& carpeta);

/// The files before the first save and after each of them, nothing failing.
std::vector<Ficheros> Estados(const Escena& escena, const fs::path& carpeta);

/// Empties the folder and prepares it.
void Prepara(const Escena& escena, const fs::path& carpeta);

/// Opens the file as the program does and closes it. @return the files
Ficheros AbreYCierra(const Escena& escena, const fs::path& carpeta);

/// What somebody finds who only reads the Obra and what lies beside it; empty where there is none.
std::string Leido(const Escena& escena, const fs::path& carpeta);

/// Which of the states these files are; -1 when none: one of them is torn, or they do not go
/// together.
int Indice(const std::vector<Ficheros>& estados, const Ficheros& ficheros);

/// Names in the folder, in order, with a blank after each.
std::string Nombres(const fs::path& carpeta);

/// What is synced in this folder is not waited for.
class CarpetaReal : public pruebas::Carpeta {
 public:
  CarpetaReal();
  ~CarpetaReal();
  /// No call fails from now on.
  void Sana() const;
};

}  // namespace zorbin::fallos
