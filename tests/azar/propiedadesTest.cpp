// What holds between two runs of plausible Tramos, whatever their data.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <set>

#include "azar/generador.h"
#include "azar/oraculo.h"
#include "core/mdUnidades.h"

namespace zorbin::pruebas {
namespace {

using Valores = std::vector<double>;

const Catalogo& Textos() {
  static const Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");
  return textos;
}

// Of the loop, not of the Caso.
bool DelBucle(const std::string& nombre) {
  static const std::set<std::string> kBucle{"c.DPActual", "c.IncDP", "c.Hr0Actual",
                                            "c.Hr0FinalActual"};
  return kBucle.contains(nombre);
}

struct UnCaso {
  double Hr = 0;
  double DP = 0;
  bool rigePP = false;
  std::vector<Real> reales;
  std::vector<int> enteros;
};

UnCaso Foto(const EstadoCalculo& e) {
  const auto& a = e.caso.armado;
  const auto& p = e.caso.postesado;
  UnCaso c{e.corrida.Hr, e.corrida.DP, e.tramo.EsArmado && a.HipotesisRige == 1, {}, {}};
  for (const auto& r : RealesDe(e)) {
    if (!DelBucle(r.nombre)) c.reales.push_back(r);
  }
  if (e.tramo.EsArmado) {
    c.enteros = {a.HipotesisRige, a.NESPIN, a.NEXPEX, a.IESP, a.ErrorPostesado, a.MomentoTope};
  } else {
    c.enteros = {p.ErrorPostesado, static_cast<int>(p.fin), p.PPHipotesis};
  }
  for (const auto& aviso : e.caso.avisos) {
    for (const int x : {static_cast<int>(aviso.clase), aviso.hipotesis,
                        static_cast<int>(aviso.fase), static_cast<int>(aviso.pantalla)}) {
      c.enteros.push_back(x);
    }
  }
  return c;
}

struct Apunta : OyenteCorrida {
  std::vector<UnCaso> casos;
  void Caso(const EstadoCalculo& e) override { casos.push_back(Foto(e)); }
};

// The Casos of a run; none where it fails.
std::vector<UnCaso> Casos(EstadoCalculo& e, double Hr = kSinForzar, double DP = kSinForzar) {
  Apunta apunta;
  const std::array<OyenteCorrida*, 1> oyentes{&apunta};
  const EnUnidadesDeCalculo unidades(e);
  try {
    CalculaCasos(e, Hr, DP, oyentes);
  } catch (const ErrorCorrida&) {
    return {};
  }
  return apunta.casos;
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
// it is still in: the method compares reals as they are.
bool EnElBorde(const EstadoCalculo& e, const std::vector<UnCaso>& casos) {
  const auto& t = e.tramo;
  const double escala = e.obra.EsSI() ? kFactorTension : 1.0;
  const double F = (t.TieneDPPropia() ? t.Prs2Tram : e.obra.Prs2) * escala;
  const double paso = e.corrida.IncDP;
  return std::any_of(casos.begin(), casos.end(), [&](const UnCaso& c) {
    return std::fabs(c.DP + paso - F - 0.2) < 1e-6 || std::fabs(c.DP - F + 0.1) < 1e-6 ||
           std::fabs(c.DP - F - 0.2) < 1e-6;
  });
}

// The same decimal figures typed in MPa or in kp/cm2.
TEST(AzarPropiedades, TecleadoEnSIyEnMKSDaLoMismo) {
  int casos = 0;
  int bordes = 0;
  PorPlausible([&](int i) {
    auto si = PlausibleEn(i, true);
    auto mks = PlausibleEn(i, false);
    const auto a = Casos(si);
    const auto b = Casos(mks);
    if (EnElBorde(si, a) || EnElBorde(mks, b)) {
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

// A Caso of a range is the Caso of its height and pressure alone, whichever hypothesis governs.
TEST(AzarPropiedades, UnCasoNoDependeDeLosDemas) {
  int casos = 0;
  int conPP = 0;
  PorPlausible([&](int i) {
    const auto e = EstadoAlAzar(Clase::Plausible, i);
    auto entero = e;
    const auto todos = Casos(entero);
    for (const auto& c : todos) {
      auto solo = e;
      const auto uno = Casos(solo, c.Hr, c.DP);
      ASSERT_EQ(uno.size(), 1U) << c.Hr << ' ' << c.DP;
      EXPECT_EQ(Difiere(c, uno[0], 0), "") << c.Hr << ' ' << c.DP;
      ++casos;
      if (c.rigePP) ++conPP;
    }
  });
  if (Pocos() >= 100) {
    EXPECT_GT(conPP, 50);
  }
  std::cout << "[ azar     ] un Caso solo: " << casos << " Casos iguales, " << conPP
            << " con la prueba en fabrica\n";
}

// A Tramo gives the same after any other one, and the same bytes when the whole is done again.
TEST(AzarPropiedades, ElOrdenDeLosTramosNoImportaYRepetirDaLosMismosBytes) {
  int casos = 0;
  EstadoCalculo seguido;
  PorPlausible([&](int i) {
    const auto e = EstadoAlAzar(Clase::Plausible, i);
    auto limpio = e;
    const auto a = Casos(limpio);
    const CasoEnCurso anterior = seguido.caso;
    seguido = e;
    seguido.caso = anterior;
    const auto b = Casos(seguido);
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t k = 0; k < a.size(); ++k) {
      EXPECT_EQ(Difiere(a[k], b[k], 0), "") << "Caso " << k;
      ++casos;
    }
    if (i % 10 != 0) return;
    const auto otro = EstadoAlAzar(Clase::Plausible, i + 1);
    EXPECT_EQ(JsonDe({e, otro}, Textos()), JsonDe({e, otro}, Textos()));
  });
  std::cout << "[ azar     ] tras otros Tramos: " << casos << " Casos iguales\n";
}

}  // namespace
}  // namespace zorbin::pruebas
