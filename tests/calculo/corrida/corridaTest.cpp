#include "calculo/corrida/mdCorrida.h"

#include <gtest/gtest.h>

#include <functional>

#include "comun/estadoDeJson.h"
#include "core/mdUnidades.h"

namespace zorbin {
namespace {

using pruebas::EnMks;
using pruebas::EstadoDeMuestra;

class Oido : public OyenteCorrida {
 public:
  std::function<void(const EstadoCalculo&)> caso = [](const EstadoCalculo&) {};
  std::vector<std::pair<double, double>> casos;  // height, DP
  std::string pasos;

  void Progreso(const EstadoCalculo&) override { pasos += 'p'; }
  void Cabecera(const EstadoCalculo&) override { pasos += 't'; }
  void Caso(const EstadoCalculo& e) override {
    pasos += 'c';
    casos.emplace_back(e.corrida.Hr, e.corrida.DP);
    caso(e);
  }
  void FinAltura(const EstadoCalculo&) override { pasos += 'h'; }
  void FinCorrida(const EstadoCalculo&) override { pasos += 'f'; }
};

void Corre(EstadoCalculo& e, Oido& oido, double hr = kSinForzar, double prs = kSinForzar) {
  const std::array<OyenteCorrida*, 1> oyentes{&oido};
  const EnUnidadesDeCalculo unidades(e);
  CalculaCasos(e, hr, prs, oyentes);
}

EstadoCalculo Rango(double hDesde, double hHasta, double hPaso, double pDesde, double pHasta,
                    double mDesde, double mHasta, double pPaso) {
  auto e = EnMks(EstadoDeMuestra(1));
  auto& o = e.obra;
  o.Alt1 = hDesde, o.Alt2 = hHasta, o.Alt3 = hPaso;
  o.Prs1 = pDesde, o.Prs2 = pHasta, o.PrsM1 = mDesde, o.PrsM2 = mHasta, o.Prs3 = pPaso;
  return e;
}

TEST(Corrida, AlturasQueRecorre) {
  struct Fila {
    double desde, hasta, paso;
    std::vector<double> alturas;
  };
  for (const auto& f :
       {Fila{2, 5.5, 1, {2, 3, 4, 5}}, Fila{2, 5.005, 1, {2, 3, 4, 5.005}}, Fila{2, 5, 0, {2}},
        Fila{3, 3, 0.5, {3}}, Fila{2, 2.018, 0.005, {2, 2.005, 2.018}},
        Fila{2, 2.005, 1e-9, {2, 2.005}}, Fila{2, 2, -1, {2}}, Fila{3, 2, 1, {}}}) {
    auto e = Rango(f.desde, f.hasta, f.paso, 6, 6, 7, 7, 0);
    Oido oido;
    Corre(e, oido);
    ASSERT_EQ(oido.casos.size(), f.alturas.size()) << f.hasta;
    for (std::size_t i = 0; i < f.alturas.size(); ++i) {
      EXPECT_NEAR(oido.casos[i].first, f.alturas[i], 1e-12);
    }
  }
}

TEST(Corrida, PresionesQueRecorre) {
  struct Fila {
    double desde, hasta, mDesde, mHasta, pasoMDP;
    std::vector<double> presiones;
  };
  for (const auto& f : {Fila{6, 10, 6, 10, 3, {6, 9, 10}}, Fila{6, 10, 6, 10, 2, {6, 8, 10}},
                        Fila{6, 10, 7, 15, 4, {6, 8, 10}},  // slope 2: the step is one of MDP
                        Fila{6, 10.3, 6, 10.3, 2.2, {6, 8.2, 10.4}},  // up to 0.2 at beyond the end
                        Fila{6, 10, 6, 10, 0, {6}}, Fila{6, 6, 6, 6, 2, {6}}}) {
    auto e = Rango(2, 2, 0, f.desde, f.hasta, f.mDesde, f.mHasta, f.pasoMDP);
    Oido oido;
    Corre(e, oido);
    ASSERT_EQ(oido.casos.size(), f.presiones.size()) << f.pasoMDP;
    for (std::size_t i = 0; i < f.presiones.size(); ++i) {
      EXPECT_NEAR(oido.casos[i].second, f.presiones[i], 1e-12);
    }
  }
}

TEST(Corrida, PresionesDePrueba) {
  struct Fila {
    double Di, MDP;
    bool golpe;
    double PP, STP;
  };
  for (const auto& f : {Fila{1.2, 5, true, 7, 6}, Fila{1.2, 12, false, 14.4, 17},
                        Fila{1.3, 4, false, 5, 6}, Fila{1.3, 10, false, 12, 15}}) {
    auto e = Rango(2, 2, 0, f.MDP, f.MDP, f.MDP, f.MDP, 0);
    e.tramo.Di = f.Di;
    e.tramo.De = f.Di + 0.24;
    e.obra.GolpeCalculado = f.golpe;
    Oido oido;
    oido.caso = [&f](const EstadoCalculo& x) {
      EXPECT_NEAR(x.corrida.PP, f.PP, 1e-12);
      EXPECT_NEAR(x.corrida.STP, f.STP, 1e-12);
      EXPECT_EQ(x.corrida.PPNeta, x.corrida.PP);
    };
    Corre(e, oido);
  }
}

TEST(Corrida, LosOyentesOyenEnOrdenYTodoVuelveASuSitio) {
  auto e = EstadoDeMuestra(1);
  e.obra.Alt2 = 3;
  const auto antes = e;
  Oido oido;
  Corre(e, oido);
  EXPECT_EQ(oido.pasos, "ptcpcpchpcpcpchf");
  EXPECT_EQ(e.tramo.Esp, antes.tramo.Esp);
  EXPECT_EQ(e.tramo.TipoCuna, antes.tramo.TipoCuna);
  EXPECT_EQ(e.tramo.Fck, antes.tramo.Fck);
  EXPECT_EQ(e.obra.Prs1, antes.obra.Prs1);
  EXPECT_EQ(e.tramo.Hr1, e.tramo.De);  // a trench takes the external diameter as projection
  EXPECT_EQ(e.tramo.Hr0Delta, 1.0);    // the Obra's increment
  EXPECT_EQ(e.corrida.Hr, e.obra.Alt1);
  EXPECT_EQ(e.corrida.CuentaCasos, 6);
}

TEST(Corrida, ForzadaCalculaElMismoCasoQueLaNormal) {
  auto e = EstadoDeMuestra(1);
  Oido normal;
  double total = 0;
  normal.caso = [&](const EstadoCalculo& x) {
    if (x.corrida.Hr == 3.0 && x.corrida.NumCaso == 2) total = x.caso.armado.Total;
  };
  Corre(e, normal);
  Oido forzada;
  forzada.caso = [&](const EstadoCalculo& x) {
    EXPECT_NEAR(x.caso.armado.Total, total, 1e-12);
    EXPECT_EQ(x.corrida.IncDP, 0);
  };
  Corre(e, forzada, 3.0, 5.0);
  ASSERT_EQ(forzada.casos.size(), 1u);
  EXPECT_EQ(forzada.casos[0], (std::pair{3.0, 5.0}));
  EXPECT_EQ(e.corrida.Hr, e.obra.Alt1);
}

// All layings, load trains, beddings, a given load, own pressures: typed in SI or in MKS, a Tramo
// gives the same results.
TEST(Corrida, SIyMksDanLoMismo) {
  for (int posicion = 1; posicion <= 5; ++posicion) {
    auto si = EstadoDeMuestra(posicion);
    auto mks = EnMks(si);
    std::vector<std::vector<double>> vistos;
    const auto apunta = [&vistos](const EstadoCalculo& x) {
      const auto& c = x.corrida;
      const auto& r = x.caso.armado;
      std::vector<double> v{c.Landa,
                            c.PPNeta,
                            c.Impacto,
                            c.QTierras1m,
                            c.QMovil1m,
                            r.AreaCamisa,
                            r.AreaEspiras,
                            r.AreaExterior,
                            r.TensionMax,
                            r.TensionAdm,
                            c.Hr,
                            c.DP,
                            c.MDP,
                            c.STP,
                            c.PP,
                            c.Q,
                            c.QTerraplen,
                            c.QTierras,
                            c.QMovil,
                            c.Q1m,
                            c.QTerraplen1m,
                            r.AsInt,
                            r.AsExt,
                            r.Total,
                            r.CAMISA,
                            r.FIIN,
                            double(r.NESPIN),
                            r.FIEX,
                            double(r.NEXPEX),
                            double(r.HipotesisRige)};
      for (int h = 1; h <= 5; ++h) {
        for (int s = 1; s <= 3; ++s) {
          v.push_back(r.esfuerzos.M(h, s));
          v.push_back(r.esfuerzos.N(h, s));
        }
      }
      for (int s = 1; s <= 3; ++s) {
        v.push_back(r.MRige(s));
        v.push_back(r.NRige(s));
        for (int h = 1; h <= 12; ++h) {
          v.push_back(x.caso.MHip(h, s));
          v.push_back(x.caso.NHip(h, s));
        }
      }
      vistos.push_back(v);
    };
    Oido a, b;
    a.caso = b.caso = apunta;
    Corre(si, a);
    Corre(mks, b);
    const std::size_t mitad = vistos.size() / 2;
    ASSERT_GT(mitad, 0u);
    ASSERT_EQ(a.casos.size(), b.casos.size());
    for (std::size_t i = 0; i < mitad; ++i) {
      for (std::size_t k = 0; k < vistos[i].size(); ++k) {
        EXPECT_NEAR(vistos[i][k], vistos[i + mitad][k], 1e-9 * (1 + std::abs(vistos[i][k])))
            << posicion << " " << i << " " << k;
      }
    }
  }
}

// A given load is the load, whatever was calculated before it.
TEST(Corrida, LaCargaDadaNoDependeDeLaHistoria) {
  auto e = EstadoDeMuestra(5);
  e.corrida.Q = e.corrida.QMovil = e.corrida.QTierras = 99;
  Oido oido;
  oido.caso = [](const EstadoCalculo& x) {
    EXPECT_NEAR(x.corrida.Q, 6.0, 1e-12);  // 0.06 MPa
    EXPECT_NEAR(x.corrida.QTerraplen, 1.8 * 3.0, 1e-12);
    EXPECT_EQ(x.corrida.QMovil, 0);
    EXPECT_EQ(x.corrida.QTierras, 0);
    EXPECT_EQ(x.corrida.Impacto, 0);
    EXPECT_GT(x.corrida.Q1m, 0);
  };
  Corre(e, oido);
  EXPECT_EQ(oido.casos.size(), 1u);
}

struct Fallo {
  const char* nombre;
  std::function<void(EstadoCalculo&)> estropea;
  CausaError causa;
  int caso;
  const char* dato;
};

TEST(Corrida, UnFalloSeNombraYDejaLosDatosComoEstaban) {
  const std::vector<Fallo> fallos{
      {"MDP igual", [](auto& e) { e.obra.PrsM2 = e.obra.PrsM1; }, CausaError::IncrementoPresion, 0,
       "Prs3"},
      {"MDP que baja", [](auto& e) { e.obra.PrsM2 = 0.1; }, CausaError::IncrementoPresion, 0,
       "Prs3"},
      {"paso propio negativo",
       [](auto& e) { e.tramo.Prs1Tram = 0.3, e.tramo.Prs2Tram = 0.3, e.tramo.Prs3Tram = -0.1; },
       CausaError::IncrementoPresion, 0, "Prs3Tram"},
      {"altura que baja", [](auto& e) { e.obra.Alt3 = -1; }, CausaError::IncrementoAltura, 0,
       "Alt3"},
      {"rozamiento nulo", [](auto& e) { e.tramo.Fi = 0; }, CausaError::DivisionPorCero, 1, ""},
      {"acero nulo", [](auto& e) { e.tramo.Fyd = 0; }, CausaError::DivisionPorCero, 1, ""},
      {"terreno sin peso", [](auto& e) { e.tramo.Gr = 0; }, CausaError::DivisionPorCero, 1, ""},
      {"cuna desconocida", [](auto& e) { e.tramo.TipoCuna = 7; }, CausaError::Subindice, 1, ""},
      {"demasiadas alturas", [](auto& e) { e.obra.Alt3 = 1e-10; }, CausaError::DemasiadosCasos, 0,
       "Alt3"},
      {"demasiadas presiones", [](auto& e) { e.obra.PrsM2 = 7000; }, CausaError::DemasiadosCasos, 0,
       "Prs3"},
      {"demasiadas alturas propias",
       [](auto& e) { e.tramo.Hr0Tramo = 2, e.tramo.Hr0Final = 9e11, e.tramo.Hr0Delta = 0.01; },
       CausaError::DemasiadosCasos, 0, "Hr0Delta"},
      {"algunos Casos de mas",
       [](auto& e) {
         e.obra.Prs2 = e.obra.Prs1, e.obra.PrsM2 = e.obra.PrsM1, e.obra.Prs3 = 0, e.obra.Alt2 = 4,
         e.obra.Alt3 = 0.00005;
       },
       CausaError::DemasiadosCasos, 1, "Alt3"}};
  for (const auto& f : fallos) {
    auto e = EstadoDeMuestra(1);
    f.estropea(e);
    const auto antes = e;
    Oido oido;
    try {
      Corre(e, oido);
      ADD_FAILURE() << f.nombre;
    } catch (const ErrorCorrida& error) {
      EXPECT_EQ(error.error().causa(), f.causa) << f.nombre;
      EXPECT_EQ(error.error().dato(), f.dato) << f.nombre;
      if (f.caso >= 0) {
        EXPECT_EQ(error.numCaso(), f.caso) << f.nombre;
      }
    }
    EXPECT_EQ(e.tramo.Esp, antes.tramo.Esp) << f.nombre;
    EXPECT_EQ(e.tramo.Hr1, antes.tramo.Hr1) << f.nombre;
    EXPECT_EQ(e.tramo.TipoCuna, antes.tramo.TipoCuna) << f.nombre;
    EXPECT_EQ(e.tramo.Hr0Delta, antes.tramo.Hr0Delta) << f.nombre;
    EXPECT_EQ(e.obra.Prs1, antes.obra.Prs1) << f.nombre;
    EXPECT_DOUBLE_EQ(e.tramo.Fct, antes.tramo.Fct) << f.nombre;
    EXPECT_FALSE(e.corrida.ParaCalculoActivo);
  }
}

}  // namespace
}  // namespace zorbin
