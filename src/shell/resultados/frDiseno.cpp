#include "shell/resultados/frDiseno.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/anillo/mdAnilloCaso.h"
#include "listados/dibujos/mdDibujoAnillo.h"
#include "listados/dibujos/mdDibujoMapa.h"
#include "listados/dibujos/mdDibujoTubo.h"
#include "listados/dibujos/mdGraficosTramo.h"
#include "listados/obra/mdRotulos.h"
#include "shell/dibujos/mdVistaLamina.h"
#include "shell/piezas/mdQt.h"
#include "shell/resultados/mdPiezasDiseno.h"

namespace zorbin {

namespace {

QLabel* Rotulado(const char* nombre, QWidget* padre) {
  auto* rotulo = new QLabel(padre);
  rotulo->setObjectName(QString::fromLatin1(nombre));
  rotulo->setTextFormat(Qt::PlainText);
  rotulo->setWordWrap(true);
  return rotulo;
}

void PonLetra(QLabel& rotulo, double veces, bool negrita) {
  QFont letra = rotulo.font();
  letra.setPointSizeF(letra.pointSizeF() * veces);
  letra.setBold(negrita);
  rotulo.setFont(letra);
}

std::string EnCm2(const std::optional<double>& valor, const PalabrasDibujo& w) {
  return valor ? w.Numero(*valor, 1) : std::string("-");
}

}  // namespace

PanelDiseno::PanelDiseno(const Captura& c, const Entorno& entorno, QWidget* padre)
    : QWidget(padre), c_(c), entorno_(entorno) {
  setObjectName(QStringLiteral("panelDiseno"));
  CreaPiezas();
  Coloca();
  Enlaza();
  RenuevaTextos();
  Vacia();
}

PanelDiseno::~PanelDiseno() = default;

void PanelDiseno::CreaPiezas() {
  cuerpo_ = new QWidget(this);
  titulo_ = Rotulado("disTitulo", cuerpo_);
  PonLetra(*titulo_, 1.15, true);
  presiones_ = Rotulado("disPresiones", cuerpo_);
  rige_ = Rotulado("disRige", cuerpo_);
  aviso_ = Rotulado("disAviso", cuerpo_);
  motivo_ = Rotulado("disMotivo", cuerpo_);
  insignia_ = new Insignia(cuerpo_);
  insignia_->setObjectName(QStringLiteral("disVeredicto"));
  pesimo_ = new QPushButton(cuerpo_);
  pesimo_->setObjectName(QStringLiteral("btPesimo"));
  seccion_ = new VistaLamina(entorno_, {120, 200}, cuerpo_);
  pared_ = new VistaLamina(entorno_, {150, 200}, cuerpo_);
  anillo_ = new VistaLamina(entorno_, {150, 210}, cuerpo_);
  comboHipotesis_ = new QComboBox(cuerpo_);
  comboHipotesis_->setObjectName(QStringLiteral("cbHipotesis"));
  acero_ = new TablaCorta(cuerpo_);
  rotuloBarras_ = Rotulado("disRotuloBarras", cuerpo_);
  PonLetra(*rotuloBarras_, 1.0, true);
  barras_ = new Barras(cuerpo_);
  tensiones_ = new VistaLamina(entorno_, {150, 220}, cuerpo_);
  postesado_ = new TablaCorta(cuerpo_);
  rotuloMapa_ = Rotulado("disRotuloMapa", cuerpo_);
  PonLetra(*rotuloMapa_, 1.0, true);
  mapa_ = new VistaLamina(entorno_, {150, 290}, cuerpo_);
  mapa_->setObjectName(QStringLiteral("disMapa"));
  punto_ = Rotulado("disPunto", cuerpo_);
  avisos_ = Rotulado("disAvisos", cuerpo_);
  for (auto* vista : Dibujos()) vista->DejaLaRueda();
}

void PanelDiseno::Coloca() {
  auto* cabeza = new QHBoxLayout;
  cabeza->addWidget(titulo_, 1);
  cabeza->addWidget(pesimo_);
  cabeza->addWidget(insignia_, 0, Qt::AlignTop);
  auto* tubo = new QWidget(cuerpo_);
  auto* deTubo = new QHBoxLayout(tubo);
  deTubo->setContentsMargins(0, 0, 0, 0);
  deTubo->setSpacing(0);
  deTubo->addWidget(seccion_, 2);
  deTubo->addWidget(pared_, 3);
  auto* filas = new QVBoxLayout(cuerpo_);
  filas->setSpacing(6);
  filas->addLayout(cabeza);
  for (QWidget* w : {static_cast<QWidget*>(presiones_), static_cast<QWidget*>(rige_),
                     static_cast<QWidget*>(motivo_), static_cast<QWidget*>(avisos_), tubo,
                     static_cast<QWidget*>(acero_), static_cast<QWidget*>(rotuloBarras_),
                     static_cast<QWidget*>(barras_), static_cast<QWidget*>(comboHipotesis_),
                     static_cast<QWidget*>(anillo_), static_cast<QWidget*>(tensiones_),
                     static_cast<QWidget*>(postesado_), static_cast<QWidget*>(rotuloMapa_),
                     static_cast<QWidget*>(mapa_), static_cast<QWidget*>(punto_)}) {
    filas->addWidget(w);
  }
  filas->addStretch();
  vista_ = new QScrollArea(this);
  vista_->setWidgetResizable(true);
  vista_->setFrameShape(QFrame::NoFrame);
  vista_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  vista_->setWidget(cuerpo_);
  auto* todo = new QVBoxLayout(this);
  todo->setContentsMargins(0, 0, 0, 0);
  todo->addWidget(aviso_);
  todo->addWidget(vista_, 1);
  aviso_->setMargin(8);
  aviso_->setAutoFillBackground(true);
  aviso_->setBackgroundRole(QPalette::ToolTipBase);
  aviso_->setForegroundRole(QPalette::ToolTipText);
  setMinimumWidth(300);
}

void PanelDiseno::Enlaza() {
  connect(pesimo_, &QPushButton::clicked, this, [this] { Elige(std::nullopt); });
  connect(comboHipotesis_, &QComboBox::activated, this, [this](int i) {
    hipotesis_ = i + 1;
    MuestraAnillo();
  });
  connect(mapa_, &VistaLamina::elegido, this, &PanelDiseno::EligeEnMapa);
  connect(mapa_, &VistaLamina::apuntado, punto_, [this](const QString& texto) {
    punto_->setText(QString(texto).replace('\n', QStringLiteral(" · ")));
  });
  mapa_->PonCuenta([this](const LaminaConEjes& lamina, Xy sitio) -> QString {
    if (malla_ == nullptr || !mostrado_ || mostrado_->caso == nullptr) return {};
    const auto w = Palabras();
    const auto p = PuntoEn(lamina, *malla_, w, sitio);
    if (!p) return {};
    const std::string donde = "Hr " + w.Metros(malla_->ejes.alturas[p->altura]) + " · DP " +
                              w.Presion(malla_->ejes.presiones[p->presion]);
    const auto& x = malla_->En(p->altura, p->presion);
    if (!x) return Q(donde + "\n" + w.T(txt::DibNoCumple));
    std::string texto = donde + "\n" + VeredictoConUso(x->fila, w);
    const bool armado = mostrado_->caso->caso.EsArmado();
    if (x->hipotesis > 0) {
      texto += "\n" + TextoEntero(x->hipotesis) + " · " + w.Hipotesis(armado, x->hipotesis);
    }
    if (x->acero) texto += "\n" + w.Con(txt::DibArea, {w.Numero(*x->acero, 1)});
    return Q(texto);
  });
}

PalabrasDibujo PanelDiseno::Palabras() const {
  return {entorno_.textos, {mostrado_ ? mostrado_->si : c_.EsSI(), entorno_.SeparadorDecimal}};
}

void PanelDiseno::RenuevaTextos() {
  pesimo_->setText(Q(entorno_.textos.Texto(txt::ResVerPesimo)));
  rotuloMapa_->setText(Q(entorno_.textos.Texto(txt::DibTituloMapa)));
  if (idioma_ >= 0) Muestra();
}

// ---------------------------------------------------------------------------------------------
// Following the data

void PanelDiseno::Elige(std::optional<SitioCaso> caso) {
  caso_ = caso;
  Sigue();
}

void PanelDiseno::EligeEnMapa(Xy sitio) {
  if (malla_ == nullptr || !mostrado_ || atrasado_) return;
  const auto p = PuntoEn(mapa_->lamina(), *malla_, Palabras(), sitio);
  if (p) Elige(SitioCaso{malla_->ejes.alturas[p->altura], malla_->ejes.presiones[p->presion]});
}

void PanelDiseno::Sigue() {
  if (!c_.ObraCargada || c_.SinTramoEnMano()) {
    if (pedido_ || mostrado_) Vacia();
    return;
  }
  if (idioma_ != entorno_.textos.IdiomaOffset()) {
    idioma_ = entorno_.textos.IdiomaOffset();
    textos_ = std::make_shared<const Catalogo>(entorno_.textos);
    pedido_.reset();
  }
  if (mostrado_ && mostrado_->id != c_.enMano) {
    caso_.reset();
    hipotesis_ = 0;
  }
  Encarga(false);
}

// The map is calculated where somebody sees it.
void PanelDiseno::Encarga(bool otraVez) {
  PedidoDiseno p{
      VersionActual(c_),      c_.enMano, textos_, &entorno_.tablas, entorno_.SeparadorDecimal,
      !c_.sinAjustes.empty(), caso_};
  const bool igual = pedido_ && pedido_->id == p.id && pedido_->caso == p.caso &&
                     pedido_->sinAjustes == p.sinAjustes && pedido_->version == p.version;
  if (igual && !otraVez) return;
  pedido_ = p;
  const auto numero = ++numero_;
  const bool conMapa = isVisible();
  faena_.Pide([this, numero, conMapa, p = std::move(p)](const UltimaFaena::Sigue& sigue) {
    Diseno fallo;
    fallo.id = p.id;
    try {
      auto diseno = CalculaDiseno(p, sigue);
      if (!diseno) return;
      const auto caso = diseno->caso;
      QMetaObject::invokeMethod(
          this, [this, numero, d = std::move(*diseno)] { Recibe(numero, d); },
          Qt::QueuedConnection);
      if (!conMapa || caso == nullptr) return;
      auto malla = CalculaMapa(caso->tramo.datos, sigue);
      if (!malla.entera) return;
      QMetaObject::invokeMethod(
          this,
          [this, numero, m = std::move(malla)]() mutable { RecibeMapa(numero, std::move(m)); },
          Qt::QueuedConnection);
      return;
    } catch (const std::exception& error) {
      fallo.motivo = error.what();
    }
    QMetaObject::invokeMethod(
        this, [this, numero, fallo] { Recibe(numero, fallo); }, Qt::QueuedConnection);
  });
}

void PanelDiseno::Recibe(std::uint64_t numero, Diseno diseno) {
  if (numero != numero_) return;
  if (diseno.caso == nullptr) {
    emit sinDiseno(diseno.id);
    const bool queda = mostrado_ && mostrado_->id == diseno.id && mostrado_->caso != nullptr;
    if (!queda) {
      mostrado_.reset();
      malla_.reset();
    }
    PonAtraso(true, Q(entorno_.textos.Compone(queda ? txt::ResAtrasado : txt::ResSinDiseno,
                                              {diseno.motivo})));
    if (!queda) Muestra();
    return;
  }
  if (mostrado_ && mostrado_->id != diseno.id) malla_.reset();
  mostrado_ = std::move(diseno);
  PonAtraso(false, {});
  Muestra();
  emit verificado(mostrado_->id, mostrado_->veredicto);
}

void PanelDiseno::RecibeMapa(std::uint64_t numero, Malla malla) {
  if (numero != numero_) return;
  malla_ = std::make_shared<const Malla>(std::move(malla));
  MuestraMapa();
}

void PanelDiseno::Vacia() {
  ++numero_;
  faena_.Abandona();
  pedido_.reset();
  caso_.reset();
  hipotesis_ = 0;
  mostrado_.reset();
  malla_.reset();
  PonAtraso(true, Q(entorno_.textos.Texto(txt::SinTramo)));
  Muestra();
}

void PanelDiseno::showEvent(QShowEvent* suceso) {
  QWidget::showEvent(suceso);
  if (pedido_ && malla_ == nullptr) Encarga(true);
}

void PanelDiseno::changeEvent(QEvent* suceso) {
  QWidget::changeEvent(suceso);
  if (suceso->type() == QEvent::PaletteChange) update();
}

// ---------------------------------------------------------------------------------------------
// Showing

void PanelDiseno::PonAtraso(bool atrasado, const QString& reparo) {
  atrasado_ = atrasado;
  reparo_ = reparo;
  aviso_->setText(reparo);
  aviso_->setVisible(!reparo.isEmpty());
  insignia_->setEnabled(!atrasado);
  for (QWidget* w : {static_cast<QWidget*>(acero_), static_cast<QWidget*>(barras_),
                     static_cast<QWidget*>(postesado_), static_cast<QWidget*>(titulo_),
                     static_cast<QWidget*>(presiones_), static_cast<QWidget*>(rige_),
                     static_cast<QWidget*>(motivo_), static_cast<QWidget*>(avisos_)}) {
    w->setEnabled(!atrasado);
  }
  for (auto* vista : Dibujos()) vista->PonAtrasada(atrasado);
}

int PanelDiseno::Hipotesis() const {
  const auto& c = *mostrado_->caso;
  const int cuantas = CuentaHipotesis(c.tramo.datos);
  if (hipotesis_ >= 1 && hipotesis_ <= cuantas) return hipotesis_;
  return std::max(1, HipotesisQueRige(c.tramo.datos, c.fila));
}

void PanelDiseno::Muestra() {
  const bool hay = mostrado_ && mostrado_->caso != nullptr;
  vista_->setVisible(hay);
  if (!hay) {
    for (auto* vista : Dibujos()) vista->Pon({});
    return;
  }
  const auto caso = mostrado_->caso->Dibujado();
  MuestraCabeza(caso);
  MuestraAcero(caso);
  MuestraBarras(caso);
  LlenaHipotesis(caso);
  MuestraPostesado(caso);
  MuestraDibujos();
  MuestraAnillo();
  MuestraMapa();
}

void PanelDiseno::MuestraCabeza(const CasoDibujado& caso) {
  const auto w = Palabras();
  const auto& f = caso.fila;
  titulo_->setText(Q(w.T(mostrado_->elegido ? txt::ResElegido : txt::ResPesimo)));
  pesimo_->setVisible(mostrado_->elegido);
  presiones_->setText(
      Q(w.CasoEnLetra(f) + " · STP " + w.Presion(f.STP) + " · PP " + w.Presion(f.PP)));
  insignia_->Pon(f.verificacion.veredicto, Q(VeredictoConUso(f, w)));
  const int rige = HipotesisQueRige(caso.tramo.datos, f);
  rige_->setText(rige > 0 ? Q(w.T(txt::ResCol[2]) + ": " + TextoEntero(rige) + " · " +
                              w.Hipotesis(caso.caso.EsArmado(), rige))
                          : QString{});
  rige_->setVisible(rige > 0);
  const auto motivo = MotivoDe(caso, w);
  motivo_->setText(Q(motivo));
  motivo_->setVisible(!motivo.empty());
  QStringList avisos;
  for (const auto& aviso : AvisosDe(caso, w)) avisos += Q(aviso);
  avisos_->setText(avisos.join('\n'));
  avisos_->setVisible(!avisos.isEmpty());
}

void PanelDiseno::MuestraAcero(const CasoDibujado& caso) {
  if (!caso.caso.EsArmado()) return acero_->Pon({}, false);
  const auto w = Palabras();
  const auto a = AceroDe(caso);
  const auto fila = [&](int nombre, const AceroCara& cara, const std::string& obra, bool negrita) {
    return TablaCorta::Fila{
        {Q(w.T(nombre)), Q(EnCm2(cara.necesaria, w)), Q(obra), Q(w.Numero(cara.dispuesta, 1))},
        negrita};
  };
  acero_->Pon({{{Q(w.T(txt::ResArmadura)), Q(w.T(txt::ResNecesaria)), Q(w.T(txt::ResDispuesta)),
                 QStringLiteral("cm²/m")},
                false},
               fila(txt::ResInterior, a.interior, ObraInterior(caso, w), false),
               fila(txt::ResExterior, a.exterior, ObraExterior(caso, w), false),
               fila(txt::ResTotal, a.total, {}, true)},
              true);
}

void PanelDiseno::MuestraBarras(const CasoDibujado& caso) {
  const auto w = Palabras();
  const bool armado = caso.caso.EsArmado();
  rotuloBarras_->setText(Q(w.T(armado ? txt::ResAceroPorHipotesis : txt::ResUsoPorHipotesis) +
                           (armado ? ", cm²/m" : "")));
  std::vector<Barras::Barra> barras;
  for (const auto& b : BarrasDe(caso)) {
    Barras::Barra barra;
    barra.nombre = Q(TextoEntero(b.hipotesis) + " · " + w.Hipotesis(armado, b.hipotesis));
    barra.valor = b.valor.value_or(0.0);
    const bool finito = std::isfinite(barra.valor);
    barra.texto = !b.valor ? QStringLiteral("-")
                  : finito ? Q(w.Numero(barra.valor, armado ? 1 : 3))
                           : QStringLiteral("∞");
    barra.destacada = b.rige;
    barra.pasa = armado ? barra.valor > caso.fila.Total * kUsoCumple : barra.valor > kUsoCumple;
    barras.push_back(barra);
  }
  barras_->Pon(std::move(barras), armado ? caso.fila.Total : 1.0);
}

void PanelDiseno::LlenaHipotesis(const CasoDibujado& caso) {
  const QSignalBlocker calla(comboHipotesis_);
  const auto w = Palabras();
  comboHipotesis_->clear();
  for (int h = 1; h <= CuentaHipotesis(caso.tramo.datos); ++h) {
    comboHipotesis_->addItem(Q(TextoEntero(h) + " · " + w.Hipotesis(caso.caso.EsArmado(), h)));
  }
  comboHipotesis_->setCurrentIndex(Hipotesis() - 1);
}

void PanelDiseno::MuestraPostesado(const CasoDibujado& caso) {
  tensiones_->setVisible(!caso.caso.EsArmado());
  if (caso.caso.EsArmado()) return postesado_->Pon({}, false);
  const auto w = Palabras();
  const auto& r = caso.caso.Postesado();
  const auto& h = r.hipotesis(Hipotesis());
  std::vector<TablaCorta::Fila> filas;
  const auto fila = [&](int nombre, const std::string& valor) {
    filas.push_back({{Q(w.T(nombre)), Q(valor)}, false});
  };
  const auto tension = [&](int nombre, double valor) {
    fila(nombre, w.Numero(valor, 0, "Kp/cm2->MPa"));
  };
  fila(txt::ResAlambre, ObraInterior(caso, w));
  fila(txt::ResPPExigida, w.Presion(caso.fila.PP));
  fila(txt::ResPPObtenida, TextoPP(r, r.PP, w.Textos(), w.Estilo()));
  if (h.hecha) {
    tension(txt::ResPerdida[0], h.PerdElastica);
    tension(txt::ResPerdida[7], h.PerdFluRet);
    tension(txt::ResPerdida[9], h.PerdRelaj);
    tension(txt::ResPerdida[10], h.SigRes);
  }
  postesado_->Pon(std::move(filas), false);
}

void PanelDiseno::MuestraDibujos() {
  const auto w = Palabras();
  const auto caso = mostrado_->caso;
  seccion_->Pon([caso, w](const HojaDibujo& hoja) {
    return LaminaConEjes{DibujaTransversal(caso->Dibujado(), w, hoja), {}};
  });
  pared_->Pon([caso, w](const HojaDibujo& hoja) {
    return LaminaConEjes{DibujaPared(caso->Dibujado(), w, hoja), {}};
  });
}

void PanelDiseno::MuestraAnillo() {
  if (!mostrado_ || mostrado_->caso == nullptr) return;
  const auto w = Palabras();
  const auto caso = mostrado_->caso;
  const int h = Hipotesis();
  anillo_->Pon([caso, w, h](const HojaDibujo& hoja) {
    return LaminaConEjes{DibujaAnillo(caso->Dibujado(), h, w, hoja), {}};
  });
  anillo_->PonCuenta([caso, w, h](const LaminaConEjes&, Xy) {
    QStringList excesos;
    const auto anillo = AnilloDe(caso->tramo, caso->fila, caso->caso, h);
    for (const auto& texto : TextoExcesos(anillo, w)) excesos += Q(texto);
    return excesos.join('\n');
  });
  if (caso->caso.EsArmado()) return;
  tensiones_->Pon([caso, w, h](const HojaDibujo& hoja) {
    return DibujaTensiones(caso->Dibujado(), h, w, hoja);
  });
}

void PanelDiseno::MuestraMapa() {
  const bool hay = malla_ != nullptr && mostrado_ && mostrado_->caso != nullptr;
  punto_->clear();
  if (!hay) return mapa_->Pon({});
  const auto w = Palabras();
  mapa_->Pon([malla = malla_, caso = mostrado_->caso, w](const HojaDibujo& hoja) {
    return DibujaMapa(*malla, caso->tramo.datos, &caso->fila, w, hoja);
  });
}

}  // namespace zorbin
