#include "shell/ayuda/frAyuda.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QVBoxLayout>
#include <QWindow>

#include "base/textos.h"
#include "shell/ayuda/mdGuia.h"
#include "shell/piezas/mdQt.h"
#include "shell/piezas/mdVisorHtml.h"

namespace zorbin {

namespace {

constexpr std::array<int, 12> kEscalas{50, 67, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300};
constexpr int kMargen = 16;                      // of the page, at 100 %
constexpr qint64 kMaxManual = 16 * 1024 * 1024;  // bytes; a manual has some 100 000
const QString kVentana = QStringLiteral("frAyuda");
constexpr char kTecla[] = "tecla";
const QString kEscala = QStringLiteral("Ayuda/Escala");

QString Parrafos(const QStringList& textos) {
  QString html;
  for (const auto& texto : textos) html += "<p>" + texto.toHtmlEscaped() + "</p>";
  return html;
}

}  // namespace

frAyuda::frAyuda(const Entorno& entorno, BuscaManual busca, QWidget* padre)
    : QWidget(padre, Qt::Window), entorno_(entorno), busca_(std::move(busca)) {
  guia_ = new GuiaAyuda(entorno.textos);
  visor_ = new VisorHtml;
  visor_->setFrameShape(QFrame::NoFrame);
  division_ = new QSplitter;
  division_->addWidget(guia_);
  division_->addWidget(visor_);
  division_->setStretchFactor(1, 1);
  division_->setChildrenCollapsible(false);
  auto* filas = new QVBoxLayout(this);
  filas->setContentsMargins(0, 0, 0, 0);
  filas->setSpacing(0);
  filas->addWidget(Botonera());
  filas->addWidget(division_, 1);
  ConectaGuia();
  ConectaVisor();
  new QShortcut(QKeySequence(Qt::Key_Escape), this, [this] { close(); });
  new QShortcut(QKeySequence::Find, this, [this] { guia_->MuestraBusqueda(); });
  RecuperaSitio();
  PonTextos();
}

frAyuda::~frAyuda() {
  if (isVisible()) GuardaSitio();
}

QToolButton* frAyuda::Boton(const QString& texto, const QKeySequence& tecla,
                            const std::function<void()>& hace) {
  auto* boton = new QToolButton;
  boton->setAutoRaise(true);
  boton->setText(texto);
  boton->setProperty(kTecla, tecla.toString(QKeySequence::NativeText));
  connect(boton, &QToolButton::clicked, this, hace);
  new QShortcut(tecla, this, hace);  // that of a button goes with each change of its text
  return boton;
}

QWidget* frAyuda::Botonera() {
  atras_ = Boton({}, QKeySequence(Qt::ALT | Qt::Key_Left), [this] { visor_->backward(); });
  adelante_ = Boton({}, QKeySequence(Qt::ALT | Qt::Key_Right), [this] { visor_->forward(); });
  atras_->setArrowType(Qt::LeftArrow);
  adelante_->setArrowType(Qt::RightArrow);
  reduce_ =
      Boton(QStringLiteral("−"), QKeySequence(Qt::CTRL | Qt::Key_Minus), [this] { Amplia(-1); });
  normal_ = Boton({}, QKeySequence(Qt::CTRL | Qt::Key_0), [this] { EligeEscala(100); });
  amplia_ =
      Boton(QStringLiteral("+"), QKeySequence(Qt::CTRL | Qt::Key_Plus), [this] { Amplia(1); });
  new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Equal), this, [this] { Amplia(1); });
  auto* botonera = new QWidget;
  auto* fila = new QHBoxLayout(botonera);
  for (auto* boton : {atras_, adelante_}) {
    boton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    boton->setEnabled(false);
    fila->addWidget(boton);
  }
  fila->addStretch();
  for (auto* boton : {reduce_, normal_, amplia_}) fila->addWidget(boton);
  return botonera;
}

void frAyuda::ConectaGuia() {
  connect(guia_, &GuiaAyuda::eligeAncla, this, &frAyuda::VaA);
  connect(guia_, &GuiaAyuda::eligeHallazgo, this, &frAyuda::VaAlHallazgo);
  connect(guia_, &GuiaAyuda::busca, this, &frAyuda::Busca);
}

void frAyuda::ConectaVisor() {
  connect(visor_, &QTextBrowser::backwardAvailable, atras_, &QWidget::setEnabled);
  connect(visor_, &QTextBrowser::forwardAvailable, adelante_, &QWidget::setEnabled);
  connect(visor_, &QTextBrowser::anchorClicked, this, &frAyuda::Sigue);
  connect(visor_, &VisorHtml::ampliado, this, &frAyuda::Amplia);
  connect(visor_, &VisorHtml::cambiaTema, this, &frAyuda::Redibuja);
  connect(visor_->verticalScrollBar(), &QScrollBar::valueChanged, this, &frAyuda::MarcaLeido);
}

void frAyuda::Muestra(const QString& ancla) {
  Abre();
  VaA(ancla);
  visor_->setFocus(Qt::OtherFocusReason);
}

void frAyuda::MuestraContenido() {
  Abre();
  guia_->MuestraContenido();
}

void frAyuda::MuestraIndice() {
  Abre();
  guia_->MuestraIndice();
}

// From a modal screen the manual opens as a window of that screen, or it could not be read.
void frAyuda::Abre() {
  Carga();
  if (isMinimized()) showNormal();
  show();
  const QWidget* dueno = QApplication::activeModalWidget();
  if (dueno == nullptr) dueno = parentWidget() == nullptr ? nullptr : parentWidget()->window();
  windowHandle()->setTransientParent(dueno == nullptr ? nullptr : dueno->windowHandle());
  raise();
  activateWindow();
}

void frAyuda::Carga() {
  const QString nombre = Q(entorno_.textos.Texto(txt::NombreManual)) + ".html";
  if (nombre == nombre_) return;
  Lee(nombre);
  visor_->PonPagina(direccion_, PaginaVestida());
  Reindexa();
  guia_->PonManual(manual_);
  Busca();
  MarcaLeido();
}

// A manual that can't be shown is told on its page, and looked for again the next time.
void frAyuda::Lee(const QString& nombre) {
  const auto ruta = busca_(S(nombre));
  QFile fichero(Q(ruta.string()));
  const bool falta = ruta.empty() || !fichero.exists();
  const bool sirve = !falta && fichero.size() <= kMaxManual && fichero.open(QIODevice::ReadOnly);
  nombre_ = sirve ? nombre : QString();
  direccion_ = QUrl::fromLocalFile(sirve ? QFileInfo(fichero).absoluteFilePath() : '/' + nombre);
  if (sirve) {
    manual_ = InterpretaManual(QString::fromUtf8(fichero.readAll()));
    return;
  }
  const auto& textos = entorno_.textos;
  const QString motivo = falta ? Q(textos.Texto(txt::FaltaArchivo)) + nombre
                               : Q(textos.Compone(txt::ManualIlegible, {S(fichero.fileName())}));
  manual_ = {Parrafos({motivo, Q(textos.Texto(txt::ReinstaleManual))}), {}, {}, {}};
}

QString frAyuda::PaginaVestida() const {
  const auto color = [this](QPalette::ColorRole papel) {
    return visor_->palette().color(QPalette::Active, papel);
  };
  return VisteManual(manual_.html, {color(QPalette::Text), color(QPalette::Base), escala_ / 100.0});
}

void frAyuda::Redibuja() {
  QFont letra = font();
  letra.setPointSizeF(QFontInfo(letra).pointSizeF() * escala_ / 100.0);
  visor_->CambiaPagina(PaginaVestida(), letra, kMargen * escala_ / 100.0);
  Reindexa();
  Busca();
}

void frAyuda::Reindexa() {
  texto_ = TextoManual(*visor_->document(), manual_);
}

void frAyuda::VaA(const QString& ancla) {
  QUrl destino = direccion_;
  const bool existe = texto_.Existe(ancla);
  if (existe) destino.setFragment(ancla);
  visor_->setSource(destino, QTextDocument::HtmlResource);
  // Towards the end of the page a section can't come to the top: it is the one read all the same.
  for (std::size_t i = 0; i < manual_.apartados.size(); ++i) {
    if (existe && manual_.apartados[i].ancla == ancla) guia_->Marca(i);
  }
  if (!existe) guia_->Marca(0);
}

void frAyuda::Sigue(const QUrl& enlace) {
  const QUrl destino = direccion_.resolved(enlace);
  if (!destino.matches(direccion_, QUrl::RemoveFragment)) return;
  if (texto_.Existe(destino.fragment())) VaA(destino.fragment());
}

void frAyuda::Busca() {
  auto hallazgos = texto_.Busca(guia_->Buscado());
  Resalta(hallazgos);
  guia_->PonHallazgos(manual_, std::move(hallazgos));
}

void frAyuda::Resalta(const std::vector<TextoManual::Hallazgo>& hallazgos) {
  QTextCharFormat marca;
  marca.setBackground(palette().brush(QPalette::Active, QPalette::Highlight));
  marca.setForeground(palette().brush(QPalette::Active, QPalette::HighlightedText));
  QList<QTextEdit::ExtraSelection> marcas;
  for (const auto& h : hallazgos) {
    for (const auto& palabra : h.palabras) {
      QTextCursor lugar(visor_->document());
      lugar.setPosition(palabra.lugar);
      lugar.setPosition(palabra.lugar + palabra.largo, QTextCursor::KeepAnchor);
      marcas.push_back({lugar, marca});
    }
  }
  visor_->setExtraSelections(marcas);
}

void frAyuda::VaAlHallazgo(const TextoManual::Hallazgo& hallazgo) {
  VaA(manual_.apartados[hallazgo.apartado].ancla);
  QTextCursor palabra(visor_->document());
  palabra.setPosition(hallazgo.palabras.front().lugar);
  visor_->setTextCursor(palabra);
  visor_->ensureCursorVisible();
  guia_->Marca(hallazgo.apartado);
}

void frAyuda::MarcaLeido() {
  guia_->Marca(texto_.ApartadoEn(visor_->LugarArriba()));
}

QString frAyuda::AnclaLeida() const {
  const auto leido = texto_.ApartadoEn(visor_->LugarArriba());
  return leido < manual_.apartados.size() ? manual_.apartados[leido].ancla : QString();
}

void frAyuda::PonEscala(int escala) {
  escala_ = std::clamp(escala, kEscalas.front(), kEscalas.back());
  normal_->setText(QStringLiteral("%1 %").arg(escala_));
  reduce_->setEnabled(escala_ > kEscalas.front());
  amplia_->setEnabled(escala_ < kEscalas.back());
  Redibuja();
}

void frAyuda::EligeEscala(int escala) {
  PonEscala(escala);
  entorno_.preferencias.PonValor(kEscala, escala_);
}

void frAyuda::Amplia(int pasos) {
  const auto* aqui = std::lower_bound(kEscalas.begin(), kEscalas.end(), escala_);
  const auto lugar = static_cast<int>(aqui - kEscalas.begin()) + pasos;
  const auto ultimo = static_cast<int>(kEscalas.size()) - 1;
  EligeEscala(kEscalas[static_cast<std::size_t>(std::clamp(lugar, 0, ultimo))]);
}

void frAyuda::RenuevaTextos() {
  PonTextos();
  if (!isVisible()) return;
  const QString ancla = AnclaLeida();
  Carga();
  VaA(ancla);
}

void frAyuda::PonTextos() {
  const auto rotulo = [this](int n) { return Rotulo(entorno_.textos.Texto(n)); };
  setWindowTitle(rotulo(txt::TituloAyuda));
  const auto dice = [](QToolButton* boton, const QString& que) {
    boton->setToolTip(QStringLiteral("%1 (%2)").arg(que, boton->property(kTecla).toString()));
    boton->setAccessibleName(que);
  };
  atras_->setText(rotulo(txt::Atras));
  adelante_->setText(rotulo(txt::Adelante));
  dice(atras_, rotulo(txt::Atras));
  dice(adelante_, rotulo(txt::Adelante));
  dice(reduce_, rotulo(txt::ReducirLetra));
  dice(normal_, rotulo(txt::TamanoNormal));
  dice(amplia_, rotulo(txt::AmpliarLetra));
  guia_->RenuevaTextos();
}

void frAyuda::changeEvent(QEvent* suceso) {
  QWidget::changeEvent(suceso);
  if (suceso->type() == QEvent::FontChange) Redibuja();
}

void frAyuda::hideEvent(QHideEvent* suceso) {
  QWidget::hideEvent(suceso);
  if (!suceso->spontaneous()) GuardaSitio();
}

void frAyuda::GuardaSitio() {
  entorno_.preferencias.GuardaVentana(kVentana, *this);
  entorno_.preferencias.GuardaEstado(kVentana, division_->saveState());
}

void frAyuda::RecuperaSitio() {
  const auto lado = fontMetrics().height();
  if (!entorno_.preferencias.RecuperaVentana(kVentana, *this)) resize(lado * 76, lado * 48);
  if (!division_->restoreState(entorno_.preferencias.Estado(kVentana))) {
    division_->setSizes({lado * 20, lado * 56});
  }
  PonEscala(entorno_.preferencias.Valor(kEscala, 100).toInt());
}

}  // namespace zorbin
