#include "calculo/corrida/mdCalculaTramo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "comun/estadoDeJson.h"

namespace zorbin {
namespace {

using pruebas::EnCalculo;
using pruebas::EnMks;
using pruebas::EstadoDeMuestra;

ResultadoTramo Corre(const DatosTramo& datos) {
  return CalculaTramo(datos, RangoDe(datos));
}

// The first sample Tramo, with heights [m], DP [at], MDP [at] and its increment.
DatosTramo ConRango(std::array<double, 3> alturas, std::array<double, 2> DP,
                    std::array<double, 2> MDP, double paso) {
  auto d = EnCalculo(EnMks(EstadoDeMuestra(1)));
  auto& o = d.obra;
  o.Alt1 = alturas[0], o.Alt2 = alturas[1], o.Alt3 = alturas[2];
  o.Prs1 = DP[0], o.Prs2 = DP[1], o.PrsM1 = MDP[0], o.PrsM2 = MDP[1], o.Prs3 = paso;
  return d;
}

void ExigeCerca(const std::vector<double>& hay, const std::vector<double>& esperado) {
  ASSERT_EQ(hay.size(), esperado.size());
  for (std::size_t i = 0; i < hay.size(); ++i) EXPECT_NEAR(hay[i], esperado[i], 1e-12);
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
    SCOPED_TRACE(f.hasta);
    std::vector<double> alturas;
    for (const auto& a : Corre(ConRango({f.desde, f.hasta, f.paso}, {6, 6}, {7, 7}, 0)).alturas) {
      alturas.push_back(a.Hr);
    }
    ExigeCerca(alturas, f.alturas);
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
    SCOPED_TRACE(f.pasoMDP);
    const auto datos = ConRango({2, 2, 0}, {f.desde, f.hasta}, {f.mDesde, f.mHasta}, f.pasoMDP);
    std::vector<double> presiones;
    for (const auto& x : Corre(datos).filas) presiones.push_back(x.DP);
    ExigeCerca(presiones, f.presiones);
  }
}

// Any pressure of the Tramo gives it a slope of its own; only one of DP gives it a loop of its own.
TEST(Corrida, DeQuienSonLasPresionesYSuPaso) {
  auto d = ConRango({2, 2, 0}, {4, 6}, {5, 9}, 2);
  d.tramo.Prs3Tram = 3;
  EXPECT_EQ(RangoDe(d).PendienteMDP, 2);
  EXPECT_EQ(RangoDe(d).IncDP, 1);
  d.tramo.PrsM2Tram = 8;
  EXPECT_EQ(RangoDe(d).DPFin, 0);
  EXPECT_EQ(RangoDe(d).UltimaDP, 6);
  EXPECT_EQ(RangoDe(d).PendienteMDP, 1);
  EXPECT_EQ(RangoDe(d).IncDP, 2);
  d.tramo.Prs2Tram = 4;
  EXPECT_EQ(RangoDe(d).UltimaDP, 4);
  EXPECT_EQ(RangoDe(d).IncDP, 1.5);
  d.tramo.PrsM1Tram = 8;  // a range of DP without one of MDP
  EXPECT_TRUE(RangoDe(d).IncDPIndefinido);
}

TEST(Corrida, PresionesDePrueba) {
  struct Fila {
    double Di, MDP;
    bool golpe;
    double PP, STP;
  };
  for (const auto& f : {Fila{1.2, 5, true, 7, 6}, Fila{1.2, 12, false, 14.4, 17},
                        Fila{1.3, 4, false, 5, 6}, Fila{1.3, 10, false, 12, 15}}) {
    const auto datos = ConRango({2, 2, 0}, {f.MDP, f.MDP}, {f.MDP, f.MDP}, 0);
    const auto p = PresionesDe(f.MDP, RangoDe(datos), f.Di, f.golpe);
    EXPECT_EQ(p.MDP, f.MDP);
    EXPECT_NEAR(p.PP, f.PP, 1e-12);
    EXPECT_NEAR(p.STP, f.STP, 1e-12);
  }
}

TEST(Corrida, NumeraSusCasosYSeDejaCancelar) {
  auto datos = EnCalculo(EstadoDeMuestra(1));
  datos.obra.Alt2 = 3;
  std::vector<std::pair<int, int>> avances;
  const auto apunta = [&avances](std::size_t hasta) {
    return [&avances, hasta](const AvanceCorrida& a) {
      avances.emplace_back(a.caso, a.casos);
      return avances.size() <= hasta;
    };
  };
  const auto x = CalculaTramo(datos, RangoDe(datos), apunta(100));
  ASSERT_EQ(x.filas.size(), 6u);
  for (std::size_t i = 0; i < 6; ++i) {
    EXPECT_EQ(x.filas[i].NumCaso, static_cast<int>(i % 3) + 1);
    EXPECT_EQ(x.filas[i].altura, static_cast<int>(i / 3));
    EXPECT_EQ(avances[i], (std::pair{static_cast<int>(i) + 1, 6}));
  }
  EXPECT_TRUE(x.hayCabecera && x.alturas[1].acabada && !x.cancelado && !x.fallo);
  avances.clear();
  const auto cortada = CalculaTramo(datos, RangoDe(datos), apunta(4));
  EXPECT_TRUE(cortada.cancelado);
  EXPECT_EQ(cortada.filas.size(), 4u);
  EXPECT_TRUE(cortada.alturas[0].acabada);
  EXPECT_FALSE(cortada.alturas[1].acabada);
}

using Valores = std::vector<double>;

template <int N, int M>
void Anade(Valores& v, const Tabla<double, N, M>& t) {
  for (const auto& fila : t.filas.v) v.insert(v.end(), fila.v.begin(), fila.v.end());
}

Valores DeCaso(const ResultadoTramo& x, const FilaCaso& f) {
  const auto caso = CasoEntero(x, f);
  const auto& a = x.Altura(f);
  const auto& q = a.cargas;
  const auto& r = caso.Armado();
  Valores v{a.Landa,
            q.Q,
            q.QTerraplen,
            q.QTierras,
            q.QMovil,
            q.Impacto,
            x.unMetro.Q,
            x.unMetro.QMovil,
            f.Hr,
            f.DP,
            f.MDP,
            f.STP,
            f.PP,
            f.AsInt,
            f.AsExt,
            f.Total,
            f.CAMISA,
            f.FIIN,
            f.NESPIN,
            f.FIEX,
            f.NEXPEX,
            r.AreaCamisa,
            r.AreaEspiras,
            r.TensionMax,
            r.TensionAdm,
            double(f.HipotesisRige),
            double(f.avisos)};
  Anade(v, r.esfuerzos.M);
  Anade(v, r.esfuerzos.N);
  Anade(v, caso.MHip);
  Anade(v, caso.NHip);
  return v;
}

// All layings, load trains, beddings, a given load, own pressures: typed in SI or in MKS, a Tramo
// gives the same results.
TEST(Corrida, SIyMksDanLoMismo) {
  for (int posicion = 1; posicion <= 5; ++posicion) {
    const auto si = Corre(EnCalculo(EstadoDeMuestra(posicion)));
    const auto mks = Corre(EnCalculo(EnMks(EstadoDeMuestra(posicion))));
    ASSERT_GT(si.filas.size(), 0u);
    ASSERT_EQ(si.filas.size(), mks.filas.size());
    for (std::size_t i = 0; i < si.filas.size(); ++i) {
      const auto a = DeCaso(si, si.filas[i]);
      const auto b = DeCaso(mks, mks.filas[i]);
      for (std::size_t k = 0; k < a.size(); ++k) {
        EXPECT_NEAR(a[k], b[k], 1e-9 * (1 + std::abs(a[k]))) << posicion << " " << i << " " << k;
      }
    }
  }
}

// A given load is the load: it needs no formula, and 1 m of earth has one all the same.
TEST(Corrida, LaCargaDadaEsLaCarga) {
  const auto x = Corre(EnCalculo(EstadoDeMuestra(5)));
  ASSERT_EQ(x.filas.size(), 1u);
  const auto& q = x.alturas[0].cargas;
  EXPECT_NEAR(q.Q, 6.0, 1e-12);  // 0.06 MPa
  EXPECT_NEAR(q.QTerraplen, 1.8 * 3.0, 1e-12);
  EXPECT_EQ(q.QMovil + q.QTierras + q.Impacto, 0);
  EXPECT_GT(x.unMetro.Q, 0);
  EXPECT_TRUE(x.TablaCargas.empty());
}

struct Fallo {
  const char* nombre;
  std::function<void(EstadoCalculo&)> estropea;
  CausaError causa;
  int caso;
  const char* dato;
};

TEST(Corrida, UnFalloSeNombraYDiceHastaDondeLlego) {
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
       CausaError::DemasiadosCasos, 0, "Alt3"}};
  for (const auto& f : fallos) {
    SCOPED_TRACE(f.nombre);
    auto e = EstadoDeMuestra(1);
    f.estropea(e);
    const auto x = Corre(EnCalculo(e));
    ASSERT_TRUE(x.fallo);
    EXPECT_EQ(x.fallo->error.causa(), f.causa);
    EXPECT_EQ(x.fallo->error.dato(), f.dato);
    EXPECT_EQ(x.fallo->numCaso, f.caso);
    const std::string nombre = f.nombre;
    EXPECT_TRUE(x.filas.empty());
    // The loads of its height fail before a Caso begins, ring and steel after the heading.
    EXPECT_EQ(x.fallo->empezado, nombre == "acero nulo" || nombre == "cuna desconocida" ||
                                     nombre == "terreno sin peso");
    EXPECT_EQ(x.hayCabecera, x.fallo->empezado);
  }
}

// The last range that can be numbered runs, and one Caso more is refused before the first, though
// the steps of a height or of a pressure end with a rounding.
TEST(Corrida, UnRangoSeNumeraEnteroONoEmpieza) {
  struct Fila {
    int alturas, presiones;
    const char* dato;  // null where it runs
  };
  for (const auto& f : {Fila{32767, 1, nullptr}, Fila{32768, 1, "Alt3"}, Fila{1, 32767, nullptr},
                        Fila{1, 32768, "Prs3"}, Fila{217, 151, nullptr}, Fila{182, 181, "Alt3"},
                        Fila{181, 182, "Prs3"}}) {
    Rango r;
    r.Hr0 = 1, r.Hr0Delta = 0.1, r.Hr0Final = 1 + 0.1 * (f.alturas - 1);
    r.PrimeraDP = 1, r.IncDP = 0.3, r.UltimaDP = 1 + 0.3 * (f.presiones - 1);
    EXPECT_EQ(CuentaDe(r).Casos(), f.alturas * f.presiones);
    std::string dato;
    try {
      ExigeRango(r);
    } catch (const ErrorEjecucion& error) {
      EXPECT_EQ(error.causa(), CausaError::DemasiadosCasos);
      dato = error.dato();
    }
    EXPECT_EQ(dato, f.dato == nullptr ? "" : f.dato);
  }
}

}  // namespace
}  // namespace zorbin
