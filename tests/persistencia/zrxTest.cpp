#include "persistencia/zrx/mdZrx.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "base/textos.h"
#include "comun/carpeta.h"
#include "persistencia/disco/mdErrorFichero.h"
#include "persistencia/zrx/mdFabricacionZrx.h"

namespace zorbin {
namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kNombre = "o.zrx";

// Written by hand, with keys of a later program at both levels.
constexpr const char* kConOtras = R"({"autor": {"nombre": "Añó", "n": [1, 2.5, null]},
  "tramos": [{"numero": "2", "color": "rojo", "descripcion": "Cabecera", "envolvente": true},
             {"numero": "9", "descripcion": "Quitado", "nota": "x"},
             {"numero": "3", "descripcion": "Igual que siempre"}],
  "version": 1, "logo": ""})";

TEST(Zrx, LoDesconocidoSeConservaYLoQueNoDiceNadaNoSeEscribe) {
  auto extras = ExtrasDeTexto(kConOtras, kNombre);
  const std::string texto = TextoDeExtras(extras);
  EXPECT_EQ(TextoDeExtras(ExtrasDeTexto(texto, kNombre)), texto);
  const Json esperado = Json::parse(R"({"version": 1,
    "tramos": [{"numero": "2", "descripcion": "Cabecera", "envolvente": true, "color": "rojo"},
               {"numero": "9", "descripcion": "Quitado", "nota": "x"}],
    "autor": {"nombre": "Añó", "n": [1, 2.5, null]}, "logo": ""})");
  EXPECT_EQ(Json::parse(texto), esperado);

  // An entry is the Tramo's only when both agree.
  EXPECT_FALSE(TomaExtras(extras, "2", "cabecera"));
  EXPECT_FALSE(TomaExtras(extras, "02", "Cabecera"));
  const auto suyo = TomaExtras(extras, "2", "Cabecera");
  ASSERT_TRUE(suyo);
  EXPECT_TRUE(suyo->Envolvente);
  EXPECT_FALSE(TomaExtras(extras, "2", "Cabecera"));
  const auto avisos = AvisosDeExtras(extras, kNombre);
  ASSERT_EQ(avisos.size(), 1u);  // the one that says nothing is not missed
  EXPECT_EQ(avisos[0].datos, (std::vector<std::string>{kNombre, "9", "Quitado"}));
  EXPECT_EQ(TextoDeExtras(ExtrasDeTexto(R"({"tramos":[{"numero":"1"}]})", kNombre)), "");
}

TEST(Zrx, FabricacionYPreciosVanYVuelvenEntreLasDemasClaves) {
  const Fabricacion fab{850.5, 7.0, 24.0, 6.0, 0.25};
  const std::string antes = R"({"nota":"ñ","fabricacion":{"marca":1}})";
  const auto con = ConFabricacion(antes, fab);
  EXPECT_EQ(FabricacionDe(con), fab);
  EXPECT_EQ(Json::parse(con)["nota"], "ñ");
  EXPECT_EQ(Json::parse(con)["fabricacion"]["marca"], 1);
  EXPECT_EQ(Json::parse(ConFabricacion(con, {})), Json::parse(antes));
  EXPECT_EQ(ConFabricacion("", {}), "");

  Precios precios;
  precios.moneda = "CHF";
  precios.precio[Partida::Relleno] = 4.25;
  EXPECT_EQ(PreciosDe(ConPrecios("", precios)), precios);
  EXPECT_EQ(ConPrecios(ConPrecios("", precios), {}), "");
  EXPECT_EQ(PreciosDeTexto(R"({"moneda":"CHF","relleno":4.25})"), precios);
  EXPECT_THROW(PreciosDeTexto(R"({"rellleno":4.25})"), ClaveMala);
  EXPECT_THROW(PreciosDeTexto("[]"), ClaveMala);
}

TEST(Zrx, UnaVersionPosteriorSeLeeYQuedaComoEsta) {
  const std::string texto =
      R"({"version":2,"tramos":[{"numero":"1","descripcion":"","envolvente":true}],"a":1})";
  auto extras = ExtrasDeTexto(texto, kNombre);
  EXPECT_EQ(AvisosDeExtras(extras, kNombre).at(0).texto, txt::ZrxMasNuevo);
  EXPECT_TRUE(TomaExtras(extras, "1", "").value().Envolvente);
  EXPECT_EQ(TextoDeExtras(extras), texto);
}

TEST(Zrx, LoQueNoSeEntiendeSeNombra) {
  const auto hondo = [](int n) {
    return R"({"x":)" + std::string(static_cast<std::size_t>(n), '[') +
           std::string(static_cast<std::size_t>(n), ']') + "}";
  };
  std::string claves = "{";
  for (int i = 0; i <= kMaxClavesZrx; ++i) claves += "\"" + std::to_string(i) + "\":0,";
  claves.back() = '}';
  struct Caso {
    std::string texto;
    int entrada;
    std::string dato;
  };
  for (const Caso& c : std::vector<Caso>{
           {"", txt::ZrxSinJson, "1"},
           {"{\"version\":1,", txt::ZrxSinJson, "14"},
           {"[]", txt::ZrxSinJson, "1"},
           {"{\"a\":\"\xff\"}", txt::ZrxSinJson, "7"},
           {"{\"a\":1e999}", txt::ZrxSinJson, "?"},
           {"{\"version\":\"1\"}", txt::ZrxClaveMala, "version"},
           {"{\"tramos\":{}}", txt::ZrxClaveMala, "tramos"},
           {"{\"tramos\":[3]}", txt::ZrxClaveMala, "tramos[0]"},
           {"{\"tramos\":[{},{\"envolvente\":\"si\"}]}", txt::ZrxClaveMala, "tramos[1].envolvente"},
           {"{\"tramos\":[{\"numero\":2}]}", txt::ZrxClaveMala, "tramos[0].numero"},
           {hondo(kMaxNivelesZrx + 1), txt::ZrxExcesivo, ""},
           {hondo(500'000), txt::ZrxExcesivo, ""},
           {claves, txt::ZrxExcesivo, ""},
           {R"({"precios":{"chapa":-1}})", txt::ZrxClaveMala, "precios.chapa"},
           {R"({"precios":3})", txt::ZrxClaveMala, "precios"},
           {R"({"tramos":[{"fabricacion":{"tubo":0}}]})", txt::ZrxClaveMala,
            "tramos[0].fabricacion.tubo"},
           {R"({"tramos":[{"fabricacion":{"longitudinales":{"diametro":"8"}}}]})",
            txt::ZrxClaveMala, "tramos[0].fabricacion.longitudinales.diametro"},
           {"{}" + std::string(kMaxBytesZrx, ' '), txt::ZrxExcesivo, ""}}) {
    try {
      ExtrasDeTexto(c.texto, kNombre);
      ADD_FAILURE() << "read: " << c.texto.substr(0, 60);
    } catch (const ErrorFichero& error) {
      EXPECT_EQ(error.mensaje().texto, c.entrada) << c.texto.substr(0, 60);
      EXPECT_EQ(error.mensaje().datos, (std::vector<std::string>{kNombre, c.dato}));
    }
  }
  EXPECT_NO_THROW(ExtrasDeTexto(hondo(kMaxNivelesZrx), kNombre));
  const pruebas::Carpeta carpeta;
  EXPECT_EQ(LeeExtras(carpeta / kNombre), Extras{});
  std::filesystem::create_symlink("nadie", carpeta / kNombre);
  EXPECT_THROW(LeeExtras(carpeta / kNombre), ErrorFichero);
}

}  // namespace
}  // namespace zorbin
