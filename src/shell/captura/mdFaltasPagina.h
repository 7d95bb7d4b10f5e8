// The faults that a save or a calculation found: each leads to its field.
#pragma once

#include <QScrollArea>
#include <vector>

#include "sesion/captura/mdCaptura.h"

class QLabel;

namespace zorbin {

class FaltasPagina : public QScrollArea {
  Q_OBJECT

 public:
  explicit FaltasPagina(QWidget* padre = nullptr);

  void Refresca(const Captura& c);

 signals:
  void faltaPedida(const zorbin::Falta& falta);

 private:
  QLabel* texto_;
  std::vector<Falta> faltas_;
};

}  // namespace zorbin
