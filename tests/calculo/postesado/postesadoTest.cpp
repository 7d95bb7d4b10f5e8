// The search of the wire, its verification and its diagnostics.
#include "calculo/postesado/mdPostesado.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "calculo/postesado/mdAlambre.h"
#include "calculo/postesado/mdComprueba.h"
#include "calculo/postesado/mdDmen.h"
#include "calculo/postesado/mdHipotesis.h"
#include "calculo/postesado/tuboPostesado.h"

namespace zorbin {
namespace {

using pruebas::PonTermino;
using pruebas::PonTierras;
using pruebas::Tubo;
using pruebas::TuboDeMuestra;
using pruebas::TuboDePocaFluencia;
using pruebas::TuboFuerte;

struct Calculado : ResultadoPostesado {
  std::vector<Aviso> avisos;
};

Calculado Calcula(const Tubo& e) {
  Marcha marcha;
  Zunchados zunchados(e.tramo);
  auto r = CalculaPostesado(e.tramo, e.anillo, e.presiones, zunchados, marcha);
  return {std::move(r), std::move(marcha.avisos)};
}

TEST(Hipotesis, SumanSusTerminos) {
  Tubo e;
  double bit = 1;  // each term a power of two, so that a sum tells its terms
  for (int termino = 1; termino <= kTerminosOval; ++termino, bit *= 2) {
    PonTermino(e, termino, {{bit, 3 * bit, 5 * bit}}, {{-bit, -3 * bit, -5 * bit}});
  }
  const auto x = EsfuerzosHipotesis(e.anillo);
  const double fijas = 1 + 2 + 1024 + 256 + 512;  // 1, 2, 11, 9, 10
  const Lista<double, 6> suma{{fijas, fijas, 64, 1 + 2, 1 + 2 + 128, 64}};
  for (int h = 1; h <= 6; ++h) {
    for (int s = 1; s <= 3; ++s) {
      EXPECT_EQ(x.TablaMom(h, s), (2 * s - 1) * suma(h)) << h;
      EXPECT_EQ(x.TablaAxil(h, s), -(2 * s - 1) * suma(h)) << h;
    }
  }
}

struct CasoAlambre {
  const char* nombre;
  std::int16_t tipologia;
  double DP;  // [at]
  double m;   // moment of the earth [m·t/m]
  Alambre definitivo;
  int vueltas;
};

class Alambres : public testing::TestWithParam<CasoAlambre> {};

// Every winding from the widest of each wire to the last one is tried once, and the other twelve
// passes once each; a wire of 5 mm goes to 100 spirals (5 mm of clear distance), one of 6 to 83,
// one of 7 to 76. So the windings tried tell from where each wire started.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Tubo, Alambres, testing::Values(
    // first wire by force, no change
    CasoAlambre{"de5", 2211, 10, 0.5, {0.5, 71}, 71 - 20 + 1 + 12},
    CasoAlambre{"de6", 2211, 16, 0.5, {0.6, 75}, 75 - 20 + 1 + 12},
    CasoAlambre{"de7", 2211, 20, 0.5, {0.7, 68}, 68 - 20 + 1 + 12},
    CasoAlambre{"de6revestida", 2221, 16, 0.5, {0.6, 75}, 75 - 40 + 1 + 12},
    CasoAlambre{"de7revestida", 2221, 20, 0.5, {0.7, 68}, 68 - 40 + 1 + 12},
    // change of wire: 81 windings of 5 mm (20 to 100), 64 of 6 mm (20 to 83) or 44 (40 to 83)
    CasoAlambre{"de5a6", 2211, 13, 4, {0.6, 71}, 81 + (71 - 20 + 1) + 12},
    CasoAlambre{"de6a7", 2211, 17, 4, {0.7, 64}, 64 + (64 - 20 + 1) + 12},
    CasoAlambre{"de5a6revestida", 2221, 13, 4, {0.6, 72}, 81 + (72 - 40 + 1) + 12},
    CasoAlambre{"de6a7revestida", 2221, 17, 4, {0.7, 65}, 44 + (65 - 40 + 1) + 12}),
    [](const auto& p) { return p.param.nombre; });
// clang-format on

TEST_P(Alambres, CambianCuandoLasEspirasNoCaben) {
  const auto& c = GetParam();
  Tubo e = TuboFuerte(c.tipologia, c.DP);
  PonTierras(e, c.m);
  const auto r = Calcula(e);
  EXPECT_EQ((Alambre{r.FIPRDEFI, r.NESPDEFI}), c.definitivo);
  EXPECT_EQ(r.Vueltas, c.vueltas);
  EXPECT_EQ(r.ErrorPostesado, 0);
  EXPECT_FALSE(r.MensajePostesado.has_value());
  EXPECT_TRUE(r.avisos.empty());
}

// Without pressure the wire of 5 mm takes the first row, whose 4 mm of clear distance let it go
// to 111 spirals; the next position is the wire of 5 mm again, from 20 to 100.
TEST(Postesado, PrimeraFilaEsOtraVezElDe5) {
  Tubo e = TuboFuerte(2211, 0);
  PonTierras(e, 40);
  const auto r = Calcula(e);
  EXPECT_EQ(r.ErrorPostesado, 5);
  EXPECT_EQ((Alambre{r.FIPRDEFI, r.NESPDEFI}), (Alambre{0.7, 77}));
  EXPECT_EQ(r.Vueltas, 92 + 81 + 64 + 57 + 1 + 12);
}

TEST(Postesado, SinAlambreQueTomeElAnillo) {
  Tubo e = TuboFuerte(2211, 24);  // 24 · 10 · 1.27 m = 304.8 t/m, beyond 301.96
  const auto r = Calcula(e);
  EXPECT_EQ(r.fin, FinPostesado::SinAlambre);
  EXPECT_EQ(r.ErrorPostesado, 5);
  EXPECT_EQ(r.FIPRDEFI, 0);
  EXPECT_EQ(r.NESPDEFI, 0);
  EXPECT_EQ(r.PP, e.presiones.PP);
  EXPECT_EQ(r.PPHipotesis, 0);
  EXPECT_EQ(r.fila.PP, 0);
  EXPECT_EQ(r.fila.MensajePostesado, ClaseAviso::EspesorInsuficiente);
  ASSERT_EQ(r.avisos.size(), 1u);
  EXPECT_EQ(r.avisos[0].hipotesis, 0);
  EXPECT_TRUE(r.avisos[0].pantalla);
  EXPECT_FALSE(r.hipotesis(1).hecha);
  EXPECT_GT(r.materiales.Fctr, 0);  // the heading prints it all the same
}

// The 7 mm wire no longer fits: the message goes out once a hypothesis, and PP rests on a pass of
// the search.
TEST(Postesado, NoQuedaAlambre) {
  Tubo e = TuboFuerte(2211, 21);
  PonTierras(e, 4);
  const auto r = Calcula(e);
  EXPECT_EQ(r.fin, FinPostesado::Completo);
  EXPECT_EQ((Alambre{r.FIPR, r.NESP}), (Alambre{0.7, 77}));
  EXPECT_EQ(
      std::count_if(r.avisos.begin(), r.avisos.end(), [](const Aviso& a) { return a.pantalla; }),
      6);
  for (const auto& p : r.hipotesis.v) {
    EXPECT_EQ(p.error, 5);
    EXPECT_EQ(p.texto, ClaseAviso::EspesorInsuficiente);
    EXPECT_EQ(p.NESP, 77);
    EXPECT_EQ(p.Asp, 0);
    EXPECT_EQ(p.SigRes, 0);
  }
  EXPECT_NE(r.hipotesis(1).MomHip(1), 0);
  EXPECT_FALSE(r.PPConAlambreFinal);
  EXPECT_EQ(r.PPHipotesis, 1);
}

TEST(Postesado, NucleoFlojoAlZunchar) {
  Tubo e = TuboFuerte(2211, 10);
  e.tramo.Fckno = 60;
  const auto r = Calcula(e);
  EXPECT_EQ(r.ErrorPostesado, 6);
  EXPECT_EQ(r.MensajePostesado, ClaseAviso::ResistenciaInicial);
  EXPECT_EQ(r.fila.MensajePostesado, ClaseAviso::ResistenciaInicial);
  // No pass got to its stresses, so nothing limits PP.
  EXPECT_EQ(r.PP, kPPSinLimite);
  EXPECT_EQ(r.PPHipotesis, 0);
  for (const auto& p : r.hipotesis.v) {
    EXPECT_EQ(p.error, 6);
    EXPECT_GT(std::fabs(p.SigIniInt), 0.55 * 60);
    EXPECT_GT(p.D, 0);
    EXPECT_EQ(p.SigRes, 0);
    EXPECT_EQ(p.PresLimite, 0);
  }
  ASSERT_FALSE(r.avisos.empty());
  EXPECT_EQ(r.avisos.back().valor, -r.hipotesis(6).SigIniInt);
  EXPECT_EQ(r.avisos.back().alambre.NESP, r.NESPDEFI);
}

// More spirals for the moving load take compression from the coating of hypothesis 2, which had
// passed with fewer and would now need yet others. The steel of the result stays the searched one.
TEST(Postesado, LaVerificacionCambiaElAlambre) {
  Tubo e = TuboDePocaFluencia();
  auto& t = e.tramo;
  t.Fckno = 380, t.Fckr = 440, t.Sf = 8500, t.Fir = 0.9, t.Epsc = 0.0005, t.Epsr = 0.0006;
  t.Di = 0.9, t.De = 1.34, t.Esp = 0.22, t.Reci = 0.04, t.Rece = 0.035, t.Delca = 0.35;
  e.presiones.DP = 2, e.presiones.MDP = 3.2, e.presiones.STP = 4.2;
  PonTierras(e, 0.21, 1);
  e.anillo.MHip(7, CLAVE) += 3.16;
  e.anillo.MHip(7, SOLERA) += 3.16;
  const auto r = Calcula(e);
  EXPECT_EQ(r.fin, FinPostesado::CambiaAlambre);
  EXPECT_EQ(r.ErrorPostesado, 91);
  EXPECT_EQ((Alambre{r.FIPRDEFI, r.NESPDEFI}), (Alambre{0.5, 46}));
  EXPECT_NE((Alambre{r.FIPR, r.NESP}), (Alambre{0.5, 46}));
  EXPECT_TRUE(r.PPConAlambreFinal);
  EXPECT_FALSE(r.fila.MensajePostesado.has_value());  // the row goes out before
  EXPECT_TRUE(r.hipotesis(1).Impresa());
  EXPECT_EQ(r.hipotesis(2).error, 91);
  EXPECT_FALSE(r.hipotesis(3).hecha);
}

// The same, but no winding serves any more: the diagnostic of the pass goes out before the 91.
TEST(Postesado, ElDiagnosticoDeLaPasadaVaDelante) {
  Tubo e = TuboDePocaFluencia();
  auto& t = e.tramo;
  t.Fckno = 300, t.Fckr = 360, t.Sf = 7500, t.Fir = 0.7, t.Epsc = 0.0005, t.Epsr = 0.0006;
  t.Di = 0.9, t.De = 1.34, t.Esp = 0.22, t.Reci = 0.04, t.Rece = 0.035, t.Delca = 0.25;
  e.presiones.DP = 0.5, e.presiones.MDP = 0.9, e.presiones.STP = 1.9;
  PonTierras(e, 0.089, 1);
  e.anillo.MHip(7, CLAVE) += 3.16;
  e.anillo.MHip(7, SOLERA) += 3.16;
  const auto r = Calcula(e);
  EXPECT_EQ(r.ErrorPostesado, 91);
  EXPECT_EQ(r.MensajePostesado, ClaseAviso::CambiaAlambre);
  ASSERT_EQ(r.avisos.size(), 2u);
  EXPECT_NE(r.avisos[0].clase, ClaseAviso::CambiaAlambre);
  EXPECT_EQ(r.avisos[1].clase, ClaseAviso::CambiaAlambre);
  EXPECT_EQ(r.avisos[0].hipotesis, r.avisos[1].hipotesis);
}

// The pass under MDP itself asks for another winding: PP is a mark, the tabular row shows the
// winding of that pass, and the verification starts from the final one again.
TEST(Postesado, ElPasoBajoMDPCambiaElAlambre) {
  Tubo e = TuboDePocaFluencia();
  auto& t = e.tramo;
  t.Fckno = 520, t.Fckr = 400, t.Sf = 7500, t.Fir = 1.4, t.Epsc = 0.00055, t.Epsr = 0.0006;
  t.Di = 1.4, t.De = 1.56, t.Esp = 0.08, t.Delca = 0.3;
  e.presiones.DP = 0.5, e.presiones.MDP = 0.7, e.presiones.STP = 1.05;
  PonTermino(e, 1, {{0.14, -0.14, 0.14}}, {});
  PonTermino(e, 10, {{0, 0.14, 0}}, {});
  PonTermino(e, 8, {{0, 0.14, 0}}, {});
  PonTermino(e, 7, {{1.03, 0, 1.03}}, {});
  const auto r = Calcula(e);
  EXPECT_EQ(r.PP, kPPAlambreCambia);
  EXPECT_EQ(r.PPHipotesis, 0);
  EXPECT_FALSE(r.PPConAlambreFinal);
  EXPECT_EQ((Alambre{r.FIPRDEFI, r.NESPDEFI}), (Alambre{0.5, 54}));
  EXPECT_EQ(Alambre{r.fila}, (Alambre{0.7, 73}));
  EXPECT_EQ(Alambre{r.hipotesis(1)}, (Alambre{0.5, 54}));
  EXPECT_EQ(r.ErrorPostesado, 91);
}

// Codes 9 and 10 can't be reached: hypothesis 6 is accepted only where the core keeps 5 kp/cm2 of
// compression, and they want a tension. Codes 11 and 12 need a coating whose tensile strength is
// above 60 % of its strength in compression: below 0.43 kp/cm2, which no concrete is but no rule
// of the capture refuses.
TEST(Postesado, HormigonDelRevestimiento) {
  for (const auto& [codigo, m, n] : {std::tuple{11, 0.05, 28.0}, {12, 0.0, 26.25}}) {
    Tubo e = TuboDeMuestra();
    e.tramo.Fckr = 0.2;
    e.tramo.Fckno = 350;
    e.presiones.MDP = 0.5, e.presiones.STP = 0.75;
    PonTermino(e, 7, {{m, m, m}}, {{n, n, n}});
    const auto r = Calcula(e);
    EXPECT_EQ(r.ErrorPostesado, codigo);
    EXPECT_EQ(r.fin, FinPostesado::Completo);
    EXPECT_EQ(r.MensajePostesado, ClaseAviso::ResistenciaHormigon);
    EXPECT_TRUE(r.hipotesis(5).Impresa());
    EXPECT_FALSE(r.hipotesis(6).Impresa());
    EXPECT_NE(r.hipotesis(6).TotRE(1), 0);
    ASSERT_EQ(r.avisos.size(), 2u);  // one of the search, for no listing
    EXPECT_FALSE(r.avisos[0].pantalla);
  }
}

TEST(CompruebaHormigon, CuentaElSignoYSoloEnLaSexta) {
  TensionesHipotesis x;
  x.TotPI = x.TotPE = x.TotRI = x.TotRE = {{-1e6, -1e6, -1e6}};
  EXPECT_EQ(CompruebaHormigon(x, 6, 400, 300), 0);
  x.TotRE(2) = 180.1;
  EXPECT_EQ(CompruebaHormigon(x, 6, 400, 300), 12);
  x.TotRI(3) = 180.1;
  EXPECT_EQ(CompruebaHormigon(x, 6, 400, 300), 11);
  x.TotPE(1) = 240.1;
  EXPECT_EQ(CompruebaHormigon(x, 6, 400, 300), 10);
  x.TotPI(1) = 240.1;
  EXPECT_EQ(CompruebaHormigon(x, 6, 400, 300), 9);
  EXPECT_EQ(CompruebaHormigon(x, 5, 400, 300), 0);
}

TEST(CompruebaChapa, InterpolaEnSuRadio) {
  TensionesHipotesis x;
  x.TotPI = {{-10, -20, -30}};
  x.TotPE = {{-50, -20, 0}};
  auto t = TuboFuerte(2211, 1).tramo;  // cover 4 cm of a core of 27: 4/27 of the way
  EXPECT_NEAR(CompruebaChapa(t, 2, x), (-10 - 40 * 4.0 / 27) * 2000, 1e-6);
  EXPECT_NEAR(CompruebaChapa(TuboFuerte(2221, 1).tramo, 2, x), 0, 1e-9);
  t.Rece = t.Esp;
  EXPECT_THROW(CompruebaChapa(t, 2, x), ErrorEjecucion);
}

TEST(PresionLimite, SinTensionNoLimita) {
  EXPECT_EQ(PresionLimite(0, -50, -5, 8), 999999);
  EXPECT_NEAR(PresionLimite(20, -50, -5, 8), 18, 1e-12);  // 45 · 8 / 20
}

TEST(Postesado, PruebaDelPrimario) {
  Tubo e = TuboFuerte(2211, 10);
  e.tramo.Coepre1 = 1.6;
  const auto sin = Calcula(e);
  EXPECT_LT(sin.hipotesis(1).PresPrimario, 16);
  e.tramo.Icontes1 = true;
  const auto con = Calcula(e);
  EXPECT_GT(con.NESPDEFI, sin.NESPDEFI);
  EXPECT_GE(con.hipotesis(1).PresPrimario, 16);
}

// No cylinder check can be made where the coating takes the whole wall: the run stops.
TEST(Postesado, SinNucleoNoHayDiseno) {
  Tubo e = TuboFuerte(2211, 10);
  e.tramo.Rece = e.tramo.Esp;
  EXPECT_THROW(Calcula(e), ErrorEjecucion);
}

// What a finished design promises, looked at from its stresses.
void ExigeDiseno(const Tubo& e, const ResultadoPostesado& r) {
  EXPECT_EQ(r.NESPDEFI, std::floor(r.NESPDEFI));
  EXPECT_GE(LuzEspiras(r.FIPRDEFI, r.NESPDEFI) * 10, 4 - 1e-9);
  double chapa = r.hipotesis(1).TensionChapa;
  for (const auto& p : r.hipotesis.v) {
    chapa = std::max(chapa, p.TensionChapa);
    EXPECT_LE(std::max(Max3(p.TotPI), Max3(p.TotPE)), p.LimPrimario + 1e-7);
    EXPECT_LE(std::max(Max3(p.TotRI), Max3(p.TotRE)), r.materiales.Fctr + 1e-7);
    EXPECT_LE(std::fabs(p.SigIniInt), 0.55 * e.tramo.Fckno);
    EXPECT_EQ(p.NESP, r.NESPDEFI);
  }
  EXPECT_EQ(r.TensionChapa, chapa);
  // Under PP the place that governs is just at its limit, and no other is beyond.
  const auto& p = r.hipotesis(4);
  const double veces = r.PP / e.presiones.MDP;
  const double nucleo =
      std::max(veces * p.PrPI + Max3(p.SinPI), veces * p.PrPE + Max3(p.SinPE)) + 5;
  const double revestimiento =
      std::max(veces * p.PrRI + Max3(p.SinRI), veces * p.PrRE + Max3(p.SinRE)) -
      r.materiales.Fctr / 1.5;
  EXPECT_NEAR(std::max(nucleo, revestimiento), 0, 1e-6);
}

TEST(Postesado, LosDisenosCumplenLoQuePrometen) {
  std::mt19937 azar(20);
  const auto entre = [&azar](double a, double b) {
    return a + (b - a) * (static_cast<double>(azar()) / 4294967296.0);
  };
  int buenos = 0;
  for (int i = 0; i < 500; ++i) {
    Tubo e = TuboFuerte(i % 2 == 0 ? 2211 : 2221, entre(1, 20));
    e.tramo.Fckno = entre(300, 600);
    e.tramo.Fic = entre(0.5, 3);
    e.tramo.Epsr = entre(0.0001, 0.0005);
    PonTierras(e, entre(0, 6));
    const auto r = Calcula(e);
    const bool bueno = std::all_of(r.hipotesis.v.begin(), r.hipotesis.v.end(),
                                   [](const auto& p) { return p.Impresa(); });
    EXPECT_EQ(bueno, r.fin == FinPostesado::Completo && r.ErrorPostesado == 0);
    if (!bueno) continue;
    ++buenos;
    ExigeDiseno(e, r);
    if (testing::Test::HasFailure()) FAIL() << "pipe " << i;
  }
  EXPECT_GT(buenos, 100);
}

}  // namespace
}  // namespace zorbin
