// Whole post-tensioned Tramos against results worked out independently from the same method, by
// another hand in another language: materials, wire, factory test pressure, diagnostics, and every
// value of every hypothesis of each Caso.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <map>
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
  const auto x = esperado.get<double>();
  EXPECT_NEAR(x, hay, kTolerancia * std::max(1.0, std::fabs(x))) << que;
}

using Valores = std::map<std::string, double>;

// Every name of the worked object must be among the values, and agree.
void ComparaTodos(const json& esperado, const Valores& hay) {
  for (const auto& [nombre, x] : esperado.items()) {
    if (x.is_array()) {
      for (std::size_t s = 0; s < x.size(); ++s) {
        const std::string seccion = nombre + std::to_string(s + 1);
        ASSERT_TRUE(hay.contains(seccion)) << seccion;
        Cerca(x[s], hay.at(seccion), seccion);
      }
    } else {
      ASSERT_TRUE(hay.contains(nombre)) << nombre;
      Cerca(x, hay.at(nombre), nombre);
    }
  }
}

Valores DeHipotesis(const HipotesisPostesada& p, double LimiteChapa) {
  Valores v{{"LimiteChapa", LimiteChapa}, {"error", p.error}};
#define VALOR(campo) v[#campo] = p.campo
  VALOR(FIPR), VALOR(NESP), VALOR(PresHip), VALOR(LimPrimario);
  VALOR(Asp), VALOR(sno), VALOR(yno), VALOR(sro), VALOR(yi), VALOR(ye), VALOR(yr), VALOR(Io);
  VALOR(rco), VALOR(rro), VALOR(A), VALOR(B), VALOR(C), VALOR(Ar), VALOR(Br), VALOR(Cr);
  VALOR(k), VALOR(D), VALOR(PerdElastica), VALOR(SigPostElastica), VALOR(SigIniInt);
  VALOR(SigIniExt), VALOR(PerdRelajBruta), VALOR(SigPostRelaj), VALOR(SigPrimRelaj);
  VALOR(PerdFluRet), VALOR(PresionRev), VALOR(PerdRelaj), VALOR(SigRes), VALOR(SigPI);
  VALOR(SigPE), VALOR(SigRI), VALOR(SigRE), VALOR(PresPrimario), VALOR(PresAgotamiento);
  VALOR(OvPImax), VALOR(OvPEmax), VALOR(OvRImax), VALOR(OvREmax), VALOR(KPI), VALOR(KPE);
  VALOR(KRI), VALOR(KRE), VALOR(KAc), VALOR(LimPI), VALOR(LimPE), VALOR(LimRI), VALOR(LimRE);
  VALOR(PresLimite), VALOR(CaraMenor), VALOR(PrPI), VALOR(PrPE), VALOR(PrRI), VALOR(PrRE);
  VALOR(PrAc), VALOR(TensionChapa);
#undef VALOR
#define LISTA(campo) \
  for (int s = 1; s <= kSecciones; ++s) v[#campo + std::to_string(s)] = p.campo(s)
  // clang-format off
  LISTA(MomHip); LISTA(AxilHip);
  LISTA(OvPI); LISTA(OvPE); LISTA(OvRI); LISTA(OvRE); LISTA(OvAc);
  LISTA(SinPI); LISTA(SinPE); LISTA(SinRI); LISTA(SinRE); LISTA(SinAc);
  LISTA(TotPI); LISTA(TotPE); LISTA(TotRI); LISTA(TotRE); LISTA(TotAc);
  // clang-format on
#undef LISTA
  return v;
}

class Comparador {
 public:
  explicit Comparador(const Catalogo& textos) : textos_(textos) {}

  void Compara(const ResultadoTramo& r, const FilaCaso& fila, const json& x) const {
    const auto caso = CasoEntero(r, fila);
    Fila(fila, x);
    Resultado(caso.Postesado(), x);
    Avisos(caso.avisos, x.at("avisos"));
    for (std::size_t h = 0; h < 6; ++h) {
      SCOPED_TRACE("hipotesis " + std::to_string(h + 1));
      const auto& p = caso.Postesado().hipotesis(static_cast<int>(h) + 1);
      EXPECT_EQ(p.Impresa(), x.at("hipotesis")[h].at("error") == 0);
      ComparaTodos(x.at("hipotesis")[h], DeHipotesis(p, caso.Postesado().LimiteChapa));
    }
  }

 private:
  const Catalogo& textos_;

  std::string Texto(const std::optional<ClaseAviso>& clase) const {
    return clase ? TextoAviso(*clase, textos_) : std::string{};
  }

  static void Fila(const FilaCaso& f, const json& x) {
    const std::initializer_list<std::pair<const char*, double>> pares{
        {"Hr", f.Hr},   {"NumCaso", f.NumCaso}, {"DP", f.DP},    {"MDP", f.MDP},
        {"STP", f.STP}, {"PP", f.PPObtenida},   {"PPNeta", f.PP}};
    for (const auto& [nombre, valor] : pares) Cerca(x.at(nombre), valor, nombre);
  }

  void Resultado(const ResultadoPostesado& r, const json& x) const {
    const std::initializer_list<std::pair<const char*, double>> pares{
        {"RadioInt", r.radios.RadioInt},
        {"RadioCam", r.radios.RadioCam},
        {"RadioNuc", r.radios.RadioNuc},
        {"RadioRev", r.radios.RadioRev},
        {"FIPR", r.FIPR},
        {"NESP", r.NESP},
        {"FIPRDEFI", r.FIPRDEFI},
        {"NESPDEFI", r.NESPDEFI},
        {"PP", r.PP},
        {"ErrorPostesado", r.ErrorPostesado},
        {"Vueltas", r.Vueltas}};
    for (const auto& [nombre, valor] : pares) Cerca(x.at(nombre), valor, nombre);
    ComparaTodos(x.at("prueba"), {{"FIPR", r.fila.FIPR}, {"NESP", r.fila.NESP}});
    EXPECT_EQ(x.at("fin") == "completo", r.fin == FinPostesado::Completo);
    EXPECT_EQ(x.at("MensajePostesado"), Texto(r.MensajePostesado));
    EXPECT_EQ(x.at("MensajeBusqueda"), Texto(r.fila.MensajePostesado));
    EXPECT_EQ(r.fila.PP, r.PP);
    // What PP rests on: the pass under MDP with the final wire, or the [phase, hypothesis] of the
    // last pass that got to its stresses.
    const json& origen = x.at("PPOrigen");
    EXPECT_EQ(origen == "paso 8", r.PPConAlambreFinal);
    EXPECT_EQ(origen == "paso 8" ? 4 : origen.at(1).get<int>(), r.PPHipotesis);
    const auto& m = r.materiales;
    ComparaTodos(x.at("constantes"), {{"Ecno", m.Ecno},
                                      {"Ecn", m.Ecn},
                                      {"Ecr", m.Ecr},
                                      {"Fctn", m.Fctn},
                                      {"Fctr", m.Fctr},
                                      {"ni", m.ni},
                                      {"n", m.n},
                                      {"n1", m.n1},
                                      {"n2", m.n2},
                                      {"nc", m.nc},
                                      {"RatioChapa", m.RatioChapa}});
  }

  void Avisos(const std::vector<Aviso>& avisos, const json& x) const {
    ASSERT_EQ(x.size(), avisos.size());
    for (std::size_t i = 0; i < avisos.size(); ++i) {
      EXPECT_EQ(x[i].at("texto"), TextoAviso(avisos[i], textos_));
      EXPECT_EQ(x[i].at("hipotesis"), avisos[i].hipotesis);
      EXPECT_EQ(x[i].at("visible"), avisos[i].pantalla);
      EXPECT_EQ(x[i].at("fase") == 1, avisos[i].fase == FaseAviso::Busqueda);
      Cerca(x[i].at("FIPR"), avisos[i].alambre.FIPR, "FIPR");
      Cerca(x[i].at("NESP"), avisos[i].alambre.NESP, "NESP");
    }
  }
};

class CasosPostesados : public testing::TestWithParam<std::string> {};

TEST_P(CasosPostesados, DanLosMismosResultados) {
  const json caso = pruebas::LeeJson(Datos("casosPostesado/" + GetParam()));
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
  for (const auto& f : std::filesystem::directory_iterator(Datos("casosPostesado"))) {
    nombres.push_back(f.path().filename().string());
  }
  std::sort(nombres.begin(), nombres.end());
  return nombres;
}

INSTANTIATE_TEST_SUITE_P(Fichero, CasosPostesados, testing::ValuesIn(Ficheros()),
                         [](const auto& p) { return "n" + p.param.substr(0, 2); });

}  // namespace
}  // namespace zorbin
