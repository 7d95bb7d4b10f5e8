// The analysis of aggressive media as a person uses it.
#include <QCheckBox>
#include <QTextBrowser>

#include "base/textos.h"
#include "listados/calculadoras/mdHojasCalculadora.h"
#include "listados/calculadoras/mdMediosPapel.h"
#include "shell/calculadoras/Protecciones.h"
#include "shell/pantallaCalculadora.h"

namespace zorbin {
namespace {

using namespace prueba;

struct Puesto : Mesa {
  Puesto() { Abre(pantalla); }
  std::vector<int> pedidos;
  Protecciones pantalla{entorno, [this](int entrada) {
                          pedidos.push_back(entrada);
                          return QString("<p>Aguas <a href=\"file:///etc\">puras</a></p>");
                        }};
  Persona persona;

  QString Campo(int i) { return Pieza<QLineEdit>(pantalla, "txpH" + QString::number(i)).text(); }
  QString Resultado() { return Texto(pantalla, "edResultadoAgres"); }
};

ResultadoMedios Analisis(double pH, double suelo, bool ciclos) {
  MuestraMedios muestra;
  muestra.valor[kPH] = pH;
  muestra.valor[kSO4Suelo] = suelo;
  muestra.ciclos = ciclos;
  return AnalizaMedios(muestra);
}

TEST(PantallaMedios, DeLosCamposAlTexto) {
  Puesto p;
  EXPECT_EQ(EnFoco(p.pantalla), "txpH0");
  QTest::keyClicks(Foco(p.pantalla), "5.5");
  QStringList camino;
  for (int i = 0; i < 10; ++i) {
    QTest::keyClick(Foco(p.pantalla), Qt::Key_Tab);
    camino << EnFoco(p.pantalla);
    if (EnFoco(p.pantalla) == "txpH5") QTest::keyClicks(Foco(p.pantalla), "13000");
    if (EnFoco(p.pantalla) == "Check1") QTest::keyClick(Foco(p.pantalla), Qt::Key_Space);
  }
  EXPECT_EQ(camino.join(' '),
            "txpH1 txpH2 txpH3 txpH4 txpH8 txpH5 Check1 txpH6 txpH7 btVisualizar");
  QTest::keyClick(Foco(p.pantalla), Qt::Key_Return);
  EXPECT_EQ(p.Resultado(), Q(TextoMedios(Analisis(5.5, 13000, true), p.textos, {})));
  EXPECT_EQ(p.Campo(kSO4Suelo), "13000,00");
  EXPECT_TRUE(p.persona.cajas.empty());
  auto& atrasado = Pieza<QLabel>(p.pantalla, "lbAtrasado");
  EXPECT_FALSE(atrasado.isVisible());
  Pulsa(p.pantalla, "Check1");
  EXPECT_TRUE(atrasado.isVisible());
  Pulsa(p.pantalla, "btVisualizar");
  EXPECT_FALSE(atrasado.isVisible());
  EXPECT_EQ(p.Resultado(), Q(TextoMedios(Analisis(5.5, 13000, false), p.textos, {})));
}

TEST(PantallaMedios, SeImprimeLoQueSeAnaliza) {
  Puesto p;
  Teclea(p.pantalla, "txpH0", "");
  Teclea(p.pantalla, "txpH1", ",");
  EXPECT_EQ(p.Campo(kPH), "7,00");  // left empty, it took its default
  Pulsa(p.pantalla, "btImprimir");
  ASSERT_EQ(p.persona.cajas.size(), 1u);
  EXPECT_EQ(p.persona.cajas[0].titulo, "CO2 agresivo");
  EXPECT_EQ(p.persona.cajas[0].texto, "Seleccione un valor númerico");
  EXPECT_EQ(p.Campo(kCO2), "0,00");
  EXPECT_EQ(EnFoco(p.pantalla), "txpH1");
  EXPECT_EQ(p.Resultado(), "");
  EXPECT_TRUE(p.papel.nombres.empty());

  Pulsa(p.pantalla, "btImprimir");
  EXPECT_EQ(p.Resultado(), Q(TextoMedios(Analisis(7, 0, false), p.textos, {})));
  ASSERT_EQ(p.papel.hojas.size(), 1u);
  PapelGuardado esperado;
  EscribeCalculadora(
      esperado, p.papel.nombres[0].toStdString(), Ahora(), p.textos,
      [&p](Papel& papel) { PapelMedios(Analisis(7, 0, false), p.textos, {}, papel); });
  EXPECT_EQ(p.papel.hojas[0].textos.back().texto, esperado.hojas[0].textos.back().texto);
  EXPECT_EQ(p.papel.hojas[0].textos.size(), esperado.hojas[0].textos.size());
}

TEST(PantallaMedios, ElEjemploSeLeeYNoLleva) {
  Puesto p;
  auto& ejemplo = Pieza<QTextBrowser>(p.pantalla, "edEjemplo");
  EXPECT_EQ(p.pedidos, std::vector<int>{txt::DocAguasPuras});
  EXPECT_EQ(ejemplo.toPlainText(), "Aguas puras");
  EXPECT_FALSE(ejemplo.openLinks());
  Protecciones sinEjemplo(p.entorno, [](int) { return QString{}; });
  EXPECT_EQ(Pieza<QTextBrowser>(sinEjemplo, "edEjemplo").toPlainText(),
            "No se ha encontrado el archivo Aguaspuras_esp.rtf");
}

TEST(PantallaMedios, CambiaDeIdiomaAbierta) {
  Puesto p;
  Teclea(p.pantalla, "txpH3", "400");
  Pulsa(p.pantalla, "btVisualizar");
  for (const std::int16_t idioma : kOtrosIdiomas) {
    p.textos.PonIdioma(idioma);
    p.pantalla.RenuevaTextos();
    CompruebaTextos(p.pantalla, p.textos, {});
    Protecciones nueva(p.entorno, [](int) { return QString("Aguas puras"); });
    Abre(nueva);
    Teclea(nueva, "txpH3", "400");
    Pulsa(nueva, "btVisualizar");
    ComparaConRecienAbierta(p.pantalla, nueva);
  }
  EXPECT_EQ(p.Campo(kMg), "400,00");
}

}  // namespace
}  // namespace zorbin
