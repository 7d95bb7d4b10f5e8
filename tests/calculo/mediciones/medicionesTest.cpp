// Quantities against figures worked by hand.
#include "calculo/mediciones/mdMediciones.h"

#include <gtest/gtest.h>

#include "calculo/corrida/mdCalculaTramo.h"
#include "calculo/corrida/mdRango.h"
#include "comun/estadoDeJson.h"
#include "comun/listado.h"

namespace zorbin {
namespace {

// Di 1 m, wall 0.10 m, covers 0.03 and 0.02 m: axes at diameters 1.06 and 1.16 m.
ResultadoTramo Tubo() {
  ResultadoTramo r;
  auto& t = r.datos.tramo;
  t.EsArmado = true;
  t.Di = 1.0;
  t.De = 1.2;
  t.Esp = 0.1;
  t.Reci = 0.03;
  t.Rece = 0.02;
  t.Gc = 2.5;
  t.B0 = 2.0;
  t.TipoApoyo = 11;
  t.TipoCuna = 1;
  return r;
}

FilaCaso Fila() {
  FilaCaso f;
  f.Hr = 3.0;
  f.CAMISA = 2.0;
  f.FIIN = 10.0;
  f.NESPIN = 10.0;
  f.FIEX = 8.0;
  f.NEXPEX = 12.0;
  return f;
}

TEST(Mediciones, ChapaEspirasYBarras) {
  auto f = Fila();
  const Fabricacion fab{600.0, 6.0, 30.0, 8.0, 0.3};
  const auto m = MideCaso(Tubo(), f, fab);
  ASSERT_EQ(m.capas.size(), 5u);
  // pi 1.06 0.002 7850
  EXPECT_NEAR(m.porMetro[Partida::Chapa], 52.282, 0.001);
  // The spirals against the sheet: diameter 1.06 + 0.012; 10 turns of sqrt((pi 1.072)^2 + 0.1^2).
  EXPECT_NEAR(m.capas[1].diametro, 1.072, 1e-12);
  EXPECT_NEAR(m.capas[1].desarrollo, 33.6928, 1e-4);
  EXPECT_NEAR(m.porMetro[Partida::EspirasInteriores], 20.773, 0.001);
  EXPECT_NEAR(m.capas[1].Paso(), 100.0, 1e-9);
  // 12 turns of 8 mm at 1.16 m: 12 pi 1.16 0.3946 kg
  EXPECT_NEAR(m.porMetro[Partida::EspirasExteriores], 17.260, 0.003);
  // pi 1.072 / 0.3 = 11.2: 12; pi 1.16 / 0.3 = 12.1: 13; 25 bars of 0.39458 kg/m
  EXPECT_NEAR(m.porMetro[Partida::Longitudinales], 9.8646, 0.001);
  EXPECT_NEAR(m.porMetro[Partida::Juntas], 5.0, 1e-12);
  EXPECT_NEAR(m.porMetro[Partida::HormigonNucleo], 0.345575, 1e-6);
  EXPECT_EQ(m.porMetro[Partida::HormigonRevestimiento], 0.0);
  EXPECT_NEAR(m.peso, 863.938, 0.001);
  EXPECT_EQ(NumeroDeTubos(fab), 100.0);
  EXPECT_EQ(NumeroDeTubos({601.0, 6.0, 0, 0, 0}), 101.0);

  Precios precios;
  precios.precio[Partida::Chapa] = 1.5;
  precios.precio[Partida::HormigonNucleo] = 100.0;
  EXPECT_NEAR(Suma(CostePorMetro(m, precios)), 52.282 * 1.5 + 34.5575, 0.002);

  f.ErrorPostesado = 1;
  EXPECT_TRUE(MideCaso(Tubo(), f, fab).capas.empty());
}

// The bars of an adjusted Caso are nobody's choice: its areas are weighed.
TEST(Mediciones, UnCasoAjustadoPesaSusAreas) {
  auto r = Tubo();
  auto f = Fila();
  f.DP = 4.0;
  f.ajustado = true;
  r.datos.tramo.NumeroTramo = 7;
  r.datos.ajustes.push_back({4.0, 7.0, 3.0, {15.0, 5.0, 6.0}});
  const auto m = MideCaso(r, f, {});
  EXPECT_NEAR(m.porMetro[Partida::Chapa], kPi * 1.06 * 0.0015 * 7850, 1e-6);
  EXPECT_NEAR(m.porMetro[Partida::EspirasInteriores], kPi * 1.0615 * 5e-4 * 7850, 1e-6);
  EXPECT_NEAR(m.porMetro[Partida::EspirasExteriores], kPi * 1.16 * 6e-4 * 7850, 1e-6);
}

TEST(Mediciones, Zanjas) {
  struct Prueba {
    std::int16_t TipoApoyo, TipoCuna;
    double Hr1, Excavacion, Cama, Relleno;
  };
  // De 1.2, R 0.6, bed 0.15 under the pipe (De/8), trench 2 m wide, fill 3 m.
  // 90 degrees: the bed rises to 0.6 cos 45 = 0.4243; segment 0.36 (pi/4 - 0.5) = 0.102743.
  // 120 degrees: rises to 0.3; segment 0.36 (pi/3 - 0.4330) = 0.221111; 1.44 m wide.
  const Prueba pruebas[] = {
      {11, 1, 0.0, 2 * 4.35, 2 * 0.325736 - 0.102743, 8.7 - 0.548729 - 1.130973},
      {11, 3, 0.0, 2 * 4.35, 1.44 * 0.45 - 0.221111, 8.7 - 0.426889 - 1.130973},
      {21, 1, 1.0, 2 * 2.35, 0.548729, 4.7 - 0.548729 - 1.130973},
      // Under an embankment: the ditch of the bed, 1.44 m wide, from 1 m under the crown.
      {31, 1, 1.0, 1.44 * 0.35, 0.366317, 0.504 - 0.366317 - 0.123899},
      {31, 1, 0.6, 1.44 * 0.75, 0.366317, 1.08 - 0.366317 - 1.130973 / 2},
      {31, 1, 9.0, 0.0, 0.366317, 0.0},
  };
  for (const auto& p : pruebas) {
    auto t = Tubo().datos.tramo;
    t.TipoApoyo = p.TipoApoyo;
    t.TipoCuna = p.TipoCuna;
    t.Hr1 = p.Hr1;
    const auto z = MideZanja(t, 3.0);
    EXPECT_NEAR(z.Excavacion, p.Excavacion, 1e-5) << p.TipoApoyo << " " << p.Hr1;
    EXPECT_NEAR(z.Cama, p.Cama, 1e-5) << p.TipoApoyo << " " << p.TipoCuna;
    EXPECT_NEAR(z.Relleno, p.Relleno, 1e-5) << p.TipoApoyo << " " << p.Hr1;
  }
  auto t = Tubo().datos.tramo;
  t.B0 = 1.2;
  EXPECT_EQ(MideZanja(t, 3.0).Excavacion, 0.0);
}

// The steel weighed is the steel designed: area by area, over the sample.
TEST(Mediciones, LaMuestraPesaLoQueSeDisena) {
  int casos = 0;
  for (const int posicion : {1, 3, 4, 6, 7}) {
    const auto datos = pruebas::EnCalculo(pruebas::EstadoDeMuestra(posicion));
    const auto r = CalculaTramo(datos, RangoDe(datos));
    for (const auto& f : r.filas) {
      const auto m = MideCaso(r, f, {});
      ++casos;
      if (!datos.tramo.EsArmado) {
        const double cm2 = kPi * f.FIIN * f.FIIN / 400.0 * f.NESPIN;
        const double D = 2 * r.radios.RadioNuc / 100 + f.FIIN / 1000;
        EXPECT_NEAR(m.porMetro[Partida::Alambre] / (cm2 * kPi * D * 0.785), 1.0, 1e-3);
        EXPECT_GT(m.porMetro[Partida::HormigonRevestimiento], 0.0);
        continue;
      }
      double interior = 0, exterior = 0;
      for (const auto& c : m.capas) {
        if (c.partida == Partida::Longitudinales) continue;
        const double cm2 = c.kg / (kPi * c.diametro * 0.785);
        (c.partida == Partida::EspirasExteriores ? exterior : interior) += cm2;
      }
      EXPECT_NEAR(interior, f.AsInt, 0.02 + f.AsInt * 1e-3) << posicion;
      EXPECT_NEAR(exterior, f.AsExt, 0.02 + f.AsExt * 1e-3) << posicion;
    }
  }
  EXPECT_GT(casos, 20);
}

}  // namespace
}  // namespace zorbin
