#include "calculo/anillo/mdAnillo.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calculo/anillo/mdAnilloCaso.h"
#include "calculo/cargas/mdOval.h"
#include "comun/estadoDeJson.h"
#include "comun/listado.h"

namespace zorbin {
namespace {

constexpr std::array<double, 3> kAngulos{0.0, kPi / 2.0, kPi};

struct Termino {
  const char* nombre;
  CargaAnillo carga;
  EsfuerzoSecciones TerminosOval::*tabla;
};

constexpr std::array<Termino, 4> kVerticales{{
    {"own weight", CargaAnillo::Propio, &TerminosOval::propio},
    {"water", CargaAnillo::Agua, &TerminosOval::fluido},
    {"spandrels", CargaAnillo::Timpanos, &TerminosOval::timpanos},
    {"vertical", CargaAnillo::Vertical, &TerminosOval::vertical},
}};

// The tables by resultant of 1, for w = De / Dm. Of the lateral thrust they give a sum: without
// height its growing part, and its uniform part as what a metre of height adds.
class AnilloTablas : public testing::TestWithParam<double> {
 protected:
  static constexpr double kDm = 1.0;

  static DatosOval Datos(std::int16_t cuna, double w) {
    DatosOval d{2.0 * kDm - w, w, 2.5, 1.8, 0.3, 4.0, 0.0, 0.0, cuna};
    d.QH = 1.8;  // h1 = 1 m
    return d;
  }

  static void Compara(const LeyesAnillo& e, const EsfuerzoSecciones& tabla, double W,
                      const std::string& cual) {
    for (int s = 1; s <= kSecciones; ++s) {
      const double angulo = kAngulos[static_cast<std::size_t>(s - 1)];
      EXPECT_NEAR(e.M(angulo), tabla.M(s) / (W * kDm), 1e-4) << cual << " M" << s;
      EXPECT_NEAR(e.N(angulo), tabla.N(s) / W, 2e-4) << cual << " N" << s;
    }
    EXPECT_NEAR(e.M.Integral(), 0.0, 1e-9) << cual;
    EXPECT_NEAR(e.M.Por(SumaTrig::Cos()).Integral(), 0.0, 1e-9) << cual;
  }
};

TEST_P(AnilloTablas, PasaPorLosTresValoresDeCadaTermino) {
  const double w = GetParam();
  for (const std::int16_t cuna : {kCunaGranular90, kCunaHormigon90, kCunaHormigon120}) {
    const auto d = Datos(cuna, w);
    const auto r = ResultantesDe(d);
    const auto t = CalculaTerminos(d);
    const std::array<double, 4> W{r.Wp, r.Wf, r.Wt, r.Wq};
    for (std::size_t i = 0; i < kVerticales.size(); ++i) {
      if (W[i] == 0) continue;  // a ring without thickness weighs nothing
      const auto& [nombre, carga, tabla] = kVerticales[i];
      const auto e = LeyesUnitarias(carga, cuna, w);
      Compara(e, t.*tabla, W[i], nombre + std::to_string(cuna));
      // Half of the ring above the haunches stands on its two ends.
      const double encima = carga == CargaAnillo::Propio ? -0.25 : -0.5;
      if (carga == CargaAnillo::Agua) continue;
      EXPECT_NEAR(e.N(kPi / 2.0), encima, 1e-12) << nombre;
    }
    auto sinAltura = d;
    sinAltura.QH = 0;
    const auto t0 = CalculaTerminos(sinAltura);
    Compara(LeyesUnitarias(CargaAnillo::LateralLineal, cuna, w), t0.lateral, r.Wl * d.De,
            "growing");
    EsfuerzoSecciones uniforme;
    for (int s = 1; s <= kSecciones; ++s) {
      uniforme.M(s) = t.lateral.M(s) - t0.lateral.M(s);
      uniforme.N(s) = t.lateral.N(s) - t0.lateral.N(s);
    }
    const auto e = LeyesUnitarias(CargaAnillo::LateralUniforme, cuna, w);
    Compara(e, uniforme, r.Wl, "uniform");
    // Crown and invert take between them what presses on a side.
    const double borde = kPi - SemianguloCuna(cuna);
    EXPECT_NEAR(e.N(0.0) + e.N(kPi), -0.5 * (1.0 - std::cos(borde)), 1e-12);
  }
}

INSTANTIATE_TEST_SUITE_P(W, AnilloTablas, testing::Values(1.0, 1.05, 1.1, 1.2));

TEST(Anillo, LasLeyesSonContinuasEnLosBordesDeSusPiezas) {
  for (std::size_t i = 0; i < kCargasAnillo; ++i) {
    for (const std::int16_t cuna : {kCunaGranular90, kCunaHormigon120}) {
      const auto e = LeyesUnitarias(static_cast<CargaAnillo>(i), cuna, 1.1);
      for (const double x : {kPi / 2.0, kPi - SemianguloCuna(cuna)}) {
        EXPECT_NEAR(e.M(x), e.M(x + 1e-10), 1e-9) << i << " " << cuna;
        EXPECT_NEAR(e.N(x), e.N(x + 1e-10), 1e-9) << i << " " << cuna;
      }
    }
  }
}

// Under every hypothesis of the sample Tramos, reinforced and post-tensioned, and of a bedding of
// less than 90 degrees.
TEST(Anillo, CadaHipotesisPasaPorLosEsfuerzosDelDiseno) {
  for (int posicion = 1; posicion <= 8; ++posicion) {
    auto e = pruebas::EstadoDeMuestra(posicion == 8 ? 1 : posicion);
    if (posicion == 8) e.tramo.TipoCuna = kCunaMenorDe90;
    const auto x = pruebas::ResultadoDe(e);
    const auto& fila = x.filas.back();
    const auto caso = CasoEntero(x, fila);
    const auto& q = x.Altura(fila).cargas;
    const double W = (q.Q + q.QTerraplen) * 1.25 * x.datos.tramo.De + 5.0;
    for (int h = 1; h <= CuentaHipotesis(x.datos); ++h) {
      const auto a = AnilloDe(x, fila, caso, h);
      for (int s = 1; s <= kSecciones; ++s) {
        const double angulo = kAngulos[static_cast<std::size_t>(s - 1)];
        EXPECT_NEAR(a.leyes.M(angulo), a.M(s), 1e-4 * W * x.datos.tramo.De) << posicion << "," << h;
        EXPECT_NEAR(a.leyes.N(angulo), a.N(s), 2e-4 * W) << posicion << "," << h;
      }
      EXPECT_EQ(a.sinMomento, x.datos.tramo.EsArmado && h == kHipPPNeta);
    }
  }
}

TEST(Anillo, LosExtremosSonLosDeUnBarridoFino) {
  for (std::size_t i = 0; i < kCargasAnillo; ++i) {
    const auto M = LeyesUnitarias(static_cast<CargaAnillo>(i), kCunaHormigon120, 1.1).M;
    double mayor = M(0.0), menor = mayor;
    for (int j = 0; j <= 20000; ++j) {
      const double v = M(kPi * j / 20000);
      mayor = std::max(mayor, v);
      menor = std::min(menor, v);
    }
    EXPECT_NEAR(M.Mayor().valor, mayor, 1e-9) << i;
    EXPECT_NEAR(M.Menor().valor, menor, 1e-9) << i;
    EXPECT_GE(M.Mayor().valor, mayor - 1e-15) << i;
    EXPECT_DOUBLE_EQ(M(M.Menor().angulo), M.Menor().valor) << i;
  }
}

TEST(Anillo, DiceLoQuePasaDeLasTresSecciones) {
  AnilloCaso a;
  a.M = {{2.0, -1.0, 1.5}};
  a.mayorM = {0.0, 2.01};
  a.menorM = {1.4, -1.03};
  EXPECT_FALSE(ExcesoDe(a, true));
  const auto x = ExcesoDe(a, false);
  ASSERT_TRUE(x);
  EXPECT_NEAR(x->exceso, 0.03, 1e-12);
  EXPECT_EQ(x->secciones, -1.0);
  a.M = {{2.0, 1.0, 1.5}};
  EXPECT_NEAR(ExcesoDe(a, false)->exceso, 0.515, 1e-12);  // no section has that sign
  EXPECT_FALSE(ExcesoDe(AnilloCaso{}, true));
}

}  // namespace
}  // namespace zorbin
