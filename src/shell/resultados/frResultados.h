// The screen of results: all Casos of all Tramos in a table, and what is known of the one chosen.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "sesion/captura/mdCaptura.h"
#include "sesion/resultados/mdCasos.h"
#include "sesion/trabajo/mdTrabajo.h"
#include "shell/piezas/mdEntorno.h"

class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QSplitter;
class QTableView;
class QToolButton;

namespace zorbin {

class ModeloCasos;
class PanelDetalle;

class frResultados : public QWidget {
  Q_OBJECT

 public:
  /// @param resumen  opens summary and listings
  frResultados(const Captura& c, const Entorno& entorno, std::function<void()> resumen,
               QWidget* padre);
  ~frResultados() override;

  /// Calculates all Tramos of the Obra, with a box to give up. @return false where that was done
  bool Calcula();
  void RenuevaTextos();
  ModeloCasos& modelo() { return *modelo_; }

 public slots:
  /// The capture may have changed: what is shown may be of before.
  void Mira();

 signals:
  /// What a calculation said of a Tramo.
  void verificado(int id, Veredicto veredicto);

 protected:
  void closeEvent(QCloseEvent* suceso) override;
  bool eventFilter(QObject* quien, QEvent* suceso) override;

 private:
  const Captura& c_;
  const Entorno& entorno_;
  std::function<void()> resumen_;
  Version calculada_;
  std::vector<std::string> numeros_;
  std::vector<int> ids_;  // of the Tramos calculated
  std::string reparos_;   // Tramos left out, failures
  int idioma_ = -1;

  ModeloCasos* modelo_;
  QTableView* tabla_;
  PanelDetalle* detalle_;
  QSplitter* partes_;
  QLineEdit* busca_;
  QComboBox* tramo_;
  QComboBox* veredicto_;
  QComboBox* hipotesis_;
  QCheckBox* soloPeores_;
  QToolButton* columnas_;
  QMenu* menuColumnas_;
  QAction* aLibro_;
  QAction* aTexto_;
  QPushButton* copia_;
  QPushButton* exporta_;
  QPushButton* compara_;
  QPushButton* calcula_;
  QPushButton* listados_;
  QLabel* cuenta_;
  QLabel* aviso_;

  EstiloNumeros Estilo() const { return {c_.EsSI(), entorno_.SeparadorDecimal}; }
  void CreaPiezas();
  void Coloca();
  void Enlaza();
  void LlenaListas();
  void LlenaColumnas();
  void PonColumna(Columna c, bool si);
  bool CalculaEnteras();
  void GuardaColumnas() const;
  std::vector<Columna> ColumnasGuardadas() const;
  void Filtra();
  void Elegido();
  void Ordenado();
  void Cuenta();
  void Copia();
  void Exporta(const QString& extension);
  void Compara();
  std::vector<std::uint32_t> Elegidos() const;
  void AjustaAnchos();
};

}  // namespace zorbin
