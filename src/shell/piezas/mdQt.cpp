#include "shell/piezas/mdQt.h"

#include <QTextDocument>

namespace zorbin {

QString Consejo(const QString& texto) {
  if (!Qt::mightBeRichText(texto)) return texto;
  return "<span>" + texto.toHtmlEscaped().replace('\n', QStringLiteral("<br>")) + "</span>";
}

}  // namespace zorbin
