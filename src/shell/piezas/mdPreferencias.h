// What the program remembers between two sessions: language, warnings, places of windows, last
// folder, kind of listing, printer. Per machine where the machine can be written, otherwise per
// user.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <cstdint>

#include "shell/piezas/mdFicheroIni.h"

class QWidget;

namespace zorbin {

class Preferencias {
 public:
  /// The settings of the user and of the machine.
  Preferencias();
  /// Settings in files of their own (a test).
  Preferencias(const QString& ficheroUsuario, const QString& ficheroMaquina);
  ~Preferencias();
  Preferencias(const Preferencias&) = delete;
  Preferencias& operator=(const Preferencias&) = delete;

  /// Language of the machine, 1 to 6 as it was written; no value: never chosen.
  int IdiomaPropio() const;  // -1 when there is none
  /// For the machine, or for the user where the machine cannot be written.
  void GrabaIdioma(int idioma);

  /// A text of the section "Opciones Rev 2002"; "1" when it was never written.
  QString OpcionAviso(const QString& nombre) const;
  void PonOpcionAviso(const QString& nombre, bool mostrar);

  /// Place, size and columns of a window.
  void GuardaVentana(const QString& nombre, const QWidget& ventana);
  bool RecuperaVentana(const QString& nombre, QWidget& ventana) const;
  void GuardaEstado(const QString& nombre, const QByteArray& estado);
  QByteArray Estado(const QString& nombre) const;

  QString UltimaCarpeta() const;  // the home folder at first
  void PonUltimaCarpeta(const QString& carpeta);

  /// Newest first, only files that exist.
  QStringList ObrasRecientes() const;
  void AnotaObra(const QString& ruta);
  void OlvidaObra(const QString& ruta);

  int TipoListado() const;  // 0 Normal, 1 Tabular, 2 Pantalla, 3 Coef. Lamé
  void PonTipoListado(int tipo);

  QString Impresora() const;  // empty: the default one
  void PonImpresora(const QString& nombre);
  int Copias() const;
  void PonCopias(int copias);

  /// Whether the warning of use is still to be read in this version of the program.
  bool AvisoDeUsoPendiente() const;
  void AnotaAvisoDeUso();

  /// Colours: 0 as the system, 1 light, 2 dark.
  int Tema() const;
  void PonTema(int tema);

  /// Units of a new Obra.
  bool NuevaEnSI() const;
  void PonNuevaEnSI(bool si);

  /// Brings to the disk what was put. @return whether it is there; where it is not, what was there
  /// before stays, and what was put is kept for another time
  bool Guarda();
  /// The file of the user.
  QString Fichero() const;

  QVariant Valor(const QString& clave, const QVariant& defecto = {}) const;
  void PonValor(const QString& clave, const QVariant& valor);

 private:
  FicheroIni usuario_;
  FicheroIni maquina_;
};

}  // namespace zorbin
