#include "shell/principal/mdFigura.h"

#include <QPainter>
#include <algorithm>

#include "shell/piezas/mdTema.h"

namespace zorbin {

namespace {

constexpr int kMargen = 4;  // [px]

// The drawings are black on white: in a dark theme their light and dark are exchanged, between the
// colours of its paper and its ink, and each keeps its hue.
QPixmap AOscuras(const QPixmap& dibujo, const QPalette& paleta) {
  const double fondo = paleta.color(QPalette::Active, QPalette::Base).lightnessF();
  const double tinta = paleta.color(QPalette::Active, QPalette::Text).lightnessF();
  QImage imagen = dibujo.toImage().convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < imagen.height(); ++y) {
    auto* linea = reinterpret_cast<QRgb*>(imagen.scanLine(y));
    for (int x = 0; x < imagen.width(); ++x) {
      const QColor color(linea[x]);
      const double luz = fondo + (1 - color.lightnessF()) * (tinta - fondo);
      linea[x] = QColor::fromHslF(static_cast<float>(std::max(0.0F, color.hslHueF())),
                                  color.hslSaturationF(), static_cast<float>(luz))
                     .rgb();
    }
  }
  return QPixmap::fromImage(imagen);
}

}  // namespace

Figura::Figura(QWidget* padre) : QWidget(padre) {
  setFocusPolicy(Qt::NoFocus);
}

void Figura::Pon(const QString& ruta) {
  if (ruta == ruta_) return;
  ruta_ = ruta;
  imagen_ = ruta.isEmpty() ? QPixmap() : QPixmap(ruta);
  update();
}

void Figura::paintEvent(QPaintEvent*) {
  if (imagen_.isNull()) return;
  const auto hueco = rect().adjusted(kMargen, kMargen, -kMargen, -kMargen);
  const double escala = devicePixelRatioF();
  const auto cabe = imagen_.size().scaled(hueco.size(), Qt::KeepAspectRatio);
  const QRect caja(hueco.left() + (hueco.width() - cabe.width()) / 2,
                   hueco.top() + (hueco.height() - cabe.height()) / 2, cabe.width(), cabe.height());
  QPainter pintor(this);
  auto dibujo = (EsOscura(palette()) ? AOscuras(imagen_, palette()) : imagen_)
                    .scaled(cabe * escala, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  dibujo.setDevicePixelRatio(escala);
  pintor.drawPixmap(caja, dibujo);
}

}  // namespace zorbin
