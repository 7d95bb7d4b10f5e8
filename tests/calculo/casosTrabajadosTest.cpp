// Whole Tramos, reinforced and post-tensioned, against results worked out independently from the
// same method, by another hand in another language: every load term, every hypothesis, bars, wire,
// materials, diagnostics and warnings of each Caso.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>

#include "base/mdCarpetas.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "comun/estadoDeJson.h"
#include "comun/reales.h"
#include "listados/obra/mdAvisos.h"

namespace zorbin {
namespace {

using nlohmann::json;
using pruebas::Datos;

constexpr double kTolerancia = 1e-9;  // relative, for values that rounding may order differently

void Cerca(const json& esperado, double hay, const std::string& que) {
  const auto x = esperado.get<double>();
  EXPECT_NEAR(x, hay, kTolerancia * std::max(1.0, std::fabs(x))) << que;
}

// Holds what the program gives to the numbers of a worked object, lists place by place.
class Cotejo {
 public:
  explicit Cotejo(const json& trabajado) {
    for (const auto& [nombre, x] : trabajado.items()) {
      if (nombre != "PPOrigen") Aplana(x, numeros_[nombre]);
    }
  }
  // A value that the worked object does not tell is nothing to it.
  void operator()(const char* nombre, double hay) {
    const auto n = numeros_.find(nombre);
    if (n == numeros_.end() || n->second.valores.empty()) return;
    auto& [valores, vistos] = n->second;
    const auto lugar = valores.size() == 1 ? 0 : vistos;
    ++vistos;
    ASSERT_LT(lugar, valores.size()) << nombre;
    Cerca(valores[lugar], hay, nombre + (" " + std::to_string(lugar + 1)));
  }
  // Every number of the worked object has been met.
  void Acaba() const {
    for (const auto& [nombre, n] : numeros_) EXPECT_GE(n.vistos, n.valores.size()) << nombre;
  }

 private:
  struct Numeros {
    std::vector<double> valores;
    std::size_t vistos = 0;
  };
  std::map<std::string, Numeros> numeros_;

  static void Aplana(const json& x, Numeros& n) {
    if (x.is_number()) n.valores.push_back(x.get<double>());
    if (x.is_array()) {
      for (const auto& uno : x) Aplana(uno, n);
    }
  }
};

class Comparador {
 public:
  explicit Comparador(const Catalogo& textos) : textos_(textos) {}

  void Compara(const ResultadoTramo& r, const FilaCaso& fila, const json& x) const {
    const auto caso = CasoEntero(r, fila);
    Cotejo cotejo(x);
    const auto f = [&cotejo](const char* nombre, double valor) { cotejo(nombre, valor); };
    pruebas::DeFila(r, fila, f);
    if (caso.EsArmado()) {
      f("PP", fila.PP);
      f("TerraplenRige", r.Altura(fila).cargas.TerraplenRige ? -1.0 : 0.0);
      pruebas::DeTabla("MHip", caso.MHip, f);
      pruebas::DeTabla("NHip", caso.NHip, f);
      Armado(caso.Armado(), x, f);
    } else {
      Postesado(caso.Postesado(), x, f);
    }
    cotejo.Acaba();
    Avisos(caso.avisos, caso.EsArmado() ? SinRepetidos(x.at("avisos")) : x.at("avisos"));
  }

 private:
  const Catalogo& textos_;

  template <class F>
  static void Armado(const ResultadoArmado& r, const json& x, F f) {
    pruebas::DeArmado(r, f);
    f("HipotesisRige", r.HipotesisRige), f("NESPIN", r.NESPIN), f("NEXPEX", r.NEXPEX);
    f("ErrorPostesado", r.ErrorPostesado);
    f("MomentoTope", r.MomentoTope ? -1.0 : 0.0), f("HayAjuste", r.HayAjuste() ? -1.0 : 0.0);
    for (int h = 1; h <= kHipotesisArmado; ++h) {
      const auto& t = r.TablaHip(h);
      int lugar = 0;
      for (const double v : {t.AsInt, t.AsExt, t.Total, double(t.IESP), double(t.NESPIN),
                             double(t.NEXPEX), t.CAMISA}) {
        // The factory test is calculated only: the steel that the worked cases keep in its row is
        // that of another Caso.
        const bool ajeno = h == kHipPPNeta && lugar++ > 2;
        EXPECT_TRUE(!ajeno || v == 0);
        f("TablaHip", ajeno ? x["TablaHip"][0][lugar - 1].get<double>() : v);
      }
    }
  }

  template <class F>
  void Postesado(const ResultadoPostesado& r, const json& x, F f) const {
    pruebas::DePostesado(r, f);
    f("ErrorPostesado", r.ErrorPostesado), f("Vueltas", r.Vueltas);
    Coteja(x.at("prueba"), [&](auto g) { g("FIPR", r.fila.FIPR), g("NESP", r.fila.NESP); });
    Coteja(x.at("constantes"), [&](auto g) { pruebas::DeMateriales(r.materiales, g); });
    EXPECT_EQ(x.at("fin") == "completo", r.fin == FinPostesado::Completo);
    EXPECT_EQ(x.at("MensajePostesado"), Texto(r.MensajePostesado));
    EXPECT_EQ(x.at("MensajeBusqueda"), Texto(r.fila.MensajePostesado));
    EXPECT_EQ(r.fila.PP, r.PP);
    // What PP rests on: the pass under MDP with the final wire, or the [phase, hypothesis] of the
    // last pass that got to its stresses.
    const json& origen = x.at("PPOrigen");
    EXPECT_EQ(origen == "paso 8", r.PPConAlambreFinal);
    EXPECT_EQ(origen == "paso 8" ? 4 : origen.at(1).get<int>(), r.PPHipotesis);
    for (std::size_t h = 0; h < 6; ++h) {
      SCOPED_TRACE("hipotesis " + std::to_string(h + 1));
      const auto& p = r.hipotesis(static_cast<int>(h) + 1);
      const json& espera = x.at("hipotesis")[h];
      EXPECT_EQ(p.Impresa(), espera.at("error") == 0);
      Coteja(espera, [&](auto g) {
        pruebas::DeHipotesis(p, g);
        g("error", p.error), g("CaraMenor", p.CaraMenor), g("LimiteChapa", r.LimiteChapa);
      });
    }
  }

  template <class Visita>
  static void Coteja(const json& x, Visita visita) {
    Cotejo cotejo(x);
    visita([&cotejo](const char* nombre, double valor) { cotejo(nombre, valor); });
    cotejo.Acaba();
  }

  std::string Texto(const std::optional<ClaseAviso>& clase) const {
    return clase ? TextoAviso(*clase, textos_) : std::string{};
  }

  // The worked cases repeat a warning for each time that the steel is laid out anew within one
  // search; the program gives it once a search.
  static json SinRepetidos(const json& avisos) {
    json unicos = json::array();
    std::set<json> vistos;
    for (const auto& a : avisos) {
      if (vistos.insert(json::array({a["texto"], a["hipotesis"], a["fase"]})).second)
        unicos.push_back(a);
    }
    return unicos;
  }

  void Avisos(const std::vector<Aviso>& avisos, const json& x) const {
    ASSERT_EQ(x.size(), avisos.size());
    for (std::size_t i = 0; i < avisos.size(); ++i) {
      const auto& hay = avisos[i];
      const json& espera = x[i];
      EXPECT_EQ(espera.at("texto"), TextoAviso(hay, textos_));
      EXPECT_EQ(espera.at("hipotesis"), hay.hipotesis);
      if (espera.contains("visible")) {  // post-tensioned
        EXPECT_EQ(espera.at("visible"), hay.pantalla);
        EXPECT_EQ(espera.at("fase") == 1, hay.fase == FaseAviso::Busqueda);
        Cerca(espera.at("FIPR"), hay.alambre.FIPR, "FIPR");
        Cerca(espera.at("NESP"), hay.alambre.NESP, "NESP");
        continue;
      }
      EXPECT_EQ(espera.at("pantalla"), hay.pantalla);
      EXPECT_EQ(espera.at("fase") == "final", hay.fase == FaseAviso::Final);
      EXPECT_EQ(espera.contains("valor"), hay.valor.has_value());
      if (hay.valor) Cerca(espera.at("valor"), *hay.valor, "valor");
    }
  }
};

class CasosTrabajados : public testing::TestWithParam<std::string> {};

TEST_P(CasosTrabajados, DanLosMismosResultados) {
  const json caso = pruebas::LeeJson(Datos(GetParam()));
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  const auto datos = pruebas::EnCalculo(pruebas::EstadoDe(caso.at("entrada")));
  const auto r = CalculaTramo(datos, RangoDe(datos));
  ASSERT_EQ(r.filas.size(), caso.at("casos").size());
  for (std::size_t i = 0; i < r.filas.size(); ++i) {
    SCOPED_TRACE("Caso " + std::to_string(i + 1));
    Comparador(textos).Compara(r, r.filas[i], caso.at("casos")[i]);
  }
}

std::vector<std::string> Ficheros() {
  std::vector<std::string> nombres;
  for (const std::string carpeta : {"casos/", "casosPostesado/"}) {
    for (const auto& f : std::filesystem::directory_iterator(Datos(carpeta))) {
      nombres.push_back(carpeta + f.path().filename().string());
    }
  }
  std::sort(nombres.begin(), nombres.end());
  return nombres;
}

INSTANTIATE_TEST_SUITE_P(Fichero, CasosTrabajados, testing::ValuesIn(Ficheros()),
                         [](const auto& p) {
                           return "n" + std::filesystem::path(p.param).stem().string();
                         });

}  // namespace
}  // namespace zorbin
