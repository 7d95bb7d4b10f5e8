// Work that takes long: made on a thread of its own, so that the window goes on answering, with a
// box that says how far it is and lets the person give up.
#pragma once

#include <QDialog>
#include <QString>
#include <atomic>
#include <functional>
#include <mutex>
#include <optional>
#include <string>

#include "base/mdCatalogo.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace zorbin {

/// The person gave up while a document was being made: nothing of it comes out, and nothing is
/// said.
struct DocumentoCancelado {};

/// What passes between a work and the window that waits for it.
class MarchaFaena {
 public:
  struct Dicho {
    std::string texto;
    std::optional<double> hecho;  // part done, 0 to 1; none where nobody knows the whole
  };

  // ---- The work asks and tells

  bool Sigue() const { return !cancelada_; }
  /// @throws DocumentoCancelado where the person gave up
  void Exige() const {
    if (cancelada_) throw DocumentoCancelado{};
  }
  /// Whether the window has shown what it was told last: words that nobody sees cost time.
  bool Espera() const { return espera_; }
  void Di(Dicho dicho);
  /// From here on giving up comes too late.
  void SinVuelta() { sinVuelta_ = true; }

  // ---- The window

  void Cancela() { cancelada_ = true; }
  bool TieneVuelta() const { return !sinVuelta_; }
  /// What was told since the last time.
  std::optional<Dicho> Toma();

 private:
  std::atomic<bool> cancelada_ = false;
  std::atomic<bool> sinVuelta_ = false;
  std::atomic<bool> espera_ = true;
  std::mutex cerrojo_;
  std::optional<Dicho> dicho_;
};

/// The box of a work; HazFaena shows it.
class CajaProgreso : public QDialog {
  Q_OBJECT

 public:
  CajaProgreso(const Catalogo& textos, int titulo, MarchaFaena& marcha, QWidget* padre);

  /// Shows what the work has told.
  void Renueva();

  /// The person gave up: the work ends as soon as it hears of it, and the box with it.
  void reject() override;

 private:
  const Catalogo& textos_;
  MarchaFaena& marcha_;
  QLabel* texto_;
  QProgressBar* barra_;
  QPushButton* cancela_;
};

/// Does a work on another thread, and comes back when it has ended: what the person types waits for
/// half a second, and then for the box, which can be told to give up. A program that is left
/// meanwhile gives up too. What the work throws is thrown here.
/// @param titulo  entry of the catalogue
void HazFaena(QWidget* padre, const Catalogo& textos, int titulo,
              const std::function<void(MarchaFaena&)>& trabajo);

}  // namespace zorbin
