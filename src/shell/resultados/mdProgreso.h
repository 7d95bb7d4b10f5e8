// The box of a run that takes long: where it is, and a button to give up.
#pragma once

#include <QDialog>
#include <QElapsedTimer>

#include "base/mdCatalogo.h"
#include "sesion/trabajo/mdTrabajo.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace zorbin {

/// Lives as long as a run and is asked before each of its Casos. It shows itself when the run takes
/// over half a second, and only then lets the toolkit work, now and then: so nobody can touch the
/// windows that the run works for.
class CajaProgreso : public QDialog {
  Q_OBJECT

 public:
  CajaProgreso(const Catalogo& textos, QWidget* padre);

  /// @return whether the run goes on
  bool Sigue(const Avance& avance);

  /// The person gave up: the run ends at the next Caso.
  void reject() override;

 private:
  const Catalogo& textos_;
  QLabel* texto_;
  QProgressBar* barra_;
  QPushButton* cancela_;
  QElapsedTimer reloj_;
  qint64 siguiente_;  // time of the next look at the events [ms]
  bool cancelado_ = false;

  void Muestra(const Avance& avance);
};

}  // namespace zorbin
