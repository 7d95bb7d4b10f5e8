#include "shell/impresion/frVistaPrevia.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "base/textos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kHueco = 14;              // between sheets and round them [pixels]
constexpr double kPorMmPintado = 12.0;  // the painter works at one scale, and the view zooms it
constexpr double kMenorZoom = 0.6;      // [pixels for a millimetre]
constexpr double kMayorZoom = 40.0;
constexpr double kPasoZoom = 1.2;
const QString kVentana = QStringLiteral("frVistaPrevia");

}  // namespace

VistaHojas::VistaHojas(std::vector<Hoja> hojas, QWidget* padre)
    : QAbstractScrollArea(padre), hojas_(std::move(hojas)) {
  for (const auto& hoja : hojas_) {
    altura_.push_back(total_);
    total_ += hoja.Alto();
    ancho_ = std::max(ancho_, hoja.Ancho());
    alto_ = std::max(alto_, hoja.Alto());
  }
  viewport()->setBackgroundRole(QPalette::Mid);
  viewport()->setAutoFillBackground(true);
  setFocusPolicy(Qt::StrongFocus);
  verticalScrollBar()->setSingleStep(30);
  horizontalScrollBar()->setSingleStep(30);
}

double VistaHojas::Arriba(std::size_t i) const {
  return altura_[i] * porMm_ + kHueco * static_cast<double>(i + 1);
}

void VistaHojas::Dispone() {
  const double libreX = viewport()->width() - 2 * kHueco;
  const double libreY = viewport()->height() - 2 * kHueco;
  if (ajuste_ == Ajuste::Ancho) porMm_ = libreX / ancho_;
  if (ajuste_ == Ajuste::Pagina) porMm_ = std::min(libreX / ancho_, libreY / alto_);
  porMm_ = std::clamp(porMm_, kMenorZoom, kMayorZoom);
  const int alto = static_cast<int>(total_ * porMm_) + kHueco * static_cast<int>(hojas_.size() + 1);
  const int ancho = static_cast<int>(ancho_ * porMm_) + 2 * kHueco;
  verticalScrollBar()->setRange(0, std::max(0, alto - viewport()->height()));
  verticalScrollBar()->setPageStep(viewport()->height());
  horizontalScrollBar()->setRange(0, std::max(0, ancho - viewport()->width()));
  horizontalScrollBar()->setPageStep(viewport()->width());
  viewport()->update();
}

int VistaHojas::Pagina() const {
  const double centro = verticalScrollBar()->value() + viewport()->height() / 3.0;
  std::size_t i = 0;
  while (i + 1 < hojas_.size() && Arriba(i + 1) <= centro) ++i;
  return static_cast<int>(i) + 1;
}

void VistaHojas::VaAPagina(int pagina) {
  const auto i = static_cast<std::size_t>(std::clamp(pagina, 1, static_cast<int>(hojas_.size())));
  verticalScrollBar()->setValue(static_cast<int>(Arriba(i - 1)) - kHueco);
}

void VistaHojas::Ajusta(Ajuste ajuste) {
  const int pagina = Pagina();
  ajuste_ = ajuste;
  Dispone();
  VaAPagina(pagina);
  emit cambia();
}

void VistaHojas::Amplia(double veces) {
  const double antes = porMm_;
  const double lugar = verticalScrollBar()->value() + viewport()->height() / 2.0;
  ajuste_ = Ajuste::Libre;
  porMm_ = std::clamp(porMm_ * veces, kMenorZoom, kMayorZoom);
  Dispone();
  verticalScrollBar()->setValue(
      static_cast<int>(lugar * porMm_ / antes - viewport()->height() / 2.0));
  emit cambia();
}

void VistaHojas::paintEvent(QPaintEvent*) {
  QPainter lienzo(viewport());
  lienzo.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                        QPainter::SmoothPixmapTransform);
  const int x0 = horizontalScrollBar()->value();
  const int y0 = verticalScrollBar()->value();
  for (std::size_t i = 0; i < hojas_.size(); ++i) {
    const auto& hoja = hojas_[i];
    const double arriba = std::floor(Arriba(i)) - y0;
    if (arriba > viewport()->height()) break;
    if (arriba + hoja.Alto() * porMm_ < 0) continue;
    const double izquierda =
        std::max<double>(kHueco - x0, (viewport()->width() - hoja.Ancho() * porMm_) / 2.0);
    lienzo.save();
    lienzo.translate(std::floor(izquierda), arriba);
    lienzo.scale(porMm_ / kPorMmPintado, porMm_ / kPorMmPintado);
    const QRectF papel(0, 0, hoja.Ancho() * kPorMmPintado, hoja.Alto() * kPorMmPintado);
    lienzo.fillRect(papel, Qt::white);
    lienzo.setClipRect(papel);
    pintor_.Pinta(lienzo, hoja, kPorMmPintado);
    lienzo.restore();
  }
}

void VistaHojas::resizeEvent(QResizeEvent*) {
  const int pagina = Pagina();
  const bool sigue = ajuste_ != Ajuste::Libre;
  Dispone();
  if (sigue) VaAPagina(pagina);
  emit cambia();
}

void VistaHojas::scrollContentsBy(int, int) {
  viewport()->update();
  emit cambia();
}

void VistaHojas::wheelEvent(QWheelEvent* suceso) {
  if ((suceso->modifiers() & Qt::ControlModifier) == 0) {
    QAbstractScrollArea::wheelEvent(suceso);
    return;
  }
  if (suceso->angleDelta().y() != 0) {
    Amplia(std::pow(kPasoZoom, suceso->angleDelta().y() / 120.0));
  }
  suceso->accept();
}

void VistaHojas::keyPressEvent(QKeyEvent* suceso) {
  switch (suceso->key()) {
    case Qt::Key_PageDown:
      VaAPagina(Pagina() + 1);
      break;
    case Qt::Key_PageUp:
      VaAPagina(Pagina() - 1);
      break;
    case Qt::Key_Home:
      VaAPagina(1);
      break;
    case Qt::Key_End:
      VaAPagina(static_cast<int>(hojas_.size()));
      break;
    default:
      QAbstractScrollArea::keyPressEvent(suceso);
  }
}

// ---------------------------------------------------------------------------------------------

frVistaPrevia::frVistaPrevia(const Catalogo& textos, Preferencias& preferencias,
                             ServicioImpresion& impresion, const QString& nombre,
                             std::vector<Hoja> hojas, QWidget* padre)
    : QDialog(padre),
      textos_(textos),
      preferencias_(preferencias),
      impresion_(impresion),
      nombre_(nombre),
      vista_(new VistaHojas(std::move(hojas), this)) {
  setWindowTitle(Rotulo(textos.Texto(txt::VistaPrevia)).remove(QChar(0x2026)) + " - " +
                 EnTitulo(nombre));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  vista_->setAccessibleName(nombre);
  CreaBarra();
  connect(vista_, &VistaHojas::cambia, this, [this] { Renueva(); });
  for (const auto& [teclas, veces] :
       {std::pair{QKeySequence::ZoomIn, kPasoZoom}, {QKeySequence::ZoomOut, 1 / kPasoZoom}}) {
    connect(new QShortcut(QKeySequence(teclas), this), &QShortcut::activated, vista_,
            [this, v = veces] { vista_->Amplia(v); });
  }
  connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, this,
          [this] { Imprime(); });
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
          [this] { impresion_.Ayuda(QStringLiteral("imprimir")); });
  if (!preferencias_.RecuperaVentana(kVentana, *this)) resize(900, 780);
  vista_->setFocus();
  Renueva();
}

frVistaPrevia::~frVistaPrevia() {
  preferencias_.GuardaVentana(kVentana, *this);
}

QToolButton* frVistaPrevia::Boton(const QString& rotulo, const QString& consejo) {
  auto* boton = new QToolButton(this);
  boton->setText(rotulo);
  boton->setToolTip(consejo);
  boton->setAccessibleName(consejo);
  boton->setAutoRaise(true);
  return boton;
}

void frVistaPrevia::CreaBarra() {
  const auto texto = [this](int n) { return Rotulo(textos_.Texto(n)); };
  auto* imprime = new QPushButton(texto(txt::BotonImprimir), this);
  auto* cierra = new QPushButton(texto(txt::BotonCerrar), this);
  imprime->setObjectName(QStringLiteral("btImprimir"));
  for (auto* boton : {imprime, cierra}) boton->setAutoDefault(false);
  auto* amplia = Boton(QStringLiteral("+"), texto(txt::Ampliar));
  auto* reduce = Boton(QString(QChar(0x2212)), texto(txt::Reducir));
  ajusteAncho_ = Boton(texto(txt::AjustarAlAncho), {});
  ajustePagina_ = Boton(texto(txt::PaginaEntera), {});
  for (auto* boton : {ajusteAncho_, ajustePagina_}) boton->setCheckable(true);
  anterior_ = Boton(QString(QChar(0x25B2)), texto(txt::PaginaAnterior));
  siguiente_ = Boton(QString(QChar(0x25BC)), texto(txt::PaginaSiguiente));
  pagina_ = new QLabel(this);
  pagina_->setTextFormat(Qt::PlainText);
  pagina_->setObjectName(QStringLiteral("pagina"));

  auto* barra = new QHBoxLayout;
  barra->addWidget(imprime);
  barra->addStretch();
  for (QWidget* w : std::initializer_list<QWidget*>{reduce, amplia, ajusteAncho_, ajustePagina_}) {
    barra->addWidget(w);
  }
  barra->addSpacing(12);
  for (QWidget* w : std::initializer_list<QWidget*>{anterior_, pagina_, siguiente_}) {
    barra->addWidget(w);
  }
  barra->addStretch();
  barra->addWidget(cierra);
  auto* filas = new QVBoxLayout(this);
  filas->addLayout(barra);
  filas->addWidget(vista_);

  connect(imprime, &QPushButton::clicked, this, [this] { Imprime(); });
  connect(cierra, &QPushButton::clicked, this, &QDialog::reject);
  connect(amplia, &QToolButton::clicked, vista_, [this] { vista_->Amplia(kPasoZoom); });
  connect(reduce, &QToolButton::clicked, vista_, [this] { vista_->Amplia(1 / kPasoZoom); });
  connect(ajusteAncho_, &QToolButton::clicked, vista_,
          [this] { vista_->Ajusta(VistaHojas::Ajuste::Ancho); });
  connect(ajustePagina_, &QToolButton::clicked, vista_,
          [this] { vista_->Ajusta(VistaHojas::Ajuste::Pagina); });
  connect(anterior_, &QToolButton::clicked, vista_,
          [this] { vista_->VaAPagina(vista_->Pagina() - 1); });
  connect(siguiente_, &QToolButton::clicked, vista_,
          [this] { vista_->VaAPagina(vista_->Pagina() + 1); });
}

void frVistaPrevia::Renueva() {
  const int pagina = vista_->Pagina();
  const int paginas = static_cast<int>(vista_->Hojas().size());
  pagina_->setText(
      Q(textos_.Compone(txt::PaginaDe, {std::to_string(pagina), std::to_string(paginas)})));
  anterior_->setEnabled(pagina > 1);
  siguiente_->setEnabled(pagina < paginas);
  ajusteAncho_->setChecked(vista_->AjusteActual() == VistaHojas::Ajuste::Ancho);
  ajustePagina_->setChecked(vista_->AjusteActual() == VistaHojas::Ajuste::Pagina);
}

void frVistaPrevia::Imprime() {
  const bool impreso = impresion_.Imprime(this, nombre_, [this](DestinoHojas& destino) {
    for (const auto& hoja : vista_->Hojas()) destino.RecibeHoja(hoja);
  });
  if (impreso) accept();
}

}  // namespace zorbin
