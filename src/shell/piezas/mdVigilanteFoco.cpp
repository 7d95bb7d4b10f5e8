#include "shell/piezas/mdVigilanteFoco.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWidget>

namespace zorbin {

namespace {

bool ListaDesplegada(const QWidget* campo) {
  const auto* lista = qobject_cast<const QComboBox*>(campo);
  return lista != nullptr && lista->view() != nullptr && lista->view()->isVisible();
}

}  // namespace

VigilanteFoco::VigilanteFoco(QWidget& pantalla, Reglas reglas)
    : QObject(&pantalla), pantalla_(pantalla), reglas_(std::move(reglas)) {
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* ahora) { FocoCambia(ahora); });
}

void VigilanteFoco::Vigila(QWidget& campo) {
  campos_.insert(&campo);
  campo.installEventFilter(this);
  // The line of a list takes its keys first.
  const auto* lista = qobject_cast<QComboBox*>(&campo);
  if (lista != nullptr && lista->lineEdit() != nullptr) lista->lineEdit()->installEventFilter(this);
}

void VigilanteFoco::Exime(QWidget& widget) {
  exentos_.insert(&widget);
}

bool VigilanteFoco::DejaCampo() {
  if (ocupado_) return false;
  const Pausa pausa(*this);
  return SaleDelCampo();
}

void VigilanteFoco::VaA(QWidget& campo) {
  const Pausa pausa(*this);
  Toma(&campo);
}

bool VigilanteFoco::eventFilter(QObject* objeto, QEvent* suceso) {
  if (suceso->type() != QEvent::KeyPress || ocupado_) return false;
  auto* widget = qobject_cast<QWidget*>(objeto);
  auto* campo = CampoDe(widget);
  if (campo == nullptr) return false;
  const auto tecla = static_cast<QKeyEvent*>(suceso)->key();
  const bool adelante = tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
  if (ListaDesplegada(campo)) return false;
  if (adelante && qobject_cast<QPlainTextEdit*>(campo) != nullptr) return false;
  if (!adelante && tecla != Qt::Key_Tab && tecla != Qt::Key_Backtab) return false;
  if (adelante && acepta_) {
    acepta_();
    return true;
  }
  // The rule runs before the focus moves: a field that it opens is the next one then.
  if (campo == enMano_ && !DejaCampo()) return true;
  if (!adelante) return false;
  QKeyEvent siguiente(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
  QApplication::sendEvent(widget, &siguiente);
  return true;
}

void VigilanteFoco::FocoCambia(QWidget* ahora) {
  if (ocupado_ || ahora == nullptr || !pantalla_.isAncestorOf(ahora)) return;
  auto* campo = CampoDe(ahora);
  if ((campo != nullptr && campo == enMano_) || Es(exentos_, ahora)) return;
  const Pausa pausa(*this);
  if (!SaleDelCampo() || campo == nullptr) return;
  // A rule may have closed the way to it.
  if (campo->isVisible() && campo->isEnabled()) Toma(campo);
}

bool VigilanteFoco::SaleDelCampo() {
  if (enMano_ == nullptr) return true;
  QWidget* queda = reglas_.sale(enMano_);
  if (queda == nullptr) {
    enMano_ = nullptr;
    return true;
  }
  if (queda == enMano_) {
    queda->setFocus(Qt::OtherFocusReason);
  } else {
    Toma(queda);
  }
  return false;
}

void VigilanteFoco::Toma(QWidget* campo) {
  constexpr int kVueltas = 3;  // entering a field may lead to another, never round and round
  for (int i = 0; i < kVueltas && campo != nullptr; ++i) {
    enMano_ = campo;
    QWidget* otro = reglas_.entra(campo);
    if (otro == nullptr || otro == campo) break;
    campo = otro;
  }
  if (enMano_ != nullptr && !enMano_->isAncestorOf(QApplication::focusWidget()) &&
      QApplication::focusWidget() != enMano_) {
    enMano_->setFocus(Qt::OtherFocusReason);
  }
}

QWidget* VigilanteFoco::CampoDe(QWidget* widget) const {
  for (auto* w = widget; w != nullptr && w != &pantalla_; w = w->parentWidget()) {
    if (campos_.contains(w)) return w;
  }
  return nullptr;
}

bool VigilanteFoco::Es(const QSet<QWidget*>& widgets, QWidget* widget) const {
  for (auto* w = widget; w != nullptr && w != &pantalla_; w = w->parentWidget()) {
    if (widgets.contains(w)) return true;
  }
  return false;
}

}  // namespace zorbin
