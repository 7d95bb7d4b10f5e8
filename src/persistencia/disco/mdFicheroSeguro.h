// A file of records that is open for writing and changes as a whole: however a save ends, the file
// reads as before it or as after it. One program at a time has it open so.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "persistencia/disco/mdCerrojo.h"
#include "persistencia/disco/mdDiario.h"
#include "persistencia/disco/mdErrorFichero.h"
#include "persistencia/disco/mdTitular.h"

namespace zorbin {

/// A file that can't be opened for writing, and can be for reading.
class SoloParaLeer : public ErrorFichero {
 public:
  enum class Motivo { Ocupado, SinPermiso };

  SoloParaLeer(Mensaje mensaje, Motivo motivo, std::optional<Titular> titular = {})
      : ErrorFichero(std::move(mensaje)), motivo_(motivo), titular_(std::move(titular)) {}
  Motivo motivo() const { return motivo_; }
  /// Who has it, where that is known.
  const std::optional<Titular>& titular() const { return titular_; }

 private:
  Motivo motivo_;
  std::optional<Titular> titular_;
};

/// The name of a file that is in the making; it goes away with this, also when an opening fails.
class Provisional {
 public:
  Provisional() = default;
  ~Provisional();
  Provisional(const Provisional&) = delete;
  Provisional& operator=(const Provisional&) = delete;

  void Pon(std::filesystem::path ruta) { ruta_ = std::move(ruta); }
  /// The file has its own name from now on.
  void Olvida() { ruta_.clear(); }
  bool hay() const { return !ruta_.empty(); }
  const std::filesystem::path& ruta() const { return ruta_; }

 private:
  std::filesystem::path ruta_;
};

class FicheroSeguro {
 public:
  /// Opens the file and undoes a save that did not come to its end. One that does not exist is made
  /// by its first save. It is never truncated.
  /// @throws SoloParaLeer where another program has it, or its rights forbid it
  /// @throws ErrorFichero
  explicit FicheroSeguro(const std::filesystem::path& ruta, PideCerrojo pide = CerrojoDelSistema);
  FicheroSeguro(const FicheroSeguro&) = delete;
  FicheroSeguro& operator=(const FicheroSeguro&) = delete;

  /// What the file holds, kMaxContenido at most.
  const std::string& contenido() const { return contenido_; }
  /// What the person should know of the opening.
  const std::vector<Mensaje>& avisos() const { return avisos_; }
  bool ConCerrojo() const { return cerrojo_ == Cerrojo::Tomado; }

  /// Makes ready for saves, so that the first one costs what the others do. What keeps it from
  /// that, the first save tells.
  void PreparaGrabado();

  /// Writes records, all or none; they are on the disk when this returns.
  /// @throws ErrorFichero; the file is then as before, or will be whole when it is opened again,
  /// and the message says which
  void Graba(const Bloques& bloques);

  /// What a save that was refused left in doubt, the file half written or its name not yet on the
  /// disk, is settled. @throws ErrorFichero where the disk still refuses it
  void Asienta();

 private:
  void AbreExistente(PideCerrojo pide);
  void AbreNuevo(PideCerrojo pide);
  void CompruebaNombre(const std::filesystem::path& ruta, int intento);
  void TomaOSeNiega(PideCerrojo pide);
  void AvisaDeCarpeta();

  void CompruebaQueSigueAhi() const;
  void DeshacePendiente();
  void GrabaNuevo(const Bloques& bloques);
  void FijaNombre();
  void GrabaCambios(const Cambios& cambios);
  [[noreturn]] void Deshace(const Cambios& cambios, Causa causa);

  std::string nombre_;          // that the person knows it by
  std::filesystem::path ruta_;  // without symbolic links
  Descriptor d_;
  mode_t permisos_ = kPermisosFichero;
  Cerrojo cerrojo_ = Cerrojo::SinCerrojos;
  std::optional<Marca> marca_;
  std::optional<Diario> diario_;
  Provisional provisional_;  // name of a file that no save has made yet
  bool nombrePorSincronizar_ = false;
  bool diarioListo_ = false;            // it is wanted before the first save
  std::optional<Cambios> porDeshacer_;  // of a save that could be neither finished nor undone
  std::uint64_t largo_ = 0;             // of the file
  std::uint64_t suma_ = 0;              // of its records
  std::string contenido_;
  std::vector<Mensaje> avisos_;
};

}  // namespace zorbin
