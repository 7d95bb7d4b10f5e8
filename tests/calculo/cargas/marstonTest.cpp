#include "calculo/cargas/mdMarston.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "calculo/cargas/mdTablaCargas.h"

namespace zorbin {
namespace {

double Raiz(const std::function<double(double)>& f, double a, double b) {
  for (int i = 0; i < 200; ++i) {
    const double m = (a + b) / 2;
    ((f(a) < 0) == (f(m) < 0) ? a : b) = m;
  }
  return a;
}

// M. G. Spangler and R. L. Handy, "Soil Engineering", worked example of a ditch conduit in feet
// and pounds: Cd multiplies the unit weight and the square of the width. The chart of the book
// reads 2.4 (2,592 lb/ft) where the formula gives 2.38.
TEST(Marston, ZanjaReproduceElEjemploPublicado) {
  const double Cd = CoefZanja(0.165, 14.0, 3.0) * 14.0 / 3.0;
  EXPECT_NEAR(Cd, 2.38, 0.005);
  EXPECT_NEAR(Cd * 120.0 * 3.0 * 3.0, 2571.0, 0.5);
  const double ancha = CoefZanja(0.192, 14.0, 3.6) * 14.0 / 3.6;
  EXPECT_NEAR(ancha, 2.02, 0.005);
  EXPECT_NEAR(ancha * 120.0 * 3.6 * 3.6, 3140.0, 0.5);
}

// The equation of the program itself, solved by another road; the published line is below
// (ejemplosTest.cpp).
TEST(Marston, TerraplenPorOtroCamino) {
  const double h = Raiz([](double v) { return std::exp(v) - v - 1.19; }, 0.1, 2.0);
  for (const double H : {3.0, 11.2}) {
    const double Cc = (std::exp(h) - 1) / 0.38 + (H - h / 0.38) * std::exp(h);
    EXPECT_NEAR(CoefTerraplen(0.38, 0.5, 1.25, 1.25, 1.25 * H) * H, Cc, 1e-4);
  }
}

TEST(Marston, ResuelveEcuaBuscaLaRaizDelLadoDelArranque) {
  for (const double c : {1.02, 1.3, 2.5}) {
    const double mas = ResuelveEcua(c, 1.0);
    const double menos = ResuelveEcua(c, -1.0);
    EXPECT_GT(mas, 0);
    EXPECT_LT(menos, 0);
    EXPECT_NEAR(std::exp(mas) - mas, c, 1e-8);
    EXPECT_NEAR(std::exp(menos) - menos, c, 1e-8);
  }
  EXPECT_THROW(ResuelveEcua(1.5, 0.0), ErrorEjecucion);  // the first step divides by e^0 - 1
}

TEST(Marston, LasFormulasCompletaEIncompletaCoincidenEnElPlanoDeIgualAsiento) {
  const double x = ResuelveEcua(0.4 * 0.5 + 1.0, 0.4);
  const double He = x * 1.2 / 0.4;
  EXPECT_NEAR(CoefTerraplen(0.4, 0.5, 1.2, 1.2, He),
              CoefTerraplen(0.4, 0.5, 1.2, 1.2, He * (1 - 1e-12)), 1e-9);
  const double Ka = 1.0 / 3.0;
  const double Mu = std::tan(M_PI / 6);
  // p = 0.8: coefficient (0.5 - 0.8) 0.4 - 0.1 = -0.22
  const double y = ResuelveEcua(0.22 * 0.8 * 2 * Ka * Mu + 1.0, -1.0);
  const double Hn = y * 2.0 / (-2 * Ka * Mu);
  EXPECT_NEAR(CoefZanjaTerraplenada(Ka, Mu, 1.6, 2.0, Hn),
              CoefZanjaTerraplenada(Ka, Mu, 1.6, 2.0, Hn * (1 - 1e-9)), 1e-6);
}

// The load trains at both sides of each limit; values by hand from the fitted formulas, e.g. train
// 1 at 1.21: 3.5 / (1.54·1.4641 + 0.7·1.21 + 0.06) = 3.5 / 3.161714.
TEST(Marston, CargasMovilesEnSusLimites) {
  struct Punto {
    std::int16_t tren;
    double H, Pc;
  };
  for (const auto& x :
       {Punto{1, 1.21, 1.1069946}, Punto{1, 1.22, 0.9968477}, Punto{2, 0.99, 2.3738621},
        Punto{2, 1.0, 2.1739130}, Punto{3, 0.93, 4.0103531}, Punto{3, 0.99, 3.4975821},
        Punto{3, 1.0, 3.3370412}, Punto{4, 8.0, 0.9758054}}) {
    EXPECT_NEAR(PresionMovil(x.tren, x.H), x.Pc, 1e-6) << x.tren << " at " << x.H;
  }
  EXPECT_NEAR(PresionMovil(4, 2.0),
              (135.5 * 2 + 1142.3) * 1.57 / (1.96 * 4 + 11.2 * 2 + 13.11) / 10, 1e-12);
  EXPECT_EQ(PresionMovil(5, 2.0), 0.0);
  EXPECT_EQ(CoefImpacto(3.0), 1.0);
  EXPECT_NEAR(CoefImpacto(2.0), 1.15, 1e-12);
}

// Pipe of 1.2 m, fill of 1.8 t/m3 and 30 degrees, crown 0.7 m below the natural ground.
Tramo Zanja(std::int16_t TipoApoyo, double B0) {
  Tramo t;
  t.TipoApoyo = TipoApoyo;
  t.TipoRelleno = 11;
  t.IAs = 2;
  t.B0 = B0;
  t.De = 1.2;
  t.Gr = 1.8;
  t.Fi = 30;
  t.Hr1 = 0.7;
  return t;
}

// Trench of 2 m, H 3 m: x = 2·0.192·3/2 = 0.576, C = (1 - e^-0.576)/0.576 = 0.760169;
// Q = C·1.8·3·2 = 8.209829 t/m. Embankment: M2 = 2/3·tan 30 = 0.384900, c = 1.192450,
// x = 0.562361, He = 1.753270, C = 1.513682; C·1.8·3·1.2 = 9.80866 t/m, so the trench governs.
TEST(Marston, ZanjaPasoAPaso) {
  const auto q = CargasMarston(Zanja(11, 2.0), 3.0, 0);
  EXPECT_NEAR(q.Q, 8.209829 / 1.2, 1e-5);
  EXPECT_NEAR(q.QTerraplen, 8.209829 / 2.0, 1e-5);  // width De, also for laying 11
  EXPECT_NEAR(q.QTierras, 9.80866 / 1.2, 1e-4);
  EXPECT_FALSE(q.TerraplenRige);
  EXPECT_EQ(q.Impacto, 0.0);
  EXPECT_EQ(q.QMovil, 0.0);

  // Wider: the embankment load governs, and the prism gives the thrust.
  const auto ancha = CargasMarston(Zanja(11, 3.0), 3.0, 2);
  const double movil = PresionMovil(2, 3.0);
  EXPECT_TRUE(ancha.TerraplenRige);
  EXPECT_NEAR(ancha.Q, 9.80866 / 1.2 + movil, 1e-4);
  EXPECT_NEAR(ancha.QTerraplen, 3.0 * 1.8 + movil, 1e-12);
  EXPECT_NEAR(ancha.QMovil, movil, 1e-12);
  EXPECT_EQ(ancha.Impacto, 1.0);
}

TEST(Marston, ElTerraplenMideSuSalienteDesdeElTerreno) {
  // r 0.5 and Hp 0.7: c = M2·0.5·0.7/1.2 + 1, a load below that of the whole diameter.
  const auto q = CargasMarston(Zanja(31, 0), 3.0, 0);
  EXPECT_NEAR(q.Q, CoefTerraplen(0.3849001795, 0.5, 0.7, 1.2, 3.0) * 1.8 * 3.0, 1e-9);
  EXPECT_LT(q.Q, 9.80866 / 1.2);
  EXPECT_EQ(q.QTerraplen, 3.0 * 1.8);
}

TEST(Marston, LosDatosSinCargaFallanConNombre) {
  struct Malo {
    std::int16_t apoyo, relleno, ias;
    double Fi, Hr1, H;
    CausaError causa;
  };
  for (const auto& m : {Malo{11, 99, 2, 30, 1, 3, CausaError::DivisionPorCero},
                        Malo{31, 0, 4, 30, 1, 3, CausaError::Subindice},
                        Malo{31, 0, 2, 30, 0, 3, CausaError::DivisionPorCero},
                        Malo{31, 0, 2, 0, 1, 3, CausaError::DivisionPorCero},
                        Malo{31, 0, 2, 30, 1, 0, CausaError::DivisionPorCero}}) {
    auto t = Zanja(m.apoyo, 2.0);
    t.TipoRelleno = m.relleno, t.IAs = m.ias, t.Fi = m.Fi, t.Hr1 = m.Hr1;
    try {
      CargasMarston(t, m.H, 0);
      ADD_FAILURE() << "no failure for laying " << m.apoyo;
    } catch (const ErrorEjecucion& error) {
      EXPECT_EQ(error.causa(), m.causa) << m.apoyo << " " << m.relleno << " " << m.Fi;
    }
  }
}

Rango Alturas(double desde, double hasta, double paso) {
  Rango r;
  r.Hr0 = desde, r.Hr0Final = hasta, r.Hr0Delta = paso;
  return r;
}

TEST(TablaCargas, AlturasDeLasFilas) {
  struct Caso {
    double desde, hasta, paso;
    std::vector<double> filas;
  };
  for (const auto& c : {Caso{2, 5, 1.5, {1, 2, 3.5, 5}}, Caso{2, 5, 2, {1, 2, 4}},
                        Caso{2, 4.995, 1.5, {1, 2, 3.5, 4.995}}, Caso{1, 9, 0, {1, 1}},
                        Caso{2, 2.018, 0.005, {1, 2, 2.005, 2.018}}}) {
    const auto filas = TablaCargas(Zanja(12, 2.0), Alturas(c.desde, c.hasta, c.paso));
    ASSERT_EQ(filas.size(), c.filas.size()) << c.hasta;
    for (std::size_t i = 0; i < filas.size(); ++i) EXPECT_NEAR(filas[i].H, c.filas[i], 1e-12);
  }
  // A height that cannot be calculated ends the table.
  EXPECT_EQ(TablaCargas(Zanja(12, 2.0), Alturas(-1, 2, 1)).size(), 2u);
}

TEST(TablaCargas, ColumnasPorColocacion) {
  auto t = Zanja(11, 3.0);
  t.ICar = 2;
  auto filas = TablaCargas(t, Alturas(3, 3, 0));
  const auto& rige = filas.at(1);  // the embankment governs
  EXPECT_GT(*rige.Zanja, *rige.Terraplen);
  EXPECT_NEAR(*rige.Adoptada, *rige.Terraplen, 1e-12);
  EXPECT_NEAR(rige.Total, *rige.Adoptada + *rige.Moviles, 1e-12);
  EXPECT_EQ(*filas[0].Moviles, 0.0);  // 1 m has no concentrated load

  t.TipoApoyo = 31;
  filas = TablaCargas(t, Alturas(3, 3, 0));
  EXPECT_FALSE(filas[1].Zanja || filas[1].Adoptada);
  EXPECT_TRUE(filas[1].Moviles);
  t.ICar = 0;
  EXPECT_FALSE(TablaCargas(t, Alturas(3, 3, 0))[1].Moviles);
}

}  // namespace
}  // namespace zorbin
