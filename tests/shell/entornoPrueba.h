// A desk for the tests of the screens: catalogue, tables, settings in a folder of their own, a
// printer that keeps its sheets, and a person who answers the boxes.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "base/mdCatalogo.h"
#include "persistencia/tablas/mdTablas.h"
#include "shell/piezas/mdEntorno.h"
#include "shell/piezas/mdQt.h"

// A failed comparison shows the text, not its bytes.
inline void PrintTo(const QString& texto, std::ostream* salida) {
  *salida << '"' << texto.toStdString() << '"';
}

namespace zorbin::prueba {

/// Keeps what is printed.
class PapelGuardado : public ServicioImpresion, public DestinoHojas {
 public:
  bool Imprime(QWidget*, const QString& nombre, const Documento& documento) override {
    nombres.push_back(nombre);
    documento(*this);
    return sale;
  }
  void VistaPrevia(QWidget*, const QString&, const Documento& documento) override {
    documento(*this);
    ++vistas;
  }
  void RecibeHoja(const Hoja& hoja) override { hojas.push_back(hoja); }

  bool sale = true;
  int vistas = 0;
  std::vector<QString> nombres;
  std::vector<Hoja> hojas;
};

struct Mesa {
  Mesa()
      : textos(Catalogo::Lee(ZORBIN_FUENTES "recursos/textos")),
        tablas(LeeTablas(ZORBIN_FUENTES "recursos/tablas")),
        preferencias(carpeta.filePath("usuario.ini"), carpeta.filePath("maquina.ini")),
        entorno{textos, tablas, preferencias, papel} {
    preferencias.PonUltimaCarpeta(carpeta.path());
  }

  QTemporaryDir carpeta;
  Catalogo textos;
  TablasCatalogo tablas;
  Preferencias preferencias;
  PapelGuardado papel;
  Entorno entorno;

  QString Tx(int n) const { return Q(textos.Texto(n)); }
};

/// A text in sight, and what shows it.
struct TextoVisto {
  const QWidget* widget;
  QString texto;
};

/// The title of a window and the texts of its labels, buttons, frames, pages and menus.
inline std::vector<TextoVisto> TextosALaVista(const QWidget& ventana) {
  std::vector<TextoVisto> vistos{{&ventana, ventana.windowTitle()}};
  for (const auto* w : ventana.findChildren<QWidget*>()) {
    if (!w->isVisible()) continue;
    const auto anade = [&](const QString& texto) {
      if (!texto.isEmpty()) vistos.push_back({w, texto});
    };
    if (const auto* r = qobject_cast<const QLabel*>(w)) anade(r->text());
    if (const auto* b = qobject_cast<const QAbstractButton*>(w)) anade(b->text());
    if (const auto* g = qobject_cast<const QGroupBox*>(w)) anade(g->title());
    if (const auto* t = qobject_cast<const QTabBar*>(w)) {
      for (int i = 0; i < t->count(); ++i) anade(t->tabText(i));
    }
    if (const auto* m = qobject_cast<const QMenuBar*>(w)) {
      for (auto* menu : m->actions()) {
        anade(menu->text());
        for (auto* entrada : menu->menu()->actions()) anade(entrada->text());
      }
    }
  }
  return vistos;
}

/// Answers the message boxes that an action opens, and keeps what they said. Without an answer left
/// it says Yes.
class Persona : public QObject {
 public:
  Persona() {
    reloj_.setInterval(5);
    connect(&reloj_, &QTimer::timeout, this, [this] { Mira(); });
    reloj_.start();
  }

  struct Caja {
    QString titulo;
    QString texto;
    bool literal;  // its text is no rich text
  };
  std::vector<Caja> cajas;
  std::vector<bool> respuestas;  // Yes or No of the questions to come, in order
  std::vector<int> alCerrar;     // Save 0, Discard 1, Cancel 2; without an answer left, Cancel
  QString fichero;               // chosen in a file dialog; empty: given up
  QStringList ficheros;          // chosen in the next ones, before that
  QStringList propuestos;        // names that the dialogs came with
  int dialogos = 0;              // file dialogs answered

  QString Ultima() const { return cajas.empty() ? QString{} : cajas.back().texto; }

 private:
  QTimer reloj_;

  // The dialog's own checks of a name are left out: they wait for it to read its folder.
  void Contesta(QFileDialog& dialogo) {
    ++dialogos;
    propuestos += dialogo.selectedFiles();
    const QString elegido = ficheros.isEmpty() ? fichero : ficheros.takeFirst();
    if (elegido.isEmpty()) return dialogo.reject();
    dialogo.findChild<QLineEdit*>("fileNameEdit")->setText(elegido);
    static_cast<QDialog&>(dialogo).done(QDialog::Accepted);
  }

  void Mira() {
    if (auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
      Contesta(*dialogo);
      return;
    }
    auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (caja == nullptr || !caja->isVisible()) return;
    cajas.push_back({caja->windowTitle(), caja->text(), caja->textFormat() == Qt::PlainText});
    const auto botones = caja->buttons();
    QAbstractButton* elegido = botones.first();
    if (botones.size() == 2) {
      bool si = true;
      if (!respuestas.empty()) {
        si = respuestas.front();
        respuestas.erase(respuestas.begin());
      }
      for (auto* b : botones) {
        const bool esSi = caja->buttonRole(b) == QMessageBox::YesRole;
        if (esSi == si) elegido = b;
      }
    }
    if (botones.size() == 3) {
      constexpr std::array kPapeles{QMessageBox::AcceptRole, QMessageBox::DestructiveRole,
                                    QMessageBox::RejectRole};
      const int respuesta = alCerrar.empty() ? 2 : alCerrar.front();
      if (!alCerrar.empty()) alCerrar.erase(alCerrar.begin());
      for (auto* b : botones) {
        if (caja->buttonRole(b) == kPapeles[static_cast<std::size_t>(respuesta)]) elegido = b;
      }
    }
    elegido->click();
  }
};

}  // namespace zorbin::prueba
