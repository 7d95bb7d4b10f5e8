// The window of the adjustment of reinforcements by hand. It decides nothing: its widgets show an
// Ajustes and tell it what a person does.
#pragma once

#include <QDialog>
#include <array>
#include <functional>

#include "sesion/ajustes/mdAjuste.h"
#include "shell/piezas/mdCasillaNumero.h"
#include "shell/piezas/mdEntorno.h"
#include "shell/piezas/mdVigilanteFoco.h"

class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QTextBrowser;

class QScrollArea;

namespace zorbin {

class BarraArmadura;
class DibujoPared;
class MarcaAlerta;
class ListaCasos;
class TablaFilas;

/// HTML of the document that a catalogue entry names; empty when there is none.
using DocumentoAjustes = std::function<QString(int entrada)>;

/// mnAjustarArmaduras: what has to come before it, the window, and until it closes.
void AbreAjustes(Captura& c, const Entorno& entorno, const DocumentoAjustes& documentoHtml,
                 QWidget* padre);

class frAjustes : public QDialog {
  Q_OBJECT

 public:
  /// All of them outlive the window.
  frAjustes(Ajustes& ajustes, const Entorno& entorno, const DocumentoAjustes& documentoHtml,
            QWidget* padre = nullptr);
  ~frAjustes() override;

  /// Escape gives up what is being typed first; the close box asks for that.
  void reject() override;

 protected:
  void showEvent(QShowEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;

 private:
  QScrollArea* vista_ = nullptr;
  struct Linea {
    QLabel* lbPosicion = nullptr;
    QLabel* txArmNecesaria = nullptr;
    QLabel* txArmDispuesta = nullptr;
    MarcaAlerta* imAlerta = nullptr;
    BarraArmadura* barra = nullptr;
    QLabel* lbRige = nullptr;
  };

  Ajustes& a_;
  const Entorno& entorno_;
  VigilanteFoco vigilante_;
  std::array<QPushButton*, kBotonesAjuste> botones_{};
  std::array<CasillaNumero*, kCamposAjuste> campos_{};
  ListaCasos* cbCasos_ = nullptr;
  QLineEdit* txAltura_ = nullptr;
  QLineEdit* txPresion_ = nullptr;
  QLabel* lbAltura_ = nullptr;
  QLabel* lbPresion_ = nullptr;
  QLabel* edAvisoCaldera_ = nullptr;
  QLabel* lbAvisosDelCaso_ = nullptr;
  QLabel* lbRecInterior_ = nullptr;
  QLabel* lbRecExterior_ = nullptr;
  QLabel* lbSinGrabar_ = nullptr;
  QLabel* lbAviso_ = nullptr;
  QGroupBox* frFilas_ = nullptr;
  QGroupBox* frRecubrimientos_ = nullptr;
  QGroupBox* frPared_ = nullptr;
  TablaFilas* tabla_ = nullptr;
  std::array<Linea, 3> lineas_{};
  std::array<QLabel*, 2> cabezasLineas_{};  // needed, provided
  QStackedWidget* hueco_ = nullptr;         // the wall, or the document while covers are changed
  DibujoPared* pared_ = nullptr;
  QLabel* lbCamisa_ = nullptr;
  QLabel* lbEspiras_ = nullptr;
  QLabel* lbExteriores_ = nullptr;
  QLabel* lbSupuestas_ = nullptr;
  QTextBrowser* tbAviso_ = nullptr;

  const std::string& T(int n) const { return entorno_.textos.Texto(n); }

  void CreaCampos();
  QPushButton* CreaBoton(BotonAjuste boton, const QString& nombre);
  QWidget* ColumnaDelCaso();
  QWidget* ColumnaDeLaComprobacion();
  QGroupBox* MarcoComprobacion();
  QWidget* MarcoPared();
  QWidget* MarcoRecubrimientos();
  QLayout* FilaDeSalida();
  void PonPistas();
  void MuestraDocumento(const DocumentoAjustes& documentoHtml);
  void TomaSuSitio();

  void Muestra();
  void MuestraCaso();
  void MuestraCampos();
  void MuestraLineas();
  void MuestraPared();

  void Actua(BotonAjuste boton);
  void Elige(int fila);
  void VaAlCaso(int lugar);
  bool Pierde(BotonAjuste boton) const;
  /// The focus follows the state: to the field that opens, back to what is chosen.
  void LlevaElFoco(EstadoAjuste antes);
  CasillaNumero* CampoQueFalta() const;
  int IndiceDe(const QWidget* campo) const;
};

}  // namespace zorbin
