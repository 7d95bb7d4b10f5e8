#include "shell/piezas/mdTarjetas.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

namespace zorbin {

namespace {

constexpr int kMargen = 12;     // [px]
constexpr int kHueco = 12;      // between two cards [px]
constexpr double kRadio = 6.0;  // [px]

// Of a card, in digits of the font in force.
constexpr int kMinimo = 44;
constexpr int kMaximo = 70;
constexpr int kColumnas = 3;

}  // namespace

Tarjeta::Tarjeta(QWidget* padre)
    : QFrame(padre), titulo_(new QLabel(this)), cuerpo_(new QVBoxLayout(this)) {
  setFrameShape(QFrame::NoFrame);
  setBackgroundRole(QPalette::Base);
  QFont letra = titulo_->font();
  letra.setBold(true);
  letra.setPointSizeF(letra.pointSizeF() * 0.9);
  titulo_->setFont(letra);
  titulo_->setTextFormat(Qt::PlainText);
  titulo_->setWordWrap(true);
  titulo_->setForegroundRole(QPalette::PlaceholderText);
  titulo_->hide();
  cuerpo_->setContentsMargins(kMargen, kMargen, kMargen, kMargen);
  cuerpo_->setSpacing(8);
  cuerpo_->addWidget(titulo_);
}

void Tarjeta::PonTitulo(const QString& titulo) {
  const QString texto = titulo.toUpper();
  if (titulo_->text() == texto && titulo_->isHidden() == texto.isEmpty()) return;
  titulo_->setText(texto);
  titulo_->setVisible(!texto.isEmpty());
  setAccessibleName(titulo);
}

void Tarjeta::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  p.setBrush(palette().color(QPalette::Active, QPalette::Base));
  p.setPen(palette().color(QPalette::Mid));
  p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadio, kRadio);
}

LayoutTarjetas::LayoutTarjetas(QWidget* padre) : QLayout(padre) {
  setContentsMargins(kMargen, kMargen, kMargen, kMargen);
}

LayoutTarjetas::~LayoutTarjetas() {
  for (auto* pieza : piezas_) delete pieza;
}

void LayoutTarjetas::addItem(QLayoutItem* pieza) {
  piezas_.push_back(pieza);
}

int LayoutTarjetas::count() const {
  return static_cast<int>(piezas_.size());
}

QLayoutItem* LayoutTarjetas::itemAt(int lugar) const {
  return lugar >= 0 && lugar < count() ? piezas_[static_cast<std::size_t>(lugar)] : nullptr;
}

QLayoutItem* LayoutTarjetas::takeAt(int lugar) {
  auto* pieza = itemAt(lugar);
  if (pieza != nullptr) piezas_.erase(piezas_.begin() + lugar);
  return pieza;
}

int LayoutTarjetas::Digito() const {
  const auto* dueno = parentWidget();
  return dueno == nullptr ? 8 : dueno->fontMetrics().horizontalAdvance(QLatin1Char('0'));
}

int LayoutTarjetas::heightForWidth(int ancho) const {
  return Reparte(QRect(0, 0, ancho, 0), false);
}

QSize LayoutTarjetas::sizeHint() const {
  const int ancho = 2 * kMinimo * Digito() + kHueco + 2 * kMargen;
  return {ancho, heightForWidth(ancho)};
}

QSize LayoutTarjetas::minimumSize() const {
  return {kMinimo * Digito() + 2 * kMargen, kMinimo};
}

void LayoutTarjetas::setGeometry(const QRect& sitio) {
  QLayout::setGeometry(sitio);
  Reparte(sitio, true);
}

int LayoutTarjetas::Reparte(const QRect& sitio, bool coloca) const {
  const QRect dentro = sitio.marginsRemoved(contentsMargins());
  const int columnas =
      std::clamp((dentro.width() + kHueco) / (kMinimo * Digito() + kHueco), 1, kColumnas);
  const int parte = (dentro.width() - (columnas - 1) * kHueco) / columnas;
  // A single column is narrower than two, and leaves no stripe beside it.
  const int ancho = columnas == 1 ? parte : std::min(parte, kMaximo * Digito());
  const int todo = columnas * ancho + (columnas - 1) * kHueco;
  std::vector<int> altos(static_cast<std::size_t>(columnas), 0);
  for (auto* pieza : piezas_) {
    if (pieza->isEmpty()) continue;
    const auto* tarjeta = qobject_cast<Tarjeta*>(pieza->widget());
    const bool ancha = tarjeta != nullptr && tarjeta->Ancha();
    auto corta = std::ranges::min_element(altos);
    if (ancha) std::ranges::fill(altos, *std::ranges::max_element(altos));
    const int columna = ancha ? 0 : static_cast<int>(corta - altos.begin());
    const int suyo = ancha ? todo : ancho;
    const int alto =
        pieza->hasHeightForWidth() ? pieza->heightForWidth(suyo) : pieza->sizeHint().height();
    int& y = altos[static_cast<std::size_t>(columna)];
    if (coloca) {
      pieza->setGeometry(
          {dentro.left() + columna * (ancho + kHueco), dentro.top() + y, suyo, alto});
    }
    y += alto + kHueco;
    if (ancha) std::ranges::fill(altos, y);
  }
  const int alto = std::max(0, *std::ranges::max_element(altos) - kHueco);
  return alto + contentsMargins().top() + contentsMargins().bottom();
}

}  // namespace zorbin
