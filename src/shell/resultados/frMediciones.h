// The bill of the Obra: what its Tramos take and cost, as soon as a length or a price is typed.
#pragma once

#include <QDialog>
#include <map>
#include <vector>

#include "core/mediciones.h"
#include "listados/mediciones/mdPlanilla.h"
#include "sesion/captura/mdCaptura.h"
#include "sesion/trabajo/mdTrabajo.h"
#include "shell/piezas/mdEntorno.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace zorbin {

class VistaPlanilla;

class frMediciones : public QDialog {
  Q_OBJECT

 public:
  /// @param calculo  the runs of the Obra, which are measured
  frMediciones(Captura& c, const Entorno& entorno, Calculo calculo, QWidget* padre = nullptr);

  /// Keeps lengths and prices, as a step that can be undone. With a value that is refused the
  /// screen stays.
  void accept() override;

  /// The bill, and the steel layer by layer.
  const std::vector<Planilla>& planillas() const { return planillas_; }

 private:
  Captura& c_;
  const Entorno& entorno_;
  Calculo calculo_;
  std::vector<Fabricacion> fabricaciones_;  // of the Tramos of the calculation
  Fabricacion enMano_;                      // of the Tramo in hand
  Precios precios_;
  std::vector<Planilla> planillas_;
  std::map<int, QString> faltas_;  // by field, in the order of the screen
  QLineEdit* moneda_;
  QTableWidget* tablaPrecios_;
  VistaPlanilla* partidas_;
  VistaPlanilla* capas_;
  QLabel* reparo_;

  QString Tx(int n) const;
  std::string Corto(double valor) const;
  QGroupBox* GrupoTramo();
  QGroupBox* GrupoPrecios();
  QLayout* Botones();
  void TomaDato(std::size_t i, const QString& texto);
  void TomaMoneda(const QString& texto);
  void TomaPrecio(int fila);
  void Anota(int campo, const QString& falta);
  void Mide();
  void Exporta(std::size_t formato);
};

/// Calculates the Obra and shows its bill.
void MuestraMediciones(Captura& c, const Entorno& entorno, QWidget* padre);

}  // namespace zorbin
