#include "shell/calculadoras/CalculoHidraulico.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "base/textos.h"
#include "listados/calculadoras/mdHidraulicaListado.h"
#include "listados/calculadoras/mdHidraulicaPapel.h"
#include "shell/piezas/mdQt.h"
#include "shell/piezas/mdTeclasRapidas.h"

namespace zorbin {

namespace {

struct Opcion {
  int texto;
  int pista;
};

// By the values of rdTipoCalculo and rdTipoDato.
constexpr std::array<Opcion, 3> kMetodos{{
    {txt::PrandtlColebrook, txt::PistaPrandtl},
    {txt::DarcyWeissbach, txt::PistaDarcy},
    {txt::HazenWilliams, txt::PistaHazen},
}};
constexpr std::array<Opcion, 2> kTiposDato{{
    {txt::OpcionPendiente, txt::PistaPendiente},
    {txt::OpcionCaudal, txt::PistaCaudal},
}};

// The largest table: two sections, with the slope and its unit.
constexpr int kColumnasTabla = 85;
constexpr int kLineasTabla = 26;

// The column of the inputs scrolls only where the screen is too low for it.
class Columna : public QScrollArea {
 public:
  Columna(QWidget* cuerpo, QWidget* padre) : QScrollArea(padre) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setWidget(cuerpo);
  }

  QSize sizeHint() const override {
    const int ancho = widget()->minimumSizeHint().width();
    return {ancho + verticalScrollBar()->sizeHint().width(),
            widget()->layout()->totalHeightForWidth(ancho)};
  }
  QSize minimumSizeHint() const override {
    return {sizeHint().width(), QScrollArea::minimumSizeHint().height()};
  }
};

QLabel* Etiqueta(const char* nombre, QWidget* padre, QWidget* campo = nullptr) {
  auto* etiqueta = new QLabel(padre);
  etiqueta->setObjectName(nombre);
  etiqueta->setTextFormat(Qt::PlainText);
  if (campo != nullptr) etiqueta->setBuddy(campo);
  return etiqueta;
}

QGroupBox* Marco(const char* nombre, QWidget* padre) {
  auto* marco = new QGroupBox(padre);
  marco->setObjectName(nombre);
  return marco;
}

QButtonGroup* Grupo(const QString& nombre, std::size_t opciones, QWidget* padre) {
  auto* grupo = new QButtonGroup(padre);
  grupo->setObjectName(nombre);
  for (int i = 0; i < static_cast<int>(opciones); ++i) {
    auto* opcion = new QRadioButton(padre);
    opcion->setObjectName(nombre + QString::number(i));
    grupo->addButton(opcion, i);
  }
  return grupo;
}

void Apila(QGroupBox* marco, const QButtonGroup* grupo) {
  auto* filas = new QVBoxLayout(marco);
  for (auto* opcion : grupo->buttons()) filas->addWidget(opcion);
}

bool Nombra(const AvisoCampo& aviso, int etiqueta) {
  return aviso.titulo == etiqueta ||
         std::find(aviso.texto.begin(), aviso.texto.end(), etiqueta) != aviso.texto.end();
}

}  // namespace

CalculoHidraulico::CalculoHidraulico(Entorno& entorno, QWidget* padre)
    : PantallaCalculadora(entorno, "CalculoHidraulico", "hidraulica", padre),
      e_(CargaCalculoHidraulico(entorno.SeparadorDecimal)) {
  CreaPiezas();
  ColocaPiezas();
  UneCampo(*txDatoOrigen_, CampoHidraulico::DatoOrigen);
  UneCampo(*txRugosidad_, CampoHidraulico::Rugosidad);
  connect(rdTipoCalculo_, &QButtonGroup::idClicked, this, [this](int metodo) {
    CambiaMetodo(e_, static_cast<MetodoHidraulico>(metodo));
    Muestra();
  });
  connect(rdTipoDato_, &QButtonGroup::idClicked, this, [this](int tipo) {
    CambiaTipoDato(e_, static_cast<DatoHidraulico>(tipo));
    Muestra();
  });
  RenuevaTextos();
  TomaSuSitio();
  txDatoOrigen_->setFocus();
}

void CalculoHidraulico::CreaPiezas() {
  rdTipoCalculo_ = Grupo("rdTipoCalculo", kMetodos.size(), this);
  rdTipoDato_ = Grupo("rdTipoDato", kTiposDato.size(), this);
  for (const auto* grupo : {rdTipoCalculo_, rdTipoDato_}) {
    for (auto* opcion : grupo->buttons()) UneOpcion(*opcion);
  }
  txDatoOrigen_ = CreaCasilla("txDatoOrigen");
  txRugosidad_ = CreaCasilla("txRugosidad");
  lbDatoOrigen_ = Etiqueta("lbDatoOrigen", this, txDatoOrigen_);
  lbRugosidad_ = Etiqueta("lbRugosidad", this, txRugosidad_);
  lbNota_ = Etiqueta("lbNota", this);
  lbTextoAyuda_ = Etiqueta("lbTextoAyuda", this);
  lbTextoAyuda_->setWordWrap(true);
  lbTextoAyuda_->setAlignment(Qt::AlignTop);
  btCalcular_ = CreaBoton("btCalcular", [this] { Calcular(); });
  btCalcular_->setDefault(true);
  btImprimir_ = CreaBoton("btImprimir", [this] { Imprimir(); });
  edPantallaCh_ = CreaArea("edPantallaCh", kColumnasTabla, kLineasTabla);
}

void CalculoHidraulico::ColocaPiezas() {
  frMetodo_ = Marco("frMetodo", this);
  Apila(frMetodo_, rdTipoCalculo_);
  frTipoDato_ = Marco("frTipoDato", this);
  Apila(frTipoDato_, rdTipoDato_);
  frValorDato_ = Marco("frValorDato", this);
  auto* dato = new QVBoxLayout(frValorDato_);
  dato->addWidget(lbDatoOrigen_);
  dato->addWidget(txDatoOrigen_);
  frRugosidad_ = Marco("frRugosidad", this);
  auto* rugosidad = new QVBoxLayout(frRugosidad_);
  rugosidad->addWidget(lbRugosidad_);
  auto* valor = new QHBoxLayout;
  valor->addWidget(txRugosidad_);
  valor->addWidget(lbNota_, 1);
  rugosidad->addLayout(valor);
  rugosidad->addWidget(lbTextoAyuda_, 1);

  auto* cuerpo = new QWidget(this);
  auto* columna = new QVBoxLayout(cuerpo);
  columna->setContentsMargins(0, 0, 0, 0);
  for (auto* marco : {frMetodo_, frTipoDato_, frValorDato_}) columna->addWidget(marco);
  columna->addWidget(frRugosidad_, 1);
  columna_ = new Columna(cuerpo, this);

  auto* centro = new QHBoxLayout;
  centro->addWidget(columna_);
  frResultado_ = Marco("frResultado", this);
  (new QVBoxLayout(frResultado_))->addWidget(edPantallaCh_);
  centro->addWidget(frResultado_, 1);
  auto* filas = new QVBoxLayout(this);
  filas->addLayout(centro, 1);
  filas->addLayout(FilaDeBotones({btCalcular_, btImprimir_}));
}

void CalculoHidraulico::UneCampo(CasillaNumero& casilla, CampoHidraulico cual) {
  Une({&casilla, cual == CampoHidraulico::DatoOrigen ? &e_.txDatoOrigen : &e_.txRugosidad,
       [this, cual] { Entra(e_, cual); },
       [this, cual](std::string texto) {
         Cambia(e_, cual, std::move(texto));
         MuestraBotones();
       },
       [this, cual] { return Sale(e_, cual); }});
}

void CalculoHidraulico::RenuevaTextos() {
  setWindowTitle(Rotulo(T(txt::PantallaHidraulica)));
  frMetodo_->setTitle(Rotulo(T(txt::MarcoMetodo)));
  frTipoDato_->setTitle(Rotulo(T(txt::MarcoTipoDato)));
  frValorDato_->setTitle(Rotulo(T(txt::MarcoValorDato)));
  frRugosidad_->setTitle(Rotulo(T(txt::MarcoRugosidad)));
  frResultado_->setTitle(Rotulo(T(txt::MarcoResultado)));
  edPantallaCh_->setAccessibleName(frResultado_->title());
  RenuevaOpciones();
  txDatoOrigen_->setToolTip(Q(T(txt::PistaDato)));
  btCalcular_->setText(Rotulo(T(txt::BotonCalcular)));
  btCalcular_->setToolTip(Q(T(txt::PistaCalcular)));
  btImprimir_->setText(Rotulo(T(txt::BotonImprimirCalculadora)));
  btImprimir_->setToolTip(Q(T(txt::PistaImprimirTabla)));
  RenuevaResultado(Rotulo(T(txt::BotonCalcular)));
  RenuevaTabla();
  ReservaAncho(*lbRugosidad_,
               {txt::RugosidadAbsolutaKs, txt::RugosidadArenaKa, txt::CoeficienteCwh});
  ReservaAncho(*lbNota_, {txt::ReglaCwh});
  Muestra();
  Recoloca();
}

void CalculoHidraulico::ReservaAncho(QLabel& etiqueta, std::initializer_list<int> textos) {
  int ancho = 0;
  for (const int n : textos) {
    etiqueta.setText(Rotulo(T(n)));
    ancho = std::max(ancho, etiqueta.sizeHint().width());
  }
  etiqueta.setMinimumWidth(ancho);
}

void CalculoHidraulico::RenuevaOpciones() {
  const auto renueva = [this](const QButtonGroup* grupo, const auto& opciones) {
    for (std::size_t i = 0; i < opciones.size(); ++i) {
      auto* opcion = grupo->button(static_cast<int>(i));
      opcion->setText(Rotulo(T(opciones[i].texto)));
      opcion->setToolTip(Q(T(opciones[i].pista)));
    }
  };
  renueva(rdTipoCalculo_, kMetodos);
  renueva(rdTipoDato_, kTiposDato);
}

void CalculoHidraulico::RenuevaTabla() {
  if (!e_.resultado) return;
  MuestraResultado(TextoHidraulico(*e_.resultado, entorno_.textos, {true, e_.SeparadorDecimal}));
}

void CalculoHidraulico::Muestra() {
  const bool hazen = e_.rdTipoCalculo == MetodoHidraulico::HazenWilliams;
  rdTipoCalculo_->button(static_cast<int>(e_.rdTipoCalculo))->setChecked(true);
  rdTipoDato_->button(static_cast<int>(e_.rdTipoDato))->setChecked(true);
  lbDatoOrigen_->setText(Rotulo(T(EtiquetaDato(e_))));
  txDatoOrigen_->setAccessibleName(lbDatoOrigen_->text());
  lbRugosidad_->setText(Rotulo(T(EtiquetaRugosidad(e_))));
  txRugosidad_->setAccessibleName(lbRugosidad_->text());
  txRugosidad_->setToolTip(Q(T(hazen ? txt::PistaCwh : txt::PistaRugosidad)));
  lbNota_->setText(Q(NotaRugosidad(e_, entorno_.textos)));
  lbTextoAyuda_->setText(Q(TextoAyuda(e_, entorno_.textos)));
  MuestraCampos();
  MuestraBotones();
  ReparteTeclas(*this);
}

void CalculoHidraulico::MuestraBotones() {
  btImprimir_->setEnabled(e_.imprimible);
  MuestraAtrasado(e_.resultado && !e_.imprimible);
}

void CalculoHidraulico::Calcular() {
  const auto aviso = Calcula(e_);
  MuestraCampos();
  MuestraBotones();
  if (!aviso) {
    RenuevaTabla();
    return;
  }
  Dice(*aviso);
  if (Nombra(*aviso, EtiquetaDato(e_))) VaA(*txDatoOrigen_);
  if (Nombra(*aviso, EtiquetaRugosidad(e_))) VaA(*txRugosidad_);
}

void CalculoHidraulico::Imprimir() {
  if (!e_.imprimible) return;
  const auto escribe = [this](Papel& papel) {
    PapelHidraulico(*e_.resultado, entorno_.textos, {true, e_.SeparadorDecimal}, papel);
  };
  ImprimeHojas(windowTitle(), escribe);
}

}  // namespace zorbin
