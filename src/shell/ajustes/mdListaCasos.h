// The list of the Casos of the run, also of those that no step of height or pressure reaches.
#pragma once

#include <QComboBox>

#include "sesion/ajustes/mdAjuste.h"

namespace zorbin {

class ListaCasos : public QComboBox {
 public:
  ListaCasos(const QString& nombre, QWidget* padre);

  /// The Casos, those with something stored marked, and the one in hand.
  void Muestra(const Ajustes& a);
};

}  // namespace zorbin
