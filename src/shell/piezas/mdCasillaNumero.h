// A field for a number. It takes whatever is typed or pasted: what is no number, or could be read
// as two, is told on leaving it, and nothing of it is dropped before.
#pragma once

#include <QLineEdit>

namespace zorbin {

class CasillaNumero : public QLineEdit {
  Q_OBJECT

 public:
  explicit CasillaNumero(QWidget* padre = nullptr);

  /// Selects the whole content, also while the press of the mouse that brought the focus is still
  /// to place the cursor.
  void Selecciona();
};

}  // namespace zorbin
