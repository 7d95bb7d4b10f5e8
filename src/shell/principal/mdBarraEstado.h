// What the status bar tells all the time: the Obra, the Tramo in hand, units and language.
#pragma once

#include <QObject>
#include <QString>

#include "sesion/captura/mdCaptura.h"

class QLabel;
class QStatusBar;

namespace zorbin {

/// Name of the file of the Obra for a title, and whether it is only read.
QString NombreDeObra(const Captura& c);

class BarraEstado : public QObject {
 public:
  explicit BarraEstado(QStatusBar& barra);

  void Refresca(const Captura& c);

 private:
  QLabel* obra_;
  QLabel* captura_;
  QLabel* unidades_;
  QLabel* idioma_;
};

}  // namespace zorbin
