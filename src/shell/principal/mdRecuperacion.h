// Work that is typed and not yet saved outlives a crash: it is kept at short intervals while there
// is any, offered at the next start with both versions, and gone after a clean end.
#pragma once

#include <QDialog>
#include <QObject>
#include <QTimer>
#include <memory>

#include "sesion/captura/mdCaptura.h"
#include "shell/piezas/mdEntorno.h"
#include "shell/principal/mdEscritorBorrador.h"

namespace zorbin {

class FormaPrincipal;

/// Keeps the draft of a capture up to date.
class GuardaBorradores : public QObject {
  Q_OBJECT

 public:
  /// @param cada  from a change to its writing, at most [ms]
  GuardaBorradores(const Captura& c, Cajon cajon, int cada = kCada);

  static constexpr int kCada = 1000;  // [ms]

  const Cajon& cajon() const { return escritor_.cajon(); }
  /// A draft of another program is this one's now.
  void Hereda() { guardado_ = true; }
  /// Returns once the disk has what was asked for.
  void Espera() { escritor_.Espera(); }

 public slots:
  /// The capture may have changed.
  void Mira();

 signals:
  /// A draft could not be written or removed.
  void falla(const QString& texto);

 private:
  const Captura& c_;
  QTimer reloj_;
  bool guardado_ = false;
  bool dicho_ = false;  // of one refusal after another the first is told
  EscritorBorrador escritor_;

  void Guarda();
  void Dice(const Mensaje& mensaje);
};

/// Shows what was typed beside what the file holds.
class frRecuperar : public QDialog {
  Q_OBJECT

 public:
  enum class Respuesta { Recuperar, Descartar, MasTarde };

  frRecuperar(const Entorno& entorno, const Borrador& b, const Versiones& v, QWidget* padre);

  /// Closing the dialog is "later".
  Respuesta respuesta() const { return respuesta_; }

 private:
  Respuesta respuesta_ = Respuesta::MasTarde;

  QWidget* CreaVersiones(const Catalogo& textos, const Versiones& v);
  QWidget* CreaBotones(const Entorno& entorno);
};

/// Offers what was left behind, one draft after another, until one is recovered.
/// @return file of the Obra that is open now; no value when nothing was recovered
std::optional<std::string> OfreceRecuperar(const Entorno& entorno, GuardaBorradores& guarda,
                                           FormaPrincipal& ventana);

}  // namespace zorbin
