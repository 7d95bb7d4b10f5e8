#include <gtest/gtest.h>
#include <QVBoxLayout>

#include "shell/entornoPrueba.h"
#include "shell/piezas/mdVigilanteFoco.h"

namespace zorbin {
namespace {

// Two fields; the first may be left only when it holds "1".
struct DosCampos {
  DosCampos() {
    auto* filas = new QVBoxLayout(&pantalla);
    for (auto* w : {&uno, &dos, &tres}) filas->addWidget(w);
    for (auto* w : {&uno, &dos, &tres}) vigilante.Vigila(*w);
    pantalla.show();
    pantalla.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&pantalla));
    uno.setFocus();
  }
  QWidget pantalla;
  QLineEdit uno, dos, tres;
  std::vector<QWidget*> entradas;
  VigilanteFoco vigilante{pantalla,
                          {[this](QWidget* w) -> QWidget* {
                             entradas.push_back(w);
                             return nullptr;
                           },
                           [this](QWidget* w) -> QWidget* {
                             if (w != &uno || uno.text() == "1") return nullptr;
                             return &uno;
                           }}};
};

TEST(VigilanteFoco, UnCampoQueSeNiegaConservaElFoco) {
  DosCampos d;
  QTest::keyClick(&d.uno, Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &d.uno);
  d.tres.setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(QApplication::focusWidget(), &d.uno);
  QTest::keyClicks(&d.uno, "1");
  QTest::keyClick(&d.uno, Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), &d.dos);
  EXPECT_EQ(d.entradas, (std::vector<QWidget*>{&d.uno, &d.dos}));
}

TEST(VigilanteFoco, LaReglaPuedeAbrirElCampoSiguiente) {
  DosCampos d;
  d.dos.setEnabled(false);
  QObject::connect(&d.uno, &QLineEdit::textChanged, [] {});
  VigilanteFoco otro(d.pantalla, {[](QWidget*) -> QWidget* { return nullptr; },
                                  [&d](QWidget* w) -> QWidget* {
                                    if (w == &d.uno) d.dos.setEnabled(true);
                                    return nullptr;
                                  }});
  otro.Vigila(d.uno);
  otro.VaA(d.uno);
  d.uno.setText("1");
  QTest::keyClick(&d.uno, Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &d.dos);
}

}  // namespace
}  // namespace zorbin
