#include "shell/calculadoras/mdPantallaCalculadora.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>

#include "base/textos.h"
#include "listados/calculadoras/mdHojasCalculadora.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kCifrasCasilla = 12;         // of a field without scrolling
constexpr double kParteDePantalla = 0.95;  // the most that a window takes of the screen at first

}  // namespace

PantallaCalculadora::PantallaCalculadora(Entorno& entorno, const QString& nombre,
                                         const QString& ancla, QWidget* padre)
    : QDialog(padre, Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                         Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      entorno_(entorno),
      nombre_(nombre),
      vigilante_(*this, {[this](QWidget* casilla) { return AlEntrar(casilla); },
                         [this](QWidget* casilla) { return AlSalir(casilla); }}) {
  setObjectName(nombre);
  vigilante_.PonAceptar([this] {
    for (auto* boton : findChildren<QPushButton*>()) {
      if (boton->isDefault()) boton->click();
    }
  });
  auto* ayuda = new QShortcut(Qt::Key_F1, this);
  connect(ayuda, &QShortcut::activated, this, [this, ancla] { entorno_.ayuda(ancla); });
}

PantallaCalculadora::~PantallaCalculadora() {
  if (isVisible()) GuardaSitio();  // the program ends with the window open
}

CasillaNumero* PantallaCalculadora::CreaCasilla(const QString& nombre) {
  auto* casilla = new CasillaNumero(this);
  casilla->setObjectName(nombre);
  casilla->setFixedWidth(casilla->fontMetrics().horizontalAdvance(QLatin1Char('0')) *
                             kCifrasCasilla +
                         casilla->sizeHint().height());
  return casilla;
}

QPushButton* PantallaCalculadora::CreaBoton(const QString& nombre, std::function<void()> accion) {
  auto* boton = new QPushButton(this);
  boton->setObjectName(nombre);
  // Its own click leaves the field: a message on the way to the button would swallow the click.
  vigilante_.Exime(*boton);
  connect(boton, &QPushButton::clicked, this,
          [this, accion = std::move(accion)] { Actua(accion); });
  return boton;
}

AreaResultado* PantallaCalculadora::CreaArea(const QString& nombre, int columnas, int lineas) {
  area_ = new AreaResultado(columnas, lineas, this);
  area_->setObjectName(nombre);
  vigilante_.Exime(*area_);
  return area_;
}

QLayout* PantallaCalculadora::FilaDeBotones(std::initializer_list<QPushButton*> botones) {
  lbAtrasado_ = new QLabel(this);
  lbAtrasado_->setObjectName("lbAtrasado");
  lbAtrasado_->setTextFormat(Qt::PlainText);
  auto letra = lbAtrasado_->font();
  letra.setBold(true);
  lbAtrasado_->setFont(letra);
  lbAtrasado_->hide();
  btCerrar_ = new QPushButton(this);
  btCerrar_->setObjectName("btCerrar");
  btCerrar_->setAutoDefault(false);
  vigilante_.Exime(*btCerrar_);
  connect(btCerrar_, &QPushButton::clicked, this, &QDialog::reject);
  auto* fila = new QHBoxLayout;
  fila->addWidget(lbAtrasado_);
  fila->addStretch(1);
  for (auto* boton : botones) fila->addWidget(boton);
  fila->addWidget(btCerrar_);
  setTabOrder(btCerrar_, area_);
  return fila;
}

void PantallaCalculadora::RenuevaResultado(const QString& calcula) {
  area_->setPlaceholderText(Q(entorno_.textos.Compone(txt::EscribaLosDatos, {S(calcula)})));
  lbAtrasado_->setText(Q(entorno_.textos.Compone(txt::ResultadoAtrasado, {S(calcula)})));
  btCerrar_->setText(Rotulo(T(txt::BotonCerrar)));
}

void PantallaCalculadora::MuestraResultado(const std::string& texto) {
  area_->setPlainText(Q(texto));
}

void PantallaCalculadora::MuestraAtrasado(bool atrasado) {
  lbAtrasado_->setVisible(atrasado);
}

void PantallaCalculadora::Une(Campo campo) {
  auto* casilla = campo.casilla;
  connect(casilla, &QLineEdit::textEdited, this,
          [cambia = campo.cambia](const QString& texto) { cambia(S(texto)); });
  vigilante_.Vigila(*casilla);
  campos_.push_back(std::move(campo));
}

void PantallaCalculadora::MuestraCampos() {
  for (const auto& campo : campos_) Muestra(campo);
}

void PantallaCalculadora::UneOpcion(QWidget& opcion) {
  vigilante_.Vigila(opcion);
  vigilante_.Exime(opcion);
}

void PantallaCalculadora::ImprimeHojas(const QString& titulo,
                                       const std::function<void(Papel&)>& escribe) {
  entorno_.impresion.Imprime(this, titulo, [&](DestinoHojas& hojas) {
    EscribeCalculadora(hojas, titulo.toStdString(), Ahora(), entorno_.textos, escribe);
  });
}

void PantallaCalculadora::Dice(const AvisoCampo& aviso) {
  Avisa(this, entorno_.textos, Q(TextoAviso(aviso, entorno_.textos)),
        aviso.titulo != 0 ? Q(T(aviso.titulo)) : QString{});
}

void PantallaCalculadora::Recoloca() {
  // By itself a frame hears only some rounds later, or not before it is shown, that a piece within
  // it has grown.
  const auto disposiciones = findChildren<QLayout*>();
  for (auto* disposicion : disposiciones) disposicion->invalidate();
  for (auto* pieza : findChildren<QWidget*>()) pieza->updateGeometry();
  layout()->activate();
  for (auto* disposicion : disposiciones) disposicion->activate();
}

void PantallaCalculadora::TomaSuSitio() {
  if (entorno_.preferencias.RecuperaVentana(nombre_, *this)) return;
  resize(sizeHint().boundedTo(screen()->availableSize() * kParteDePantalla));
}

void PantallaCalculadora::hideEvent(QHideEvent* suceso) {
  if (!suceso->spontaneous()) GuardaSitio();
  QDialog::hideEvent(suceso);
}

const PantallaCalculadora::Campo* PantallaCalculadora::CampoDe(const QWidget* casilla) const {
  for (const auto& campo : campos_) {
    if (campo.casilla == casilla) return &campo;
  }
  return nullptr;
}

void PantallaCalculadora::Muestra(const Campo& campo) {
  const QString texto = Q(campo.campo->texto);
  if (campo.casilla->text() != texto) campo.casilla->setText(texto);
  if (campo.campo->seleccionado) campo.casilla->Selecciona();
}

QWidget* PantallaCalculadora::AlEntrar(QWidget* casilla) {
  if (const auto* campo = CampoDe(casilla)) {
    campo->entra();
    Muestra(*campo);
  }
  return nullptr;
}

QWidget* PantallaCalculadora::AlSalir(QWidget* casilla) {
  const auto* campo = CampoDe(casilla);
  if (campo == nullptr) return nullptr;
  const auto aviso = campo->sale();
  if (aviso) Dice(*aviso);
  Muestra(*campo);
  return aviso ? casilla : nullptr;
}

void PantallaCalculadora::Actua(const std::function<void()>& accion) {
  QWidget* enMano = vigilante_.EnMano();
  if (!vigilante_.DejaCampo()) return;
  accion();
  // The key of a button leaves the focus in the field: it is in hand again.
  if (enMano != nullptr && enMano->hasFocus()) vigilante_.VaA(*enMano);
}

}  // namespace zorbin
