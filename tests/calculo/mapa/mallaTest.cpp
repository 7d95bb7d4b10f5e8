#include "calculo/mapa/mdMalla.h"

#include <gtest/gtest.h>

#include "calculo/anillo/mdAnilloCaso.h"
#include "comun/estadoDeJson.h"
#include "comun/listado.h"

namespace zorbin {
namespace {

// Every point is the Caso that a run of its own gives, of reinforced and post-tensioned Tramos.
TEST(Malla, CadaPuntoEsElCasoDeUnaCorrida) {
  for (const int posicion : {1, 3, 6}) {
    const auto datos = pruebas::EnCalculo(pruebas::EstadoDeMuestra(posicion));
    const auto malla = CalculaMalla(datos, EjesAlrededor(datos, 7, 5));
    ASSERT_TRUE(malla.entera);
    ASSERT_EQ(malla.puntos.size(), 35u);
    for (std::size_t i = 0; i < 5; ++i) {
      for (std::size_t j = 0; j < 7; ++j) {
        const auto solo = CalculaTramo(
            datos, RangoDeUnCaso(datos, malla.ejes.alturas[i], malla.ejes.presiones[j]));
        ASSERT_TRUE(malla.En(i, j));
        const auto& fila = malla.En(i, j)->fila;
        EXPECT_EQ(fila.Hr, malla.ejes.alturas[i]);
        EXPECT_NEAR(fila.DP, malla.ejes.presiones[j], 1e-9);
        // The pressure of a run is a sum of steps: its last bits may move a bar, no more.
        EXPECT_NEAR(fila.Total, solo.filas.at(0).Total, 1e-6) << posicion << "," << i << "," << j;
        EXPECT_EQ(fila.NESPIN, solo.filas.at(0).NESPIN);
        EXPECT_EQ(fila.verificacion.veredicto, solo.filas.at(0).verificacion.veredicto);
        EXPECT_EQ(malla.En(i, j)->hipotesis, HipotesisQueRige(datos, solo.filas.at(0)));
      }
    }
  }
}

TEST(Malla, UnPuntoQueFallaNoSeLlevaALosDemas) {
  auto e = pruebas::EstadoDeMuestra(1);
  const auto datos = pruebas::EnCalculo(e);
  // At a height of 0 the loads fail; at an MDP of 0 a pipe without earth would.
  const EjesMalla ejes{{0.0, 2.0}, {4.0, 4.5, 6.0}};
  const auto malla = CalculaMalla(datos, ejes);
  for (std::size_t j = 0; j < 3; ++j) {
    EXPECT_FALSE(malla.En(0, j)) << j;
    EXPECT_TRUE(malla.En(1, j)) << j;
  }
  EXPECT_NEAR(malla.En(1, 2)->fila.DP, 6.0, 1e-12);
  int preguntas = 0;
  EXPECT_FALSE(CalculaMalla(datos, ejes, false, [&] { return ++preguntas < 2; }).entera);
}

TEST(Malla, LosEjesRodeanElRangoDelTramo) {
  for (int posicion = 1; posicion <= 7; ++posicion) {
    const auto datos = pruebas::EnCalculo(pruebas::EstadoDeMuestra(posicion));
    const auto r = RangoDe(datos);
    const auto ejes = EjesAlrededor(datos, 60, 40);
    EXPECT_LT(ejes.alturas.front(), r.Hr0);
    EXPECT_GT(ejes.alturas.back(), r.Hr0Final);
    EXPECT_GT(ejes.presiones.front(), 0.0);
    EXPECT_LT(ejes.presiones.front(), r.PrimeraDP);
    EXPECT_GT(ejes.presiones.back(), r.UltimaDP);
    const auto propios = EjesDelTramo(datos, 6);
    EXPECT_EQ(propios.alturas.front(), r.Hr0);
    EXPECT_EQ(propios.alturas.back(), r.Hr0Final);
    EXPECT_EQ(propios.presiones.front(), r.PrimeraDP);
  }
}

}  // namespace
}  // namespace zorbin
