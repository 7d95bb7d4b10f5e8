// A search bar for a long text that is only read.
#pragma once

#include <QWidget>

#include "base/mdCatalogo.h"
#include "shell/resultados/mdVisorTexto.h"

class QLabel;
class QLineEdit;

namespace zorbin {

/// Hidden until it is asked for. Finds without regard to case, goes round at the ends, and marks
/// every match in view. What takes long is looked for with a box that can be told to give up.
class Buscador : public QWidget {
  Q_OBJECT

 public:
  Buscador(const Catalogo& textos, VisorTexto& visor, QWidget* padre);

  /// Shows the bar, with the text selected as what to look for.
  void Abre();
  void Cierra();
  /// The next match, or the one before; opens the bar where nothing is looked for.
  void Siguiente();
  void Anterior();

 protected:
  void keyPressEvent(QKeyEvent* suceso) override;

 private:
  const Catalogo& textos_;
  VisorTexto& visor_;
  QLineEdit* que_;
  QLabel* dice_;

  QString Tx(int n) const;
  void Busca(bool atras, Lugar desde);
  void Marca();
};

}  // namespace zorbin
