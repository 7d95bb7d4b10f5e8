#include "shell/principal/mdMandosTramos.h"

#include <QApplication>
#include <QClipboard>
#include <QInputDialog>

#include "base/textos.h"
#include "sesion/captura/mdTramos.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

// A number that may not be had is asked for again, with why.
void Renumera(Captura& c, QWidget* padre) {
  const auto* t = Busca(c.version, c.enMano);
  if (t == nullptr) return;
  QString pregunta = Q(c.textos.Compone(txt::PideNumero, {t->numero}));
  QString numero = Q(t->numero);
  for (bool sigue = true; sigue;) {
    numero = QInputDialog::getText(padre, QString::fromLatin1(kTituloAplicacion), pregunta,
                                   QLineEdit::Normal, numero, &sigue);
    if (!sigue) return;
    const std::string porque = RenumeraTramo(c, c.enMano, S(numero.trimmed()));
    if (porque.empty()) return;
    pregunta = Q(porque);
  }
}

void Pega(Captura& c, QWidget* padre) {
  constexpr std::size_t kDichas = 12;
  const auto pegado = PegaTramos(c, S(QApplication::clipboard()->text()));
  if (pegado.faltas.empty()) return;
  std::string texto = c.textos.Texto(txt::NadaSePega);
  for (std::size_t i = 0; i < pegado.faltas.size() && i < kDichas; ++i) {
    texto += "\n" + pegado.faltas[i];
  }
  if (pegado.faltas.size() > kDichas) {
    texto +=
        "\n" + c.textos.Compone(txt::FallosDeMas, {std::to_string(pegado.faltas.size() - kDichas)});
  }
  Avisa(padre, c.textos, Q(texto));
}

}  // namespace

void HazConTramos(Captura& c, Orden orden, const std::vector<int>& ids, QWidget* padre) {
  switch (orden) {
    case Orden::mnDuplicaTramos:
      DuplicaTramos(c, ids);
      break;
    case Orden::mnBorraTramos:
      BorraTramos(c, ids);
      break;
    case Orden::mnSubeTramos:
      MueveTramos(c, ids, -1);
      break;
    case Orden::mnBajaTramos:
      MueveTramos(c, ids, 1);
      break;
    case Orden::mnRenumeraTramo:
      Renumera(c, padre);
      break;
    case Orden::mnRenumeraTodos:
      RenumeraTodos(c);
      break;
    case Orden::mnCopiaTramos:
      QApplication::clipboard()->setText(Q(CopiaTramos(c, ids)));
      break;
    case Orden::mnPegaTramos:
      Pega(c, padre);
      break;
    default:
      break;
  }
}

}  // namespace zorbin
