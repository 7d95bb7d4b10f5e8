// Whole Tramos against results worked out independently from the same method, by another hand in
// another language: every load term, every hypothesis, every bar and every warning of each Caso.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "base/mdCarpetas.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "comun/estadoDeJson.h"
#include "listados/obra/mdAvisos.h"

namespace zorbin {
namespace {

using nlohmann::json;
using pruebas::Datos;

constexpr double kTolerancia = 1e-9;  // relative, for values that rounding may order differently

void Cerca(const json& esperado, double hay, const std::string& que) {
  const double x =
      esperado.is_boolean() ? (esperado.get<bool>() ? 1.0 : 0.0) : esperado.get<double>();
  EXPECT_NEAR(x, hay, kTolerancia * std::max(1.0, std::fabs(x))) << que;
}

template <int N>
void Cerca(const json& esperado, const Lista<double, N>& hay, const std::string& que) {
  for (int i = 1; i <= N; ++i) Cerca(esperado.at(static_cast<std::size_t>(i - 1)), hay(i), que);
}

template <int N, int M>
void Cerca(const json& esperado, const Tabla<double, N, M>& hay, const std::string& que) {
  for (int i = 1; i <= N; ++i) {
    Cerca(esperado.at(static_cast<std::size_t>(i - 1)), hay.filas(i), que + std::to_string(i));
  }
}

class Comparador {
 public:
  explicit Comparador(const Catalogo& textos) : textos_(textos) {}

  void Compara(const ResultadoTramo& r, const FilaCaso& fila, const json& x) const {
    const auto caso = CasoEntero(r, fila);
    Carga(r, fila, x);
    Cerca(x.at("MHip"), caso.MHip, "MHip");
    Cerca(x.at("NHip"), caso.NHip, "NHip");
    Armado(caso.Armado(), x);
    Avisos(caso.avisos, x.at("avisos"));
  }

 private:
  const Catalogo& textos_;

  static void Carga(const ResultadoTramo& r, const FilaCaso& f, const json& x) {
    const auto& q = r.Altura(f).cargas;
    const auto& u = r.unMetro;
    const std::initializer_list<std::pair<const char*, double>> pares{
        {"Hr", f.Hr},
        {"NumCaso", f.NumCaso},
        {"DP", f.DP},
        {"MDP", f.MDP},
        {"STP", f.STP},
        {"PP", f.PP},
        {"PPNeta", f.PP},
        {"Landa", r.Altura(f).Landa},
        {"Q", q.Q},
        {"QTerraplen", q.QTerraplen},
        {"QTierras", q.QTierras},
        {"QMovil", q.QMovil},
        {"Impacto", q.Impacto},
        {"TerraplenRige", q.TerraplenRige ? -1.0 : 0.0},
        {"Q1m", u.Q},
        {"QTerraplen1m", u.QTerraplen},
        {"QTierras1m", u.QTierras},
        {"QMovil1m", u.QMovil}};
    for (const auto& [nombre, valor] : pares) Cerca(x.at(nombre), valor, nombre);
  }

  static void Armado(const ResultadoArmado& r, const json& x) {
    const std::initializer_list<std::pair<const char*, double>> pares{
        {"HipotesisRige", r.HipotesisRige},
        {"CAMISA", r.CAMISA},
        {"FIIN", r.FIIN},
        {"NESPIN", r.NESPIN},
        {"FIEX", r.FIEX},
        {"NEXPEX", r.NEXPEX},
        {"AreaCamisa", r.AreaCamisa},
        {"AreaEspiras", r.AreaEspiras},
        {"AreaExterior", r.AreaExterior},
        {"AsInt", r.AsInt},
        {"AsExt", r.AsExt},
        {"Total", r.Total},
        {"TensionMax", r.TensionMax},
        {"TensionAdm", r.TensionAdm},
        {"BRAZO", r.BRAZO},
        {"ErrorPostesado", r.ErrorPostesado},
        {"MomentoTope", r.MomentoTope ? -1.0 : 0.0},
        {"HayAjuste", r.HayAjuste() ? -1.0 : 0.0}};
    for (const auto& [nombre, valor] : pares) Cerca(x.at(nombre), valor, nombre);
    Cerca(x.at("M5"), r.esfuerzos.M, "M");
    Cerca(x.at("N5"), r.esfuerzos.N, "N");
    Cerca(x.at("MRige"), r.MRige, "MRige");
    Cerca(x.at("NRige"), r.NRige, "NRige");
    // The factory test is calculated only: the steel that the worked cases keep in its row is that
    // of another Caso.
    json tablaHip = x.at("TablaHip");
    for (std::size_t i = 3; i < 7; ++i) tablaHip[0][i] = 0;
    for (int h = 1; h <= kHipotesisArmado; ++h) {
      const auto& f = r.TablaHip(h);
      const Lista<double, 7> fila{{f.AsInt, f.AsExt, f.Total, double(f.IESP), double(f.NESPIN),
                                   double(f.NEXPEX), f.CAMISA}};
      Cerca(tablaHip.at(static_cast<std::size_t>(h - 1)), fila, "TablaHip " + std::to_string(h));
    }
  }

  // The worked cases repeat a warning for each time that the steel is laid out anew within one
  // search; the program gives it once a search.
  static json SinRepetidos(const json& avisos) {
    json unicos = json::array();
    for (const auto& a : avisos) {
      const auto igual = [&a](const json& b) {
        return a["texto"] == b["texto"] && a["hipotesis"] == b["hipotesis"] &&
               a["fase"] == b["fase"];
      };
      if (std::none_of(unicos.begin(), unicos.end(), igual)) unicos.push_back(a);
    }
    return unicos;
  }

  void Avisos(const std::vector<Aviso>& avisos, const json& repetidos) const {
    const json x = SinRepetidos(repetidos);
    ASSERT_EQ(x.size(), avisos.size());
    for (std::size_t i = 0; i < avisos.size(); ++i) {
      EXPECT_EQ(x[i].at("texto"), TextoAviso(avisos[i], textos_));
      EXPECT_EQ(x[i].at("hipotesis"), avisos[i].hipotesis);
      EXPECT_EQ(x[i].at("pantalla"), avisos[i].pantalla);
      EXPECT_EQ(x[i].at("fase") == "final", avisos[i].fase == FaseAviso::Final);
      EXPECT_EQ(x[i].contains("valor"), avisos[i].valor.has_value());
      if (avisos[i].valor) Cerca(x[i].at("valor"), *avisos[i].valor, "valor");
    }
  }
};

class CasosTrabajados : public testing::TestWithParam<std::string> {};

TEST_P(CasosTrabajados, DanLosMismosResultados) {
  const json caso = pruebas::LeeJson(Datos("casos/" + GetParam()));
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
  for (const auto& f : std::filesystem::directory_iterator(Datos("casos"))) {
    nombres.push_back(f.path().filename().string());
  }
  std::sort(nombres.begin(), nombres.end());
  return nombres;
}

INSTANTIATE_TEST_SUITE_P(Fichero, CasosTrabajados, testing::ValuesIn(Ficheros()),
                         [](const auto& p) { return "n" + p.param.substr(0, 2); });

}  // namespace
}  // namespace zorbin
