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
