// The window of the analysis of aggressive media. It decides nothing: its widgets are bound to an
// EntradaMedios.
#pragma once

#include <array>

#include "sesion/calculadoras/mdEntradaMedios.h"
#include "shell/calculadoras/mdPantallaCalculadora.h"

class QCheckBox;
class QGroupBox;
class QTextBrowser;
class QVBoxLayout;

namespace zorbin {

class Protecciones : public PantallaCalculadora {
  Q_OBJECT

 public:
  /// HTML of the document that a catalogue entry names; empty when there is none.
  using DocumentoHtml = std::function<QString(int entrada)>;

  /// `entorno` outlives the window. Every window opens with its defaults.
  Protecciones(Entorno& entorno, DocumentoHtml documentoHtml, QWidget* padre = nullptr);

  /// Writes every text again, after a change of language.
  void RenuevaTextos();

 private:
  static constexpr int kMarcos = 4;

  EntradaMedios e_;
  DocumentoHtml documentoHtml_;
  std::array<CasillaNumero*, kMedios> txpH_{};
  QLabel* lbAvisoPH_ = nullptr;
  std::array<QLabel*, kMedios> lbAguas_{};
  std::array<QLabel*, kMedios> lbUnidadesAgres_{};
  std::array<QGroupBox*, kMarcos> frMedios_{};
  QGroupBox* frAgresividad_;
  QGroupBox* frEjemplo_;
  QGroupBox* frMedidas_;
  QCheckBox* Check1_;
  QTextBrowser* edEjemplo_;
  AreaResultado* edResultadoAgres_;
  QPushButton* btVisualizar_;
  QPushButton* btImprimir_;

  void CreaPiezas();
  void CreaCampo(Medio medio);
  QGroupBox* MarcoConCampos(int marco);
  void ColocaPiezas();
  void RenuevaCampo(Medio medio);
  void MuestraAvisoPH();
  void AlineaCampos();
  void RenuevaEjemplo();
  void RenuevaAnalisis();
  bool Visualizar();
  void Imprimir();
  void MuestraPendiente() { MuestraAtrasado(e_.resultado && !e_.alDia); }
};

}  // namespace zorbin
