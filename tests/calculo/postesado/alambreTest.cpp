// Wires, spacings and the order of short lists.
#include "calculo/postesado/mdAlambre.h"

#include <gtest/gtest.h>

#include "calculo/postesado/mdDmen.h"

namespace zorbin {
namespace {

TEST(Alambre, SeAbreCuantoPuede) {
  for (const std::int16_t tipologia : {std::int16_t{2211}, std::int16_t{2221}}) {
    EXPECT_EQ(AlambreMasAbierto(2, tipologia), (Alambre{0.5, 20}));  // 100 / (0.5 + 4.5)
  }
  EXPECT_EQ(AlambreMasAbierto(3, 2211), (Alambre{0.6, 20}));  // 100 / (0.6 + 4.4)
  EXPECT_EQ(AlambreMasAbierto(4, 2211), (Alambre{0.7, 20}));  // 100 / (0.7 + 4.3)
  EXPECT_EQ(AlambreMasAbierto(3, 2221), (Alambre{0.6, 40}));  // 100 / (0.6 + 1.9)
  EXPECT_EQ(AlambreMasAbierto(4, 2221), (Alambre{0.7, 40}));  // 100 / (0.7 + 1.8)
  EXPECT_NEAR(LuzEspiras(0.5, 20), 4.5, 1e-12);
  EXPECT_NEAR(LuzEspiras(0.7, 40), 1.8, 1e-12);
}

// The tables give whole counts, so a search never meets a fraction; the rule stands all the same.
TEST(Alambre, EspirasEnteras) {
  EXPECT_EQ(EspirasEnteras(20), 20);
  EXPECT_EQ(EspirasEnteras(20.01), 20.01);
  EXPECT_EQ(EspirasEnteras(20.03), 21);
  EXPECT_EQ(EspirasEnteras(20.99), 21);
}

// One wire of 5 mm at 60 % of 17000 kp/cm2 takes 2.0028 t; the ranges are that times the spirals:
//   4 mm  1.2818 · 100/(0.4 + 4.6) = 25.635       to the least of 5 mm
//   5 mm  2.0028 · 20 = 40.055                    to 0.9 · 2.0028 · 100 = 180.249
//   6 mm  from there                              to 0.9 · 2.8840 · 83.333 = 216.299
//   7 mm  from there                              to 3.9254 · 76.923 = 301.955, without the 0.9
TEST(Alambre, PrimeroPorLaFuerzaDelAnillo) {
  struct Fila {
    double fuerza;  // [t/m]
    int indice;     // 0: none
    double FIPR;    // [cm]
  };
  for (const Fila& f : {Fila{0, 1, 0.5},
                        {25.63, 1, 0.5},
                        {25.64, 2, 0.5},
                        {40.05, 2, 0.5},
                        {40.06, 2, 0.5},
                        {180.24, 2, 0.5},
                        {180.25, 3, 0.6},
                        {216.29, 3, 0.6},
                        {216.31, 4, 0.7},
                        {301.95, 4, 0.7},
                        {301.96, 0, 0}}) {
    const auto a = PrimerAlambre(f.fuerza, 17'000, 2211);
    ASSERT_EQ(a.has_value(), f.indice > 0) << f.fuerza;
    if (!a) continue;
    EXPECT_EQ(a->IdxAlambre, f.indice) << f.fuerza;
    EXPECT_EQ(a->alambre.FIPR, f.FIPR) << f.fuerza;
    EXPECT_EQ(a->alambre.NESP, 20) << f.fuerza;
  }
  EXPECT_EQ(PrimerAlambre(200, 17'000, 2221)->alambre, (Alambre{0.6, 40}));
}

TEST(OrdenaConIndice, DeLosIgualesElUltimoVaDelante) {
  Lista<double, 5> v{{2, 3, 1, 2, 1}};
  const auto posicion = OrdenaConIndice(v);
  EXPECT_EQ(v.v, (std::array<double, 5>{1, 1, 2, 2, 3}));
  EXPECT_EQ(posicion.v, (std::array<int, 5>{5, 3, 4, 1, 2}));
}

}  // namespace
}  // namespace zorbin
