// Two Casos side by side: every value of both, those that differ marked.
#pragma once

#include <QDialog>

#include "sesion/resultados/mdDetalle.h"
#include "shell/piezas/mdEntorno.h"

namespace zorbin {

class frCompara : public QDialog {
  Q_OBJECT

 public:
  frCompara(const Entorno& entorno, const CasoDibujado& a, const CasoDibujado& b,
            EstiloNumeros estilo, QWidget* padre);
};

}  // namespace zorbin
