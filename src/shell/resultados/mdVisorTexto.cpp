#include "shell/resultados/mdVisorTexto.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <utility>

#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kMargen = 4;          // round the text [pixels]
constexpr int kCrece = 100;         // between two looks at the counting [ms]
constexpr int kArrastra = 40;       // between two steps beyond an edge [ms]
constexpr int kTransparencia = 90;  // of the mark of a match, of 255

bool EsDePalabra(QChar letra) {
  return letra.isLetterOrNumber() || letra == '_';
}

// A change of the first block moves what stands behind it.
Lugar Movido(Lugar lugar, int tras, int lineas) {
  return lugar.linea < tras ? lugar : Lugar{lugar.linea + lineas, lugar.columna};
}

}  // namespace

VisorTexto::VisorTexto(TextoLargo& texto, QWidget* padre)
    : QAbstractScrollArea(padre), texto_(texto), cuenta_(texto.LaCuenta()) {
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setCursor(Qt::IBeamCursor);
  crece_.setInterval(kCrece);
  connect(&crece_, &QTimer::timeout, this, &VisorTexto::Crece);
  if (!cuenta_.entera) crece_.start();
  arrastra_.setInterval(kArrastra);
  connect(&arrastra_, &QTimer::timeout, this, &VisorTexto::Arrastra);
}

// ---------------------------------------------------------------------------------------------
// The text and its place

QString VisorTexto::Linea(int n) const {
  return Q(texto_.Linea(n));
}

int VisorTexto::AltoLinea() const {
  return std::max(1, fontMetrics().lineSpacing());
}

double VisorTexto::AnchoLetra() const {
  return std::max(1.0, QFontMetricsF(font()).horizontalAdvance(QLatin1Char('0')));
}

int VisorTexto::Filas() const {
  return std::max(1, (viewport()->height() - kMargen) / AltoLinea());
}

double VisorTexto::X(int columna) const {
  return kMargen + columna * AnchoLetra() - horizontalScrollBar()->value();
}

Lugar VisorTexto::LugarEn(QPointF punto) const {
  const int fila = static_cast<int>(std::floor((punto.y() - kMargen) / AltoLinea()));
  const int n = std::clamp(verticalScrollBar()->value() + fila, 0, std::max(0, Lineas() - 1));
  const int columna = static_cast<int>(std::lround((punto.x() - X(0)) / AnchoLetra()));
  return {n, std::clamp(columna, 0, static_cast<int>(Linea(n).size()))};
}

void VisorTexto::Crece() {
  const auto antes = std::exchange(cuenta_, texto_.LaCuenta());
  if (cuenta_.entera) crece_.stop();
  const int mas = cuenta_.delPrimero - antes.delPrimero;
  int arriba = verticalScrollBar()->value();
  if (antes.delPrimero > 0 && mas != 0) {
    ancla_ = Movido(ancla_, antes.delPrimero, mas);
    cursor_ = Movido(cursor_, antes.delPrimero, mas);
    arriba = Movido({arriba, 0}, antes.delPrimero, mas).linea;
  }
  AjustaBarras();
  verticalScrollBar()->setValue(arriba);
  viewport()->update();
  if (cuenta_.entera) emit entero();
}

void VisorTexto::AjustaBarras() {
  verticalScrollBar()->setPageStep(Filas());
  verticalScrollBar()->setRange(0, std::max(0, Lineas() - Filas()));
  const int ancho = static_cast<int>(std::ceil(cuenta_.ancho * AnchoLetra())) + 2 * kMargen;
  horizontalScrollBar()->setSingleStep(static_cast<int>(AnchoLetra()));
  horizontalScrollBar()->setPageStep(viewport()->width());
  horizontalScrollBar()->setRange(0, std::max(0, ancho - viewport()->width()));
}

void VisorTexto::resizeEvent(QResizeEvent* suceso) {
  QAbstractScrollArea::resizeEvent(suceso);
  AjustaBarras();
}

void VisorTexto::changeEvent(QEvent* suceso) {
  QAbstractScrollArea::changeEvent(suceso);
  if (suceso->type() != QEvent::FontChange) return;
  AjustaBarras();
  viewport()->update();
}

// ---------------------------------------------------------------------------------------------
// Painting

void VisorTexto::Marca(const QString& que) {
  marca_ = que;
  viewport()->update();
}

int VisorTexto::Marcas() const {
  if (marca_.isEmpty()) return 0;
  const int primera = verticalScrollBar()->value();
  int cuantas = 0;
  for (int n = primera; n < std::min(Lineas(), primera + Filas() + 1); ++n) {
    cuantas += static_cast<int>(Linea(n).count(marca_, Qt::CaseInsensitive));
  }
  return cuantas;
}

void VisorTexto::paintEvent(QPaintEvent* suceso) {
  QPainter pintor(viewport());
  const int primera = verticalScrollBar()->value();
  for (int fila = 0; fila <= Filas() && primera + fila < Lineas(); ++fila) {
    const int y = kMargen + fila * AltoLinea();
    if (y > suceso->rect().bottom()) break;
    if (y + AltoLinea() >= suceso->rect().top()) PintaLinea(pintor, primera + fila, y);
  }
}

void VisorTexto::PintaLinea(QPainter& pintor, int n, int y) const {
  const QString linea = Linea(n);
  const auto banda = [&](int desde, int hasta) {
    return QRectF(X(desde), y, (hasta - desde) * AnchoLetra(), AltoLinea());
  };
  const auto escribe = [&](QPalette::ColorRole color) {
    pintor.setPen(palette().color(color));
    pintor.drawText(QPointF(X(0), y + fontMetrics().ascent()), linea);
  };
  QColor fondo = palette().color(QPalette::Highlight);
  fondo.setAlpha(kTransparencia);
  const auto largo = static_cast<int>(marca_.size());
  for (auto p = largo == 0 ? -1 : linea.indexOf(marca_, 0, Qt::CaseInsensitive); p >= 0;
       p = linea.indexOf(marca_, p + largo, Qt::CaseInsensitive)) {
    const int columna = static_cast<int>(p);
    pintor.fillRect(banda(columna, columna + largo), fondo);
  }
  escribe(QPalette::Text);
  if (HayEleccion() && n >= Desde().linea && n <= Hasta().linea) {
    // A line end that is selected shows as one letter more.
    const int desde = n == Desde().linea ? Desde().columna : 0;
    const int hasta = n == Hasta().linea ? Hasta().columna : static_cast<int>(linea.size()) + 1;
    pintor.fillRect(banda(desde, hasta), palette().color(QPalette::Highlight));
    pintor.save();
    pintor.setClipRect(banda(desde, hasta));
    escribe(QPalette::HighlightedText);
    pintor.restore();
  }
  if (hasFocus() && n == cursor_.linea) {
    pintor.fillRect(QRectF(X(cursor_.columna), y, 1, AltoLinea()), palette().color(QPalette::Text));
  }
}

void VisorTexto::focusInEvent(QFocusEvent* suceso) {
  QAbstractScrollArea::focusInEvent(suceso);
  viewport()->update();
}

void VisorTexto::focusOutEvent(QFocusEvent* suceso) {
  QAbstractScrollArea::focusOutEvent(suceso);
  viewport()->update();
}

// ---------------------------------------------------------------------------------------------
// Selecting

QString VisorTexto::Elegido() const {
  if (Desde().linea != Hasta().linea) return {};
  return Linea(cursor_.linea).mid(Desde().columna, Hasta().columna - Desde().columna);
}

void VisorTexto::Elige(Lugar desde, Lugar hasta) {
  // What has been found may be behind the last look at the counting.
  if (hasta.linea >= Lineas()) Crece();
  ancla_ = desde;
  cursor_ = hasta;
  Asoma();
}

void VisorTexto::EligeTodo() {
  ancla_ = {};
  cursor_ = Final();
  viewport()->update();
}

void VisorTexto::Asoma() {
  auto& alto = *verticalScrollBar();
  if (cursor_.linea < alto.value()) alto.setValue(cursor_.linea);
  if (cursor_.linea >= alto.value() + Filas()) alto.setValue(cursor_.linea - Filas() + 1);
  auto& ancho = *horizontalScrollBar();
  const int aire = static_cast<int>(AnchoLetra());
  const int x = static_cast<int>(X(cursor_.columna));
  const int sobra = x + aire - viewport()->width();
  if (sobra > 0) ancho.setValue(ancho.value() + sobra);
  if (x < kMargen) ancho.setValue(ancho.value() + x - kMargen - aire);
  viewport()->update();
}

void VisorTexto::Mueve(Lugar a, bool elige) {
  const int n = std::clamp(a.linea, 0, std::max(0, Lineas() - 1));
  cursor_ = {n, std::clamp(a.columna, 0, static_cast<int>(Linea(n).size()))};
  if (!elige) ancla_ = cursor_;
  Asoma();
}

Lugar VisorTexto::Final() const {
  const int ultima = std::max(0, Lineas() - 1);
  return {ultima, static_cast<int>(Linea(ultima).size())};
}

Lugar VisorTexto::Izquierda() const {
  if (cursor_.columna > 0) return {cursor_.linea, cursor_.columna - 1};
  if (cursor_.linea == 0) return cursor_;
  return {cursor_.linea - 1, static_cast<int>(Linea(cursor_.linea - 1).size())};
}

Lugar VisorTexto::Derecha() const {
  if (cursor_.columna < Linea(cursor_.linea).size()) return {cursor_.linea, cursor_.columna + 1};
  return cursor_.linea + 1 < Lineas() ? Lugar{cursor_.linea + 1, 0} : cursor_;
}

bool VisorTexto::MueveConTecla(const QKeyEvent& suceso) {
  const bool elige = (suceso.modifiers() & Qt::ShiftModifier) != 0;
  const bool lejos = (suceso.modifiers() & Qt::ControlModifier) != 0;
  const int fin = static_cast<int>(Linea(cursor_.linea).size());
  const auto [linea, columna] = cursor_;
  switch (suceso.key()) {
    case Qt::Key_Up:
      return Mueve({linea - 1, columna}, elige), true;
    case Qt::Key_Down:
      return Mueve({linea + 1, columna}, elige), true;
    case Qt::Key_Left:
      return Mueve(Izquierda(), elige), true;
    case Qt::Key_Right:
      return Mueve(Derecha(), elige), true;
    case Qt::Key_Home:
      return Mueve(lejos ? Lugar{} : Lugar{linea, 0}, elige), true;
    case Qt::Key_End:
      return Mueve(lejos ? Final() : Lugar{linea, fin}, elige), true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
      const int pasa = suceso.key() == Qt::Key_PageUp ? -Filas() : Filas();
      verticalScrollBar()->setValue(verticalScrollBar()->value() + pasa);
      return Mueve({linea + pasa, columna}, elige), true;
    }
    default:
      return false;
  }
}

void VisorTexto::keyPressEvent(QKeyEvent* suceso) {
  if (suceso->matches(QKeySequence::SelectAll)) return EligeTodo();
  if (suceso->matches(QKeySequence::Copy)) {
    if (HayEleccion()) emit copia();
    return;
  }
  // Not up to the scroll area, which would move the text away from its cursor.
  if (!MueveConTecla(*suceso)) suceso->ignore();
}

void VisorTexto::mousePressEvent(QMouseEvent* suceso) {
  if (suceso->button() != Qt::LeftButton) return;
  const Lugar aqui = LugarEn(suceso->position());
  Mueve(aqui, (suceso->modifiers() & Qt::ShiftModifier) != 0);
}

void VisorTexto::mouseMoveEvent(QMouseEvent* suceso) {
  if ((suceso->buttons() & Qt::LeftButton) == 0) return;
  raton_ = suceso->position();
  Arrastra();
  if (viewport()->rect().contains(suceso->position().toPoint())) {
    arrastra_.stop();
  } else if (!arrastra_.isActive()) {
    arrastra_.start();
  }
}

void VisorTexto::Arrastra() {
  Mueve(LugarEn(raton_), true);
}

// What the mouse has selected can be pasted with its middle button.
void VisorTexto::mouseReleaseEvent(QMouseEvent* suceso) {
  arrastra_.stop();
  auto* pegado = QApplication::clipboard();
  if (suceso->button() != Qt::LeftButton || !pegado->supportsSelection()) return;
  if (const QString elegido = Elegido(); !elegido.isEmpty()) {
    pegado->setText(elegido, QClipboard::Selection);
  }
}

void VisorTexto::mouseDoubleClickEvent(QMouseEvent* suceso) {
  if (suceso->button() != Qt::LeftButton) return;
  const Lugar aqui = LugarEn(suceso->position());
  const QString linea = Linea(aqui.linea);
  int desde = aqui.columna;
  int hasta = aqui.columna;
  while (desde > 0 && EsDePalabra(linea[desde - 1])) --desde;
  while (hasta < linea.size() && EsDePalabra(linea[hasta])) ++hasta;
  Elige({aqui.linea, desde}, {aqui.linea, hasta});
}

void VisorTexto::contextMenuEvent(QContextMenuEvent* suceso) {
  emit menu(suceso->globalPos());
}

}  // namespace zorbin
