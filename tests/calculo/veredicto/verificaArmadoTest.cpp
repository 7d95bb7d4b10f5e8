// The verdict of a reinforced Caso, against forces and areas that each case sets.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "calculo/armado/mdFlecom.h"
#include "calculo/veredicto/casoDePrueba.h"

namespace zorbin::pruebas {
namespace {

struct Escena {
  Tramo t = TramoConCamisa();
  ResultadoArmado r = CasoHolgado();
  bool sinSolucion = false;

  Verificacion Juzga() const {
    return VerificaArmado(DatosDeVerificacion(t), r, DispuestaDe(r), sinSolucion);
  }
};

const ComprobacionCaso* Busca(const Verificacion& v, QueComprueba que, int h, int s) {
  for (const auto& c : v.comprobaciones) {
    if (c.que == que && c.hipotesis == h && c.seccion == s) return &c;
  }
  return nullptr;
}

// In composite tension the layer balances its share of N and the couple of M over the lever arm;
// in flexo-compression the check is the design's own formula above its least area.
TEST(VerificaArmado, LoNecesarioEquilibraLaCaraTraccionada) {
  struct Fila {
    int h;
    double M, N;
    int s;
    CaraPared cara;
  };
  for (const auto& f : {Fila{2, 0.4, 20, CLAVE, CaraPared::Interior},
                        Fila{3, -0.4, 20, SOLERA, CaraPared::Exterior},
                        Fila{4, -0.5, 18, RINONES, CaraPared::Exterior},
                        Fila{5, 0.0, 15, RINONES, CaraPared::Exterior},
                        Fila{2, 2.0, 20, SOLERA, CaraPared::Interior},
                        Fila{4, -2.0, 20, RINONES, CaraPared::Exterior},
                        Fila{5, 2.0, -6, CLAVE, CaraPared::Interior}}) {
    Escena e;
    e.r.esfuerzos.M(f.h, f.s) = f.M;
    e.r.esfuerzos.N(f.h, f.s) = f.N;
    const auto v = e.Juzga();
    const auto* c = Busca(v, QueComprueba::Armadura, f.h, f.s);
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(c->cara, f.cara);
    const bool interior = f.cara == CaraPared::Interior;
    const double propia = interior ? e.r.AsInt : e.r.AsExt;
    const double z = e.t.Esp - e.t.Reci - e.t.Rece;
    double necesaria = 0;
    if (f.N > 0 && std::fabs(f.M) / f.N <= z / 2) {
      necesaria = (std::fabs(f.M) / z + f.N * propia / e.r.Total) * 1000 / e.t.Fyd;
    } else {
      const DatosSeccion d{e.t.Fck, e.t.Fyk, e.t.Fyd, e.t.GamaB, 1, 1, e.t.Esp, z};
      necesaria = FlexoCompuesta(d, f.M, f.N, e.t.Esp, interior ? e.t.Reci : e.t.Rece).value();
    }
    EXPECT_NEAR(c->valor, necesaria, 1e-9) << f.M;
    EXPECT_NEAR(c->uso, necesaria / propia, 1e-12) << f.M;
    EXPECT_EQ(c->limite, propia);
  }
}

struct Caso {
  const char* nombre;
  std::function<void(Escena&)> cambia;
  Veredicto veredicto;
  MotivoVeredicto motivo;
  QueComprueba que;
};

// Scales the outer area to the use that the haunches of hypothesis 4 then have.
void ExteriorConUso(Escena& e, double uso) {
  e.r.esfuerzos.M(4, RINONES) = -2.0;
  e.r.esfuerzos.N(4, RINONES) = 20.0;
  const auto v = e.Juzga();
  e.r.AsExt = Busca(v, QueComprueba::Armadura, 4, RINONES)->valor / uso;
}

void MomentoPor(Escena& e, double uso) {
  const double d = e.t.Esp - e.t.Rece;
  e.r.esfuerzos.M(2, RINONES) = -uso * e.t.Fck * 0.35 * d * d / e.t.GamaB * 10;
  e.r.esfuerzos.N(2, RINONES) = 5;
  e.r.AsInt = e.r.AsExt = 200;
}

void Sobra(Escena& e) {
  e.r.AsInt = e.r.AsExt = 40;
}

TEST(VerificaArmado, ElVeredictoDiceQueFallaYPorQue) {
  using enum Veredicto;
  using Q = QueComprueba;
  using P = MotivoVeredicto;
  const auto casos = std::to_array<Caso>({
      {"holgado", [](Escena&) {}, Cumple, P::Ninguno, Q::ArmaduraMinima},
      {"dentro de 1.005", [](Escena& e) { ExteriorConUso(e, 1.0049); }, Cumple, P::Ninguno,
       Q::Armadura},
      {"falta en otra hipotesis", [](Escena& e) { ExteriorConUso(e, 1.0051); }, NoCumple,
       P::Comprobacion, Q::Armadura},
      {"prueba de fabrica", [](Escena& e) { e.r.TablaHip(1).Total = e.r.Total * 1.0051; }, NoCumple,
       P::Comprobacion, Q::PruebaFabrica},
      {"minima", [](Escena& e) { e.r.AsExt = 2.51; }, NoCumple, P::Comprobacion, Q::ArmaduraMinima},
      {"ajustado bajo la minima",
       [](Escena& e) {
         e.r.AsExt = 3.5, e.r.ajuste = Ajuste{20.03, 0, 3.5};
       },
       SinComprobar, P::CapasDeAjuste, Q::PruebaFabrica},
      {"ajustado corto",
       [](Escena& e) {
         ExteriorConUso(e, 1.02);
         e.r.ajuste = Ajuste{e.r.AsInt, 0, e.r.AsExt};
       },
       NoCumple, P::Comprobacion, Q::Armadura},
      {"axil nulo", [](Escena& e) { e.r.esfuerzos.N(2, CLAVE) = 0; }, SinComprobar, P::AxilNulo,
       Q::Armadura},
      {"pared", [](Escena& e) { e.r.IESP = 1; }, NoCumple, P::Comprobacion, Q::Espesor},
      {"momento justo", [](Escena& e) { MomentoPor(e, 0.9999); }, Cumple, P::Ninguno,
       Q::MomentoLimite},
      {"momento pasado", [](Escena& e) { MomentoPor(e, 1.0001); }, NoCumple, P::MomentoLimite,
       Q::MomentoLimite},
      {"sin solucion", [](Escena& e) { e.sinSolucion = true; }, NoCumple, P::SinSolucion,
       Q::ArmaduraMinima},
      {"sin solucion, ajustado",
       [](Escena& e) {
         e.sinSolucion = true;
         e.r.ajuste = Ajuste{e.r.AsInt, 0, e.r.AsExt};
       },
       SinComprobar, P::CapasDeAjuste, Q::PruebaFabrica},
      {"tope holgado", [](Escena& e) { e.t = ConTope(e.t, 12); }, Cumple, P::Ninguno,
       Q::TopeExterior},
      {"tope pasado", [](Escena& e) { e.t = ConTope(e.t, 9.5); }, NoCumple, P::Comprobacion,
       Q::TopeExterior},
      {"tope por redondeo", [](Escena& e) { e.t = ConTope(e.t, 9.6); }, Cumple, P::Ninguno,
       Q::TopeExterior},
      {"tope, ajustado",
       [](Escena& e) {
         e.t = ConTope(e.t, 9.6);
         e.r.ajuste = Ajuste{e.r.AsInt, 0, e.r.AsExt};
       },
       NoCumple, P::Comprobacion, Q::TopeExterior},
      {"flexion sobre el tope",
       [](Escena& e) {
         ExteriorConUso(e, 1.0);
         e.t = ConTope(e.t, e.r.AsExt * 0.5);
       },
       NoCumple, P::FlexionSobreTope, Q::ExteriorIneludible},
      {"fisuracion",
       [](Escena& e) {
         e.t = TramoSinCamisa();
         Sobra(e);
         e.r.esfuerzos.M(2, CLAVE) = 0.9;
       },
       NoCumple, P::Comprobacion, Q::Fisuracion},
      {"fisuracion sobre el tope",
       [](Escena& e) {
         e.t = ConTope(TramoSinCamisa(), 9.6);
         e.r.sinFisuracion.NEXPEX = 18;
         e.r.sinFisuracion.AsExt = 9.05;
       },
       NoCumple, P::FisuracionSobreTope, Q::TopeExterior},
  });
  for (const auto& c : casos) {
    Escena e;
    c.cambia(e);
    const auto v = e.Juzga();
    EXPECT_EQ(v.veredicto, c.veredicto) << c.nombre << " uso " << v.uso;
    EXPECT_EQ(v.motivo, c.motivo) << c.nombre;
    EXPECT_EQ(v.que, c.que) << c.nombre << " uso " << v.uso;
    const auto resumen =
        ResumeArmado(DatosDeVerificacion(e.t), e.r, DispuestaDe(e.r), e.sinSolucion);
    EXPECT_EQ(resumen, static_cast<const ResumenVerificacion&>(v)) << c.nombre;
  }
}

TEST(VerificaArmado, LoQueSoloEsRecomendacionAvisaYCumple) {
  struct Fila {
    const char* nombre;
    std::function<void(Escena&)> cambia;
    std::uint32_t avisos;
  };
  const auto filas = std::to_array<Fila>({
      {"nada", [](Escena&) {}, 0},
      {"cuantia", [](Escena& e) { e.r.AsInt = 110; }, kAvisoRetraccion},
      {"cuantia de la flexion", [](Escena& e) { e.r.ErrorPostesado = 2; }, kAvisoRetraccion},
      {"capas", [](Escena& e) { e.r.FIIN = 12, e.r.NESPIN = 32; }, kAvisoCapasInterior},
      {"justo una capa", [](Escena& e) { e.r.FIEX = 12, e.r.NEXPEX = 31; }, 0},
      {"capas fuera", [](Escena& e) { e.r.FIEX = 12, e.r.NEXPEX = 32; }, kAvisoCapasExterior},
      {"redondeo", [](Escena& e) { e.t = ConTope(e.t, 9.6); }, kAvisoTopePorRedondeo},
      {"fisura en la prueba",
       [](Escena& e) {
         e.t = TramoSinCamisa();
         Sobra(e);
         for (int s = 1; s <= kSecciones; ++s) e.r.esfuerzos.N(1, s) = 35;
       },
       kAvisoFisuracionPrueba},
  });
  for (const auto& f : filas) {
    Escena e;
    f.cambia(e);
    const auto v = e.Juzga();
    EXPECT_EQ(v.veredicto, Veredicto::Cumple) << f.nombre << " uso " << v.uso;
    EXPECT_EQ(v.avisos, f.avisos) << f.nombre;
  }
}

}  // namespace
}  // namespace zorbin::pruebas
