#include "shell/informe/mdVistaInforme.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace zorbin {

namespace {

constexpr double kAncho = 595.28, kAlto = 841.89;  // of a page [pt]
constexpr int kHueco = 12;                         // between pages and round them [pixels]
constexpr double kMenor = 0.3, kMayor = 8.0;       // [pixels a point]
constexpr double kPaso = 1.2;

}  // namespace

VistaInforme::VistaInforme(QWidget* padre) : QAbstractScrollArea(padre) {
  setObjectName(QStringLiteral("vistaInforme"));
  viewport()->setBackgroundRole(QPalette::Mid);
  viewport()->setAutoFillBackground(true);
  setFocusPolicy(Qt::StrongFocus);
  verticalScrollBar()->setSingleStep(30);
}

void VistaInforme::Pon(Informe informe) {
  informe_ = std::move(informe);
  informe_.letras = std::make_shared<const memoria::Tipografia>(memoria::Familia::Palo);
  verticalScrollBar()->setValue(0);
  Dispone();
}

double VistaInforme::PorPunto() const {
  if (zoom_ > 0) return zoom_;
  return std::clamp((viewport()->width() - 2 * kHueco) / kAncho, kMenor, kMayor);
}

double VistaInforme::Arriba(std::size_t pagina) const {
  return kHueco + static_cast<double>(pagina) * (std::ceil(kAlto * PorPunto()) + kHueco);
}

double VistaInforme::Izquierda() const {
  const double sobra = viewport()->width() - kAncho * PorPunto();
  return std::floor(std::max<double>(kHueco, sobra / 2.0)) - horizontalScrollBar()->value();
}

void VistaInforme::Dispone() {
  const int alto = static_cast<int>(Arriba(informe_.paginas.size()));
  const int ancho = static_cast<int>(kAncho * PorPunto()) + 2 * kHueco;
  verticalScrollBar()->setRange(0, std::max(0, alto - viewport()->height()));
  verticalScrollBar()->setPageStep(viewport()->height());
  horizontalScrollBar()->setRange(0, std::max(0, ancho - viewport()->width()));
  horizontalScrollBar()->setPageStep(viewport()->width());
  viewport()->update();
}

void VistaInforme::VaA(const memoria::LugarTexto& lugar) {
  const double y = Arriba(static_cast<std::size_t>(lugar.pagina)) + lugar.y * PorPunto() - kHueco;
  verticalScrollBar()->setValue(static_cast<int>(y));
}

void VistaInforme::Amplia(double veces) {
  const double antes = PorPunto();
  const double lugar = verticalScrollBar()->value() + viewport()->height() / 2.0;
  zoom_ = std::clamp(antes * veces, kMenor, kMayor);
  Dispone();
  verticalScrollBar()->setValue(static_cast<int>(lugar * zoom_ / antes) - viewport()->height() / 2);
}

void VistaInforme::paintEvent(QPaintEvent*) {
  QPainter lienzo(viewport());
  lienzo.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                        QPainter::SmoothPixmapTransform);
  const double escala = PorPunto();
  for (std::size_t i = 0; i < informe_.paginas.size(); ++i) {
    const double arriba = Arriba(i) - verticalScrollBar()->value();
    if (arriba > viewport()->height()) break;
    if (arriba + kAlto * escala < 0) continue;
    lienzo.save();
    lienzo.translate(Izquierda(), std::floor(arriba));
    const QRectF papel(0, 0, kAncho * escala, kAlto * escala);
    lienzo.fillRect(papel, Qt::white);
    lienzo.setClipRect(papel);
    lienzo.scale(escala / memoria::kPorPunto, escala / memoria::kPorPunto);
    informe_.letras->Pinta(lienzo, informe_.paginas[i], {0, 0});
    lienzo.restore();
  }
}

void VistaInforme::resizeEvent(QResizeEvent*) {
  Dispone();
}

void VistaInforme::scrollContentsBy(int, int) {
  viewport()->update();
}

void VistaInforme::wheelEvent(QWheelEvent* suceso) {
  if ((suceso->modifiers() & Qt::ControlModifier) == 0) {
    QAbstractScrollArea::wheelEvent(suceso);
    return;
  }
  Amplia(suceso->angleDelta().y() > 0 ? kPaso : 1.0 / kPaso);
  suceso->accept();
}

// A click on an entry of the contents leads to its place.
void VistaInforme::mousePressEvent(QMouseEvent* suceso) {
  const double escala = PorPunto();
  const QPointF p = suceso->position();
  for (std::size_t i = 0; i < informe_.paginas.size(); ++i) {
    const double arriba = Arriba(i) - verticalScrollBar()->value();
    const QPointF en((p.x() - Izquierda()) / escala, (p.y() - arriba) / escala);
    if (en.y() < 0 || en.y() > kAlto) continue;
    for (const auto& pieza : informe_.paginas[i].piezas) {
      const auto* enlace = std::get_if<memoria::EnlacePuesto>(&pieza);
      if (enlace == nullptr || !enlace->marco.contains(en)) continue;
      const auto lugar = informe_.anclas.constFind(enlace->destino);
      if (lugar != informe_.anclas.constEnd()) VaA(*lugar);
      return;
    }
  }
}

}  // namespace zorbin
