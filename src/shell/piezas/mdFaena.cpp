#include "shell/piezas/mdFaena.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <exception>
#include <thread>
#include <utility>

#include "base/textos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kPaciencia = 500;  // before the box shows itself [ms]
constexpr int kRefresco = 50;    // [ms]
constexpr int kMilesimas = 1000;

}  // namespace

void MarchaFaena::Di(Dicho dicho) {
  const std::lock_guard cierra(cerrojo_);
  dicho_ = std::move(dicho);
  espera_ = false;
}

std::optional<MarchaFaena::Dicho> MarchaFaena::Toma() {
  const std::lock_guard cierra(cerrojo_);
  espera_ = true;
  return std::exchange(dicho_, std::nullopt);
}

CajaProgreso::CajaProgreso(const Catalogo& textos, int titulo, MarchaFaena& marcha, QWidget* padre)
    : QDialog(padre),
      textos_(textos),
      marcha_(marcha),
      texto_(new QLabel(this)),
      barra_(new QProgressBar(this)),
      cancela_(new QPushButton(Rotulo(textos.Texto(txt::BotonCancelar)), this)) {
  setWindowTitle(Rotulo(textos.Texto(titulo)));
  setWindowModality(Qt::WindowModal);
  texto_->setTextFormat(Qt::PlainText);
  barra_->setTextVisible(false);
  barra_->setAccessibleName(windowTitle());
  cancela_->setObjectName(QStringLiteral("btCancelar"));
  cancela_->setAutoDefault(false);
  auto* botones = new QHBoxLayout;
  botones->addStretch();
  botones->addWidget(cancela_);
  auto* filas = new QVBoxLayout(this);
  filas->addWidget(texto_);
  filas->addWidget(barra_);
  filas->addSpacing(6);
  filas->addLayout(botones);
  texto_->setMinimumWidth(fontMetrics().averageCharWidth() * 56);
  connect(cancela_, &QPushButton::clicked, this, &CajaProgreso::reject);
}

void CajaProgreso::Renueva() {
  if (!marcha_.TieneVuelta()) cancela_->setEnabled(false);
  const auto dicho = marcha_.Toma();
  if (!dicho || !marcha_.Sigue()) return;
  texto_->setText(Q(dicho->texto));
  barra_->setRange(0, dicho->hecho ? kMilesimas : 0);
  if (dicho->hecho) barra_->setValue(static_cast<int>(*dicho->hecho * kMilesimas));
}

void CajaProgreso::reject() {
  if (!marcha_.TieneVuelta()) return;
  marcha_.Cancela();
  cancela_->setEnabled(false);
  texto_->setText(Rotulo(textos_.Texto(txt::Cancelando)));
}

void HazFaena(QWidget* padre, const Catalogo& textos, int titulo,
              const std::function<void(MarchaFaena&)>& trabajo) {
  MarchaFaena marcha;
  CajaProgreso caja(textos, titulo, marcha, padre);
  QEventLoop espera;
  std::exception_ptr fallo;
  std::atomic<bool> acabada = false;
  std::jthread hilo([&] {
    try {
      trabajo(marcha);
    } catch (...) {
      fallo = std::current_exception();
    }
    acabada = true;
    QMetaObject::invokeMethod(&espera, &QEventLoop::quit, Qt::QueuedConnection);
  });

  QTimer::singleShot(kPaciencia, &espera, &QEventLoop::quit);
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  espera.exec(QEventLoop::ExcludeUserInputEvents);
  QGuiApplication::restoreOverrideCursor();
  if (!acabada) {
    QTimer refresco;
    QObject::connect(&refresco, &QTimer::timeout, &caja, &CajaProgreso::Renueva);
    refresco.start(kRefresco);
    caja.Renueva();
    caja.show();
    espera.exec();
  }
  if (!acabada) marcha.Cancela();  // the program is being left
  hilo.join();
  if (fallo) std::rethrow_exception(fallo);
}

}  // namespace zorbin
