#include "calculo/cargas/mdOval.h"

#include <gtest/gtest.h>

#include <array>

namespace zorbin {
namespace {

// A pipe of 1.0 / 1.2 m with loads that make the resultants easy to follow: Dm 1.1, w 1.2/1.1,
// Wp = 0.44·2.5·π/4 = 0.863938, Wf = π/4 = 0.785398, Wt = (0.72 - 0.565487)·1.8 = 0.278124,
// Wq = (5 - 1)·1.2 = 4.8, Wm = 1.2, Wl = 1.8/3·1.2 = 0.72, h1 = 4.5/1.8 = 2.5, h0 = 1.944444.
DatosOval Datos(std::int16_t cuna) {
  return {1.0, 1.2, 2.5, 1.8, 1.0 / 3.0, 5.0, 4.5, 1.0, cuna};
}

struct Pareja {
  double M, N;
};

// Bedding 2 by hand from those resultants (beddings 1 and 3 stand in the worked Tramos): own
// weight, fluid, spandrels, vertical, lateral with and without the moving load.
constexpr std::array<std::array<Pareja, 6>, 3> kCuna2{{
    {{{0.025478, 0.022177},
      {0.023162, 0.145165},
      {0.008512, 0.018398},
      {0.307195, 0.042218},
      {-0.134085, -1.025036},
      {-0.109301, -0.825832}}},
    {{{-0.029926, -0.215984},
      {-0.027205, 0.053643},
      {-0.013306, -0.139062},
      {-0.316267, -2.4},
      {0.138089, 0.0},
      {0.113311, 0.0}}},
    {{{0.014863, -0.271985},
      {0.013512, 0.127729},
      {0.008815, -0.098817},
      {0.217003, -1.430138},
      {-0.133600, -0.826057},
      {-0.110157, -0.683841}}},
}};

using Tres = Lista<double, kSecciones>;

TEST(Oval, LasHipotesisDeLaCuna2AMano) {
  const auto t = CalculaTerminos(Datos(2));
  for (int s = 1; s <= kSecciones; ++s) {
    const auto& [p, f, ti, v, l1, l0] = kCuna2[static_cast<std::size_t>(s - 1)];
    const Pareja m{v.M / 4.0, v.N / 4.0};  // the moving load is a quarter of the vertical one
    const std::array<Pareja, 12> esperado{
        {p,
         f,
         {l1.M + ti.M + v.M, l1.N + ti.N + v.N},
         m,
         l1,
         {f.M + p.M + ti.M + l1.M + v.M, f.N + p.N + ti.N + l1.N + v.N},
         {f.M + p.M + ti.M + l1.M + v.M + m.M, f.N + p.N + ti.N + l1.N + v.N + m.N},
         {l0.M + ti.M + v.M, l0.N + ti.N + v.N},
         ti,
         l0,
         v,
         {0, 0}}};
    for (int h = 1; h <= 12; ++h) {
      Tres M, N;
      Oval(t, h, M, N);
      EXPECT_NEAR(M(s), esperado[static_cast<std::size_t>(h - 1)].M, 5e-6) << h << "," << s;
      EXPECT_NEAR(N(s), esperado[static_cast<std::size_t>(h - 1)].N, 5e-6) << h << "," << s;
    }
  }
}

// Vertical equilibrium of half the ring: the haunches carry half of the weight and half of the
// load, whatever the bedding; the lateral thrust adds none.
TEST(Oval, LosRinonesLlevanLaMitadDeLasCargasVerticales) {
  for (std::int16_t cuna = 1; cuna <= 3; ++cuna) {
    const auto t = CalculaTerminos(Datos(cuna));
    EXPECT_DOUBLE_EQ(t.vertical.N(RINONES), -0.5 * 4.8);
    EXPECT_DOUBLE_EQ(t.movil.N(RINONES), -0.5 * 1.2);
    EXPECT_NEAR(t.propio.N(RINONES), -0.25 * 0.863938, 1e-6);
    EXPECT_EQ(t.lateral.N(RINONES), 0.0);
  }
}

TEST(Oval, MenorDe90MultiplicaTodoPor125YLosCodigosAjenosSeRespetan) {
  const auto t1 = CalculaTerminos(Datos(1));
  const auto t4 = CalculaTerminos(Datos(4));
  for (int h = 1; h <= 13; ++h) {
    Tres M1{{1, 2, 3}}, N1{{4, 5, 6}}, M4 = M1, N4 = N1;
    Oval(t1, h, M1, N1);
    Oval(t4, h, M4, N4);
    for (int s = 1; s <= kSecciones; ++s) {
      EXPECT_EQ(M4(s), 1.25 * M1(s)) << h;
      EXPECT_EQ(N4(s), 1.25 * N1(s)) << h;
    }
    if (h == 13) {
      EXPECT_EQ(N1(3), 6.0);
    }
  }
  EXPECT_THROW(CalculaTerminos(Datos(0)), ErrorEjecucion);
  EXPECT_THROW(CalculaTerminos(Datos(5)), ErrorEjecucion);
}

TEST(Oval, SinCargaMovilElEmpujeEsUnoSolo) {
  auto d = Datos(3);
  d.QMovil = 0;
  const auto t = CalculaTerminos(d);
  Tres M5, N5, M10, N10, M4, N4;
  Oval(t, 5, M5, N5);
  Oval(t, 10, M10, N10);
  Oval(t, 4, M4, N4);
  EXPECT_EQ(M5.v, M10.v);
  EXPECT_EQ(N5.v, N10.v);
  EXPECT_EQ(M4.v, Tres{}.v);
}

}  // namespace
}  // namespace zorbin
