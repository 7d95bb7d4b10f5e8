// A Caso step by step on the screen: the formulas of its run with their figures, as the report has
// them.
#pragma once

#include <QDialog>

#include "listados/informe/mdInforme.h"
#include "shell/piezas/mdEntorno.h"

namespace zorbin {

class frPasos : public QDialog {
  Q_OBJECT

 public:
  /// @param fila  a Caso of the result
  frPasos(const Entorno& entorno, const ResultadoTramo& resultado, const FilaCaso& fila,
          EstiloNumeros estilo, QWidget* padre = nullptr);

  /// The steps as plain text, a line each.
  const std::string& Texto() const { return texto_; }

 private:
  std::string texto_;
};

}  // namespace zorbin
