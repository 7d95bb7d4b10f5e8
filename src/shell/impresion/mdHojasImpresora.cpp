#include "shell/impresion/mdHojasImpresora.h"

#include <QPageLayout>
#include <algorithm>

namespace zorbin {

namespace {

constexpr double kMmPulgada = 25.4;

QPageLayout Pagina(Orientacion orientacion) {
  QPageLayout pagina(
      QPageSize(QPageSize::A4),
      orientacion == Orientacion::Vertical ? QPageLayout::Portrait : QPageLayout::Landscape,
      QMarginsF(), QPageLayout::Millimeter);
  pagina.setMode(QPageLayout::FullPageMode);
  return pagina;
}

}  // namespace

void HojasImpresora::RecibeHoja(const Hoja& hoja) {
  dispositivo_.setPageLayout(Pagina(hoja.orientacion));
  if (!lienzo_) {
    lienzo_ = std::make_unique<QPainter>();
    if (!lienzo_->begin(&dispositivo_)) throw ErrorPintor("");
  } else if (!dispositivo_.newPage()) {
    throw ErrorPintor("");
  }
  const QSizeF papel = dispositivo_.pageLayout().fullRect(QPageLayout::Millimeter).size();
  const double escala = std::min({1.0, papel.width() / hoja.Ancho(), papel.height() / hoja.Alto()});
  pintor_.Pinta(*lienzo_, hoja, escala * dispositivo_.logicalDpiX() / kMmPulgada);
  ++paginas_;
}

void HojasImpresora::Cierra() {
  if (lienzo_ && !lienzo_->end()) throw ErrorPintor("");
  lienzo_.reset();
}

}  // namespace zorbin
