// Verdict and enveloping design over plausible Tramos.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "azar/generador.h"
#include "calculo/corrida/mdCalculaTramo.h"

namespace zorbin::pruebas {
namespace {

constexpr int kTramos = ZORBIN_AZAR_N;

// Hands each Tramo that passes `quiere`, with its index and run.
template <class Quiere, class Usa>
void CadaTramo(const Quiere& quiere, const Usa& usa) {
  for (int i = 0; i < kTramos; ++i) {
    const auto e = EstadoAlAzar(Clase::Plausible, i);
    if (!quiere(e.tramo)) continue;
    const auto datos = DatosDeCalculo(e.obra, e.tramo);
    usa(i, CalculaTramo(datos, RangoDe(datos)));
  }
}

bool ConCamisaSinTope(const Tramo& t) {
  return t.EsArmado && t.TipoCamisa > 0 && !t.Icontes0;
}

// Whether the design looks at a section of the governing hypothesis: every one in flexure, and of
// those in composite tension that with the greatest BRAZO·N + |M| of each sign of moment.
bool LaDisena(const ResultadoArmado& r, int seccion) {
  const int h = r.HipotesisRige;
  const auto traccion = [&](int s) {
    const double N = r.esfuerzos.N(h, s);
    return N > 0 && std::fabs(r.esfuerzos.M(h, s)) / N <= r.BRAZO / 2;
  };
  const auto clave = [&](int s) {
    return r.BRAZO * r.esfuerzos.N(h, s) + std::fabs(r.esfuerzos.M(h, s));
  };
  if (!traccion(seccion)) return true;
  for (int s = 1; s <= kSecciones; ++s) {
    const bool mismoSigno = (r.esfuerzos.M(h, s) > 0) == (r.esfuerzos.M(h, seccion) > 0);
    if (traccion(s) && mismoSigno && clave(s) > clave(seccion)) return false;
  }
  return true;
}

// Between the method's way and the check's lie the rounding of bars and the end of iterations.
TEST(AzarVeredicto, LaSeccionQueElMetodoDisenaNoPasaDe1Coma0031) {
  double mayor = 0;
  CadaTramo(ConCamisaSinTope, [&](int i, const ResultadoTramo& x) {
    for (const auto& fila : x.filas) {
      const auto caso = CasoEntero(x, fila);
      const auto& r = caso.Armado();
      if (r.MomentoTope || r.HipotesisRige == kHipPPNeta) continue;
      for (const auto& c : caso.verificacion.comprobaciones) {
        if (c.que != QueComprueba::Armadura || c.hipotesis != r.HipotesisRige) continue;
        if (!LaDisena(r, c.seccion)) continue;
        mayor = std::max(mayor, c.uso);
        EXPECT_LE(c.uso, 1.0031) << i << " seccion " << int{c.seccion};
      }
    }
  });
  EXPECT_GT(mayor, 1.0);
}

// Some 5 % of the Casos fall short, some 3 % by more than 2 %; both kinds of blind spot exist.
TEST(AzarVeredicto, ElMetodoDejaCortosUnosPocosCasos) {
  int casos = 0, cortos = 0, muyCortos = 0, otraHipotesis = 0;
  CadaTramo(ConCamisaSinTope, [&](int, const ResultadoTramo& x) {
    for (const auto& fila : x.filas) {
      ++casos;
      const auto& v = fila.verificacion;
      EXPECT_EQ(v.veredicto == Veredicto::Cumple, v.uso <= kUsoCumple);
      if (v.veredicto != Veredicto::NoCumple) continue;
      ++cortos;
      if (v.uso > 1.02) ++muyCortos;
      for (const auto& c : CasoEntero(x, fila).verificacion.comprobaciones) {
        if (c.uso == v.uso && c.hipotesis != fila.HipotesisRige) ++otraHipotesis;
      }
    }
  });
  EXPECT_GT(cortos, casos * 2 / 100);
  EXPECT_LT(cortos, casos * 9 / 100);
  EXPECT_GT(muyCortos, casos / 100);
  EXPECT_LT(muyCortos, casos * 6 / 100);
  EXPECT_GT(otraHipotesis, cortos / 3);
  EXPECT_LT(otraHipotesis, cortos * 9 / 10);
}

// Of the whole Caso and of its row; post-tensioned ones too.
TEST(AzarVeredicto, LaFilaDiceLoMismoQueElCaso) {
  CadaTramo([](const Tramo&) { return true; },
            [](int i, const ResultadoTramo& x) {
              for (const auto& fila : x.filas) {
                const auto v = CasoEntero(x, fila).verificacion;
                EXPECT_EQ(static_cast<const ResumenVerificacion&>(v), fila.verificacion) << i;
                double uso = 0;
                for (const auto& c : v.comprobaciones) uso = std::max(uso, c.uso);
                EXPECT_EQ(uso, fila.verificacion.uso) << i;
              }
            });
}

// Where the method leaves nothing short the envelope is its own steel; elsewhere it complies for
// little more, unless no steel helps.
TEST(AzarVeredicto, LaEnvolventeCumpleConPocoMasAcero) {
  double suma = 0, mayor = 0;
  int casos = 0;
  CadaTramo([](const Tramo& t) { return t.EsArmado; },
            [&](int i, ResultadoTramo metodo) {
              auto datos = metodo.datos;
              datos.envolvente = true;
              const auto x = CalculaTramo(datos, metodo.rango);
              ASSERT_EQ(x.filas.size(), metodo.filas.size());
              for (std::size_t k = 0; k < x.filas.size(); ++k) {
                const auto& antes = metodo.filas[k];
                const auto& f = x.filas[k];
                const auto& v = f.verificacion;
                if (antes.verificacion.veredicto == Veredicto::Cumple ||
                    v.veredicto != Veredicto::Cumple) {
                  EXPECT_EQ(f.AsInt, antes.AsInt) << i;
                  EXPECT_EQ(f.AsExt, antes.AsExt) << i;
                }
                if (v.veredicto == Veredicto::Cumple) {
                  EXPECT_LE(v.uso, kUsoCumple) << i;
                } else {
                  EXPECT_TRUE(v.motivo == MotivoVeredicto::MomentoLimite || datos.tramo.Icontes0)
                      << i;
                  EXPECT_NE(v.motivo, MotivoVeredicto::Comprobacion) << i;
                }
                const auto entero = CasoEntero(x, f);
                EXPECT_EQ(entero.Armado().AsInt, f.AsInt) << i;
                EXPECT_EQ(static_cast<const ResumenVerificacion&>(entero.verificacion), v) << i;
                if (!ConCamisaSinTope(datos.tramo) || v.veredicto != Veredicto::Cumple) continue;
                ++casos;
                EXPECT_GE(f.Total, antes.Total) << i;
                suma += f.Total / antes.Total - 1;
                mayor = std::max(mayor, f.Total / antes.Total - 1);
              }
            });
  EXPECT_GT(suma / casos, 0.001);
  EXPECT_LT(suma / casos, 0.006);
  EXPECT_LT(mayor, 0.22);
}

}  // namespace
}  // namespace zorbin::pruebas
