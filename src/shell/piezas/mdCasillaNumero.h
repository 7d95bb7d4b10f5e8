// A field for a number. Both decimal separators are understood, typed or pasted, and become the
// machine's; a text with group separators is refused, never read as another number.
#pragma once

#include <QLineEdit>

namespace zorbin {

class CasillaNumero : public QLineEdit {
  Q_OBJECT

 public:
  /// @param soloCifras  only digits and one separator pass, so no sign can be typed
  CasillaNumero(char separador, bool soloCifras, QWidget* padre = nullptr);

  /// Selects the whole content, also while the press of the mouse that brought the focus is still
  /// to place the cursor.
  void Selecciona();

 signals:
  /// What was pasted is no number, or could be read as two; the field stays as it was.
  void pegadoRechazado(const QString& texto);

 private:
  class Filtro;
};

}  // namespace zorbin
