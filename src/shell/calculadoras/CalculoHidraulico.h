// The window of the hydraulic calculator. It decides nothing: its widgets are bound to an
// EntradaHidraulica.
#pragma once

#include "sesion/calculadoras/mdEntradaHidraulica.h"
#include "shell/calculadoras/mdPantallaCalculadora.h"

class QButtonGroup;
class QGroupBox;

namespace zorbin {

class CalculoHidraulico : public PantallaCalculadora {
  Q_OBJECT

 public:
  /// `entorno` outlives the window. Every window opens with its defaults.
  explicit CalculoHidraulico(Entorno& entorno, QWidget* padre = nullptr);

  /// Writes every text again, after a change of language.
  void RenuevaTextos();

 private:
  EntradaHidraulica e_;
  QButtonGroup* rdTipoCalculo_;
  QButtonGroup* rdTipoDato_;
  QGroupBox* frMetodo_;
  QGroupBox* frTipoDato_;
  QGroupBox* frValorDato_;
  QGroupBox* frRugosidad_;
  QWidget* columna_ = nullptr;
  CasillaNumero* txDatoOrigen_;
  CasillaNumero* txRugosidad_;
  QLabel* lbDatoOrigen_;
  QLabel* lbRugosidad_;
  QLabel* lbNota_;
  QLabel* lbTextoAyuda_;
  AreaResultado* edPantallaCh_;
  QGroupBox* frResultado_ = nullptr;
  QPushButton* btCalcular_;
  QPushButton* btImprimir_;

  void CreaPiezas();
  void ColocaPiezas();
  void UneCampo(CasillaNumero& casilla, CampoHidraulico cual);
  void RenuevaOpciones();
  /// A label that changes with the method keeps the width of its longest text: nothing jumps.
  void ReservaAncho(QLabel& etiqueta, std::initializer_list<int> textos);
  void RenuevaTabla();
  void Muestra();
  void MuestraBotones();
  void Calcular();
  void Imprimir();
};

}  // namespace zorbin
