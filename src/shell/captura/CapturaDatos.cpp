#include "shell/captura/CapturaDatos.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "base/textos.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdComprueba.h"
#include "sesion/captura/mdEdicion.h"
#include "sesion/captura/mdEtiquetas.h"
#include "shell/captura/mdAvisosPagina.h"
#include "shell/captura/mdFaltasPagina.h"
#include "shell/captura/mdPestanas.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdIconos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

// Data without which no Tramo can be calculated. The pressures and heights of a Tramo are the
// Obra's where it has none.
bool EsObligatorio(const FilaCampo& fila) {
  if (fila.clase != Clase::Numero || fila.id == Ed::edFct) return false;
  switch (fila.id) {
    case Ed::edPrsM1:
    case Ed::edDi0:
    case Ed::edEsp0:
    case Ed::edReci0:
    case Ed::edRece0:
    case Ed::edB0:
    case Ed::edSFck:
    case Ed::edSf:
      return true;
    case Ed::edHr0:
      return false;
    default:
      return fila.ficha->minimo >= 0.0001;
  }
}

// Pages 1 and 2 show a Tramo: with none in hand nothing of them is required yet.
bool EnUso(const Captura& c, const FilaCampo& fila) {
  if (fila.pagina.TabPrincipal != 0 && c.SinTramoEnMano()) return false;
  return fila.pagina.TabTipologia < 0 || fila.pagina.TabTipologia == c.pantalla.pagina.TabTipologia;
}

}  // namespace

CapturaDatos::CapturaDatos(Captura& c, const Entorno& entorno, QWidget* padre)
    : QWidget(padre), c_(c), entorno_(entorno) {
  setObjectName(QStringLiteral("CapturaDatos"));
  CreaCampos();
  CreaPaginas();
  auto* filas = new QVBoxLayout(this);
  filas->addWidget(CreaCabecera());
  TabPrincipal_ = new Pestanas(this);
  TabPrincipal_->setObjectName(QStringLiteral("TabPrincipal"));
  for (auto* pagina : {paginas_->obra(), paginas_->tramo(), paginas_->colocacion()}) {
    TabPrincipal_->Anade(pagina);
  }
  for (int n = 0; n < 3; ++n) {
    rotulados_.push_back(
        {[this, n](const QString& t) { TabPrincipal_->PonTexto(n, t); }, txt::PaginasObra[0] + n});
  }
  rotulados_.push_back({[this](const QString& t) { TabPrincipal_->barra().setAccessibleName(t); },
                        txt::CapturaDatos});
  filas->addWidget(TabPrincipal_, 1);
  filas->addWidget(CreaFaltas());
  filas->addWidget(CreaAvisos());
  filas->addWidget(CreaBotones());
  for (auto* campo : campos_) Enlaza(*campo);
  EnlazaPestanas();
  RenuevaTextos();
  OrdenaTabulador();
}

CapturaDatos::~CapturaDatos() = default;

void CapturaDatos::CreaCampos() {
  vigilante_ = new VigilanteFoco(
      *this, {[this](QWidget* w) { return Entra(w); }, [this](QWidget* w) { return Sale(w); }});
  for (const auto& fila : TablaCampos()) {
    auto* campo = new CampoPantalla(fila.id, c_.textos, this);
    campos_[static_cast<std::size_t>(fila.id)] = campo;
    porWidget_.insert(&campo->widget(), fila.id);
    vigilante_->Vigila(campo->widget());
  }
}

void CapturaDatos::CreaPaginas() {
  paginas_ = new PaginasCaptura(campos_, entorno_, this);
}

QWidget* CapturaDatos::CreaCabecera() {
  auto* cabecera = new QWidget(this);
  auto* fila = new QHBoxLayout(cabecera);
  fila->setContentsMargins(0, 0, 0, 0);
  titulo_ = new QLabel(cabecera);
  titulo_->setObjectName(QStringLiteral("lbTitulo"));
  titulo_->setTextFormat(Qt::PlainText);
  QFont negrita = titulo_->font();
  negrita.setBold(true);
  titulo_->setFont(negrita);
  cierre_ = new QToolButton(cabecera);
  cierre_->setObjectName(QStringLiteral("btCierre"));
  cierre_->setAutoRaise(true);
  cierre_->setFocusPolicy(Qt::NoFocus);
  cierre_->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  fila->addWidget(titulo_, 1);
  fila->addWidget(cierre_);
  connect(cierre_, &QToolButton::clicked, this, [this] { emit pedida(Orden::mnCerrarObra); });
  rotulados_.push_back({[this](const QString& t) {
                          cierre_->setToolTip(t);
                          cierre_->setAccessibleName(t);
                        },
                        txt::CierraCaptura});
  return cabecera;
}

void CapturaDatos::CreaBoton(QWidget& barra, Orden orden, int texto) {
  auto* boton = new QPushButton(&barra);
  // A click leaves the focus where it is: the action leaves the field, or abandons it.
  boton->setFocusPolicy(Qt::TabFocus);
  boton->setAutoDefault(false);
  barra.layout()->addWidget(boton);
  botones_.push_back({boton, orden, texto});
  connect(boton, &QPushButton::clicked, this, [this, orden] { emit pedida(orden); });
}

QWidget* CapturaDatos::CreaAvisos() {
  avisos_ = new AvisosPagina(this);
  connect(avisos_, &AvisosPagina::remedioPedido, this,
          [this](const AvisoDeCampo& aviso) { Hace([&] { TomaRemedio(c_, aviso); }); });
  return avisos_;
}

QWidget* CapturaDatos::CreaFaltas() {
  faltas_ = new FaltasPagina(this);
  connect(faltas_, &FaltasPagina::faltaPedida, this,
          [this](const Falta& falta) { Hace([&] { LlevaALaFalta(c_, falta); }); });
  return faltas_;
}

QWidget* CapturaDatos::CreaBotones() {
  auto* pie = new QWidget(this);
  auto* fila = new QHBoxLayout(pie);
  fila->setContentsMargins(0, 0, 0, 0);
  fila->addStretch(1);
  for (auto** barra : {&barraObra_, &barraTramo_}) {
    *barra = new QWidget(pie);
    auto* botones = new QHBoxLayout(*barra);
    botones->setContentsMargins(0, 0, 0, 0);
    fila->addWidget(*barra);
  }
  CreaBoton(*barraObra_, Orden::btGrabaObra, txt::BtGrabar);
  CreaBoton(*barraObra_, Orden::btNuevoTramo, txt::BtNuevoTramo);
  CreaBoton(*barraObra_, Orden::btImprimir, txt::BtImprimir);
  CreaBoton(*barraObra_, Orden::btCerrarObra, txt::BtCerrarObra);
  CreaBoton(*barraTramo_, Orden::btNuevoTramo, txt::BtNuevoTramo);
  CreaBoton(*barraTramo_, Orden::btGrabaObra, txt::BtGrabar);
  CreaBoton(*barraTramo_, Orden::btCancelar, txt::BotonCancelar);
  CreaBoton(*barraTramo_, Orden::btCalcular, txt::BtCalcular);
  CreaBoton(*barraTramo_, Orden::btAjustar, txt::BtAjustar);
  for (const auto& boton : botones_) {
    if (boton.orden == Orden::btCancelar || boton.orden == Orden::btCerrarObra) {
      vigilante_->Exime(*boton.widget);
    }
  }
  return pie;
}

void CapturaDatos::Enlaza(CampoPantalla& campo) {
  const Ed id = campo.id();
  connect(&campo, &CampoPantalla::textoCambiado, this, [this, id](const QString& texto) {
    Cambia(c_, id, S(texto));
    TrasAccion();
  });
  connect(&campo, &CampoPantalla::entradaElegida, this,
          [this, &campo](const QString& texto) { EligeEntradaDe(campo, texto); });
  connect(&campo, &CampoPantalla::marcaCambiada, this, [this, id](bool puesta) {
    CambiaMarca(c_, id, puesta);
    TrasAccion();
  });
  connect(&campo, &CampoPantalla::opcionElegida, this, [this, id](int opcion) {
    const VigilanteFoco::Pausa pausa(*vigilante_);
    EligeOpcion(c_, id, opcion);
    if (id == Ed::rdSistemaUnidades) entorno_.preferencias.PonNuevaEnSI(c_.EsSI());
    TrasAccion();
  });
}

// What is taken from a list stands at once: its rule does not wait for the focus to leave.
void CapturaDatos::EligeEntradaDe(CampoPantalla& campo, const QString& texto) {
  if (vigilante_->EnMano() != &campo.widget()) {
    if (!vigilante_->DejaCampo()) return Refresca();
    vigilante_->VaA(campo.widget());
  }
  Cambia(c_, campo.id(), S(texto));
  if (vigilante_->DejaCampo()) Hace([] {});
}

void CapturaDatos::EnlazaPestanas() {
  const auto pide = [this](Pestanas& pestanas, auto cambia) {
    pestanas.barra().setFocusPolicy(Qt::TabFocus);
    connect(&pestanas, &Pestanas::pedida, this, [this, cambia](int pagina) {
      if (!Hace([this, cambia, pagina] { cambia(pagina); })) Refresca();
    });
  };
  pide(*TabPrincipal_, [this](int pagina) {
    CambiaPagina(c_, pagina);
    c_.pantalla.foco = pagina == 0   ? Ed::edObra
                       : pagina == 1 ? Ed::edDescriTramo
                                     : Ed::rdTipoColocacion;
  });
}

void CapturaDatos::OrdenaTabulador() {
  QWidget* antes = nullptr;
  const auto sigue = [&antes](QWidget* widget) {
    if (antes != nullptr) setTabOrder(antes, widget);
    antes = widget;
  };
  for (const Ed id : paginas_->orden()) {
    if (EsCopia(id) || id == Ed::edDe0) {
      campo(id).widget().setFocusPolicy(Qt::ClickFocus);
    } else {
      sigue(Destino(id));
    }
  }
  for (const auto& boton : botones_) sigue(boton.widget);
}

// ---------------------------------------------------------------------------------------------
// Moments of a field

QWidget* CapturaDatos::Destino(Ed campo) const {
  auto& widget = campos_[static_cast<std::size_t>(campo)]->widget();
  if (Fila(campo).clase != Clase::Opcion) return &widget;
  // The button chosen of a group takes the focus for it.
  const int opcion = std::max(0, c_[campo].opcion);
  auto* boton = widget.findChild<QWidget*>(widget.objectName() + QString::number(opcion));
  return boton != nullptr ? boton : &widget;
}

QWidget* CapturaDatos::Entra(QWidget* widget) {
  const auto par = porWidget_.find(widget);
  if (par == porWidget_.end()) return nullptr;
  const Ed campo = *par;
  c_.pantalla.foco = campo;
  zorbin::Entra(c_, campo);
  TrasAccion();
  if (c_.pantalla.foco != campo) {
    return &campos_[static_cast<std::size_t>(c_.pantalla.foco)]->widget();
  }
  campos_[static_cast<std::size_t>(campo)]->SeleccionaTodo();
  return nullptr;
}

QWidget* CapturaDatos::Sale(QWidget* widget) {
  const auto par = porWidget_.find(widget);
  if (par == porWidget_.end()) return nullptr;
  const Ed campo = *par;
  c_.pantalla.foco = campo;
  zorbin::Sale(c_, campo);
  TrasAccion();
  return nullptr;
}

bool CapturaDatos::Hace(const std::function<void()>& accion, bool abandona) {
  if (abandona) {
    vigilante_->Olvida();
  } else if (!vigilante_->DejaCampo()) {
    return false;
  }
  {
    const VigilanteFoco::Pausa pausa(*vigilante_);
    accion();
    TrasAccion();
  }
  if (!isVisible() || !c_.ObraCargada) return true;
  const auto& foco = campos_[static_cast<std::size_t>(c_.pantalla.foco)]->widget();
  if (foco.isVisible() && foco.isEnabled()) {
    vigilante_->VaA(campos_[static_cast<std::size_t>(c_.pantalla.foco)]->widget());
    Destino(c_.pantalla.foco)->setFocus(Qt::OtherFocusReason);
  }
  return true;
}

void CapturaDatos::TrasAccion() {
  Refresca();
  emit cambiada();
}

// ---------------------------------------------------------------------------------------------
// Showing

MarcaCampo CapturaDatos::MarcaDe(Ed campo) const {
  const auto& control = c_[campo];
  if (!control.falta.empty()) return MarcaCampo::Rechazado;
  if (EsCopia(campo)) return MarcaCampo::Ninguna;
  if (control.bloqueado) return MarcaCampo::Bloqueado;
  const auto& fila = Fila(campo);
  const bool falta =
      control.habilitado && EsObligatorio(fila) && EnUso(c_, fila) && TextoDe(c_, campo).empty();
  return falta ? MarcaCampo::Requerido : MarcaCampo::Ninguna;
}

QString CapturaDatos::PorqueDe(MarcaCampo marca, Ed campo) const {
  switch (marca) {
    case MarcaCampo::Requerido:
      return Q(c_.textos.Texto(txt::CampoRequerido));
    case MarcaCampo::Bloqueado:
      return Q(c_.textos.Texto(txt::CampoBloqueado));
    case MarcaCampo::Rechazado:
      return Q(c_[campo].falta);
    case MarcaCampo::Ninguna:
      break;
  }
  return {};
}

Aspecto CapturaDatos::AspectoDe(Ed campo) const {
  Aspecto aspecto;
  aspecto.marca = MarcaDe(campo);
  aspecto.porque = PorqueDe(aspecto.marca, campo);
  const auto& control = c_[campo];
  aspecto.unidad = Q(UnidadEscrita(campo, c_.EsSI()));
  aspecto.rotulo = Q(SinUnidad(control.etiqueta));
  if (control.texto.empty()) aspecto.enBlanco = Q(ValorEnBlanco(c_, campo));
  return aspecto;
}

void CapturaDatos::Refresca() {
  if (refrescando_) return;
  refrescando_ = true;
  const auto& p = c_.pantalla;
  for (auto* campo : campos_) {
    campo->Refresca(c_[campo->id()], AspectoDe(campo->id()));
  }
  paginas_->Refresca(c_);
  for (const auto& boton : botones_) {
    boton.widget->setEnabled(p.Habilitada(boton.orden));
    if (boton.orden == Orden::btCancelar) boton.widget->setText(Rotulo(p.textoCancelar));
  }
  avisos_->Refresca(c_);
  titulo_->setText(Rotulo(p.titulo));
  faltas_->Refresca(c_);
  TabPrincipal_->Pon(p.pagina.TabPrincipal);
  barraObra_->setVisible(p.pagina.TabPrincipal == 0);
  barraTramo_->setVisible(p.pagina.TabPrincipal != 0);
  refrescando_ = false;
}

void CapturaDatos::RenuevaTextos() {
  for (const auto& rotulado : rotulados_) rotulado.pon(Q(c_.textos.Texto(rotulado.texto)));
  for (const auto& boton : botones_) boton.widget->setText(Rotulo(c_.textos.Texto(boton.texto)));
  paginas_->RenuevaTextos(c_);
  Refresca();
}

void CapturaDatos::PideAyuda() {
  const auto par = porWidget_.find(vigilante_->EnMano());
  entorno_.ayuda(par == porWidget_.end() ? QStringLiteral("captura") : Q(Fila(*par).nombre));
}

void CapturaDatos::keyPressEvent(QKeyEvent* suceso) {
  if (suceso->key() == Qt::Key_F1) {
    PideAyuda();
    return;
  }
  QWidget::keyPressEvent(suceso);
}

void CapturaDatos::changeEvent(QEvent* suceso) {
  QWidget::changeEvent(suceso);
  if (suceso->type() != QEvent::PaletteChange || campos_.back() == nullptr) return;
  for (auto* campo : campos_) campo->RenuevaTema();
  if (TabPrincipal_ != nullptr && faltas_ != nullptr) Refresca();
}

}  // namespace zorbin
