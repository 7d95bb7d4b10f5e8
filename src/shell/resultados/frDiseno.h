// The design beside the data: the worst Caso of the Tramo in hand, or the one chosen on the map,
// with section, ring, steel, hypotheses and the map. It follows every datum that is accepted; the
// calculation never makes whoever types wait.
#pragma once

#include <QWidget>
#include <array>
#include <memory>
#include <optional>

#include "calculo/mapa/mdMalla.h"
#include "sesion/captura/mdCaptura.h"
#include "sesion/resultados/mdDiseno.h"
#include "sesion/resultados/mdUltimaFaena.h"
#include "shell/piezas/mdEntorno.h"

class QComboBox;
class QLabel;
class QPushButton;
class QScrollArea;

namespace zorbin {

class Barras;
class Insignia;
class TablaCorta;
class VistaLamina;

class PanelDiseno : public QWidget {
  Q_OBJECT

 public:
  PanelDiseno(const Captura& c, const Entorno& entorno, QWidget* padre = nullptr);
  ~PanelDiseno() override;

  void RenuevaTextos();
  /// A place of the map, or none for the worst Caso.
  void Elige(std::optional<SitioCaso> caso);
  const std::optional<SitioCaso>& elegido() const { return caso_; }
  /// Until what was asked for has been calculated; what came of it is shown by the next events.
  void Espera() { faena_.Espera(); }

  /// What is shown; none where there is nothing.
  const std::optional<Diseno>& mostrado() const { return mostrado_; }
  const QString& reparo() const { return reparo_; }
  bool Atrasado() const { return atrasado_; }
  QSize sizeHint() const override { return {440, 700}; }
  VistaLamina& mapa() { return *mapa_; }

 public slots:
  /// The capture may have changed.
  void Sigue();

 signals:
  /// A Tramo was calculated whole.
  void verificado(int id, Veredicto veredicto);
  void sinDiseno(int id);

 protected:
  void showEvent(QShowEvent* suceso) override;
  void changeEvent(QEvent* suceso) override;

 private:
  const Captura& c_;
  const Entorno& entorno_;
  std::shared_ptr<const Catalogo> textos_;  // for the thread of the calculation
  int idioma_ = -1;
  std::optional<PedidoDiseno> pedido_;
  std::uint64_t numero_ = 0;  // of the last request
  std::optional<SitioCaso> caso_;
  int hipotesis_ = 0;  // chosen, 0 for the governing one
  std::optional<Diseno> mostrado_;
  std::shared_ptr<const Malla> malla_;
  QString reparo_;
  bool atrasado_ = false;

  QLabel* titulo_;
  QLabel* presiones_;
  QLabel* rige_;
  QLabel* aviso_;
  QLabel* motivo_;
  Insignia* insignia_;
  QPushButton* pesimo_;
  VistaLamina* seccion_;
  VistaLamina* pared_;
  VistaLamina* anillo_;
  QComboBox* comboHipotesis_;
  TablaCorta* acero_;
  QLabel* rotuloBarras_;
  Barras* barras_;
  VistaLamina* tensiones_;
  TablaCorta* postesado_;
  QLabel* rotuloMapa_;
  VistaLamina* mapa_;
  QLabel* punto_;
  QLabel* avisos_;
  QWidget* cuerpo_;
  QScrollArea* vista_;

  UltimaFaena faena_;  // ends before what it tells

  PalabrasDibujo Palabras() const;
  int Hipotesis() const;
  std::array<VistaLamina*, 5> Dibujos() const {
    return {seccion_, pared_, anillo_, tensiones_, mapa_};
  }
  void CreaPiezas();
  void Coloca();
  void Enlaza();
  void Encarga(bool otraVez);
  void Recibe(std::uint64_t numero, Diseno diseno);
  void RecibeMapa(std::uint64_t numero, Malla malla);
  void Vacia();
  void PonAtraso(bool atrasado, const QString& reparo);
  void Muestra();
  void MuestraCabeza(const CasoDibujado& caso);
  void MuestraAcero(const CasoDibujado& caso);
  void MuestraBarras(const CasoDibujado& caso);
  void MuestraPostesado(const CasoDibujado& caso);
  void MuestraDibujos();
  void MuestraAnillo();
  void MuestraMapa();
  void LlenaHipotesis(const CasoDibujado& caso);
  void EligeEnMapa(Xy sitio);
};

}  // namespace zorbin
