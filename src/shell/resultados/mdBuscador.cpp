#include "shell/resultados/mdBuscador.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolButton>

#include "base/textos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kTransparencia = 90;  // of the mark of a match, of 255
constexpr int kMasMarcas = 500;     // in view

}  // namespace

Buscador::Buscador(const Catalogo& textos, QPlainTextEdit& texto, QWidget* padre)
    : QWidget(padre),
      textos_(textos),
      texto_(texto),
      que_(new QLineEdit(this)),
      dice_(new QLabel(this)) {
  que_->setObjectName(QStringLiteral("edBuscar"));
  dice_->setObjectName(QStringLiteral("lbBuscar"));
  que_->setClearButtonEnabled(true);
  que_->setMinimumWidth(fontMetrics().averageCharWidth() * 16);
  dice_->setTextFormat(Qt::PlainText);
  auto* rotulo = new QLabel(Tx(txt::RotuloBuscar), this);
  rotulo->setBuddy(que_);
  auto* anterior = new QPushButton(Tx(txt::BuscarAnterior), this);
  auto* siguiente = new QPushButton(Tx(txt::BuscarSiguiente), this);
  auto* cierra = new QToolButton(this);
  cierra->setText(QString(QChar(0x00D7)));
  cierra->setToolTip(Tx(txt::CerrarBusqueda));
  cierra->setAccessibleName(Tx(txt::CerrarBusqueda));
  cierra->setAutoRaise(true);
  for (auto* boton : {anterior, siguiente}) boton->setAutoDefault(false);

  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(0, 0, 0, 0);
  fila->addWidget(rotulo);
  fila->addWidget(que_, 1);
  fila->addWidget(anterior);
  fila->addWidget(siguiente);
  fila->addWidget(dice_, 1);
  fila->addWidget(cierra);

  connect(que_, &QLineEdit::textChanged, this, [this] { Busca({}, true); });
  connect(anterior, &QPushButton::clicked, this, &Buscador::Anterior);
  connect(siguiente, &QPushButton::clicked, this, &Buscador::Siguiente);
  connect(cierra, &QToolButton::clicked, this, &Buscador::Cierra);
  connect(texto_.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { Marca(); });
  hide();
}

QString Buscador::Tx(int n) const {
  return Rotulo(textos_.Texto(n));
}

void Buscador::Abre() {
  const QString elegido = texto_.textCursor().selectedText();
  const bool unaLinea = !elegido.isEmpty() && !elegido.contains(QChar::ParagraphSeparator);
  show();
  if (unaLinea) que_->setText(elegido);
  que_->setFocus();
  que_->selectAll();
  Marca();
}

void Buscador::Cierra() {
  hide();
  dice_->clear();
  texto_.setExtraSelections({});
  texto_.setFocus();
}

void Buscador::Siguiente() {
  if (que_->text().isEmpty()) return Abre();
  Busca({}, false);
}

void Buscador::Anterior() {
  if (que_->text().isEmpty()) return Abre();
  Busca(QTextDocument::FindBackward, false);
}

void Buscador::Busca(QTextDocument::FindFlags sentido, bool desdeLaSeleccion) {
  dice_->clear();
  const QString que = que_->text();
  if (que.isEmpty()) return Marca();
  show();
  emit busca();
  const bool atras = (sentido & QTextDocument::FindBackward) != 0;
  QTextCursor desde = texto_.textCursor();
  if (desdeLaSeleccion) desde.setPosition(desde.selectionStart());
  QTextCursor hallado = texto_.document()->find(que, desde, sentido);
  if (hallado.isNull()) {
    QTextCursor otro(texto_.document());
    if (atras) otro.movePosition(QTextCursor::End);
    hallado = texto_.document()->find(que, otro, sentido);
    if (!hallado.isNull()) {
      dice_->setText(Tx(atras ? txt::SigueDesdeElFinal : txt::SigueDesdeElPrincipio));
    }
  }
  if (hallado.isNull()) {
    dice_->setText(Q(textos_.Compone(txt::NoSeEncuentra, {S(que)})));
  } else {
    texto_.setTextCursor(hallado);
    texto_.ensureCursorVisible();
  }
  Marca();
}

void Buscador::Marca() {
  QList<QTextEdit::ExtraSelection> marcas;
  const QString que = que_->text();
  if (isVisible() && !que.isEmpty()) {
    const auto hasta = texto_.cursorForPosition(texto_.viewport()->rect().bottomRight()).block();
    QTextCursor desde(texto_.cursorForPosition(QPoint(0, 0)).block());
    QColor fondo = texto_.palette().color(QPalette::Highlight);
    fondo.setAlpha(kTransparencia);
    const int fin = hasta.position() + hasta.length();
    for (auto c = texto_.document()->find(que, desde);
         !c.isNull() && c.selectionEnd() <= fin && marcas.size() < kMasMarcas;
         c = texto_.document()->find(que, c)) {
      QTextEdit::ExtraSelection marca;
      marca.cursor = c;
      marca.format.setBackground(fondo);
      marcas.push_back(marca);
    }
  }
  texto_.setExtraSelections(marcas);
}

void Buscador::keyPressEvent(QKeyEvent* suceso) {
  switch (suceso->key()) {
    case Qt::Key_Escape:
      return Cierra();
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return (suceso->modifiers() & Qt::ShiftModifier) != 0 ? Anterior() : Siguiente();
    default:
      QWidget::keyPressEvent(suceso);
  }
}

}  // namespace zorbin
