#include "shell/ajustes/mdDibujoAjustes.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

namespace zorbin {

namespace {

constexpr double kMmPorCm = 10.0;
constexpr int kAire = 6;  // between pieces of a drawing [px]
// Separations of the widest spaced layer that are seen at least.
constexpr double kTramoVisto = 2.0;
constexpr double kCamisaVista = 2.5;  // least height of a sheet, which would be a hair [px]
constexpr double kBarraVista = 2;     // least radius of a bar [px]

QColor Mezcla(const QColor& a, const QColor& b, double parte) {
  const auto entre = [parte](int x, int y) {
    return static_cast<int>(std::lround(x + (y - x) * parte));
  };
  return {entre(a.red(), b.red()), entre(a.green(), b.green()), entre(a.blue(), b.blue())};
}

QColor Tinta(const QPalette& paleta) {
  return paleta.color(QPalette::Active, QPalette::WindowText);
}

QColor Fondo(const QPalette& paleta) {
  return paleta.color(QPalette::Active, QPalette::Window);
}

// Hues that are told apart on a light window and on a dark one.
QColor Color(Trazo trazo, const QPalette& paleta) {
  switch (trazo) {
    case Trazo::Necesaria:
      return Mezcla(Fondo(paleta), Tinta(paleta), 0.25);
    case Trazo::Dispuesta:
    case Trazo::Camisa:
      return {0x2f, 0x80, 0xc0};
    case Trazo::Espiras:
      return {0xd9, 0x8e, 0x04};
    case Trazo::Exteriores:
      break;
  }
  return {0x2e, 0x9e, 0x6b};
}

const QColor kRojo(0xd0, 0x34, 0x2c);

void Rellena(QPainter& pintor, const QRectF& caja, const QColor& color, const QColor& borde) {
  pintor.setPen(QPen(borde, 1));
  pintor.setBrush(color);
  pintor.drawRect(caja);
}

int Renglon(const QWidget& widget) {
  return widget.fontMetrics().height();
}

// Places for texts that would stand at `alturas`, none over another.
std::array<double, 3> Separa(std::array<double, 3> alturas, double renglon) {
  alturas[0] = std::min(alturas[0], alturas[1] - renglon);
  alturas[2] = std::max(alturas[2], alturas[1] + renglon);
  return alturas;
}

}  // namespace

// ---------------------------------------------------------------------------------------------

MuestraTrazo::MuestraTrazo(Trazo trazo, QWidget* padre) : QWidget(padre), trazo_(trazo) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize MuestraTrazo::sizeHint() const {
  return {Renglon(*this), Renglon(*this)};
}

void MuestraTrazo::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  pintor.setRenderHint(QPainter::Antialiasing);
  const QRectF caja = QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5);
  const auto color = Color(trazo_, palette());
  if (trazo_ == Trazo::Espiras || trazo_ == Trazo::Exteriores) {
    pintor.setPen(QPen(Tinta(palette()), 1));
    pintor.setBrush(color);
    pintor.drawEllipse(caja);
  } else {
    const double grueso = trazo_ == Trazo::Camisa ? caja.height() / 3 : 0;
    Rellena(pintor, caja.adjusted(0, grueso, 0, -grueso), color, Tinta(palette()));
  }
}

// ---------------------------------------------------------------------------------------------

BarraArmadura::BarraArmadura(QWidget* padre) : QWidget(padre) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void BarraArmadura::Pon(double necesaria, double dispuesta, double maximo, bool alerta) {
  necesaria_ = necesaria;
  dispuesta_ = dispuesta;
  maximo_ = maximo;
  alerta_ = alerta;
  update();
}

QSize BarraArmadura::sizeHint() const {
  return {Renglon(*this) * 8, Renglon(*this) + 2 * kAire};
}

void BarraArmadura::paintEvent(QPaintEvent*) {
  if (!(maximo_ > 0)) return;
  QPainter pintor(this);
  const double alto = (height() - kAire) / 2.0;
  const auto barra = [&](double area, double y, const QColor& color) {
    const double largo = std::clamp(area / maximo_, 0.0, 1.0) * (width() - 1);
    if (largo > 0) Rellena(pintor, QRectF(0.5, y + 0.5, largo, alto), color, Tinta(palette()));
  };
  barra(necesaria_, kAire / 2.0 - 1, Color(Trazo::Necesaria, palette()));
  barra(dispuesta_, kAire / 2.0 - 1 + alto, alerta_ ? kRojo : Color(Trazo::Dispuesta, palette()));
}

// ---------------------------------------------------------------------------------------------

MarcaAlerta::MarcaAlerta(QWidget* padre) : QWidget(padre) {
  auto politica = QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  politica.setRetainSizeWhenHidden(true);
  setSizePolicy(politica);
}

QSize MarcaAlerta::sizeHint() const {
  return {Renglon(*this) + 4, Renglon(*this) + 2};
}

void MarcaAlerta::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  pintor.setRenderHint(QPainter::Antialiasing);
  const double w = width();
  const double h = height();
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(kRojo);
  pintor.drawPolygon(QPolygonF{{w / 2, 0.5}, {w - 0.5, h - 0.5}, {0.5, h - 0.5}});
  pintor.setPen(QPen(Qt::white, w / 9, Qt::SolidLine, Qt::RoundCap));
  pintor.drawLine(QPointF(w / 2, h * 0.38), QPointF(w / 2, h * 0.66));
  pintor.drawPoint(QPointF(w / 2, h * 0.84));
}

// ---------------------------------------------------------------------------------------------

struct DibujoPared::Encaje {
  QRectF pared;
  double escala = 0;                  // [px/cm]
  double exteriores = 0, camisa = 0;  // height of their axes [px]
};

DibujoPared::DibujoPared(QWidget* padre) : QWidget(padre) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void DibujoPared::Pon(const ParedDeTubo& pared, const Rotulos& rotulos) {
  pared_ = pared;
  rotulos_ = rotulos;
  updateGeometry();
  update();
}

QSize DibujoPared::sizeHint() const {
  return {Renglon(*this) * 22, Renglon(*this) * 14};
}

QSize DibujoPared::minimumSizeHint() const {
  return {Renglon(*this) * 14, Renglon(*this) * 8};
}

DibujoPared::Encaje DibujoPared::Encaja() const {
  const auto letra = fontMetrics();
  const double izquierda = letra.horizontalAdvance(rotulos_.Esp) + 3 * kAire;
  double derecha = 0;
  for (const auto& cota : {rotulos_.Rece, rotulos_.BRAZO, rotulos_.Reci}) {
    derecha = std::max<double>(derecha, letra.horizontalAdvance(cota));
  }
  const double arriba = letra.height() + kAire;
  const QRectF hueco = QRectF(rect()).adjusted(izquierda, arriba, -(derecha + 3 * kAire), -arriba);
  Encaje e;
  const double separacion = std::max(pared_.espiras.separacion, pared_.exteriores.separacion);
  e.escala = hueco.height() / pared_.Esp;
  if (separacion > 0) e.escala = std::min(e.escala, hueco.width() / (separacion * kTramoVisto));
  const double grueso = e.escala * pared_.Esp;
  e.pared = QRectF(hueco.left(), hueco.center().y() - grueso / 2, hueco.width(), grueso);
  e.exteriores = e.pared.top() + pared_.Rece * e.escala;
  e.camisa = e.pared.bottom() - pared_.Reci * e.escala;
  return e;
}

void DibujoPared::PintaHormigon(QPainter& pintor, const Encaje& e) const {
  const auto tinta = Tinta(palette());
  pintor.fillRect(e.pared, Mezcla(Fondo(palette()), tinta, 0.14));
  pintor.setPen(QPen(tinta, 1.5));
  pintor.drawLine(e.pared.topLeft(), e.pared.topRight());
  pintor.drawLine(e.pared.bottomLeft(), e.pared.bottomRight());
  if (!(pared_.CAMISA > 0)) return;
  const double grueso = std::max(pared_.CAMISA / kMmPorCm * e.escala, kCamisaVista);
  pintor.fillRect(QRectF(e.pared.left(), e.camisa - grueso / 2, e.pared.width(), grueso),
                  Color(Trazo::Camisa, palette()));
}

void DibujoPared::PintaCapa(QPainter& pintor, const Encaje& e, const CapaDeBarras& capa, double y,
                            Trazo trazo) const {
  const double paso = capa.separacion * e.escala;
  if (capa.cuenta <= 0 || !(paso > 0)) return;
  const double radio = std::max(capa.diametro / kMmPorCm * e.escala / 2, kBarraVista);
  pintor.setPen(QPen(Tinta(palette()), 1));
  pintor.setBrush(Color(trazo, palette()));
  for (double x = e.pared.left() + paso / 2; x + radio <= e.pared.right(); x += paso) {
    pintor.drawEllipse(QPointF(x, y), radio, radio);
  }
}

void DibujoPared::PintaCotas(QPainter& pintor, const Encaje& e) const {
  pintor.setPen(QPen(Tinta(palette()), 1));
  const double renglon = fontMetrics().height();
  const auto cota = [&](double x, double y1, double y2) {
    pintor.drawLine(QPointF(x, y1), QPointF(x, y2));
    for (const double y : {y1, y2}) pintor.drawLine(QPointF(x - 3, y), QPointF(x + 3, y));
  };
  const auto escribe = [&](double x, double y, double ancho, int lado, const QString& texto) {
    pintor.drawText(QRectF(x, y - renglon / 2, ancho, renglon), lado | Qt::AlignVCenter, texto);
  };
  const double izquierda = e.pared.left() - 1.5 * kAire;
  cota(izquierda, e.pared.top(), e.pared.bottom());
  escribe(0, e.pared.center().y(), izquierda - kAire, Qt::AlignRight, rotulos_.Esp);
  const double derecha = e.pared.right() + 1.5 * kAire;
  const std::array<double, 4> lineas{e.pared.top(), e.exteriores, e.camisa, e.pared.bottom()};
  const std::array<QString, 3> textos{rotulos_.Rece, rotulos_.BRAZO, rotulos_.Reci};
  std::array<double, 3> medios{};
  for (std::size_t i = 0; i < medios.size(); ++i) {
    cota(derecha, lineas[i], lineas[i + 1]);
    medios[i] = (lineas[i] + lineas[i + 1]) / 2;
  }
  medios = Separa(medios, renglon);
  for (std::size_t i = 0; i < medios.size(); ++i) {
    escribe(derecha + kAire, medios[i], width() - derecha - kAire, Qt::AlignLeft, textos[i]);
  }
}

void DibujoPared::paintEvent(QPaintEvent*) {
  if (!(pared_.Esp > 0)) return;
  const Encaje e = Encaja();
  if (!(e.escala > 0)) return;
  QPainter pintor(this);
  pintor.setRenderHint(QPainter::Antialiasing);
  PintaHormigon(pintor, e);
  pintor.save();
  pintor.setClipRect(e.pared);
  PintaCapa(pintor, e, pared_.espiras, e.camisa, Trazo::Espiras);
  PintaCapa(pintor, e, pared_.exteriores, e.exteriores, Trazo::Exteriores);
  pintor.restore();
  PintaCotas(pintor, e);
  const double renglon = fontMetrics().height();
  pintor.drawText(QRectF(e.pared.left(), e.pared.top() - renglon - 2, e.pared.width(), renglon),
                  Qt::AlignCenter, rotulos_.exterior);
  pintor.drawText(QRectF(e.pared.left(), e.pared.bottom() + 2, e.pared.width(), renglon),
                  Qt::AlignCenter, rotulos_.interior);
}

}  // namespace zorbin
