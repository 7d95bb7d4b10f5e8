// The bill of the Obra in the window.
#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QTableWidget>

#include "persistencia/zrx/mdFabricacionZrx.h"
#include "programas/zorbin/mdPrograma.h"
#include "sesion/captura/mdTramos.h"
#include "shell/captura/CapturaDatos.h"
#include "shell/enPantalla.h"
#include "shell/entornoPrueba.h"
#include "shell/resultados/frMediciones.h"
#include "shell/resultados/mdVistaPlanilla.h"

namespace zorbin::prueba {
namespace {

constexpr double kLongitud = 850.5;
constexpr double kPrecio = 1.25;
constexpr int kColumnaPrecio = 2;

struct MedicionesPantalla : testing::Test {
  QTemporaryDir carpeta;
  Persona persona;
  std::unique_ptr<Programa> programa;

  void SetUp() override {
    const QString obra = carpeta.filePath("acequia.zrb");
    ASSERT_TRUE(QFile::copy(ZORBIN_FUENTES "muestras/acequia.zrb", obra));
    programa = std::make_unique<Programa>(
        std::make_unique<Preferencias>(carpeta.filePath("u.ini"), carpeta.filePath("m.ini")));
    ASSERT_TRUE(programa->ventana().Abre(obra));
    programa->ventana().captura().Hace([&] { PonEnMano(c(), c().version.tramos[0]->id); });
    programa->ventana().show();
  }
  void TearDown() override {
    persona.respuestas = {false, false, false};
    programa.reset();
  }
  void Acciona(const char* nombre) {
    programa->ventana().findChild<QAction*>(QString::fromLatin1(nombre))->trigger();
  }
  void EnElla(const std::function<void(frMediciones&)>& que) {
    EnPantalla<frMediciones> ella(que);
    Acciona("mnMediciones");
    EXPECT_EQ(ella.veces, 1);
  }
  static QLineEdit& Campo(const frMediciones& p, const char* nombre) {
    return *p.findChild<QLineEdit*>(QString::fromLatin1(nombre));
  }
  QString Escrito(double valor) const {
    return QString::number(valor).replace(QLatin1Char('.'), QLatin1Char(Separador()));
  }
  char Separador() const { return c().SeparadorDecimal; }
  Captura& c() const { return programa->captura(); }
};

TEST_F(MedicionesPantalla, LoTecleadoSeValoraYSeConservaEnUnPaso) {
  const Version antes = c().version;
  int partida = 0;
  EnElla([&](frMediciones& p) {
    auto* precios = p.findChild<QTableWidget*>("tablaPrecios");
    const auto primera = Q(p.planillas().front().filas.front().celdas[2].texto);
    while (precios->item(partida, 0)->text() != primera) ++partida;
    Campo(p, "edLongitud").setText(Escrito(kLongitud));
    precios->item(partida, kColumnaPrecio)->setText(Escrito(kPrecio));
    const auto& partidas = p.planillas().front();
    const auto& fila = partidas.filas.front().celdas;
    EXPECT_EQ(fila[0].texto, antes.tramos[0]->numero);
    EXPECT_DOUBLE_EQ(*fila[5].numero, *fila[4].numero * kLongitud);
    EXPECT_DOUBLE_EQ(*fila[8].numero, *fila[5].numero * kPrecio);
    // The other Tramos have no length: the Obra costs what this one does.
    EXPECT_DOUBLE_EQ(*partidas.filas.back().celdas[8].numero, *fila[8].numero);
    int vistas = 0;
    for (const auto* vista : p.findChildren<VistaPlanilla*>()) {
      const auto* tabla = vista->findChild<QTableWidget*>();
      if (tabla->accessibleName() != Q(partidas.titulo)) continue;
      ++vistas;
      EXPECT_EQ(tabla->item(0, 8)->text(), Q(Mostrada(fila[8], Separador())));
    }
    EXPECT_EQ(vistas, 1);
    p.findChild<QPushButton*>("btAceptar")->click();
  });
  EXPECT_DOUBLE_EQ(FabricacionDe(c().version.tramos[0]->extras).Longitud, kLongitud);
  EXPECT_DOUBLE_EQ(PreciosDe(c().version.extras.otras).precio[static_cast<Partida>(partida)],
                   kPrecio);
  EXPECT_TRUE(c().EnCambio());
  Acciona("mnDeshacer");
  EXPECT_TRUE(c().version == antes);
  EXPECT_FALSE(c().EnCambio());
}

TEST_F(MedicionesPantalla, LoQueNoCabeSeRechazaConSuLimite) {
  const Version antes = c().version;
  EnElla([&](frMediciones& p) {
    const auto* reparo = p.findChild<QLabel*>("lbReparo");
    auto& tubo = Campo(p, "edLongitudTubo");
    tubo.setText("0");
    EXPECT_TRUE(reparo->text().contains(Escrito(0.1))) << S(reparo->text());
    EXPECT_TRUE(reparo->text().contains("100 m"));
    p.findChild<QPushButton*>("btAceptar")->click();
    EXPECT_TRUE(p.isVisible());
    tubo.setText("6");
    Campo(p, "edMoneda").setText("demasiado");
    EXPECT_TRUE(reparo->text().contains("8"));
    Campo(p, "edMoneda").setText(QStringLiteral("€"));
    EXPECT_FALSE(reparo->text().contains("8"));
    p.findChild<QPushButton*>("btAceptar")->click();
    EXPECT_FALSE(p.isVisible());
    if (p.isVisible()) p.reject();
  });
  EXPECT_TRUE(c().version == antes) << "what stayed as it was is no step";
}

TEST_F(MedicionesPantalla, SeExportaATablaYALibro) {
  EnElla([&](frMediciones& p) {
    for (const auto* formato : {"csv", "xlsx"}) {
      persona.fichero = carpeta.filePath("mediciones");
      p.findChild<QAction*>(QString::fromLatin1(formato))->trigger();
    }
    p.reject();
  });
  for (const auto& [extension, cabeza] :
       {std::pair{"csv", "\xEF\xBB\xBF"}, std::pair{"xlsx", "PK"}}) {
    QFile fichero(carpeta.filePath("mediciones.") + extension);
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly)) << extension;
    EXPECT_TRUE(fichero.readAll().startsWith(cabeza)) << extension;
  }
}

}  // namespace
}  // namespace zorbin::prueba
