// What holds between two runs of plausible Tramos, whatever their data.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "azar/generador.h"
#include "azar/oraculo.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "comun/estadoDeJson.h"

namespace zorbin::pruebas {
namespace {

const Catalogo& Textos() {
  static const Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");
  return textos;
}

struct UnCaso {
  FilaCaso fila;
  std::vector<Real> reales;
  std::vector<int> enteros;

  bool RigePP() const { return fila.HipotesisRige == kHipPPNeta; }
};

// Its number is that of its place in a range, and no part of it.
UnCaso Foto(const ResultadoTramo& x, FilaCaso fila) {
  fila.NumCaso = 1;
  const auto caso = CasoEntero(x, fila);
  UnCaso c{fila, RealesDe(x, fila, caso), {fila.HipotesisRige, fila.ErrorPostesado}};
  if (caso.EsArmado()) {
    const auto& a = caso.Armado();
    c.enteros.insert(c.enteros.end(), {a.NESPIN, a.NEXPEX, a.IESP, a.MomentoTope});
  } else {
    const auto& p = caso.Postesado();
    c.enteros.insert(c.enteros.end(), {static_cast<int>(p.fin), p.PPHipotesis});
  }
  for (const auto& a : caso.avisos) {
    c.enteros.insert(c.enteros.end(), {static_cast<int>(a.clase), a.hipotesis,
                                       static_cast<int>(a.fase), static_cast<int>(a.pantalla)});
  }
  return c;
}

// The Casos of a run; none where it fails.
std::vector<UnCaso> Casos(const DatosTramo& datos, const Rango& rango) {
  const auto x = CalculaTramo(datos, rango);
  std::vector<UnCaso> casos;
  if (x.fallo) return casos;
  for (const auto& fila : x.filas) casos.push_back(Foto(x, fila));
  return casos;
}

// The first real in which two Casos differ by more than a fraction of it (0: by a bit); empty for
// none.
std::string Difiere(const UnCaso& a, const UnCaso& b, double tolerancia) {
  if (a.enteros != b.enteros) return "enteros";
  if (a.reales.size() != b.reales.size()) return "cuenta";
  for (std::size_t i = 0; i < a.reales.size(); ++i) {
    const double x = a.reales[i].valor;
    const double y = b.reales[i].valor;
    const double margen = tolerancia * (1.0 + std::fabs(x));
    if (tolerancia == 0 ? std::memcmp(&x, &y, sizeof x) != 0 : std::fabs(x - y) > margen) {
      return std::string(a.reales[i].nombre) + " " + std::to_string(x) + " " + std::to_string(y);
    }
  }
  return {};
}

int Pocos() {
  return std::max(1, Cuantos() / 4);
}

template <class F>
void PorPlausible(F f) {
  for (int i = Desde(); i < Desde() + Pocos() && !testing::Test::HasFailure(); ++i) {
    SCOPED_TRACE("plausible " + std::to_string(i) + ": " +
                 Datos(EstadoAlAzar(Clase::Plausible, i)));
    f(i);
  }
}

// Whether a pressure falls on the very edge of the range, where the rounding of the units says if
// it is still in: reals are compared as they are.
bool EnElBorde(const Rango& r, const std::vector<UnCaso>& casos) {
  return std::any_of(casos.begin(), casos.end(), [&](const UnCaso& c) {
    const double resto = r.UltimaDP - c.fila.DP;
    return std::fabs(resto - r.IncDP + 0.2) < 1e-6 || std::fabs(resto - 0.1) < 1e-6 ||
           std::fabs(resto + 0.2) < 1e-6;
  });
}

// The same decimal figures typed in MPa or in kp/cm2.
TEST(AzarPropiedades, TecleadoEnSIyEnMKSDaLoMismo) {
  int casos = 0;
  int bordes = 0;
  PorPlausible([&](int i) {
    const auto si = EnCalculo(PlausibleEn(i, true));
    const auto mks = EnCalculo(PlausibleEn(i, false));
    const auto a = Casos(si, RangoDe(si));
    const auto b = Casos(mks, RangoDe(mks));
    if (EnElBorde(RangoDe(si), a) || EnElBorde(RangoDe(mks), b)) {
      ++bordes;
      return;
    }
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t k = 0; k < a.size(); ++k) {
      EXPECT_EQ(Difiere(a[k], b[k], 1e-7), "") << "Caso " << k;
      ++casos;
    }
  });
  std::cout << "[ azar     ] SI y MKS: " << casos << " Casos iguales, " << bordes
            << " Tramos con una presion en el borde\n";
}

// A Caso of a range is the Caso of its height and pressure alone, whichever hypothesis governs, and
// what is calculated again of it is what its row says.
TEST(AzarPropiedades, UnCasoNoDependeDeLosDemas) {
  int casos = 0;
  int conPP = 0;
  PorPlausible([&](int i) {
    const auto datos = EnCalculo(EstadoAlAzar(Clase::Plausible, i));
    for (const auto& c : Casos(datos, RangoDe(datos))) {
      const auto uno = Casos(datos, RangoDeUnCaso(datos, c.fila.Hr, c.fila.DP));
      ASSERT_EQ(uno.size(), 1U) << c.fila.Hr << ' ' << c.fila.DP;
      EXPECT_EQ(Difiere(c, uno[0], 0), "") << c.fila.Hr << ' ' << c.fila.DP;
      ++casos;
      if (c.RigePP()) ++conPP;
    }
  });
  if (Pocos() >= 100) {
    EXPECT_GT(conPP, 50);
  }
  std::cout << "[ azar     ] un Caso solo: " << casos << " Casos iguales, " << conPP
            << " con la prueba en fabrica\n";
}

// The whole done again gives the same bytes.
TEST(AzarPropiedades, RepetirDaLosMismosBytes) {
  PorPlausible([&](int i) {
    if (i % 10 != 0) return;
    const auto e = EstadoAlAzar(Clase::Plausible, i);
    const auto otro = EstadoAlAzar(Clase::Plausible, i + 1);
    EXPECT_EQ(JsonDe({e, otro}, Textos()), JsonDe({e, otro}, Textos()));
  });
}

}  // namespace
}  // namespace zorbin::pruebas
