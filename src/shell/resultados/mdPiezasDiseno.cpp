#include "shell/resultados/mdPiezasDiseno.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "shell/dibujos/mdVistaLamina.h"

namespace zorbin {

namespace {

constexpr int kMargen = 8;
constexpr QColor kSinComprobarClaro(0x8a, 0x5a, 0x00);
constexpr QColor kSinComprobarOscuro(0xf0, 0xb4, 0x4c);

QColor DeTinta(Color c) {
  return {c.r, c.g, c.b};
}

// Takes what does not fit from the widest.
void Encoge(std::vector<int>& anchos, int caben) {
  if (anchos.empty()) return;
  const int sobra = std::accumulate(anchos.begin(), anchos.end(), 0) - caben;
  auto& mayor = *std::ranges::max_element(anchos);
  if (sobra > 0) mayor = std::max(mayor / 4, mayor - sobra);
}

QFont Negrita(QFont fuente) {
  fuente.setBold(true);
  return fuente;
}

QColor Tenue(const QPalette& colores) {
  QColor c = colores.color(QPalette::WindowText);
  c.setAlphaF(0.65F);
  return c;
}

}  // namespace

QColor ColorVeredicto(Veredicto veredicto, const QPalette& colores) {
  const auto paleta = PaletaDe(colores);
  if (veredicto == Veredicto::Cumple) return DeTinta(paleta.De(Tinta::Cumple));
  if (veredicto == Veredicto::NoCumple) return DeTinta(paleta.De(Tinta::NoCumple));
  const bool oscuro = colores.color(QPalette::Base).lightnessF() < 0.5;
  return oscuro ? kSinComprobarOscuro : kSinComprobarClaro;
}

QChar SignoVeredicto(Veredicto veredicto) {
  if (veredicto == Veredicto::Cumple) return u'✓';
  return veredicto == Veredicto::NoCumple ? u'✕' : u'?';
}

// ---------------------------------------------------------------------------------------------

void Insignia::Pon(Veredicto veredicto, const QString& texto) {
  veredicto_ = veredicto;
  texto_ = texto;
  setAccessibleName(texto);
  setVisible(!texto.isEmpty());
  updateGeometry();
  update();
}

QSize Insignia::sizeHint() const {
  const QFontMetrics letra(Negrita(font()));
  const int alto = letra.height() + 6;
  return {letra.horizontalAdvance(texto_) + alto + 2 * kMargen, alto};
}

void Insignia::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QColor fondo = ColorVeredicto(veredicto_, palette());
  const QColor letra = palette().color(QPalette::Base);
  p.setPen(Qt::NoPen);
  p.setBrush(isEnabled() ? fondo : palette().color(QPalette::Mid));
  // Round for what complies, square for what does not.
  const double radio = veredicto_ == Veredicto::Cumple ? height() / 2.0 : 3.0;
  p.drawRoundedRect(rect(), radio, radio);
  p.setPen(letra);
  p.setFont(Negrita(font()));
  const QRect signo(kMargen, 0, height() - 6, height());
  p.drawText(signo, Qt::AlignCenter, SignoVeredicto(veredicto_));
  p.drawText(rect().adjusted(signo.right() + 2, 0, -2, 0), Qt::AlignVCenter | Qt::AlignLeft,
             texto_);
}

// ---------------------------------------------------------------------------------------------

void TablaCorta::Pon(std::vector<Fila> filas, bool cabeza) {
  filas_ = std::move(filas);
  cabeza_ = cabeza;
  QStringList lineas;
  for (const auto& f : filas_) {
    lineas += QStringList(f.celdas.begin(), f.celdas.end()).join(QStringLiteral(" · "));
  }
  setAccessibleName(lineas.join('\n'));
  setVisible(!filas_.empty());
  updateGeometry();
  update();
}

QSize TablaCorta::sizeHint() const {
  int ancho = 0;
  for (const int a : Anchos()) ancho += a + 2 * kMargen;
  return {ancho, AltoFila() * static_cast<int>(filas_.size()) + 2};
}

std::vector<int> TablaCorta::Anchos() const {
  const QFontMetrics letra(Negrita(font()));
  std::vector<int> anchos;
  for (const auto& f : filas_) {
    anchos.resize(std::max(anchos.size(), f.celdas.size()), 0);
    for (std::size_t i = 0; i < f.celdas.size(); ++i) {
      anchos[i] = std::max(anchos[i], letra.horizontalAdvance(f.celdas[i]));
    }
  }
  return anchos;
}

void TablaCorta::paintEvent(QPaintEvent*) {
  QPainter p(this);
  auto anchos = Anchos();
  Encoge(anchos, width() - 2 * kMargen * static_cast<int>(anchos.size()));
  int y = 0;
  for (std::size_t k = 0; k < filas_.size(); ++k, y += AltoFila()) {
    const auto& f = filas_[k];
    const bool cabeza = cabeza_ && k == 0;
    if (cabeza) p.fillRect(0, 0, width(), AltoFila(), palette().color(QPalette::AlternateBase));
    p.setFont(f.destacada ? Negrita(font()) : font());
    p.setPen(cabeza ? Tenue(palette()) : palette().color(QPalette::WindowText));
    int derecha = width() - 2;
    for (std::size_t i = f.celdas.size(); i-- > 0;) {
      const bool primera = i == 0;
      const bool sola = f.celdas.size() == 2;  // beside a name, which takes what is left
      const int ancho = sola ? p.fontMetrics().horizontalAdvance(f.celdas[i]) + 1 : anchos[i];
      const int izquierda = primera ? 2 : std::max(2, derecha - ancho);
      const QRect celda(izquierda, y, std::max(0, derecha - izquierda), AltoFila());
      const QString texto = p.fontMetrics().elidedText(f.celdas[i], Qt::ElideRight, celda.width());
      p.drawText(celda, Qt::AlignVCenter | (primera ? Qt::AlignLeft : Qt::AlignRight), texto);
      derecha = izquierda - 2 * kMargen;
    }
    p.setPen(palette().color(QPalette::Midlight));
    p.drawLine(0, y + AltoFila() - 1, width(), y + AltoFila() - 1);
  }
}

// ---------------------------------------------------------------------------------------------

void Barras::Pon(std::vector<Barra> barras, double limite) {
  barras_ = std::move(barras);
  limite_ = limite;
  QStringList lineas;
  for (const auto& b : barras_) lineas += b.nombre + QStringLiteral(": ") + b.texto;
  setAccessibleName(lineas.join('\n'));
  updateGeometry();
  update();
}

QSize Barras::sizeHint() const {
  return {320, AltoFila() * static_cast<int>(barras_.size()) + 2};
}

void Barras::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QFontMetrics letra(Negrita(font()));
  int nombre = 0, cifra = 0;
  double mayor = limite_;
  for (const auto& b : barras_) {
    nombre = std::max(nombre, letra.horizontalAdvance(b.nombre));
    cifra = std::max(cifra, letra.horizontalAdvance(b.texto));
    if (std::isfinite(b.valor)) mayor = std::max(mayor, b.valor);
  }
  nombre = std::min(nombre, width() / 2);
  const int x = nombre + kMargen;
  const double largo = std::max(10, width() - x - cifra - kMargen);
  const auto hasta = [&](double v) { return mayor > 0 ? largo * std::min(1.0, v / mayor) : 0.0; };
  const auto paleta = PaletaDe(palette());
  int y = 0;
  for (const auto& b : barras_) {
    p.setFont(b.destacada ? Negrita(font()) : font());
    p.setPen(palette().color(QPalette::WindowText));
    const QRect fila(0, y, width(), AltoFila());
    p.drawText(fila.adjusted(0, 0, nombre - width(), 0), Qt::AlignVCenter | Qt::AlignLeft,
               p.fontMetrics().elidedText(b.nombre, Qt::ElideRight, nombre));
    p.drawText(fila, Qt::AlignVCenter | Qt::AlignRight, b.texto);
    const auto tinta = b.pasa ? Tinta::NoCumple : b.destacada ? Tinta::Acento : Tinta::Serie1;
    QColor color = DeTinta(paleta.De(tinta));
    if (!b.destacada && !b.pasa) color.setAlphaF(0.55F);
    if (!isEnabled()) color = palette().color(QPalette::Mid);
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    p.drawRoundedRect(QRectF(x, y + 4, hasta(b.valor), AltoFila() - 8), 2, 2);
    y += AltoFila();
  }
  if (limite_ <= 0) return;
  const double xl = x + hasta(limite_);
  p.setPen(QPen(palette().color(QPalette::WindowText), 1.4));
  p.drawLine(QPointF(xl, 0), QPointF(xl, y));
}

}  // namespace zorbin
