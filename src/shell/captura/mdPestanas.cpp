#include "shell/captura/mdPestanas.h"

#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

namespace zorbin {

Pestanas::Pestanas(QWidget* padre)
    : QWidget(padre), barra_(new QTabBar(this)), paginas_(new QStackedWidget(this)) {
  auto* filas = new QVBoxLayout(this);
  filas->setContentsMargins(0, 0, 0, 0);
  filas->setSpacing(0);
  filas->addWidget(barra_);
  filas->addWidget(paginas_, 1);
  barra_->setExpanding(false);
  barra_->setUsesScrollButtons(true);
  paginas_->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
  connect(barra_, &QTabBar::currentChanged, this, [this](int pagina) {
    if (pagina != paginas_->currentIndex()) emit pedida(pagina);
  });
}

void Pestanas::Anade(QWidget* pagina) {
  const QSignalBlocker quieta(barra_);
  barra_->addTab(QString());
  paginas_->addWidget(pagina);
}

void Pestanas::PonTexto(int pagina, const QString& texto) {
  barra_->setTabText(pagina, texto);
}

void Pestanas::Pon(int pagina) {
  if (pagina < 0 || pagina >= paginas_->count()) return;
  const QSignalBlocker quieta(barra_);
  if (barra_->currentIndex() != pagina) barra_->setCurrentIndex(pagina);
  if (paginas_->currentIndex() != pagina) paginas_->setCurrentIndex(pagina);
}

int Pestanas::Delante() const {
  return paginas_->currentIndex();
}

}  // namespace zorbin
