// A search bar for a text that is only read.
#pragma once

#include <QTextDocument>
#include <QWidget>

#include "base/mdCatalogo.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace zorbin {

/// Hidden until it is asked for. Finds without regard to case, goes round at the ends, and marks
/// every match in view.
class Buscador : public QWidget {
  Q_OBJECT

 public:
  Buscador(const Catalogo& textos, QPlainTextEdit& texto, QWidget* padre);

  /// Shows the bar, with the text selected as what to look for.
  void Abre();
  void Cierra();
  /// The next match, or the one before; opens the bar where nothing is looked for.
  void Siguiente();
  void Anterior();

 signals:
  /// The whole text is about to be searched.
  void busca();

 protected:
  void keyPressEvent(QKeyEvent* suceso) override;

 private:
  const Catalogo& textos_;
  QPlainTextEdit& texto_;
  QLineEdit* que_;
  QLabel* dice_;

  QString Tx(int n) const;
  void Busca(QTextDocument::FindFlags sentido, bool desdeLaSeleccion);
  void Marca();
};

}  // namespace zorbin
