// A table of a listing on the screen, with its notes below.
#pragma once

#include <QWidget>

#include "listados/mediciones/mdPlanilla.h"

class QLabel;
class QTableWidget;

namespace zorbin {

class VistaPlanilla : public QWidget {
  Q_OBJECT

 public:
  explicit VistaPlanilla(QWidget* padre = nullptr);

  /// @param separador  decimal
  void Pon(const Planilla& planilla, char separador);

 private:
  QTableWidget* tabla_;
  QLabel* notas_;
};

}  // namespace zorbin
