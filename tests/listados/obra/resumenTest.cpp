#include "listados/obra/mdResumen.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "base/mdCarpetas.h"
#include "comun/comparaFichero.h"
#include "comun/estadoDeJson.h"
#include "core/mdUnidades.h"
#include "listados/datos/mdJson.h"

namespace zorbin {
namespace {

using pruebas::Compara;

std::string ResumenDe(EstadoCalculo e, char separador) {
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  std::ostringstream salida;
  Pantalla pantalla(salida);
  Resumen resumen(pantalla, textos, {e.obra.EsSI(), separador});
  const std::array<OyenteCorrida*, 1> oyentes{&resumen};
  const EnUnidadesDeCalculo unidades(e);
  CalculaCasos(e, kSinForzar, kSinForzar, oyentes);
  return salida.str();
}

EstadoCalculo UnCaso(int posicion) {
  auto e = pruebas::EstadoDeMuestra(posicion);
  e.tramo.NumeroTramo = static_cast<std::int16_t>(posicion);
  e.tramo.Hr0Tramo = e.tramo.Hr0Final = 3;
  e.obra.Prs2 = e.obra.Prs1;
  return e;
}

// One Caso with each kind of warning that the summary shows, in SI and in MKS.
TEST(Resumen, TextoDeLaPantalla) {
  std::string texto = ResumenDe(UnCaso(2), ',');
  auto e = UnCaso(3);
  e.tramo.Prs2Tram = e.tramo.Prs1Tram, e.tramo.PrsM2Tram = e.tramo.PrsM1Tram;
  e.tramo.Adato = 8;
  texto += ResumenDe(pruebas::EnMks(e), '.');
  for (const int posicion : {4, 2}) {
    e = UnCaso(posicion);
    e.obra.Prs1 = e.obra.Prs2 = 2, e.obra.PrsM1 = e.obra.PrsM2 = 2.8;
    texto += ResumenDe(e, ',');
  }
  EXPECT_EQ(Compara("resumen.txt", texto), "");
}

TEST(Resumen, TextoDeUnTramoPostesado) {
  auto e = pruebas::EstadoDeMuestra(7);
  e.tramo.NumeroTramo = 7;
  std::string texto = ResumenDe(pruebas::EnMks(e), '.');
  e.tramo.Fckno = 12;
  texto += ResumenDe(e, ',');
  EXPECT_EQ(Compara("resumen-postesado.txt", texto), "");
}

TEST(Resumen, ElMismoTramoEnSIYEnMksSoloCambiaDeUnidades) {
  const auto lineas = [](const std::string& t) { return std::count(t.begin(), t.end(), '\n'); };
  for (int posicion = 1; posicion <= 5; ++posicion) {
    const auto e = pruebas::EstadoDeMuestra(posicion);
    const std::string si = ResumenDe(e, '.');
    const std::string mks = ResumenDe(pruebas::EnMks(e), '.');
    EXPECT_EQ(lineas(si), lineas(mks));
    const auto areas = [](const std::string& t) {
      std::string r;
      std::istringstream f(t);
      for (std::string l; std::getline(f, l);) {
        if (l.find(" cm2/m") != std::string::npos || l.find("As/Acr") != std::string::npos)
          r += l + "\n";
      }
      return r;
    };
    EXPECT_EQ(areas(si), areas(mks));
  }
}

// The results of a whole Obra read back from the JSON to the very same doubles.
TEST(Json, LeidoDaLosMismosDobles) {
  namespace fs = std::filesystem;
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  const auto registros = fs::temp_directory_path() / ("zorbin-json-" + std::to_string(getpid()));
  struct Testigo : ListadoJson {
    using ListadoJson::ListadoJson;
    std::vector<EstadoCalculo> casos;
    void Caso(const EstadoCalculo& e) override {
      casos.push_back(e);
      ListadoJson::Caso(e);
    }
  };
  std::ostringstream salida;
  EstadoCalculo e;
  const auto obra = AbreObra(e, ZORBIN_FUENTES "muestras/acequia.zrb");
  Testigo json(salida, "acequia.zrb", textos, {true, ','});
  json.EmpiezaObra(e);
  CalculaObra(e, obra, {{}, registros}, json);
  json.AcabaObra();
  fs::remove_all(registros);

  const auto leido = nlohmann::json::parse(salida.str());
  EXPECT_EQ(leido["obra"]["NombreObra"], e.obra.NombreObra);
  ASSERT_EQ(leido["tramos"].size(), 7u);
  std::size_t i = 0;
  for (const auto& tramo : leido["tramos"]) {
    EXPECT_TRUE(tramo["error"].is_null());
    EXPECT_EQ(tramo["Esp"].get<double>() > 1, true);  // centimetres, as captured
    EXPECT_EQ(tramo["TipoCuna"].get<int>() <= 2, true);
    for (const auto& caso : tramo["casos"]) {
      const auto& x = json.casos.at(i++);
      EXPECT_EQ(caso["Q"].get<double>(), x.corrida.Q);
      EXPECT_EQ(caso["Landa"].get<double>(), x.corrida.Landa);
      EXPECT_EQ(caso["MHip"][4][2].get<double>(), x.caso.MHip(5, 3));
      if (x.tramo.EsArmado) {
        const auto& r = x.caso.armado;
        EXPECT_EQ(caso["armado"]["N"][2][0].get<double>(), r.esfuerzos.N(3, 1));
        EXPECT_EQ(caso["armado"]["TablaHip"][4][2].get<double>(), r.TablaHip(5).Total);
      } else {
        const auto& r = x.caso.postesado;
        EXPECT_EQ(caso["postesado"]["NESPDEFI"].get<double>(), r.NESPDEFI);
        EXPECT_EQ(caso["postesado"]["hipotesis"].size(), 6u);
        EXPECT_EQ(caso["postesado"]["hipotesis"][2]["TotAc"][1].get<double>(),
                  r.hipotesis(3).TotAc(2));
        EXPECT_EQ(caso["postesado"]["PP"].get<double>(), x.corrida.PP);
      }
      EXPECT_EQ(caso["avisos"].size(), x.caso.avisos.size());
      EXPECT_TRUE(caso["TerraplenRige"].is_boolean());
    }
  }
  EXPECT_EQ(i, json.casos.size());
}

}  // namespace
}  // namespace zorbin
