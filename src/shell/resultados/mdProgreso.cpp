#include "shell/resultados/mdProgreso.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr qint64 kPaciencia = 500;  // [ms]
constexpr qint64 kRefresco = 50;    // [ms]
constexpr int kMilesimas = 1000;

}  // namespace

CajaProgreso::CajaProgreso(const Catalogo& textos, QWidget* padre)
    : QDialog(padre),
      textos_(textos),
      texto_(new QLabel(this)),
      barra_(new QProgressBar(this)),
      cancela_(new QPushButton(Rotulo(textos.Texto(txt::BotonCancelar)), this)),
      siguiente_(kPaciencia) {
  setWindowTitle(Rotulo(textos.Texto(txt::CalculoEnCurso)));
  setWindowModality(Qt::WindowModal);
  texto_->setTextFormat(Qt::PlainText);
  barra_->setRange(0, kMilesimas);
  barra_->setTextVisible(false);
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
  reloj_.start();
}

bool CajaProgreso::Sigue(const Avance& avance) {
  if (reloj_.elapsed() < siguiente_) return !cancelado_;
  Muestra(avance);
  if (!isVisible() && !cancelado_) show();
  QCoreApplication::processEvents();
  siguiente_ = reloj_.elapsed() + kRefresco;
  return !cancelado_;
}

void CajaProgreso::Muestra(const Avance& avance) {
  const bool obra = avance.posiciones > 1;
  texto_->setText(Q(textos_.Compone(
      obra ? txt::AvanceDeLaObra : txt::AvanceDelTramo,
      {TextoEntero(avance.tramo), std::to_string(avance.caso), std::to_string(avance.casos),
       std::to_string(avance.posicion), std::to_string(avance.posiciones)})));
  const double delTramo = (avance.caso - 1.0) / avance.casos;
  barra_->setValue(
      static_cast<int>((avance.posicion - 1 + delTramo) / avance.posiciones * kMilesimas));
}

void CajaProgreso::reject() {
  cancelado_ = true;
  cancela_->setEnabled(false);
  texto_->setText(Rotulo(textos_.Texto(txt::Cancelando)));
}

}  // namespace zorbin
