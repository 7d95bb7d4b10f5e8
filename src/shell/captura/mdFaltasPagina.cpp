#include "shell/captura/mdFaltasPagina.h"

#include <QLabel>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kMargen = 6;         // [px]
constexpr int kRenglones = 5;      // seen at once
constexpr std::size_t kMas = 200;  // beyond them only how many

QString Renglon(const Captura& c, const Falta& falta, std::size_t lugar) {
  const auto* tramo = Busca(c.version, falta.tramo);
  const std::string delante =
      tramo == nullptr ? std::string{} : c.textos.Compone(txt::DatoDelTramo, {tramo->numero});
  const std::string asunto =
      falta.titulo.empty() ? NombreDeCampo(c, falta.campo) : SinDosPuntos(falta.titulo);
  return QStringLiteral("✕ <a href=\"%1\">%2</a>: %3")
      .arg(lugar)
      .arg(Q(delante + asunto).toHtmlEscaped(), Q(falta.mensaje).toHtmlEscaped());
}

}  // namespace

FaltasPagina::FaltasPagina(QWidget* padre) : QScrollArea(padre), texto_(new QLabel(this)) {
  setObjectName(QStringLiteral("faltas"));
  setWidgetResizable(true);
  setWidget(texto_);
  texto_->setObjectName(QStringLiteral("lbFaltas"));
  texto_->setTextFormat(Qt::RichText);
  texto_->setWordWrap(true);
  texto_->setMargin(kMargen);
  texto_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  texto_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  connect(texto_, &QLabel::linkActivated, this, [this](const QString& enlace) {
    const auto lugar = enlace.toULongLong();
    if (lugar >= faltas_.size()) return;
    const Falta falta = faltas_[lugar];
    emit faltaPedida(falta);
  });
}

void FaltasPagina::Refresca(const Captura& c) {
  faltas_ = c.faltas;
  QStringList renglones;
  for (std::size_t i = 0; i < faltas_.size() && i < kMas; ++i) {
    renglones += Renglon(c, faltas_[i], i);
  }
  if (faltas_.size() > kMas) {
    renglones += Q(c.textos.Compone(txt::FallosDeMas, {std::to_string(faltas_.size() - kMas)}));
  }
  texto_->setText(renglones.join(QStringLiteral("<br>")));
  const auto vistos = std::min<qsizetype>(renglones.size(), kRenglones);
  setFixedHeight(static_cast<int>(vistos) * fontMetrics().lineSpacing() + 2 * kMargen +
                 2 * frameWidth() + 2);
  setVisible(!renglones.isEmpty());
}

}  // namespace zorbin
