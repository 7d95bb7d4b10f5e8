#include "shell/ajustes/mdPiezasAjustes.h"

#include <QLabel>
#include <QLineEdit>

namespace zorbin {

QLabel* Etiqueta(const QString& nombre, QWidget* padre, bool numero) {
  auto* etiqueta = new QLabel(padre);
  etiqueta->setObjectName(nombre);
  etiqueta->setTextFormat(Qt::PlainText);
  if (numero) etiqueta->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return etiqueta;
}

QLabel* EnVariasLineas(QLabel* etiqueta) {
  etiqueta->setWordWrap(true);
  return etiqueta;
}

void EnNegrita(QLabel& etiqueta, bool negrita) {
  auto letra = etiqueta.font();
  letra.setBold(negrita);
  etiqueta.setFont(letra);
}

void Abre(QLineEdit& campo, bool abierto) {
  campo.setReadOnly(!abierto);
  campo.setFocusPolicy(abierto ? Qt::StrongFocus : Qt::ClickFocus);
  auto paleta = QPalette();
  if (!abierto) paleta.setColor(QPalette::Base, campo.window()->palette().color(QPalette::Window));
  campo.setPalette(paleta);
}

QLineEdit* Valor(const QString& nombre, QWidget* padre) {
  auto* valor = new QLineEdit(padre);
  valor->setObjectName(nombre);
  valor->setAlignment(Qt::AlignRight);
  valor->setFixedWidth(valor->fontMetrics().horizontalAdvance('0') * kCifrasCaso +
                       valor->sizeHint().height() / 2);
  Abre(*valor, false);
  valor->setFocusPolicy(Qt::StrongFocus);
  return valor;
}

}  // namespace zorbin
