// The hydraulic calculator as a person uses it.
#include "shell/calculadoras/CalculoHidraulico.h"

#include <QClipboard>
#include <QRadioButton>

#include "base/textos.h"
#include "listados/calculadoras/mdHidraulicaListado.h"
#include "listados/calculadoras/mdHidraulicaPapel.h"
#include "listados/calculadoras/mdHojasCalculadora.h"
#include "shell/pantallaCalculadora.h"

namespace zorbin {
namespace {

using namespace prueba;

struct Puesto : Mesa {
  Puesto() { Abre(pantalla); }
  CalculoHidraulico pantalla{entorno};
  Persona persona;

  QString Campo(const QString& nombre) { return Pieza<QLineEdit>(pantalla, nombre).text(); }
  bool Imprimible() { return Pieza<QPushButton>(pantalla, "btImprimir").isEnabled(); }
  bool Atrasado() { return Pieza<QLabel>(pantalla, "lbAtrasado").isVisible(); }
  QString Tabla(const ResultadoHidraulico& r) { return Q(TextoHidraulico(r, textos, {})); }
};

TEST(PantallaHidraulica, DelDatoALaTablaSinRaton) {
  Puesto p;
  EXPECT_EQ(EnFoco(p.pantalla), "txDatoOrigen");
  QTest::keyClicks(Foco(p.pantalla), "0.0025");
  QTest::keyClick(Foco(p.pantalla), Qt::Key_Tab);
  EXPECT_EQ(p.Campo("txDatoOrigen"), "0,003");  // the mask; the number keeps its decimals
  EXPECT_EQ(EnFoco(p.pantalla), "txRugosidad");
  QTest::keyClicks(Foco(p.pantalla), "0,1");         // the content was selected
  QTest::keyClick(Foco(p.pantalla), Qt::Key_Enter);  // the default button
  EXPECT_EQ(Texto(p.pantalla, "edPantallaCh"), p.Tabla(DarcyWeiss_Pendiente(0.0025, 0.1)));
  EXPECT_TRUE(p.persona.cajas.empty());

  auto& area = Pieza<QPlainTextEdit>(p.pantalla, "edPantallaCh");
  QTest::keyClick(&area, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&area, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), area.toPlainText());
  EXPECT_TRUE(area.isReadOnly());
}

TEST(PantallaHidraulica, CalculaConLaTeclaDelBotonSinDejarElCampo) {
  Puesto p;
  QTest::keyClicks(Foco(p.pantalla), "0,5");
  QTest::keyClick(Foco(p.pantalla), Qt::Key_C, Qt::AltModifier);
  QTest::qWait(150);  // the button is seen going down
  EXPECT_EQ(Texto(p.pantalla, "edPantallaCh"), p.Tabla(DarcyWeiss_Pendiente(0.5, 0.05)));
  ASSERT_EQ(EnFoco(p.pantalla), "txDatoOrigen");
  QTest::keyClicks(Foco(p.pantalla), "0,00001");  // the field is in hand again
  QTest::keyClick(Foco(p.pantalla), Qt::Key_Tab);
  EXPECT_EQ(p.persona.cajas.size(), 1u);
  EXPECT_EQ(EnFoco(p.pantalla), "txDatoOrigen");
}

TEST(PantallaHidraulica, ElRatonQueEntraEnUnCampoSeleccionaTodo) {
  Puesto p;
  auto& campo = Pieza<QLineEdit>(p.pantalla, "txRugosidad");
  const auto sitio = campo.mapTo(&p.pantalla, QPoint(campo.width() / 2, campo.height() / 2));
  QTest::mousePress(p.pantalla.windowHandle(), Qt::LeftButton, {}, sitio);
  QTest::qWait(10);
  QTest::mouseRelease(p.pantalla.windowHandle(), Qt::LeftButton, {}, sitio);
  EXPECT_EQ(campo.selectedText(), "0,050");
  QTest::keyClicks(&campo, "0,2");
  EXPECT_EQ(campo.text(), "0,2");
  // Within the field the mouse places the cursor.
  QTest::mouseClick(p.pantalla.windowHandle(), Qt::LeftButton, {}, sitio);
  QTest::qWait(10);
  EXPECT_FALSE(campo.hasSelectedText());
}

TEST(PantallaHidraulica, OtroMetodoGuardaElDatoYPoneSuRugosidad) {
  Puesto p;
  Teclea(p.pantalla, "txDatoOrigen", "0,002");
  Teclea(p.pantalla, "txRugosidad", "0,3");
  Pulsa(p.pantalla, "btCalcular");
  EXPECT_TRUE(p.Imprimible());
  Pulsa(p.pantalla, "rdTipoCalculo2");
  EXPECT_EQ(p.Campo("txDatoOrigen"), "0,002");
  EXPECT_EQ(p.Campo("txRugosidad"), "0");
  EXPECT_EQ(SinMarcas(Pieza<QLabel>(p.pantalla, "lbRugosidad").text()), p.Tx(txt::CoeficienteCwh));
  EXPECT_EQ(Pieza<QLabel>(p.pantalla, "lbNota").text(), p.Tx(txt::ReglaCwh));
  EXPECT_EQ(Pieza<QLabel>(p.pantalla, "lbTextoAyuda").text(), p.Tx(txt::AyudaHazen));
  EXPECT_FALSE(p.Imprimible());
  EXPECT_TRUE(p.Atrasado());  // the table in sight is still that of the other method
  Pulsa(p.pantalla, "btCalcular");
  EXPECT_EQ(Texto(p.pantalla, "edPantallaCh"), p.Tabla(Hazen_Pendiente(0.002, 0)));
  EXPECT_FALSE(p.Atrasado());
  Pulsa(p.pantalla, "rdTipoDato1");
  EXPECT_EQ(p.Campo("txDatoOrigen"), "");
  EXPECT_EQ(SinMarcas(Pieza<QLabel>(p.pantalla, "lbDatoOrigen").text()), p.Tx(txt::CaudalM3PorSeg));
}

TEST(PantallaHidraulica, LoQueNoSirveSeRechazaUnaVezConSuTexto) {
  Puesto p;
  Pulsa(p.pantalla, "btCalcular");
  ASSERT_EQ(p.persona.cajas.size(), 1u);
  EXPECT_EQ(p.persona.cajas[0].titulo, "Error");
  EXPECT_EQ(p.persona.Ultima(), "Debe capturar un valor para Pendiente (m/m)");
  EXPECT_EQ(EnFoco(p.pantalla), "txDatoOrigen");

  Teclea(p.pantalla, "txDatoOrigen", "0,00001");
  Pulsa(p.pantalla, "btCalcular");
  ASSERT_EQ(p.persona.cajas.size(), 2u);
  EXPECT_EQ(p.persona.cajas[1].titulo, "Pendiente (m/m)");
  EXPECT_EQ(p.persona.Ultima(), "Valor incorrecto");
  EXPECT_EQ(p.Campo("txDatoOrigen"), "");
  EXPECT_EQ(EnFoco(p.pantalla), "txDatoOrigen");

  QApplication::clipboard()->setText("1.234,5");
  QTest::keyClick(Foco(p.pantalla), Qt::Key_V, Qt::ControlModifier);
  QTest::keyClick(Foco(p.pantalla), Qt::Key_Tab);
  ASSERT_EQ(p.persona.cajas.size(), 3u);
  EXPECT_TRUE(p.persona.Ultima().contains("«1.234,5»"));

  Teclea(p.pantalla, "txDatoOrigen", "0,001");
  Teclea(p.pantalla, "txRugosidad", "3000");
  Pulsa(p.pantalla, "rdTipoCalculo1");  // an option that is already chosen changes nothing
  Pulsa(p.pantalla, "btCalcular");
  EXPECT_TRUE(p.persona.Ultima().contains("demasiado grande"));
  EXPECT_EQ(EnFoco(p.pantalla), "txRugosidad");
  EXPECT_EQ(Texto(p.pantalla, "edPantallaCh"), "");
}

TEST(PantallaHidraulica, SeCierraSinRechazosYSeAbreEnSuSitioConSusDefectos) {
  Puesto p;
  Teclea(p.pantalla, "txDatoOrigen", "0,00001");
  Pulsa(p.pantalla, "rdTipoCalculo0");
  p.pantalla.resize(p.pantalla.size() + QSize(31, 17));
  const QSize ancha = p.pantalla.size();
  Pulsa(p.pantalla, "btCerrar");
  EXPECT_FALSE(p.pantalla.isVisible());
  EXPECT_TRUE(p.persona.cajas.empty());

  CalculoHidraulico otra(p.entorno);
  Abre(otra);
  EXPECT_EQ(otra.size(), ancha);
  EXPECT_TRUE(Pieza<QRadioButton>(otra, "rdTipoCalculo1").isChecked());
  QTest::keyClicks(Foco(otra), "0,00001");
  QTest::keyClick(Foco(otra), Qt::Key_Escape);
  EXPECT_FALSE(otra.isVisible());
  EXPECT_TRUE(p.persona.cajas.empty());
}

TEST(PantallaHidraulica, SeImprimeLaTablaDeLosDatosALaVista) {
  Puesto p;
  Pulsa(p.pantalla, "btImprimir");
  EXPECT_TRUE(p.papel.nombres.empty());
  Pulsa(p.pantalla, "rdTipoDato1");
  Teclea(p.pantalla, "txDatoOrigen", "0,5");
  Pulsa(p.pantalla, "btCalcular");
  Pulsa(p.pantalla, "btImprimir");
  ASSERT_EQ(p.papel.nombres.size(), 1u);
  EXPECT_EQ(p.papel.nombres[0], "Cálculo hidráulico");
  PapelGuardado esperado;
  EscribeCalculadora(
      esperado, p.papel.nombres[0].toStdString(), Ahora(), p.textos,
      [&p](Papel& papel) { PapelHidraulico(DarcyWeiss_Caudal(0.5, 0.05), p.textos, {}, papel); });
  ASSERT_EQ(p.papel.hojas.size(), esperado.hojas.size());
  ASSERT_EQ(p.papel.hojas[0].textos.size(), esperado.hojas[0].textos.size());
  EXPECT_EQ(p.papel.hojas[0].textos.back().texto, esperado.hojas[0].textos.back().texto);
  Teclea(p.pantalla, "txDatoOrigen", "0,6");
  EXPECT_FALSE(p.Imprimible());
}

TEST(PantallaHidraulica, LaAyudaAbreSuPagina) {
  Mesa mesa;
  QStringList anclas;
  mesa.entorno.ayuda = [&anclas](const QString& ancla) { anclas << ancla; };
  CalculoHidraulico pantalla(mesa.entorno);
  Abre(pantalla);
  QTest::keyClick(Foco(pantalla), Qt::Key_F1);
  EXPECT_EQ(anclas, QStringList{"hidraulica"});
}

TEST(PantallaHidraulica, CambiaDeIdiomaAbierta) {
  Puesto p;
  for (const std::int16_t idioma : kOtrosIdiomas) {
    p.textos.PonIdioma(idioma);
    for (const char* metodo : {"rdTipoCalculo0", "rdTipoCalculo2", "rdTipoCalculo1"}) {
      p.pantalla.RenuevaTextos();
      Pulsa(p.pantalla, metodo);
      CompruebaTextos(p.pantalla, p.textos,
                      {"(0,060)", "(0,050)", Pieza<QLabel>(p.pantalla, "lbTextoAyuda").text()});
    }
    CalculoHidraulico nueva(p.entorno);
    ComparaConRecienAbierta(p.pantalla, nueva);
  }
  Teclea(p.pantalla, "txDatoOrigen", "0,002");
  Pulsa(p.pantalla, "btCalcular");
  p.textos.PonIdioma(5);
  p.pantalla.RenuevaTextos();
  EXPECT_EQ(p.Campo("txDatoOrigen"), "0,002");
  EXPECT_EQ(Texto(p.pantalla, "edPantallaCh"), p.Tabla(DarcyWeiss_Pendiente(0.002, 0.05)));
}

}  // namespace
}  // namespace zorbin
