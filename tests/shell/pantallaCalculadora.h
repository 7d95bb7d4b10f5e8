// What the tests of the two calculators share: a window before a person, and what it shows.
#pragma once

#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSet>
#include <array>
#include <cstdint>

#include "shell/entornoPrueba.h"

namespace zorbin::prueba {

/// The languages, Spanish again at the end.
inline constexpr std::array<std::int16_t, 5> kOtrosIdiomas{2, 3, 4, 5, 1};

template <class T>
T& Pieza(QWidget& pantalla, const QString& nombre) {
  auto* pieza = pantalla.findChild<T*>(nombre);
  if (pieza == nullptr) throw std::runtime_error("falta " + nombre.toStdString());
  return *pieza;
}

inline void Activa(QWidget& pantalla) {
  pantalla.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&pantalla));
}

inline void Abre(QWidget& pantalla) {
  pantalla.show();
  Activa(pantalla);
}

/// The widget with the focus of the window. Without a window manager a box that closes leaves no
/// window active.
inline QWidget* Foco(QWidget& pantalla) {
  if (!pantalla.isActiveWindow()) Activa(pantalla);
  return pantalla.focusWidget();
}

inline QString EnFoco(QWidget& pantalla) {
  return Foco(pantalla)->objectName();
}

inline void Pulsa(QWidget& pantalla, const QString& boton) {
  auto& pieza = Pieza<QAbstractButton>(pantalla, boton);
  // On its mark or its first letters: beside a caption there is nothing to press.
  QTest::mouseClick(&pieza, Qt::LeftButton, {}, {12, pieza.height() / 2});
}

inline void Teclea(QWidget& pantalla, const QString& campo, const QString& teclas) {
  if (!pantalla.isActiveWindow()) Activa(pantalla);
  auto& casilla = Pieza<QLineEdit>(pantalla, campo);
  QTest::mouseClick(&casilla, Qt::LeftButton);
  casilla.selectAll();
  QTest::keyClick(&casilla, Qt::Key_Delete);
  QTest::keyClicks(&casilla, teclas);
}

inline QString Texto(QWidget& pantalla, const QString& area) {
  return Pieza<QPlainTextEdit>(pantalla, area).toPlainText();
}

inline QString SinMarcas(QString texto) {
  return texto.remove('&').replace('\n', ' ').trimmed();
}

/// Every text in sight is the catalogue's in its language, except those given; none is cut, and no
/// two have the same key.
inline void CompruebaTextos(const QWidget& pantalla, const Catalogo& catalogo,
                            const QSet<QString>& compuestos) {
  QSet<QString> buenos;
  for (int n = 101; n < 1300; ++n) {
    if (catalogo.Existe(n)) buenos.insert(SinMarcas(Q(catalogo.Texto(n))));
  }
  QSet<QChar> teclas;
  for (const auto& [widget, texto] : TextosALaVista(pantalla)) {
    const std::string donde = S(widget->objectName()) + ": " + S(texto);
    EXPECT_TRUE(compuestos.contains(texto) || buenos.contains(SinMarcas(texto))) << donde;
    const auto* etiqueta = qobject_cast<const QLabel*>(widget);
    if (widget != &pantalla && (etiqueta == nullptr || !etiqueta->wordWrap())) {
      // A frame holds pieces that may be narrower than they would like; its title may not.
      const bool marco = qobject_cast<const QGroupBox*>(widget) != nullptr;
      EXPECT_LE((marco ? widget->minimumSizeHint() : widget->sizeHint()).width(), widget->width())
          << donde;
      EXPECT_EQ(widget->visibleRegion().boundingRect().width(), widget->width()) << donde;
    }
    const auto marca = texto.indexOf('&');
    if (marca >= 0) {
      EXPECT_FALSE(teclas.contains(texto[marca + 1].toUpper())) << donde;
      teclas.insert(texto[marca + 1].toUpper());
    }
    EXPECT_TRUE(marca >= 0 || qobject_cast<const QAbstractButton*>(widget) == nullptr) << donde;
  }
}

/// Every text of a window whose language changed, also tips and names for a reader of the screen,
/// is that of a window opened in the language.
inline void ComparaConRecienAbierta(const QWidget& pantalla, const QWidget& nueva) {
  for (const auto* w : nueva.findChildren<QWidget*>()) {
    if (w->objectName().isEmpty() || w->objectName().startsWith("qt_")) continue;
    const auto* otro = pantalla.findChild<QWidget*>(w->objectName());
    ASSERT_NE(otro, nullptr) << S(w->objectName());
    for (const char* que :
         {"text", "title", "toolTip", "accessibleName", "placeholderText", "plainText"}) {
      EXPECT_EQ(otro->property(que).toString(), w->property(que).toString())
          << S(w->objectName()) << ' ' << que;
    }
  }
}

}  // namespace zorbin::prueba
