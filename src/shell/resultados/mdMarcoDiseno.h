// The dock of the design: at the right of the window, shown and hidden by a key. A wide window
// shows it unless the person hid it; a narrow one hides it unless the person asked for it, since it
// would take the room of the form. What the person wants of each is remembered.
#pragma once

#include <QDockWidget>

#include "shell/piezas/mdEntorno.h"

class QMainWindow;

namespace zorbin {

class MarcoDiseno : public QDockWidget {
  Q_OBJECT

 public:
  /// Width from which a window has room for it [px].
  static constexpr int kAnchoConSitio = 1400;

  MarcoDiseno(const Entorno& entorno, QMainWindow& ventana, QWidget* panel);

  /// There is an Obra, or none.
  void PonHayObra(bool hay);
  /// The person wants it, or not, in a window as wide as this one.
  void Alterna();
  void RenuevaTextos();

 protected:
  bool eventFilter(QObject* quien, QEvent* suceso) override;
  void closeEvent(QCloseEvent* suceso) override;

 private:
  const Entorno& entorno_;
  QMainWindow& ventana_;
  bool hayObra_ = false;
  bool conSitio_ = false;
  bool sinAncho_ = false;  // nobody has given it one

  QString Clave() const;
  bool LoQuiere() const;
  void Quiere(bool si);
  void Aplica();
};

}  // namespace zorbin
