// The design beside the data, and the screen of results, in the whole program.
#include <gtest/gtest.h>
#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QTableView>
#include <QTreeWidget>
#include <set>

#include "base/textos.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "comun/estadoDeJson.h"
#include "listados/dibujos/mdDibujoMapa.h"
#include "programas/zorbin/mdPrograma.h"
#include "sesion/captura/mdTramos.h"
#include "shell/captura/CapturaDatos.h"
#include "shell/captura/mdPanelTramos.h"
#include "shell/dibujos/mdVistaLamina.h"
#include "shell/enPantalla.h"
#include "shell/entornoPrueba.h"
#include "shell/resultados/frDiseno.h"
#include "shell/resultados/frHojaFabricacion.h"
#include "shell/resultados/frResultados.h"
#include "shell/resultados/mdMarcoDiseno.h"
#include "shell/resultados/mdModeloCasos.h"
#include "shell/resultados/mdVariosTramos.h"

namespace zorbin::prueba {
namespace {

struct Resultados : testing::Test {
  QTemporaryDir carpeta;
  Persona persona;
  std::unique_ptr<Programa> programa;
  PanelDiseno* panel = nullptr;

  void SetUp() override {
    const QString obra = carpeta.filePath("acequia.zrb");
    ASSERT_TRUE(QFile::copy(ZORBIN_FUENTES "muestras/acequia.zrb", obra));
    programa = std::make_unique<Programa>(
        std::make_unique<Preferencias>(carpeta.filePath("u.ini"), carpeta.filePath("m.ini")));
    persona.cajas.clear();
    ventana().resize(1600, 900);
    ventana().show();
    ASSERT_TRUE(ventana().Abre(obra));
    panel = ventana().findChild<PanelDiseno*>();
    ASSERT_NE(panel, nullptr);
    Toma(0);
  }
  void TearDown() override {
    persona.respuestas = {false, false, false};
    programa.reset();
  }
  FormaPrincipal& ventana() { return programa->ventana(); }
  Captura& c() { return programa->captura(); }
  void Hace(const std::function<void()>& que) { ventana().captura().Hace(que); }
  void Toma(std::size_t lugar) {
    Hace([&] { PonEnMano(c(), c().version.tramos[lugar]->id); });
    Llega();
  }
  // What was asked for has been calculated and shown.
  void Llega() {
    panel->Espera();
    QApplication::processEvents();
  }
  double Mostrado() const { return panel->mostrado()->caso->fila.Total; }
  void PonEspesor(double cm) {
    Hace([&] { c().e.tramo.Esp = cm; });
  }
  void Pincha(VistaLamina& vista, Xy sitio) {
    QPointF p(vista.width() / 2.0, vista.height() / 2.0);
    // By steps towards the place: the view alone knows its scale.
    for (int i = 0; i < 8; ++i) {
      const Xy en = vista.EnHoja(p), otro = vista.EnHoja(p + QPointF(1, 1));
      p += QPointF((sitio.x - en.x) / (otro.x - en.x), (sitio.y - en.y) / (otro.y - en.y));
    }
    QTest::mouseClick(&vista, Qt::LeftButton, {}, p.toPoint());
  }
};

TEST_F(Resultados, ElDisenoSigueALosDatosYElUltimoValidoQuedaAtrasado) {
  ASSERT_TRUE(panel->mostrado());
  const double antes = Mostrado();
  const double espesor = c().e.tramo.Esp;
  for (int i = 1; i <= 40; ++i) PonEspesor(espesor + 0.1 * i);
  PonEspesor(espesor + 2.0);
  Llega();
  EXPECT_DOUBLE_EQ(panel->mostrado()->caso->Dibujado().Datos().Esp, (espesor + 2.0) / 100.0);
  const double ahora = Mostrado();
  EXPECT_NE(ahora, antes);
  EXPECT_FALSE(panel->Atrasado());

  PonEspesor(0.0);
  Llega();
  EXPECT_TRUE(panel->Atrasado());
  EXPECT_DOUBLE_EQ(Mostrado(), ahora) << "the last one stays in sight";
  EXPECT_GT(panel->reparo().size(), 60) << S(panel->reparo());
  EXPECT_TRUE(panel->mapa().Atrasada());

  PonEspesor(espesor);
  Llega();
  EXPECT_FALSE(panel->Atrasado());
  EXPECT_TRUE(panel->reparo().isEmpty());
  EXPECT_DOUBLE_EQ(Mostrado(), antes);

  Toma(5);
  EXPECT_FALSE(panel->mostrado()->caso->caso.EsArmado());
  ventana().accion(Orden::mnCerrarObra)->trigger();
  EXPECT_FALSE(panel->mostrado()) << "nothing is left of an Obra that was closed";
}

TEST_F(Resultados, PinchandoEnElMapaSeEligeUnCaso) {
  auto& mapa = panel->mapa();
  ASSERT_TRUE(mapa.isVisible());
  const auto ejes = mapa.lamina().ejes;
  const Xy valores{0.7, 5.0};  // DP [MPa], Hr [m]: beyond the range of the Tramo
  Pincha(mapa, ejes.P(valores.x, valores.y));
  Llega();
  ASSERT_TRUE(panel->mostrado()->elegido);
  EXPECT_NEAR(panel->mostrado()->caso->fila.Hr, valores.y, 0.1);
  EXPECT_NEAR(panel->mostrado()->caso->fila.DP, valores.x * kFactorTension, 0.1);
  panel->findChild<QPushButton*>("btPesimo")->click();
  Llega();
  EXPECT_FALSE(panel->mostrado()->elegido);
}

TEST_F(Resultados, LaHojaDeFabricacionSeVeEnteraYSeGuarda) {
  Toma(5);
  persona.fichero = carpeta.filePath("hoja");
  EnPantalla<frHojaFabricacion> hoja([&](frHojaFabricacion& pantalla) {
    auto& vista = pantalla.vista();
    const auto lamina = vista.lamina().lamina;
    const Xy fin = vista.EnHoja(QPointF(vista.width(), vista.height()));
    EXPECT_TRUE(fin.x >= lamina.ancho - 1e-6 && fin.y >= lamina.alto - 1e-6);
    for (auto* boton : pantalla.findChildren<QPushButton*>()) boton->click();
    pantalla.close();
  });
  ventana().findChild<QAction*>("mnHojaFabricacion")->trigger();
  EXPECT_EQ(hoja.veces, 1);
  for (const auto& [extension, cabeza] : std::vector<std::pair<QString, QByteArray>>{
           {"pdf", "%PDF-"}, {"svg", "<svg "}, {"dxf", "999\r\nZORBIN"}}) {
    QFile fichero(carpeta.filePath("hoja." + extension));
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly)) << extension.toStdString();
    EXPECT_TRUE(fichero.readAll().startsWith(cabeza));
  }
}

TEST_F(Resultados, ElMarcoDejaSitioALaFormaEnUnaVentanaEstrecha) {
  auto* marco = ventana().findChild<MarcoDiseno*>();
  auto* entrada = ventana().findChild<QAction*>("mnDiseno");
  EXPECT_TRUE(marco->isVisible());
  entrada->trigger();
  EXPECT_FALSE(marco->isVisible());
  ventana().resize(1280, 720);
  QApplication::processEvents();
  entrada->trigger();
  EXPECT_TRUE(marco->isVisible()) << "whoever asks for it has it";
  ventana().resize(1600, 900);
  QApplication::processEvents();
  EXPECT_FALSE(marco->isVisible()) << "it was hidden in a window as wide as this one";
}

TEST_F(Resultados, LaTablaOrdenaFiltraYCopia) {
  ventana().findChild<QAction*>("mnResultados")->trigger();
  auto* pantalla = ventana().findChild<frResultados*>();
  ASSERT_NE(pantalla, nullptr);
  auto& modelo = pantalla->modelo();
  const auto espera = [&] {
    modelo.Espera();
    QApplication::processEvents();
  };
  const int todos = modelo.rowCount();
  EXPECT_EQ(static_cast<std::size_t>(todos), modelo.casos().Cuantos());
  auto* tabla = pantalla->findChild<QTableView*>("tablaCasos");
  const auto& columnas = modelo.vista().columnas;
  const auto uso = std::ranges::find(columnas, Columna::Uso) - columnas.begin();
  tabla->sortByColumn(static_cast<int>(uso), Qt::DescendingOrder);
  espera();
  for (int i = 1; i < todos; ++i) {
    EXPECT_GE(modelo.casos().Valor(modelo.Caso(i - 1), Columna::Uso),
              modelo.casos().Valor(modelo.Caso(i), Columna::Uso));
  }
  pantalla->findChild<QCheckBox*>("soloPeores")->setChecked(true);
  espera();
  EXPECT_EQ(modelo.rowCount(), 7);
  pantalla->findChild<QLineEdit*>("buscaCasos")->setText("mdp");
  espera();
  EXPECT_LT(modelo.rowCount(), 7);
  EXPECT_GT(modelo.rowCount(), 0);
  tabla->setFocus();
  QTest::keyClick(tabla, Qt::Key_C, Qt::ControlModifier);
  const auto lineas = QApplication::clipboard()->text().split('\n', Qt::SkipEmptyParts);
  EXPECT_EQ(lineas.size(), modelo.rowCount() + 1);
  EXPECT_EQ(lineas.last().split('\t').size(), modelo.columnCount());

  // The chart of several Tramos has a line for each that is chosen.
  auto* varios = pantalla->findChild<PanelVariosTramos*>();
  pantalla->findChild<QTabWidget*>("panelDetalle")->setCurrentWidget(varios);
  auto* tramos = varios->findChild<QListWidget*>("tramosComparados");
  ASSERT_EQ(tramos->count(), 7);
  const auto lineas_de = [&] {
    varios->Espera();
    QApplication::processEvents();
    std::set<int> ids;
    for (const auto& pieza : varios->grafico().lamina().lamina.piezas) {
      if (const auto* t = std::get_if<Forma>(&pieza); t != nullptr && t->id >= 0) {
        ids.insert(t->id);
      }
    }
    return ids.size();
  };
  EXPECT_EQ(lineas_de(), 6U);
  tramos->item(6)->setCheckState(Qt::Checked);
  EXPECT_EQ(lineas_de(), 7U);
  for (int i = 1; i < 7; ++i) tramos->item(i)->setCheckState(Qt::Unchecked);
  EXPECT_EQ(lineas_de(), 1U);

  // The list of Tramos tells which comply.
  const auto* lista = ventana().findChild<QTreeWidget*>("Tramos");
  for (int i = 0; i < lista->topLevelItemCount(); ++i) {
    EXPECT_EQ(lista->topLevelItem(i)->text(0), QStringLiteral("✓")) << i;
  }
}

}  // namespace
}  // namespace zorbin::prueba
