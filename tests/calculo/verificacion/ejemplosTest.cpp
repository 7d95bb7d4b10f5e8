// Published examples: how far the program may lie from each, and the figures that comments and
// documents tell of the simplified formulas.
#include "calculo/verificacion/mdEjemplos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>

namespace zorbin {
namespace {

TEST(Ejemplos, CadaUnoDifiereLoQueSeDice) {
  constexpr double kAbaco = 2.5;  // a chart cannot be read closer [%]
  const std::map<std::string, Rango, std::less<>> kDiferencias{
      {"zanja1", {-kAbaco, kAbaco}},
      {"zanja2", {-kAbaco, kAbaco}},
      {"terraplen05h6", {10.5, 11}},
      {"terraplen05h10", {13, 13.5}},
      {"terraplen10h6", {15, 15.5}},
      {"terraplen10h10", {19.5, 20}},
      {"completa05h6", {-0.3, 0.3}},
      {"completa05h10", {-0.3, 0.3}},
      {"completa10h6", {-0.3, 0.3}},
      {"completa10h10", {-0.3, 0.3}},
      {"negativah6", {-1.5, -1}},
      {"negativah8", {-2.5, -2}},
      {"negativah10", {-3, -2.5}},
      {"negcompletah6", {-0.8, 0.8}},
      {"negcompletah8", {-0.8, 0.8}},
      {"negcompletah10", {-0.8, 0.8}},
      {"lame1", {-0.001, 0.001}},
      {"lame2a", {-0.015, 0.015}},
      {"lame2b", {-0.015, 0.015}},
      {"lame2", {-0.015, 0.015}},
      // The velocities of the tables are rounded to 0.01 m/s.
      {"colebrook250v", {-0.3 - 0.33, -0.1}},
      {"colebrook200v", {-0.3 - 0.29, -0.1}},
      {"colebrook250q", {-0.3, -0.1}},
      {"colebrook200q", {-0.3, -0.1}},
      {"colebrook1200", {-0.3, -0.1}},
      {"exacta250", {0.2, 0.6}},  // the slope goes with the square of the velocity
      {"exacta200", {0.2, 0.6}},
      {"exacta1200", {0.2, 0.6}},
      {"hazen", {-1.35, -1.25}},
      {"hazenusual", {0, 0.2}}};
  const auto ejemplos = EjemplosPublicados();
  EXPECT_EQ(ejemplos.size(), kDiferencias.size());
  for (const auto& x : ejemplos) {
    const auto d = kDiferencias.find(x.clave);
    ASSERT_NE(d, kDiferencias.end()) << x.clave;
    EXPECT_GE(x.Diferencia(), d->second.min) << x.clave;
    EXPECT_LE(x.Diferencia(), d->second.max) << x.clave;
  }
}

// mdMarston.h and docs/arquitectura.md tell these figures.
TEST(Ejemplos, ElMetodoSeApartaDeLaEcuacionCompletaLoQueSeDice) {
  struct Dicho {
    double rsdp, min, max;  // [%], rounded
  };
  const auto compara = [](const ExcesoDelMetodo& f, const Dicho& d) {
    EXPECT_NEAR(f.rsdp, d.rsdp, 1e-12);
    EXPECT_EQ(std::round(f.usual.min), d.min) << d.rsdp;
    EXPECT_EQ(std::round(f.usual.max), d.max) << d.rsdp;
  };
  const auto positiva = ExcesosTerraplen();
  ASSERT_EQ(positiva.size(), 5u);
  compara(positiva[0], {0.1, 5, 5});
  compara(positiva[2], {0.5, 11, 13});
  compara(positiva[3], {1.0, 15, 20});
  compara(positiva[4], {2.0, 22, 31});
  const auto negativa = ExcesosNegativa();
  ASSERT_EQ(negativa.size(), 5u);
  EXPECT_NEAR(negativa[1].rsdp, -0.1, 1e-12);
  EXPECT_NEAR(negativa[2].rsdp, -0.3, 1e-12);
  EXPECT_NEAR(std::max(negativa[1].usual.max, negativa[2].usual.max), -1.3, 0.05);
  EXPECT_NEAR(std::min(negativa[1].usual.min, negativa[2].usual.min), -3.4, 0.05);
  compara(negativa[3], {-1.0, 1, 6});
}

}  // namespace
}  // namespace zorbin
