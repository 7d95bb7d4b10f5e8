#include "shell/principal/mdMenuVer.h"

#include <QActionGroup>
#include <QMenu>

#include "base/textos.h"
#include "shell/piezas/mdQt.h"
#include "shell/piezas/mdTema.h"

namespace zorbin {

MenuVer::MenuVer(QMenu& menu, const Catalogo& textos, Preferencias& preferencias)
    : QObject(&menu),
      textos_(textos),
      preferencias_(preferencias),
      temas_(menu.addMenu(QString())),
      idiomas_(menu.addMenu(QString())) {
  auto* grupo = new QActionGroup(this);
  for (const int texto : {txt::TemaSistema, txt::TemaClaro, txt::TemaOscuro}) {
    const int tema = static_cast<int>(deTema_.size());
    deTema_.push_back(Anade(*temas_, *grupo, texto));
    connect(deTema_.back(), &QAction::triggered, this, [this, tema] {
      preferencias_.PonTema(tema);
      RenuevaTema();
    });
  }
  grupo = new QActionGroup(this);
  for (int i = 0; i < kIdiomas; ++i) {
    deIdioma_.push_back(Anade(*idiomas_, *grupo, txt::IdiomasPropios[0] + i));
    connect(deIdioma_.back(), &QAction::triggered, this, [this, i] { emit idiomaPedido(i + 1); });
  }
  entradas_.push_back({temas_->menuAction(), txt::MenuTema});
  entradas_.push_back({idiomas_->menuAction(), txt::MenuIdioma});
  temas_->menuAction()->setObjectName(QStringLiteral("mnTema"));
  idiomas_->menuAction()->setObjectName(QStringLiteral("mnIdioma"));
}

QAction* MenuVer::Anade(QMenu& menu, QActionGroup& grupo, int texto) {
  auto* accion = menu.addAction(QString());
  accion->setCheckable(true);
  grupo.addAction(accion);
  entradas_.push_back({accion, texto});
  return accion;
}

void MenuVer::RenuevaTema() const {
  PonTema(static_cast<Tema>(preferencias_.Tema()));
}

void MenuVer::Renueva() {
  for (const auto& entrada : entradas_) {
    entrada.accion->setText('&' + Rotulo(textos_.Texto(entrada.texto)));
  }
  deTema_[static_cast<std::size_t>(preferencias_.Tema())]->setChecked(true);
  deIdioma_[static_cast<std::size_t>(textos_.IdiomaOffset() / kPasoIdioma)]->setChecked(true);
}

}  // namespace zorbin
