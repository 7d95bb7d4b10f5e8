// Tramos as a table: to another Obra, to a spreadsheet, and back.
#include <gtest/gtest.h>

#include <cmath>

#include "core/mdUnidades.h"
#include "sesion/captura/guion.h"
#include "sesion/captura/mdComprueba.h"

namespace zorbin::prueba {
namespace {

using enum Ed;

// Whole Tramos, in an Obra of either system, on a machine with either decimal sign.
TEST(Tabla, DeUnaObraAOtraEnCualquierSistemaDeUnidades) {
  for (const int de : {0, 1}) {
    for (const int a : {0, 1}) {
      SCOPED_TRACE(de * 10 + a);
      ConMuestra b;
      b.Toma(2);
      b.Teclea(edDescriTramo, "con\ttabulador");
      CambiaMarca(b.c, edEnvolvente, true);
      EligeOpcion(b.c, rdSistemaUnidades, de);
      const auto tabla = CopiaTramos(b.c, IdsDe(b.c.version));
      ConMuestra otra;
      EligeOpcion(otra.c, rdSistemaUnidades, a);
      otra.OlvidaPasos();
      // A spreadsheet ends its lines in its own way.
      std::string suya;
      for (const char letra : tabla)
        suya += letra == '\n' ? std::string("\r\n") : std::string(1, letra);
      const auto pegado = PegaTramos(otra.c, de == a ? tabla : suya + "\r\n");
      ASSERT_TRUE(pegado.faltas.empty()) << pegado.faltas[0];
      EXPECT_EQ(pegado.tramos, 7);
      EXPECT_EQ(otra.pasos.size(), 1u);
      EXPECT_EQ(otra.c[edTramo].texto, "8");
      ASSERT_EQ(otra.c.version.tramos.size(), 14u);
      for (std::size_t i = 0; i < 7; ++i) {
        const auto& suyo = b.c.version.tramos[i]->datos;
        const auto& nuevo = otra.c.version.tramos[7 + i]->datos;
        EXPECT_EQ(nuevo.DescriTramo, i == 1 ? "con tabulador" : suyo.DescriTramo);
        EXPECT_EQ(nuevo.Envolvente, suyo.Envolvente);
        EXPECT_EQ(nuevo.Tipologia, suyo.Tipologia);
        EXPECT_EQ(nuevo.EsArmado, suyo.EsArmado);
        RecorreNumeros<Tramo>([&](const Ficha& ficha, double Tramo::*campo) {
          if (ficha.nombre == "GamaY" || ficha.nombre == "GamaF" || ficha.nombre == "Fct") return;
          const double vale = nuevo.*campo;
          const auto par = Pareja(vale, a == 0, ficha.magnitud);
          const double enSuyas = !ficha.Escala() || a == de ? vale : de == 0 ? par.si : par.mks;
          EXPECT_NEAR(enSuyas, suyo.*campo, 2e-5 * (1 + std::fabs(enSuyas))) << ficha.nombre;
        });
      }
      EXPECT_TRUE(Comprueba(otra.c, IdsDe(otra.c.version)).Vale());
    }
  }
}

// What does not fit is told by its row and column, all of it, and nothing is pasted.
TEST(Tabla, LoQueNoCabeSeDicePorFilaYColumna) {
  struct Fila {
    const char* tabla;
    std::vector<std::pair<const char*, const char*>> dice;  // row and column
    const char* que;
  };
  const std::string largo = "Di (m)\tDescriTramo\n1\t" + std::string(127, 'x') + "\n";
  for (const auto& f : std::vector<Fila>{
           {"", {{"1", "1"}}, ""},
           {"NumeroTramo\tDi (m)\n", {}, ""},
           {"Di (m)\tAncho\n1\t2\n", {{"1", "2"}}, "Ancho"},
           {"Di (m)\tFck (bar)\n1\t2\n", {{"1", "2"}}, "bar"},
           {"Di (m)\tEsp (cm)\n1,2\tdoce\n1,2\t12\nuno\t12\n", {{"2", "2"}, {"4", "1"}}, ""},
           {"Di (m)\n1.234,5\n", {{"2", "1"}}, "1.234,5"},
           {"Di (m)\n1e30\n", {{"2", "1"}}, ""},
           {"Di (m)\n1\t2\n", {{"2", "2"}}, ""},
           {"Di (m)\tTipologia\n1\t1211\n", {{"2", "2"}}, "1211"},
           {"Di (m)\tTipoCuna\n1\t1,5\n", {{"2", "2"}}, "TipoCuna"},
           {"Di (m)\tTipoCuna\n1\t-1\n", {{"2", "2"}}, "TipoCuna"},
           {"Di (m)\tTipoColocacion\n1\t3\n", {{"2", "2"}}, "TipoColocacion"},
           {"Di (m)\tDe (m)\n1\t3\n", {{"1", "2"}}, "De"},
           {"Di (m)\tDescriTramo\n1\tΩ\n", {{"2", "2"}}, "Ω"},
           {largo.c_str(), {{"2", "2"}}, "126"},
       }) {
    SCOPED_TRACE(f.tabla);
    ConMuestra b;
    const auto pegado = PegaTramos(b.c, f.tabla);
    EXPECT_EQ(pegado.tramos, 0);
    ASSERT_EQ(pegado.faltas.size(), std::max<std::size_t>(1, f.dice.size()));
    for (std::size_t i = 0; i < f.dice.size(); ++i) {
      const auto& falta = pegado.faltas[i];
      const auto fila = falta.find(f.dice[i].first);
      EXPECT_NE(fila, std::string::npos) << falta;
      EXPECT_NE(falta.find(f.dice[i].second, fila + 1), std::string::npos) << falta;
      EXPECT_NE(falta.find(f.que), std::string::npos) << falta;
    }
    EXPECT_FALSE(b.c.EnCambio());
    EXPECT_TRUE(b.pasos.empty());
  }
}

// A few columns are enough; what is missing is asked for by the save.
TEST(Tabla, UnasColumnasBastan) {
  ConMuestra b;
  const auto pegado =
      PegaTramos(b.c, "Esp (cm)\tDi (m)\tFck (kp/cm2)\n13,5\t1,2\t350\n\n\t1.4\t\n");
  ASSERT_TRUE(pegado.faltas.empty()) << pegado.faltas[0];
  EXPECT_EQ(ListaDe(b.c.version).back(), "9");
  const auto& t = b.c.version.tramos[7]->datos;
  EXPECT_EQ(t.Fck, 35.0);
  EXPECT_DOUBLE_EQ(t.De, 1.47);
  EXPECT_FALSE(Graba(b.c));
  EXPECT_EQ(b.c.faltas[0].tramo, b.Id(8));
  EXPECT_TRUE(b.Deshace());
  EXPECT_FALSE(b.c.EnCambio());
}

}  // namespace
}  // namespace zorbin::prueba
