// The report and the steps of a Caso, from the window.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QUndoStack>

#include "base/textos.h"
#include "calculo/corrida/mdRango.h"
#include "programas/zorbin/mdPrograma.h"
#include "sesion/captura/mdCiclo.h"
#include "shell/entornoPrueba.h"
#include "shell/informe/frInforme.h"
#include "shell/informe/frPasos.h"
#include "shell/informe/mdVistaInforme.h"

namespace zorbin::prueba {
namespace {

struct InformePantalla : testing::Test {
  QTemporaryDir carpeta;
  Persona persona;
  std::unique_ptr<Programa> programa;
  Mesa mesa;

  void SetUp() override {
    const QString obra = carpeta.filePath("acequia.zrb");
    ASSERT_TRUE(QFile::copy(ZORBIN_FUENTES "muestras/acequia.zrb", obra));
    programa = std::make_unique<Programa>(
        std::make_unique<Preferencias>(carpeta.filePath("u.ini"), carpeta.filePath("m.ini")));
    ASSERT_TRUE(programa->ventana().Abre(obra));
  }
  void TearDown() override {
    persona.respuestas = {false, false, false};
    programa.reset();
  }
  Captura& c() { return programa->captura(); }
};

TEST_F(InformePantalla, LaPortadaEsDeLaObraYElInformeLaLleva) {
  const QString logo = carpeta.filePath("logo.png");
  QImage imagen(40, 20, QImage::Format_ARGB32);
  imagen.fill(Qt::transparent);
  ASSERT_TRUE(imagen.save(logo));
  std::optional<Informe> informe;
  {
    frInforme pantalla(c(), mesa.entorno);
    pantalla.findChildren<QLineEdit*>().front()->setText("Ana Peña");
    EXPECT_FALSE(pantalla.PonLogo(carpeta.filePath("no-esta.png")));
    EXPECT_TRUE(pantalla.PonLogo(logo));
    informe = pantalla.Compone();
  }
  ASSERT_TRUE(informe.has_value());
  EXPECT_EQ(informe->autor, "Ana Peña");
  EXPECT_GT(informe->paginas.size(), 30u);
  EXPECT_FALSE(informe->letras) << "the letters are of another thread";
  EXPECT_EQ(c().version.extras.portada.autor, "Ana Peña");
  EXPECT_TRUE(c().EnCambio());
  EXPECT_TRUE(Graba(c()));
  EXPECT_FALSE(c().EnCambio());
  EXPECT_TRUE(QFile::exists(carpeta.filePath("acequia.zrx")));

  VistaInforme vista;
  vista.resize(700, 800);
  vista.Pon(std::move(*informe));
  const QImage arriba = vista.grab().toImage();
  vista.VaA({20, 300});
  EXPECT_NE(vista.grab().toImage(), arriba);
}

TEST_F(InformePantalla, LosPasosDeUnCasoSeVenYSeCopian) {
  const auto datos = DatosDeCalculo(c().version.obra, c().version.tramos.front()->datos);
  const auto resultado = CalculaTramo(datos, RangoDe(datos));
  ASSERT_FALSE(resultado.filas.empty());
  frPasos pasos(mesa.entorno, resultado, resultado.filas.front(), {true, ','});
  pasos.findChild<QPushButton*>("btCopiaPasos")->click();
  const auto texto = QApplication::clipboard()->text();
  EXPECT_EQ(texto, Q(pasos.Texto()));
  EXPECT_GT(texto.count('\n'), 60);
  EXPECT_TRUE(texto.contains("MDP"));
  EXPECT_GT(pasos.findChild<VistaInforme*>()->Paginas(), 1);
}

}  // namespace
}  // namespace zorbin::prueba
