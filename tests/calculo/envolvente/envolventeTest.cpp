// The enveloping design: which face grows, how far, and when it stays with the method's steel.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "calculo/envolvente/mdEnvolvente.h"
#include "calculo/veredicto/casoDePrueba.h"

namespace zorbin::pruebas {
namespace {

struct Escena {
  Tramo t = TramoConCamisa();
  ResultadoArmado r = CasoHolgado();
  std::vector<Aviso> avisos;

  void Pon(int h, int s, double M, double N) {
    r.esfuerzos.M(h, s) = M;
    r.esfuerzos.N(h, s) = N;
  }
  DisenoEnvolvente Corre() const { return Envuelve(DatosDeVerificacion(t), r, avisos); }
};

// Which faces have more steel than the method's: 1 inner, 2 outer.
int Crecidas(const Escena& e, const DisenoEnvolvente& x) {
  EXPECT_GE(x.armado.AsInt, e.r.AsInt);
  EXPECT_GE(x.armado.AsExt, e.r.AsExt);
  return (x.armado.AsInt > e.r.AsInt ? 1 : 0) + (x.armado.AsExt > e.r.AsExt ? 2 : 0);
}

TEST(Envolvente, CreceLaCaraQueFalta) {
  struct Fila {
    const char* nombre;
    std::function<void(Escena&)> cambia;
    int crecidas;
  };
  const auto filas = std::to_array<Fila>({
      {"ninguna", [](Escena&) {}, 0},
      {"interior", [](Escena& e) { e.Pon(3, SOLERA, 2.4, 14); }, 1},
      {"exterior", [](Escena& e) { e.Pon(4, RINONES, -1.5, 8); }, 2},
      {"las dos", [](Escena& e) { e.Pon(3, SOLERA, 2.4, 14), e.Pon(4, RINONES, -1.5, 8); }, 3},
      {"prueba de fabrica", [](Escena& e) { e.r.TablaHip(1).Total = e.r.Total + 4; }, 1},
      {"minima", [](Escena& e) { e.r.FIEX = 8, e.r.NEXPEX = 5, e.r.AsExt = 2.51; }, 2},
      {"con tope crece la interior",
       [](Escena& e) {
         e.t = ConTope(e.t, 10.0);
         e.Pon(4, RINONES, -0.55, 20);
       },
       1},
      {"sin tope la exterior", [](Escena& e) { e.Pon(4, RINONES, -0.55, 20); }, 2},
      {"fisuracion",
       [](Escena& e) {
         e.t = TramoSinCamisa();
         e.Pon(4, CLAVE, 0.58, 8);
       },
       1},
  });
  for (const auto& f : filas) {
    Escena e;
    f.cambia(e);
    const auto x = e.Corre();
    EXPECT_EQ(x.resumen.veredicto, Veredicto::Cumple) << f.nombre << " uso " << x.resumen.uso;
    EXPECT_EQ(Crecidas(e, x), f.crecidas)
        << f.nombre << ' ' << x.armado.AsInt << ' ' << x.armado.AsExt;
    EXPECT_EQ(x.rondas == 0, f.crecidas == 0) << f.nombre;
    // What is told is what lies in the wall.
    const auto& a = x.armado;
    if (f.crecidas == 0) continue;
    EXPECT_NEAR(a.AsInt, a.CAMISA * 10 + a.FIIN * a.FIIN * M_PI / 400 * a.NESPIN, 1e-9);
    EXPECT_NEAR(a.AsExt, a.FIEX * a.FIEX * M_PI / 400 * a.NEXPEX, 1e-9);
    EXPECT_EQ(a.Total, a.AsInt + a.AsExt);
  }
}

// The outer face grows up to its maximum first, and one bar at most past it.
TEST(Envolvente, ElTopeSeAgotaYNoSePasa) {
  Escena e;
  e.t = ConTope(e.t, 11.7);
  e.Pon(4, RINONES, -0.75, 24);
  const auto x = e.Corre();
  EXPECT_EQ(x.resumen.veredicto, Veredicto::Cumple);
  EXPECT_EQ(Crecidas(e, x), 3);
  EXPECT_GE(x.armado.AsExt, 11.7 - 0.02);
  EXPECT_LT(x.armado.AsExt, 11.7 + x.armado.FIEX * x.armado.FIEX * M_PI / 400);
}

// A maximum that lies far away changes nothing.
TEST(Envolvente, ElTopeLejanoNoCuenta) {
  Escena libre;
  libre.Pon(4, RINONES, -1.5, 8);
  Escena lejano = libre;
  lejano.t = ConTope(lejano.t, 60);
  EXPECT_EQ(lejano.Corre().armado.AsExt, libre.Corre().armado.AsExt);
}

TEST(Envolvente, DondeElAceroNoAyudaQuedaElDelMetodo) {
  struct Fila {
    const char* nombre;
    std::function<void(Escena&)> cambia;
    Veredicto veredicto;
    MotivoVeredicto motivo;
  };
  using enum Veredicto;
  using P = MotivoVeredicto;
  const Aviso noLlega{ClaseAviso::NoLlegaAmbos, 4, FaseAviso::Final, {}, true};
  const auto filas = std::to_array<Fila>({
      {"ajustado",
       [](Escena& e) {
         e.Pon(4, RINONES, -1.5, 8);
         e.r.ajuste = Ajuste{e.r.AsInt, 0, e.r.AsExt};
       },
       NoCumple, P::Comprobacion},
      {"momento", [](Escena& e) { e.Pon(4, RINONES, -8, 8); }, NoCumple, P::MomentoLimite},
      {"axil nulo", [](Escena& e) { e.Pon(4, RINONES, -1.5, 0); }, SinComprobar, P::AxilNulo},
      {"flexion sobre el tope",
       [](Escena& e) {
         e.t = ConTope(e.t, 10.05);
         e.Pon(4, RINONES, -1.5, 8);
       },
       NoCumple, P::FlexionSobreTope},
      {"par sobre el tope, sin solucion",
       [noLlega](Escena& e) {
         e.t = ConTope(e.t, 10.05);
         e.Pon(4, RINONES, -0.9, 30);
         e.avisos = {noLlega};
       },
       NoCumple, P::SinSolucion},
      {"fisuracion con la exterior en su tope",
       [](Escena& e) {
         e.t = ConTope(TramoSinCamisa(), 10.05);
         e.Pon(4, RINONES, -0.58, 8);
       },
       NoCumple, P::FisuracionSobreTope},
  });
  for (const auto& f : filas) {
    Escena e;
    f.cambia(e);
    const auto x = e.Corre();
    EXPECT_EQ(x.resumen.veredicto, f.veredicto) << f.nombre << " uso " << x.resumen.uso;
    EXPECT_EQ(x.resumen.motivo, f.motivo) << f.nombre;
    EXPECT_EQ(Crecidas(e, x), 0) << f.nombre;
  }
}

// The thousands of cm2/m of a search without solution are no start.
TEST(Envolvente, SinSolucionEmpiezaEnOtraHipotesis) {
  Escena e;
  e.t = ConTope(e.t, 12);
  e.r.AsInt = 5015, e.r.Total = 5025;
  e.r.TablaHip(2) = {15, 5.03, 20.03};
  e.r.TablaHip(4) = {5015, 10.05, 5025.05};
  e.avisos = {{ClaseAviso::NoLlegaNegativos, 4, FaseAviso::Final, {}, true}};
  const auto x = e.Corre();
  EXPECT_EQ(x.resumen.veredicto, Veredicto::Cumple);
  EXPECT_NEAR(x.armado.AsInt, 15, 1e-9);
  EXPECT_LT(x.armado.AsExt, 7);
}

}  // namespace
}  // namespace zorbin::pruebas
