// The chart that compares several Tramos, and the choice of them.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "listados/dibujos/mdGraficoComparado.h"
#include "sesion/resultados/mdUltimaFaena.h"
#include "shell/piezas/mdEntorno.h"

class QComboBox;
class QLabel;
class QListWidget;

namespace zorbin {

class VistaLamina;

class PanelVariosTramos : public QWidget {
  Q_OBJECT

 public:
  explicit PanelVariosTramos(const Entorno& entorno, QWidget* padre = nullptr);

  /// Tramos that have been calculated. Those that were chosen stay so, by their numbers; of others
  /// the first ones are.
  void Pon(std::vector<DatosTramo> tramos, EstiloNumeros estilo);
  void RenuevaTextos();
  /// Until the chart has been calculated; the next events show it.
  void Espera() { faena_.Espera(); }
  VistaLamina& grafico() { return *grafico_; }

 protected:
  void showEvent(QShowEvent* suceso) override;

 private:
  const Entorno& entorno_;
  EstiloNumeros estilo_;
  std::vector<DatosTramo> tramos_;
  std::uint64_t numero_ = 0;
  bool llenando_ = false;

  QComboBox* que_;
  QComboBox* eje_;
  VistaLamina* grafico_;
  QLabel* valores_;
  QLabel* cuantos_;
  QListWidget* lista_;

  UltimaFaena faena_;

  PalabrasDibujo Palabras() const { return {entorno_.textos, estilo_}; }
  void LlenaLista();
  std::vector<DatosTramo> Elegidos() const;
  void Pide();
  void Pinta(QueCompara que, EjeDeGrafico eje, std::vector<TramoComparado> tramos);
};

}  // namespace zorbin
