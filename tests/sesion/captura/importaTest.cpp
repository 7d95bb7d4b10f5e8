// Data from outside into an Obra: what they change, what is refused, and one step of it.
#include <gtest/gtest.h>

#include <sstream>

#include "persistencia/entrada/mdCsv.h"
#include "persistencia/entrada/mdJsonObra.h"
#include "persistencia/entrada/mdTablaEntrada.h"
#include "sesion/captura/guion.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdImporta.h"

namespace zorbin::prueba {
namespace {

struct Importar : testing::Test {
  Carpeta carpeta;
  Banco b;
  Captura& c = b.c;

  void SetUp() override {
    std::filesystem::copy_file(ZORBIN_FUENTES "muestras/acequia.zrb", carpeta / "o.zrb");
    ASSERT_TRUE(AbreObra(c, carpeta / "o.zrb"));
    b.OlvidaPasos();
  }

  Importacion Prueba(const std::string& csv) {
    const auto entrada = LeeTablas({LeeCsv(csv)}, c.textos);
    return PreparaImportacion(VersionActual(c), entrada,
                              {c.textos, c.tablas, ',', false, c.ultimoId});
  }
};

TEST_F(Importar, DiceQueEsNuevoQueCambiaYQueSeRechaza) {
  const auto r = Prueba(
      "Tramo;Descripción del Tramo;Di (m);Esp (cm);Reci;Rece;Fck\n"
      "1;;1,2;13;;;\n"  // of the Obra: one datum changes
      "2;;;;;;\n"       // says nothing
      "40;Nuevo;1;11;2,5;2,5;\n"
      "41;Malo;ancho;11;2,5;2,5;\n"
      "42;Sin espesor;1;;2,5;2,5;\n");
  ASSERT_EQ(r.tramos.size(), 5U);
  const std::vector<Suerte> suertes{Suerte::Cambia, Suerte::Igual, Suerte::Nuevo, Suerte::Rechazado,
                                    Suerte::Rechazado};
  for (std::size_t i = 0; i < suertes.size(); ++i) EXPECT_EQ(r.tramos[i].suerte, suertes[i]) << i;
  const auto esp = std::ranges::find(r.tramos[0].lineas, "Esp", &LineaImportada::dato);
  ASSERT_NE(esp, r.tramos[0].lineas.end());
  EXPECT_EQ(esp->celda + " " + esp->antes + " " + esp->despues, "D2 12 13");
  const auto rechazos = r.Rechazos(c.textos);
  ASSERT_GE(rechazos.size(), 2U);
  EXPECT_EQ(rechazos[0], "Celda C5: Tramo 41, Di = «ancho»: se espera un número de 0 a 1000000000");
  EXPECT_NE(rechazos[1].find("Tramo 42, Esp"), std::string::npos) << rechazos[1];
  // The defaults of a new Tramo, and what follows from its data.
  const auto& nuevo = *r.version.tramos.back();
  EXPECT_EQ(nuevo.numero, "40");
  EXPECT_EQ(nuevo.datos.Fck, 35.0);
  EXPECT_DOUBLE_EQ(nuevo.datos.De, 1.22);
  EXPECT_DOUBLE_EQ(nuevo.datos.B0, 1.4 * 1.22 + 0.68);
}

TEST_F(Importar, EsUnPasoQueSeDeshace) {
  const Version antes = VersionActual(c);
  const auto r = Prueba("Tramo;Di;Esp;Reci;Rece\n1;1,3;13;2,5;2,5\n;1;11;2,5;2,5\n;1;11;2,5;2,5\n");
  ASSERT_FALSE(r.HayRechazos());
  Importa(c, r, "importa");
  EXPECT_EQ(b.pasos.size(), 1U);
  EXPECT_EQ(VersionActual(c).tramos.size(), antes.tramos.size() + 2);
  EXPECT_EQ(VersionActual(c).tramos.back()->numero, "9");  // a free number each
  ASSERT_TRUE(b.Deshace());
  EXPECT_EQ(VersionActual(c), antes);
}

}  // namespace
}  // namespace zorbin::prueba
