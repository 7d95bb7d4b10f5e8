#include "shell/piezas/mdTeclasRapidas.h"

#include <QAbstractButton>
#include <QHash>
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
  qsizetype lugar = -1;  // of its letter; none
};

// Who has each letter.
using Duenos = QHash<QChar, Rotulado*>;

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

void Toma(Rotulado& rotulado, qsizetype lugar, Duenos& duenos) {
  rotulado.lugar = lugar;
  duenos[rotulado.texto[lugar].toUpper()] = &rotulado;
}

// The first letter that nobody has.
bool TomaLibre(Rotulado& rotulado, Duenos& duenos, bool soloIniciales) {
  const auto& texto = rotulado.texto;
  for (qsizetype i = 0; i < texto.size(); ++i) {
    if (soloIniciales && !AbrePalabra(texto, i)) continue;
    if (!EsTecla(texto[i]) || duenos.contains(texto[i].toUpper())) continue;
    Toma(rotulado, i, duenos);
    return true;
  }
  return false;
}

// A letter whose owner can do with another one.
bool TomaCedida(Rotulado& rotulado, Duenos& duenos, QSet<QChar>& vistas) {
  for (qsizetype i = 0; i < rotulado.texto.size(); ++i) {
    const QChar letra = rotulado.texto[i].toUpper();
    if (!EsTecla(letra) || vistas.contains(letra)) continue;
    vistas.insert(letra);
    auto* dueno = duenos.value(letra);
    if (dueno != nullptr && !TomaCedida(*dueno, duenos, vistas)) continue;
    Toma(rotulado, i, duenos);
    return true;
  }
  return false;
}

void Reparte(std::vector<Rotulado>& rotulados, Duenos& duenos, bool piden) {
  std::vector<Rotulado*> quedan;
  for (auto& rotulado : rotulados) {
    if (!TomaLibre(rotulado, duenos, true)) quedan.push_back(&rotulado);
  }
  for (auto* rotulado : quedan) {
    QSet<QChar> vistas;
    if (!TomaLibre(*rotulado, duenos, false) && piden) TomaCedida(*rotulado, duenos, vistas);
  }
}

void Pon(const Rotulado& rotulado) {
  QString texto = rotulado.texto;
  if (rotulado.lugar >= 0) texto.insert(rotulado.lugar, '&');
  rotulado.pon(texto);
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
  Duenos duenos;
  Reparte(ordenes, duenos, true);
  Reparte(opciones, duenos, true);
  Reparte(etiquetas, duenos, false);
  for (const auto* grupo : {&ordenes, &opciones, &etiquetas}) {
    for (const auto& rotulado : *grupo) Pon(rotulado);
  }
}

}  // namespace zorbin
