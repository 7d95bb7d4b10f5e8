// What is known of a Caso: charts of its Tramo, section, laying, ring, checks, and all its values.
#pragma once

#include <QTabWidget>
#include <map>
#include <memory>

#include "calculo/mapa/mdMalla.h"
#include "sesion/resultados/mdDetalle.h"
#include "sesion/resultados/mdDiseno.h"
#include "sesion/resultados/mdUltimaFaena.h"
#include "shell/piezas/mdEntorno.h"

class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;
class QTreeWidget;

namespace zorbin {

class PanelVariosTramos;
class VistaLamina;

class PanelDetalle : public QTabWidget {
  Q_OBJECT

 public:
  explicit PanelDetalle(const Entorno& entorno, QWidget* padre = nullptr);

  /// None shows nothing.
  void Pon(std::shared_ptr<const CasoConTramo> caso, EstiloNumeros estilo);
  PanelVariosTramos& varios() { return *varios_; }
  void RenuevaTextos();
  /// Until the chart has been calculated; the next events show it.
  void Espera() { faena_.Espera(); }

 private:
  const Entorno& entorno_;
  EstiloNumeros estilo_;
  std::shared_ptr<const CasoConTramo> caso_;
  std::shared_ptr<const Malla> malla_;
  std::uint64_t numero_ = 0;

  QComboBox* que_;
  QComboBox* eje_;
  VistaLamina* grafico_;
  QLabel* valores_;
  VistaLamina* seccion_;
  VistaLamina* pared_;
  VistaLamina* zanja_;
  QComboBox* hipotesis_;
  VistaLamina* anillo_;
  VistaLamina* tensiones_;
  QTableWidget* matriz_;
  QLabel* comprobaciones_;
  QPushButton* pasos_;
  QTreeWidget* todo_;
  PanelVariosTramos* varios_;

  UltimaFaena faena_;

  PalabrasDibujo Palabras() const { return {entorno_.textos, estilo_}; }
  QWidget* CreaSeccion();
  QWidget* CreaGrafico();
  QWidget* CreaEsfuerzos();
  QWidget* CreaComprobaciones();
  void LlenaListas();
  void Muestra();
  void MuestraGrafico();
  void PideMalla();
  void PintaGrafico();
  void MuestraEsfuerzos();
  void MuestraMatriz();
  void MuestraTodo();
  void MuestraPasos();
};

}  // namespace zorbin
