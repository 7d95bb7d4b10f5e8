#include "shell/captura/mdAvisosPagina.h"

#include "base/textos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kMargen = 6;  // [px]

// Its remedy, where it has one, is a link that says which notice it belongs to.
QString Renglon(const AvisoDeCampo& aviso, std::size_t lugar) {
  const QString texto = QStringLiteral("⚠ ") + Q(aviso.texto).toHtmlEscaped();
  if (aviso.remedio.empty()) return texto;
  return texto +
         QStringLiteral(" <a href=\"%1\">%2</a>").arg(lugar).arg(Q(aviso.boton).toHtmlEscaped());
}

}  // namespace

AvisosPagina::AvisosPagina(QWidget* padre) : QLabel(padre) {
  setObjectName(QStringLiteral("lbAvisosPagina"));
  setTextFormat(Qt::RichText);
  setWordWrap(true);
  setMargin(kMargen);
  setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
  setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  connect(this, &QLabel::linkActivated, this, [this](const QString& enlace) {
    const auto lugar = enlace.toULongLong();
    if (lugar >= avisos_.size()) return;
    const AvisoDeCampo aviso = avisos_[lugar];
    emit remedioPedido(aviso);
  });
}

void AvisosPagina::Refresca(const Captura& c) {
  avisos_ = AvisosDelante(c.pantalla);
  QStringList renglones;
  for (std::size_t i = 0; i < avisos_.size(); ++i) renglones += Renglon(avisos_[i], i);
  setText(renglones.join(QStringLiteral("<br>")));
  setVisible(!renglones.isEmpty());
}

}  // namespace zorbin
