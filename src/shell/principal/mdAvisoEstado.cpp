#include "shell/principal/mdAvisoEstado.h"

#include <QStyle>
#include <algorithm>

#include "shell/piezas/mdDialogos.h"

namespace zorbin {

namespace {

// A message that begins with a file: in one line its folders would hide what it says.
QString SinCarpetas(const QString& texto) {
  const auto fin = texto.indexOf(QStringLiteral(": "));
  if (!texto.startsWith('/') || fin < 0) return texto;
  return texto.mid(texto.lastIndexOf('/', fin) + 1);
}

}  // namespace

AvisoEstado::AvisoEstado(const Catalogo& textos, QWidget* padre)
    : QToolButton(padre), textos_(textos) {
  setObjectName(QStringLiteral("avisoEstado"));
  setAutoRaise(true);
  setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  setVisible(false);
  connect(this, &QToolButton::clicked, this,
          [this] { Avisa(window(), textos_, avisos_.join(QStringLiteral("\n\n"))); });
}

void AvisoEstado::Anade(const QString& texto) {
  avisos_ += texto.trimmed();
  Renueva();
}

void AvisoEstado::Quita(const QString& texto) {
  if (avisos_.removeAll(texto.trimmed()) > 0) Renueva();
}

void AvisoEstado::Vacia() {
  avisos_.clear();
  Renueva();
}

void AvisoEstado::Renueva() {
  setAccessibleDescription(avisos_.join('\n'));
  setVisible(!avisos_.isEmpty());
  updateGeometry();
  Ajusta();
}

// The latest one is the one to read first.
QString AvisoEstado::Linea() const {
  if (avisos_.isEmpty()) return {};
  const QString texto = SinCarpetas(avisos_.constLast().simplified());
  return avisos_.size() > 1 ? QStringLiteral("(%1) ").arg(avisos_.size()) + texto : texto;
}

int AvisoEstado::Margen() const {
  return iconSize().width() + 2 * fontMetrics().averageCharWidth() + 8;
}

QSize AvisoEstado::sizeHint() const {
  const int ancho = fontMetrics().horizontalAdvance(Linea()) + Margen() + 4;
  return {std::min(ancho, window()->width() * 2 / 5), minimumSizeHint().height()};
}

QSize AvisoEstado::minimumSizeHint() const {
  const int alto = fontMetrics().height() + 6;
  return {6 * alto, alto};
}

void AvisoEstado::resizeEvent(QResizeEvent* suceso) {
  QToolButton::resizeEvent(suceso);
  Ajusta();
}

void AvisoEstado::Ajusta() {
  const QString texto = fontMetrics().elidedText(Linea(), Qt::ElideRight, width() - Margen());
  setText(QString(texto).replace('&', "&&"));
}

}  // namespace zorbin
