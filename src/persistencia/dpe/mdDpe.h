// The file beside the project with the reinforcement that an engineer fixed by hand: entries of
// eight records, after a first one with the number of records in use.
#pragma once

#include <filesystem>
#include <vector>

#include "core/mdAjustes.h"
#include "persistencia/registros/mdRegistros.h"

namespace zorbin {

/// Name of the file that belongs to a project: its extension replaced by ".dpe", or ".dpe" added
/// to a project that has that extension itself.
std::filesystem::path RutaDpe(const std::filesystem::path& obra);

/// Entries of the file, free ones included, in their places. None for a file that does not exist.
/// @throws ErrorFichero naming the record and what was expected; also where the file ends before
/// the last of the entries that its first record counts
std::vector<EntradaAjuste> LeeAjustes(const std::filesystem::path& dpe);

/// The same of records that are open. @throws ErrorFichero
std::vector<EntradaAjuste> LeeAjustes(const FicheroRegistros& f);

/// Opens the file for writing. @throws ErrorFichero where another program, or another window, has
/// it
FicheroRegistros AbreDpe(const std::filesystem::path& ruta, PideCerrojo pide = CerrojoDelSistema);

/// Writes the entries from the first record on, all or none.
/// @throws ErrorFichero
void EscribeAjustes(FicheroRegistros& f, const std::vector<EntradaAjuste>& entradas,
                    char separador);

/// The file held open for writing, locked against another program while this lives. What it says
/// it holds is what the file holds: numbers are those read back from its texts.
class FicheroDpe {
 public:
  /// Creates the file when it does not exist, with no entries.
  /// @param separador  decimal separator of what is written
  /// @throws ErrorFichero where it cannot be opened, another program holds it, or LeeAjustes would
  /// refuse it; nothing has then been written but what undoes a save that broke off
  explicit FicheroDpe(const std::filesystem::path& ruta, char separador,
                      PideCerrojo pide = CerrojoDelSistema);

  const std::filesystem::path& ruta() const { return f_.ruta(); }
  /// In their places, free ones included.
  const std::vector<EntradaAjuste>& entradas() const { return entradas_; }
  int TotalRegistrosDpe() const;
  /// False on a file system without locks: nothing keeps another program off.
  bool ConCerrojo() const { return f_.ConCerrojo(); }
  /// What the person should know of the opening.
  const std::vector<Mensaje>& avisos() const { return f_.avisos(); }

  /// Stores the adjustment of a Caso over its entry, else in the last free one, else at the end;
  /// without data the Caso's entry is freed. An entry found keeps its pressure and its Tramo.
  /// @param caso  DP [at], Tramo, Hr [m] and areas [cm2/m]
  /// @throws ErrorFichero when the disk refuses it, or no entry more fits
  void GrabaUnTramoPresion(const EntradaAjuste& caso, bool sinDatos);

  /// Frees every entry of a Tramo, all or none. @throws ErrorFichero
  void BorraTramo(int NumeroTramo);

 private:
  FicheroRegistros f_;
  char separador_;
  std::vector<EntradaAjuste> entradas_;

  void Graba(std::vector<EntradaAjuste> entradas);
};

}  // namespace zorbin
