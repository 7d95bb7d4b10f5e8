#include <gtest/gtest.h>
#include <QSignalSpy>
#include <QVBoxLayout>

#include "shell/entornoPrueba.h"
#include "shell/piezas/mdCasillaNumero.h"
#include "shell/piezas/mdVigilanteFoco.h"

namespace zorbin {
namespace {

TEST(CasillaNumero, EntiendeLosDosSeparadores) {
  CasillaNumero casilla(',', true);
  QTest::keyClicks(&casilla, "12.3");
  EXPECT_EQ(casilla.text(), "12,3");
  QTest::keyClicks(&casilla, ",4-e5");
  EXPECT_EQ(casilla.text(), "12,345");
  casilla.clear();
  casilla.insert(" 12.3\n");
  EXPECT_EQ(casilla.text(), "12,3");
}

TEST(CasillaNumero, RechazaLosMillaresPegados) {
  CasillaNumero casilla(',', true);
  casilla.setText("7654321");
  QSignalSpy rechazos(&casilla, &CasillaNumero::pegadoRechazado);
  for (const char* texto : {"1.234,5", "1,234.5", "12 345", "1.234.567", "12,3 m"}) {
    casilla.selectAll();
    casilla.insert(texto);
    EXPECT_EQ(casilla.text(), "7654321") << texto;
  }
  QTest::qWait(10);
  EXPECT_EQ(rechazos.size(), 5);
}

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
