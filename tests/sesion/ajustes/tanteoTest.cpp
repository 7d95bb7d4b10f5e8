// The closed formulas, the trial rows and the check, without a screen.
#include "calculo/ajustes/mdTanteo.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <vector>

#include "calculo/ajustes/mdNecesaria.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "comun/estadoDeJson.h"

namespace zorbin {
namespace {

constexpr double kFyd = 1400;    // [kp/cm2]
constexpr double kBrazo = 7;     // [cm]
constexpr double kCanto = 9.5;   // [cm]
constexpr double kFcad = 233.3;  // [kp/cm2]

// Composite tension. The moment gives M/BRAZO to the layer that it tenses, and the layers share the
// axial force as their areas: A·fyd = M/BRAZO + N·A/(A + x). Each formula gives one layer for the
// other; what it gives must stand in that equilibrium.
TEST(Lineas, LasCapasEnTraccionCompuestaEstanEnEquilibrio) {
  for (const double M : {3000.0, 12000.0, 60000.0}) {
    for (const double N : {18000.0, 35000.0, 90000.0}) {
      for (const double A : {8.0, 17.5, 40.0}) {
        const double tensada = Linea_6000(kBrazo, kFyd, A, N, M);
        EXPECT_GT(tensada, 0) << M << ' ' << N << ' ' << A;
        EXPECT_NEAR(tensada * kFyd, M / kBrazo + N * tensada / (tensada + A), 1e-6);
        const double otra = Linea_6030(kFyd, kBrazo, A, N, M);
        EXPECT_NEAR(A * kFyd, M / kBrazo + N * A / (A + otra), 1e-6);
        // One undoes the other.
        EXPECT_NEAR(Linea_6030(kFyd, kBrazo, tensada, N, M), A, 1e-8);
        // Without moment the other layer takes what is left.
        EXPECT_NEAR(Linea_6030(kFyd, kBrazo, A, N, 0), N / kFyd - A, 1e-9);
        // The check asks for exactly the steel that is in equilibrium.
        const auto c = Lineas_1050(tensada, A, M, kBrazo, N, kFyd, kCanto, kFcad);
        if (c.traccion) {
          EXPECT_NEAR(c.necesaria, tensada, 1e-9);
        }
      }
    }
  }
}

// With equal layers each takes half of the axial force, which is where the design's iteration
// starts: (M/(BRAZO·N) + 0.5)·N/fyd.
TEST(Lineas, ElRepartoQueEmpiezaYLaFrontera) {
  const double N = 28000;
  const auto en = Linea_5050(N, N * kBrazo / 2, kBrazo, kFyd, kCanto, kFcad);
  EXPECT_TRUE(en.traccion);  // M/N = BRAZO/2 belongs to composite tension
  EXPECT_NEAR(en.area, N / kFyd, 1e-9);
  EXPECT_FALSE(Linea_5050(N, N * kBrazo / 2 * 1.001, kBrazo, kFyd, kCanto, kFcad).traccion);
  EXPECT_FALSE(Linea_5050(-N, 0, kBrazo, kFyd, kCanto, kFcad).traccion);
  EXPECT_THROW(Linea_5050(0, 100, kBrazo, kFyd, kCanto, kFcad), ErrorEjecucion);
  // Without steel on either face the axial force is halved, and nothing is divided by zero.
  EXPECT_NEAR(Lineas_1050(0, 0, 0, kBrazo, N, kFyd, kCanto, kFcad).necesaria, N / 2 / kFyd, 1e-9);
}

// By hand: M 90000, N 12000: M/N 7.5; K1 = (7.5 - 3.5)/9.5 = 0.421053;
// K2 = (90000 - 42000)/(233.3·100·90.25) = 0.022797;
// (0.421053·0.97·1.022797 + 1)·12000/1400 = 12.151987.
TEST(Lineas, FlexionCompuestaAMano) {
  EXPECT_NEAR(Linea_5240(90000, 12000, kBrazo, kCanto, kFcad, kFyd), 12.151987, 1e-5);
  const auto c = Lineas_1050(10, 5, 90000, kBrazo, 12000, kFyd, kCanto, kFcad);
  EXPECT_FALSE(c.traccion);
  EXPECT_NEAR(c.K1, 0.421053, 1e-6);
  EXPECT_NEAR(c.K2, 0.022797, 1e-6);
  EXPECT_NEAR(c.necesaria, 12.151987, 1e-5);
}

TEST(Lineas, LaPresionEsLaDeLaHipotesisQueRige) {
  const PresionesCaso p{5, 7, 8, 9};
  const std::vector<double> esperadas{9, 0, 8, 5, 7, 5};
  for (int h = 1; h <= 6; ++h) {
    EXPECT_EQ(PresionQueRige(h, p), esperadas[static_cast<std::size_t>(h - 1)]) << h;
  }
  // (-0.5 + 6·10·1.2/2)·1000
  EXPECT_NEAR(CalculaN(-0.5, 6, 1.2), 35500, 1e-9);
  EXPECT_EQ(CalculaM(-0.25), 25000);
}

// ---- Trial rows

std::vector<double> Serie(int desde, int hasta) {
  std::vector<double> v;
  for (int i = desde; i <= hasta; ++i) v.push_back(i);
  return v;
}

DatosDelCaso Datos(double m1, double n1, double m2, double n2, double m3, double n3) {
  DatosDelCaso d;
  d.HipotesisRige = 5;
  d.fyd = kFyd, d.Fcad = 700.0 / 3, d.Esp = 12, d.Reci = d.Rece = 2.5;
  d.presion = 6, d.Di = 1.2;
  const double m[] = {m1, m2, m3};
  const double n[] = {n1, n2, n3};
  for (int s = 1; s <= 3; ++s) {
    d.secciones(s) = {m[s - 1], n[s - 1], CalculaM(m[s - 1]), CalculaN(n[s - 1], 6, 1.2)};
  }
  return d;
}

// Three equal sections without moment, so that the mean is `media`: N/(2·fyd).
DatosDelCaso DeMedia(double media) {
  const double n = media * 2 * kFyd / 1000 - 36;
  return Datos(0, n, 0, n, 0, n);
}

// A moment of 0 belongs to the inner face, but at the haunches to the outer one.
TEST(Tanteo, LaCaraQueElMomentoTracciona) {
  EXPECT_TRUE(TraccionaInterior(CLAVE, 0) && TraccionaInterior(SOLERA, 0));
  EXPECT_FALSE(TraccionaInterior(RINONES, 0));
  EXPECT_FALSE(TraccionaInterior(CLAVE, -0.1) || TraccionaInterior(RINONES, -0.1));
}

std::vector<double> Interiores(const Tanteo& t) {
  std::vector<double> v;
  for (const auto& f : t.filas.v) v.push_back(f.Interior);
  return v;
}

TEST(Tanteo, LasFilasRodeanElValorMedio) {
  const auto serie = Serie(2, 60);
  EXPECT_EQ(Interiores(Tantea(DeMedia(17.5), serie, 4)),
            (std::vector<double>{15, 16, 17, 17.5, 18, 19, 20}));
  EXPECT_EQ(Interiores(Tantea(DeMedia(27.5), serie, 1)),
            (std::vector<double>{27.5, 28, 29, 30, 31, 32, 33}));
  EXPECT_EQ(Interiores(Tantea(DeMedia(27.5), serie, 7)),
            (std::vector<double>{22, 23, 24, 25, 26, 27, 27.5}));
  // An entry below 15 is offered nowhere, nor is the mean.
  const auto baja = Tantea(DeMedia(9), serie, 4);
  EXPECT_EQ(Interiores(baja), (std::vector<double>{0, 0, 0, 15, 16, 17, 18}));
  EXPECT_FALSE(baja.filas(3).utilizable);
  EXPECT_EQ(baja.filas(3).Exterior, 0);
}

// A mean that is an entry itself: the row before it is the next one down, not the same again.
TEST(Tanteo, UnValorMedioQueEstaEnLaSerieNoSeRepite) {
  auto serie = Serie(2, 60);
  const auto d = DeMedia(20);
  const auto t = Tantea(d, serie, 4);
  ASSERT_EQ(t.filas(4).Interior, 20.0);  // exact in doubles, or this tests nothing
  EXPECT_EQ(Interiores(t), (std::vector<double>{17, 18, 19, 20, 21, 22, 23}));
}

TEST(Tanteo, EnLosExtremosDeLaSerieNoHayFilas) {
  const auto serie = Serie(18, 21);
  EXPECT_EQ(Interiores(Tantea(DeMedia(18.5), serie, 4)),
            (std::vector<double>{0, 0, 18, 18.5, 19, 20, 21}));
  EXPECT_EQ(Interiores(Tantea(DeMedia(30), serie, 4)),
            (std::vector<double>{19, 20, 21, 30, 0, 0, 0}));
  EXPECT_EQ(Interiores(Tantea(DeMedia(30), {}, 4)), (std::vector<double>{0, 0, 0, 30, 0, 0, 0}));
  EXPECT_EQ(BuscaTablaArmaduras(serie, 19, 1, 1), 19.0);
  EXPECT_EQ(BuscaTablaArmaduras(serie, 19, 1, 0), std::nullopt);
  EXPECT_EQ(BuscaTablaArmaduras(serie, 19, 1, -1), std::nullopt);
  EXPECT_EQ(BuscaTablaArmaduras(serie, 19, 4, 1), std::nullopt);
}

// Crown and invert in flexo-compression that tenses the inner face calculate no outer steel: they
// compare what the last section left, which in the first row is nothing and in the others is what
// the haunches of the row before needed. The haunches in composite tension need less outer steel
// the more there is inside, so every row but the first shows the area of the row before it.
TEST(Tanteo, UnaSeccionQueNoCalculaComparaElUltimoValor) {
  const auto d = Datos(1.5, 0, -0.5, -4, 1.5, 0);
  const auto t = Tantea(d, Serie(2, 60), 4);
  EXPECT_FALSE(t.As(CLAVE).traccion);
  EXPECT_TRUE(t.As(RINONES).traccion);
  EXPECT_EQ(t.Minimo, t.As(CLAVE).area);
  const auto rinones = [&](double Aint) {
    const auto& x = d.secciones(RINONES);
    return Linea_6000(d.Brazo(), d.fyd, Aint, x.N, x.M);
  };
  int anterior = 0;
  for (int k = 1; k <= kFilasTanteo; ++k) {
    const auto& fila = t.filas(k);
    if (!fila.utilizable) continue;
    EXPECT_DOUBLE_EQ(fila.Exterior,
                     rinones(anterior == 0 ? fila.Interior : t.filas(anterior).Interior))
        << k;
    anterior = k;
  }
  EXPECT_EQ(anterior, 7);
  // Another Caso starts from nothing: the same data give the same rows.
  EXPECT_EQ(Tantea(d, Serie(2, 60), 4).filas(4).Exterior, t.filas(4).Exterior);
}

// ---- The check

// Over every worked reinforced Caso: the steel of a trial row is enough at each section, and where
// a layer in composite tension decides it, it is just enough.
TEST(Comprobacion, TodaFilaDeTanteoBastaEnLosCasosTrabajados) {
  const auto serie = Serie(2, 210);
  int filas = 0;
  int justas = 0;
  for (const auto& f : std::filesystem::directory_iterator(pruebas::Datos("casos"))) {
    const auto e = pruebas::EstadoDe(pruebas::LeeJson(f.path()).at("entrada"));
    const auto datos = pruebas::EnCalculo(e);
    const auto corrida = CalculaTramo(datos, RangoDe(datos));
    for (const auto& caso : corrida.filas) {
      if (!datos.tramo.EsArmado || caso.HipotesisRige == 1) continue;
      const auto d = DatosCaso(datos.tramo, caso, CasoEntero(corrida, caso).Armado(),
                               {e.tramo.Esp, e.tramo.Reci, e.tramo.Rece});
      const auto t = Tantea(d, serie, 4);
      for (const auto& fila : t.filas.v) {
        if (!fila.utilizable) continue;
        ++filas;
        const auto c = Calculo_Arm_Necesaria(d, {}, {fila.Interior, 0, fila.Exterior});
        for (int s = 1; s <= kSecciones; ++s) {
          const auto& y = c.secciones(s);
          // A layer that the moment alone takes beyond its strength is beyond any other layer.
          if (y.interior && y.A1 * d.fyd * d.Brazo() <= d.secciones(s).M) continue;
          EXPECT_LE(y.c.necesaria, y.A1 + 1e-7)
              << f.path() << ' ' << d.Hr << ' ' << d.DP << ' ' << s;
          if (y.c.traccion && std::fabs(y.c.necesaria - y.A1) < 1e-7) ++justas;
        }
      }
    }
  }
  EXPECT_GT(filas, 300);
  EXPECT_GT(justas, 100);
}

// The lines of pure tension are crossed, and what the texts show decides: 15.004 is 15.00.
TEST(Comprobacion, EnTraccionPuraLasLineasSeCruzan) {
  DatosDelCaso d;
  d.HipotesisRige = 1;
  FilaHip T;
  T.AsInt = 15, T.AsExt = 7.86, T.Total = 22.86;
  const auto c = Calculo_Arm_Necesaria(d, T, {12, 3.004, 8});
  EXPECT_TRUE(c.traccionPura);
  EXPECT_DOUBLE_EQ(c.lineas[0].necesaria, 15);  // outer: the total less the outer area
  EXPECT_EQ(c.lineas[0].dispuesta, 8);
  EXPECT_TRUE(c.lineas[0].alerta);
  EXPECT_NEAR(c.lineas[1].necesaria, 7.86, 1e-12);
  EXPECT_FALSE(c.lineas[1].alerta);
  EXPECT_EQ(c.LineaQueRige(), 0);
  T.AsInt = 15.004, T.Total = 22.864;  // the outer line needs 15.00 in its text
  EXPECT_FALSE(Calculo_Arm_Necesaria(d, T, {10, 5, 15}).lineas[0].alerta);
  EXPECT_TRUE(Calculo_Arm_Necesaria(d, T, {10, 5, 14.99}).lineas[0].alerta);
  EXPECT_TRUE(Calculo_Arm_Necesaria(d, T, {}).lineas[2].alerta);
}

}  // namespace
}  // namespace zorbin
