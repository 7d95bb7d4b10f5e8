// The design of a Caso as a whole: which hypothesis governs, adjustments, limits, warnings.
#include "armado/mdArmado.h"

#include <gtest/gtest.h>

#include "comun/estadoDeJson.h"
#include "core/mdAjustes.h"
#include "core/mdCorrida.h"
#include "core/mdUnidades.h"

namespace zorbin {
namespace {

using pruebas::EstadoDeMuestra;

struct Ultimo : OyenteCorrida {
  std::vector<ResultadoArmado> casos;
  std::vector<std::vector<Aviso>> avisos;
  void Caso(const EstadoCalculo& e) override {
    casos.push_back(e.caso.armado);
    avisos.push_back(e.caso.avisos);
  }
};

Ultimo Corre(EstadoCalculo& e) {
  Ultimo u;
  const std::array<OyenteCorrida*, 1> oyentes{&u};
  const EnUnidadesDeCalculo unidades(e);
  CalculaCasos(e, kSinForzar, kSinForzar, oyentes);
  return u;
}

bool Hay(const std::vector<Aviso>& avisos, ClaseAviso clase) {
  return std::any_of(avisos.begin(), avisos.end(),
                     [=](const Aviso& a) { return a.clase == clase; });
}

// One Tramo worked by hand from its data to its bars. Pipe 1.0 / 1.2 m, wall 10 cm, covers 2 cm,
// 2.5 t/m3, granular bedding of 90 degrees, given load 6 t/m2 in a compacted trench of 2 m (fill
// 1.8 t/m3, 30 degrees, K·mu' 0.165), DP 4 and MDP 5 at with the surge calculated; concrete 350,
// steel 2100 / 1400 kp/cm2, factor 1.5, sheet and spirals.
TEST(Armado, UnTramoEnteroAMano) {
  EstadoCalculo e;
  e.obra.SisUnid = "MKS";
  e.obra.GolpeCalculado = true;
  e.obra.Prs1 = e.obra.Prs2 = 4, e.obra.PrsM1 = e.obra.PrsM2 = 5;
  e.obra.Alt1 = e.obra.Alt2 = 2;
  auto& t = e.tramo;
  t.Tipologia = 1210, t.TipoCamisa = 1, t.CamMax = 6, t.TipoControl = 1;
  t.Fck = 350, t.Fct = FctDeFck(350), t.Fyk = 2100, t.Fyd = 1400, t.GamaB = 1.5;
  t.Di = 1.0, t.De = 1.2, t.Esp = 10, t.Reci = 2, t.Rece = 2, t.Gc = 2.5;
  t.TipoCuna = 1, t.TipoApoyo = 12, t.TipoRelleno = 12, t.B0 = 2, t.Gr = 1.8, t.Fi = 30;
  t.QDato = 6, t.IndCar = 0;
  EstadoCalculo visto;
  struct Guarda : OyenteCorrida {
    EstadoCalculo* destino;
    void Caso(const EstadoCalculo& x) override { *destino = x; }
  } guarda;
  guarda.destino = &visto;
  const std::array<OyenteCorrida*, 1> oyentes{&guarda};
  const EnUnidadesDeCalculo unidades(e);
  CalculaCasos(e, kSinForzar, kSinForzar, oyentes);
  const auto& c = visto.corrida;
  const auto& r = visto.caso.armado;

  // Pressures: PP the greater of 1.2·5 and 5 + 2, STP 5 + 1.
  EXPECT_DOUBLE_EQ(c.PP, 7);
  EXPECT_DOUBLE_EQ(c.STP, 6);
  // Loads: the given one is also the second; 1 m of earth is x = 2·0.165·1/2 = 0.165,
  // C = 0.921856, C·1.8·1 = 1.659341 t/m2, below the embankment load 2.546618/1.2.
  EXPECT_DOUBLE_EQ(c.QTerraplen, 6);
  EXPECT_NEAR(c.Landa, 1.0 / 3, 1e-12);
  EXPECT_NEAR(c.Q1m, 1.659341, 1e-6);
  // Ring: Dm 1.1, Wp 0.863938, Wf 0.785398, Wt 0.278124, Wq 7.2, Wl 0.72, h 3.333333; crown:
  // own 0.02994, water 0.02722, spandrels 0.00995, vertical 0.49802, lateral -0.17126.
  EXPECT_NEAR(visto.caso.MHip(11, CLAVE), 0.49802, 1e-5);
  EXPECT_NEAR(visto.caso.MHip(10, CLAVE), -0.17126, 1e-5);
  EXPECT_NEAR(visto.caso.NHip(10, SOLERA), -1.03938, 1e-5);
  // Hypotheses: M5 = 0.02722 + 0.02994 + 0.49802 + 0.00995 - 0.17126 at the crown;
  // N5 there = 0.16068 + 0.03924 + 0.20553 + 0.02389 - 1.32384 + 5·10·0.5.
  EXPECT_NEAR(r.esfuerzos.M(5, CLAVE), 0.39387, 1e-5);
  EXPECT_NEAR(r.esfuerzos.N(5, CLAVE), 24.10549, 1e-5);
  EXPECT_NEAR(r.esfuerzos.M(3, RINONES), -0.15604, 1e-5);
  EXPECT_NEAR(r.esfuerzos.N(2, SOLERA), -3.03568, 1e-5);
  // Lever arm 0.06: |M|/N is at most 0.0266 < 0.03 in 3, 4 and 5, composite tension at both faces;
  // 2 is flexo-compression, below the minimum 350·0.04·0.08/(2100·1.5)·10000 = 3.5556.
  EXPECT_NEAR(r.BRAZO, 0.06, 1e-12);
  // 1: 7·0.5/1400·10000 = 25 in halves. 2: sheet 15 and 5 bars of 10 mm, 3.927. The faces in
  // equilibrium are 12.99 and 11.48 (3), 12.03 and 10.33 (4), 13.96 and 11.97 (5): the sheet of 15
  // serves inside, and beside it 10.12, 9.46 and 11.58 outside: 9 of 12, 19 of 8, 15 of 10 mm.
  EXPECT_NEAR(r.TablaHip(1).Total, 25.0, 1e-9);
  EXPECT_NEAR(r.TablaHip(2).Total, 15 + 3.926991, 1e-6);
  EXPECT_NEAR(r.TablaHip(3).Total, 15 + 10.178760, 1e-6);
  EXPECT_NEAR(r.TablaHip(4).Total, 15 + 9.550442, 1e-6);
  EXPECT_NEAR(r.TablaHip(5).Total, 15 + 11.780972, 1e-6);
  EXPECT_EQ(r.HipotesisRige, 5);
  EXPECT_EQ(r.CAMISA, 1.5);
  EXPECT_EQ(r.NESPIN, 0);
  EXPECT_EQ(r.FIEX, 10);
  EXPECT_EQ(r.NEXPEX, 15);
  EXPECT_NEAR(r.NRige(CLAVE), 24.10549 - 25, 1e-5);
  EXPECT_TRUE(visto.caso.avisos.empty());  // (15 + 11.78)/1000 is well below 0.096
}

TEST(Armado, ElAjusteSustituyeLasAreasDeSuCasoYDeNingunOtro) {
  auto e = EstadoDeMuestra(1);
  e.tramo.NumeroTramo = 4;
  e.corrida.ajustes = {{}, {5.04, 4, 3.0, {20, 3, 19}}, {5.0, 3, 3.0, {1, 1, 1}}};
  const auto con = Corre(e);
  e.corrida.ajustes.clear();
  const auto sin = Corre(e);
  ASSERT_EQ(con.casos.size(), 9u);
  for (std::size_t i = 0; i < con.casos.size(); ++i) {
    const auto& r = con.casos[i];
    const bool ajustado = i == 4;  // height 3.0, DP 5.0 at
    EXPECT_EQ(r.HayAjuste(), ajustado) << i;
    EXPECT_EQ(r.AsInt, ajustado ? 23 : sin.casos[i].AsInt) << i;
    EXPECT_EQ(r.AsExt, ajustado ? 19 : sin.casos[i].AsExt) << i;
    EXPECT_EQ(r.Total, r.AsInt + r.AsExt) << i;
    EXPECT_EQ(r.NEXPEX, sin.casos[i].NEXPEX) << i;
  }
}

TEST(Armado, BuscaCasoComparaConGuarda) {
  const std::vector<EntradaAjuste> tabla{{6.0, 1, 2.0, {}}, {}, {6.0, 2, 2.0, {}}, {}};
  EXPECT_EQ(BuscaCaso(tabla, 6.04, 1, 2.0), 1);
  EXPECT_EQ(BuscaCaso(tabla, 6.05, 1, 2.0), -4);  // the last free entry
  EXPECT_EQ(BuscaCaso(tabla, 6.0, 2, 1.96), 3);
  EXPECT_EQ(BuscaCaso(tabla, 6.0, 2, 1.95), -4);
  EXPECT_EQ(BuscaCaso({}, 6.0, 2, 2.0), 0);
}

// The factory test needs most: its areas have no bars of their own, and those shown are the ones
// that the Caso before left in the row.
TEST(Armado, CuandoRigePPSeMuestranLasBarrasDelCasoAnterior) {
  auto e = pruebas::EstadoDe(pruebas::LeeJson(pruebas::Datos("casos/10.json")).at("entrada"));
  const auto u = Corre(e);
  const auto& r = u.casos.back();
  ASSERT_EQ(r.HipotesisRige, 1);
  const double At = e.corrida.PP * e.tramo.Di / 2 / 1400 * 10000;
  EXPECT_NEAR(r.AsInt, At / 2, 1e-9);
  EXPECT_NEAR(r.Total, At, 1e-9);
  const auto& anterior = u.casos[u.casos.size() - 2];
  EXPECT_EQ(r.NESPIN, anterior.NESPIN);
  EXPECT_EQ(r.NEXPEX, anterior.NEXPEX);
  EXPECT_NE(r.NEXPEX, r.TablaHip(5).NEXPEX);
  for (int s = 1; s <= 3; ++s) {
    EXPECT_NEAR(r.NRige(s), 0, 1e-12);
    EXPECT_EQ(r.MRige(s), 0);
  }
}

TEST(Armado, AvisosYCodigos) {
  auto e = EstadoDeMuestra(3);
  e.tramo.Adato = 8;  // below what flexure alone needs
  auto u = Corre(e);
  EXPECT_TRUE(Hay(u.avisos[0], ClaseAviso::FlexionSobreTope));

  e = EstadoDeMuestra(4);
  e.tramo.Hr0Tramo = e.tramo.Hr0Final = 40;  // crushing
  u = Corre(e);
  EXPECT_TRUE(u.casos[0].MomentoTope);
  EXPECT_TRUE(Hay(u.avisos[0], ClaseAviso::MomentoTope));
  for (const auto& a : u.avisos[0]) EXPECT_EQ(a.pantalla, a.clase != ClaseAviso::MomentoTope);

  e = EstadoDeMuestra(1);
  e.tramo.TipoCamisa = 0;
  e.obra.Prs1 = e.obra.Prs2 = 0.1, e.obra.PrsM1 = e.obra.PrsM2 = 0.15;
  u = Corre(e);
  EXPECT_GT(u.casos[0].TensionMax, 0);
  EXPECT_EQ(u.casos[0].CAMISA, 0);
  EXPECT_FALSE(Hay(u.avisos[0], ClaseAviso::RetraccionLisas));

  // Nothing of its cracking check stands beside the pipe with a sheet that comes after it.
  ASSERT_GT(u.casos[0].sinFisuracion.FIIN, 0);
  e.tramo.TipoCamisa = 1;
  u = Corre(e);
  EXPECT_EQ(u.casos[0].sinFisuracion.FIIN, 0);
  EXPECT_EQ(u.casos[0].TensionMax, 0);
}

// Of two equal totals the later hypothesis governs: with no load at all, and the same pressure in
// every one, hypotheses 3, 4 and 5 come out alike.
TEST(Armado, EnUnEmpateRigeLaHipotesisPosterior) {
  EstadoCalculo e = EstadoDeMuestra(1);
  e.tramo.Esp = 0.12, e.tramo.Reci = 0.025, e.tramo.Rece = 0.025;
  e.tramo.Fck = 350, e.tramo.Fct = 22, e.tramo.Fyk = 2100, e.tramo.Fyd = 1400;
  e.corrida.PP = 0.1;
  e.corrida.STP = e.corrida.DP = e.corrida.MDP = 9;
  for (int s = 1; s <= 3; ++s) {
    e.caso.MHip(1, s) = 0.01;
    e.caso.NHip(1, s) = -0.1;
  }
  DisenoArmado(e);
  EXPECT_EQ(e.caso.armado.TablaHip(3).Total, e.caso.armado.TablaHip(5).Total);
  EXPECT_EQ(e.caso.armado.HipotesisRige, 5);
}

}  // namespace
}  // namespace zorbin
