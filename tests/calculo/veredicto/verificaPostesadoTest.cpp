// The verdict of a post-tensioned Caso of the sample Obra, as designed and with one thing changed.
#include <gtest/gtest.h>

#include <functional>

#include "calculo/corrida/mdCalculaTramo.h"
#include "calculo/veredicto/mdVerificaPostesado.h"
#include "comun/estadoDeJson.h"

namespace zorbin::pruebas {
namespace {

struct Escena {
  DatosTramo datos;
  FilaCaso fila;
  ResultadoPostesado r;

  Escena() {
    const auto e = EstadoDeMuestra(6);
    datos = DatosDeCalculo(e.obra, e.tramo);
    const auto x = CalculaTramo(datos, RangoDe(datos));
    fila = x.filas.at(0);
    r = CasoEntero(x, fila).Postesado();
  }
  Verificacion Juzga() const { return VerificaPostesado(datos.tramo, r, fila.DP, fila.MDP); }
};

// Loads and pressure use the way from the prestress to the limit; the limit reached is a use of 1.
TEST(VerificaPostesado, CadaTensionTieneSuLimite) {
  const Escena e;
  const auto v = e.Juzga();
  int nucleo = 0, revestimiento = 0, chapa = 0;
  for (const auto& c : v.comprobaciones) {
    if (c.que == QueComprueba::TensionChapa) ++chapa;
    const bool delNucleo = c.que == QueComprueba::TensionNucleo;
    if (!delNucleo && c.que != QueComprueba::TensionRevestimiento) continue;
    ++(delNucleo ? nucleo : revestimiento);
    const auto& p = e.r.hipotesis(c.hipotesis);
    const bool interior = c.cara == CaraPared::Interior;
    const double base = delNucleo ? (interior ? p.SigPI : p.SigPE) : (interior ? p.SigRI : p.SigRE);
    const auto& oval = delNucleo ? (interior ? p.OvPI : p.OvPE) : (interior ? p.OvRI : p.OvRE);
    const double presion = delNucleo ? (interior ? p.PrPI : p.PrPE) : (interior ? p.PrRI : p.PrRE);
    const double limite = delNucleo ? p.LimPrimario : e.r.materiales.Fctr;
    EXPECT_EQ(c.limite, limite);
    EXPECT_NEAR(c.valor, base + oval(c.seccion) + presion, 1e-9);
    EXPECT_NEAR(c.uso, std::max(0.0, (oval(c.seccion) + presion) / (limite - base)), 1e-9);
    EXPECT_LE(c.uso, 1.0 + 1e-9);
  }
  EXPECT_EQ(nucleo, 36);
  EXPECT_EQ(revestimiento, 36);
  EXPECT_EQ(chapa, 6);
}

TEST(VerificaPostesado, ElVeredictoDiceQueFallaYPorQue) {
  struct Fila {
    const char* nombre;
    std::function<void(Escena&)> cambia;
    Veredicto veredicto;
    MotivoVeredicto motivo;
    std::uint32_t avisos;
    std::optional<QueComprueba> que;
  };
  using enum Veredicto;
  using P = MotivoVeredicto;
  using Q = QueComprueba;
  const auto vale = [](Escena& e) { e.r.PP = 1.2 * e.fila.MDP; };
  const auto filas = std::to_array<Fila>({
      {"vale", [](Escena&) {}, Cumple, P::Ninguno, 0, {}},
      {"prueba baja", [](Escena& e) { e.r.PP -= 0.001; }, Cumple, P::Ninguno, kAvisoPruebaBaja, {}},
      {"prueba de otra pasada",
       [](Escena& e) { e.r.PPConAlambreFinal = false, e.r.PP = 0; },
       SinComprobar,
       P::PruebaOtraPasada,
       0,
       {}},
      {"nucleo sin compresion",
       [](Escena& e) { e.r.hipotesis(4).TotPE(SOLERA) = e.r.hipotesis(4).LimPrimario + 2; },
       NoCumple, P::Comprobacion, 0, Q::TensionNucleo},
      {"revestimiento", [](Escena& e) { e.r.hipotesis(2).TotRE(CLAVE) = e.r.materiales.Fctr + 2; },
       NoCumple, P::Comprobacion, 0, Q::TensionRevestimiento},
      {"chapa", [](Escena& e) { e.r.hipotesis(5).TensionChapa = e.r.LimiteChapa * 1010; }, NoCumple,
       P::Comprobacion, 0, Q::TensionChapa},
      {"zunchado por poco",
       [](Escena& e) {
         for (auto& p : e.r.hipotesis.v) {
           p.error = 6;
           p.SigIniInt = -0.5501 * e.datos.tramo.Fckno;
         }
       },
       NoCumple, P::Comprobacion, 0, Q::Zunchado},
      {"otro alambre", [](Escena& e) { e.r.hipotesis(1).error = 91; }, NoCumple, P::Comprobacion, 0,
       Q::Alambre},
      {"sin alambre",
       [](Escena& e) { e.r.fin = FinPostesado::SinAlambre, e.r.PPConAlambreFinal = false; },
       NoCumple, P::Comprobacion, 0, Q::Espesor},
      {"prueba del nucleo",
       [](Escena& e) {
         e.datos.tramo.Icontes1 = true;
         e.datos.tramo.Coepre1 = e.r.hipotesis(1).PresPrimario / e.fila.DP * 1.01;
       },
       NoCumple, P::Comprobacion, 0, Q::PruebaNucleo},
      {"espiras juntas",
       [](Escena& e) { e.r.FIPRDEFI = 0.5, e.r.NESPDEFI = 101; },
       Cumple,
       P::Ninguno,
       kAvisoSeparacionAlambre,
       {}},
      {"espiras en su sitio",
       [](Escena& e) { e.r.FIPRDEFI = 0.5, e.r.NESPDEFI = 100; },
       Cumple,
       P::Ninguno,
       0,
       {}},
  });
  for (const auto& f : filas) {
    Escena e;
    vale(e);
    f.cambia(e);
    const auto v = e.Juzga();
    EXPECT_EQ(v.veredicto, f.veredicto) << f.nombre << " uso " << v.uso;
    EXPECT_EQ(v.motivo, f.motivo) << f.nombre;
    EXPECT_EQ(v.avisos, f.avisos) << f.nombre;
    EXPECT_EQ(v.que, f.que.value_or(v.que)) << f.nombre;
    EXPECT_EQ(ResumePostesado(e.datos.tramo, e.r, e.fila.DP, e.fila.MDP),
              static_cast<const ResumenVerificacion&>(v))
        << f.nombre;
  }
}

}  // namespace
}  // namespace zorbin::pruebas
