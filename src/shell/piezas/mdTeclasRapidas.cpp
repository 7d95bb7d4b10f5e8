#include "shell/piezas/mdTeclasRapidas.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QWidget>
#include <functional>
#include <vector>

namespace zorbin {

namespace {

struct Rotulado {
  QString texto;  // without its mark
  std::function<void(const QString&)> pon;
};

QString SinMarca(QString texto) {
  // A doubled mark is the sign itself.
  for (qsizetype i = texto.indexOf('&'); i >= 0; i = texto.indexOf('&', i)) {
    if (texto.mid(i, 2) == "&&") {
      i += 2;
    } else {
      texto.remove(i, 1);
    }
  }
  return texto;
}

// Letters that every keyboard has.
bool EsTecla(QChar c) {
  return c.unicode() < 128 && c.isLetterOrNumber();
}

bool AbrePalabra(const QString& texto, qsizetype i) {
  return i == 0 || !texto[i - 1].isLetterOrNumber();
}

// Place of the first letter that nobody has; -1 when there is none.
qsizetype Libre(const QString& texto, const QSet<QChar>& dadas, bool soloIniciales) {
  for (qsizetype i = 0; i < texto.size(); ++i) {
    if (soloIniciales && !AbrePalabra(texto, i)) continue;
    if (EsTecla(texto[i]) && !dadas.contains(texto[i].toUpper())) return i;
  }
  return -1;
}

bool Marca(const Rotulado& rotulado, QSet<QChar>& dadas, bool soloIniciales) {
  const auto lugar = Libre(rotulado.texto, dadas, soloIniciales);
  if (lugar < 0) return false;
  dadas.insert(rotulado.texto[lugar].toUpper());
  rotulado.pon(QString(rotulado.texto).insert(lugar, '&'));
  return true;
}

void Reparte(const std::vector<Rotulado>& rotulados, QSet<QChar>& dadas) {
  std::vector<const Rotulado*> quedan;
  for (const auto& rotulado : rotulados) {
    if (!Marca(rotulado, dadas, true)) quedan.push_back(&rotulado);
  }
  for (const auto* rotulado : quedan) {
    if (!Marca(*rotulado, dadas, false)) rotulado->pon(rotulado->texto);
  }
}

}  // namespace

void ReparteTeclas(QWidget& pantalla) {
  std::vector<Rotulado> ordenes, opciones, etiquetas;
  for (auto* boton : pantalla.findChildren<QAbstractButton*>()) {
    if (boton->text().isEmpty()) continue;
    auto& grupo = qobject_cast<QPushButton*>(boton) != nullptr ? ordenes : opciones;
    grupo.push_back(
        {SinMarca(boton->text()), [boton](const QString& texto) { boton->setText(texto); }});
  }
  for (auto* etiqueta : pantalla.findChildren<QLabel*>()) {
    if (etiqueta->buddy() == nullptr) continue;
    etiquetas.push_back({SinMarca(etiqueta->text()),
                         [etiqueta](const QString& texto) { etiqueta->setText(texto); }});
  }
  QSet<QChar> dadas;
  for (const auto* grupo : {&ordenes, &opciones, &etiquetas}) Reparte(*grupo, dadas);
}

}  // namespace zorbin
