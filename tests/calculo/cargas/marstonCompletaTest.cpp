// The full equation of the plane of equal settlement: against published lines, against its own
// published form, at the limits of its conditions, and with data by chance.
#include "calculo/cargas/mdMarstonCompleta.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

#include "calculo/cargas/mdMarston.h"

namespace zorbin {
namespace {

IgualAsiento Resuelve(double Kmu, double rsdp, double D, double H) {
  return rsdp < 0 ? NegativaCompleta(Kmu, rsdp, D, H) : TerraplenCompleto(Kmu, rsdp, D, H);
}

// Moser, "Buried pipe design", table 2.2: straight lines of Cc and Cn in the incomplete condition.
TEST(MarstonCompleta, CumpleLasRectasPublicadas) {
  struct Recta {
    double Kmu, rsdp, pendiente, resto, tolerancia;
  };
  for (const auto& r : {Recta{0.19, 0.5, 1.50, -0.07, 0.003}, Recta{0.19, 1.0, 1.69, -0.12, 0.003},
                        Recta{0.13, -0.3, 0.69, 0.11, 0.008}}) {
    for (const double h : {6.0, 8.0, 10.0}) {
      const double recta = r.pendiente * h + r.resto;
      const auto x = Resuelve(r.Kmu, r.rsdp, 1.3, 1.3 * h);
      EXPECT_NEAR(x.C * h, recta, r.tolerancia * recta) << r.rsdp << " at " << h;
      EXPECT_FALSE(x.completa);
    }
  }
}

// The equation as Spangler printed it, less its right-hand side; k and p carry their sign.
double EcuacionDeSpangler(double k, double p, double h, double x) {
  const double E = std::exp(k * x);
  return (1 / k + (h - x) + p / 3) * (E - 1) / k + x * x / 2 + p / 3 * (h - x) * E - x / k - h * x -
         p * h;
}

TEST(MarstonCompleta, ElPlanoCumpleLaEcuacionImpresa) {
  int incompletas = 0;
  for (const double Kmu : {0.05, 0.11, 0.19, 0.4}) {
    for (const double rsdp : {-2.0, -0.3, -0.01, 0.01, 0.5, 3.0}) {
      for (const double h : {0.2, 1.0, 2.0, 5.0, 30.0}) {
        const auto x = Resuelve(Kmu, rsdp, 2.0, 2.0 * h);
        const double k = rsdp < 0 ? -2 * Kmu : 2 * Kmu;
        const double E = std::exp(k * x.He / 2.0);
        EXPECT_NEAR(x.C * h, (E - 1) / k + (h - x.He / 2.0) * E, 1e-12 * h);
        const double resto = EcuacionDeSpangler(k, rsdp, h, x.He / 2.0);
        if (x.completa) {
          EXPECT_EQ(x.He, 2.0 * h);
          EXPECT_LE(resto * (rsdp < 0 ? -1 : 1), 1e-9);  // the root would lie above the fill
        } else {
          ++incompletas;
          EXPECT_NEAR(resto, 0, 1e-9 * (1 + h * h)) << Kmu << " " << rsdp << " " << h;
        }
      }
    }
  }
  EXPECT_GT(incompletas, 50);
}

// Where one condition gives way to the other, without friction, and without settlement.
TEST(MarstonCompleta, EsContinua) {
  for (const double rsdp : {-1.0, -0.3, 0.3, 2.0}) {
    double bajo = 1e-3;
    double alto = 100;
    for (int i = 0; i < 60; ++i) {
      const double medio = (bajo + alto) / 2;
      (Resuelve(0.19, rsdp, 1.0, medio).completa ? bajo : alto) = medio;
    }
    EXPECT_GT(bajo, 0.1);
    EXPECT_LT(alto, 20);
    EXPECT_NEAR(Resuelve(0.19, rsdp, 1.0, bajo).C, Resuelve(0.19, rsdp, 1.0, alto).C, 1e-6);
    EXPECT_EQ(Resuelve(0.0, rsdp, 1.0, 8.0).C, 1.0);
    EXPECT_NEAR(Resuelve(1e-9, rsdp, 1.0, 8.0).C, 1.0, 1e-7);
    EXPECT_NEAR(Resuelve(0.19, rsdp * 1e-10, 1.0, 8.0).C, 1.0, 1e-4);
  }
  EXPECT_EQ(TerraplenCompleto(0.19, 0.0, 1.0, 8.0).C, 1.0);
}

// Numbers of any size: a load of the right side of the prism, or a named error, and always an end.
TEST(MarstonCompleta, ConDatosAlAzarDaUnaCargaOUnError) {
  std::mt19937 azar(20);
  std::uniform_real_distribution<double> exponente(-12, 12);
  int cargas = 0;
  for (int i = 0; i < 20'000; ++i) {
    const auto n = [&](double escala) { return std::pow(10.0, exponente(azar) * escala); };
    const double escala = i % 2 == 0 ? 0.15 : 1.0;
    const double signo = i % 4 < 2 ? 1 : -1;
    const double Kmu = n(escala), rsdp = signo * n(escala), D = n(escala), H = n(escala);
    try {
      const auto x = Resuelve(Kmu, rsdp, D, H);
      ++cargas;
      ASSERT_TRUE(std::isfinite(x.C) && x.C >= 0 && x.He >= 0) << Kmu << " " << rsdp << " " << H;
      ASSERT_LE(x.He, H * (1 + 1e-12));
      ASSERT_GE((x.C - 1) * signo, -1e-9) << Kmu << " " << rsdp << " " << H / D;
    } catch (const ErrorEjecucion& error) {
      ASSERT_EQ(error.causa(), CausaError::Desbordamiento);
      ASSERT_GT(2 * Kmu * H / D, 500) << Kmu << " " << rsdp << " " << H / D;
    }
  }
  EXPECT_GT(cargas, 15'000);
}

TEST(MarstonCompleta, RechazaLoQueNoEsUnRelleno) {
  const double nada = std::nan("");
  struct Malo {
    double Kmu, rsdp, D, H;
    CausaError causa;
  };
  for (const auto& m : {Malo{0.19, 0.5, 0, 3, CausaError::DivisionPorCero},
                        Malo{0.19, 0.5, 1, 0, CausaError::DivisionPorCero},
                        Malo{-0.19, 0.5, 1, 3, CausaError::Desbordamiento},
                        Malo{0.19, 0.5, -1, -3, CausaError::Desbordamiento},
                        Malo{0.19, nada, 1, 3, CausaError::Desbordamiento},
                        Malo{nada, 0.5, 1, 3, CausaError::Desbordamiento}}) {
    try {
      TerraplenCompleto(m.Kmu, m.rsdp, m.D, m.H);
      ADD_FAILURE() << m.Kmu << " " << m.rsdp << " " << m.D << " " << m.H;
    } catch (const ErrorEjecucion& error) {
      EXPECT_EQ(error.causa(), m.causa);
    }
  }
  EXPECT_THROW(TerraplenCompleto(0.19, -0.5, 1, 3), ErrorEjecucion);
  EXPECT_THROW(NegativaCompleta(0.19, 0.5, 1, 3), ErrorEjecucion);
}

// What stands under "metodo" is the load of the run, and the full load comes from the same data.
TEST(MarstonCompleta, LasCargasDeUnTramoSonLasDeLaCorrida) {
  for (const std::int16_t TipoApoyo : std::array<std::int16_t, 3>{21, 22, 31}) {
    for (const double Hr1 : {0.3, 1.0, 2.6, 5.0}) {
      for (const double H : {1.0, 4.0, 12.0}) {
        Tramo tramo;
        tramo.TipoApoyo = TipoApoyo, tramo.TipoRelleno = 11, tramo.IAs = 1;
        tramo.B0 = 2.0, tramo.De = 1.2, tramo.Hr1 = Hr1;
        tramo.Gr = 1.8, tramo.Fi = 33;
        const auto q = CargasCompletas({TipoApoyo, 1.2, 2.0, Hr1, 1.8, 33, 1, false}, H).value();
        EXPECT_NEAR(q.adoptada.metodo, CargasMarston(tramo, H, 0).Q, 1e-12);
        const double r = TipoApoyo == 31 ? 1.0 : 0.5;
        const double t = std::tan((45 - 33 / 2.0) * M_PI / 180);
        const double Kmu = t * t * std::tan(33 * M_PI / 180);
        EXPECT_NEAR(q.terraplen.completa, TerraplenCompleto(Kmu, r * Hr1 / 1.2, 1.2, H).C * 1.8 * H,
                    1e-9);
        ASSERT_EQ(q.negativa.has_value(), TipoApoyo != 31);
        if (!q.negativa) continue;
        const double ancho = TipoApoyo == 21 ? 2.0 / 1.2 : 1.0;
        const double Cn = NegativaCompleta(Kmu, CoefAsentamiento(Hr1 / 2) * Hr1 / 2, 2.0, H).C;
        EXPECT_NEAR(q.negativa->completa, Cn * 1.8 * H * ancho, 1e-9);
        EXPECT_EQ(q.adoptada.completa, std::min(q.negativa->completa, q.terraplen.completa));
      }
    }
  }
  for (const std::int16_t zanja : std::array<std::int16_t, 4>{0, 11, 12, 30}) {
    EXPECT_FALSE(CargasCompletas({zanja, 1.2, 2, 1, 1.8, 33, 1, false}, 4.0)) << zanja;
  }
  EXPECT_FALSE(CargasCompletas({31, 1.2, 2, 1, 1.8, 33, 1, true}, 4.0));
  EXPECT_THROW(CargasCompletas({31, 1.2, 2, 1, 1.8, 33, 4, false}, 4.0), ErrorEjecucion);
}

}  // namespace
}  // namespace zorbin
