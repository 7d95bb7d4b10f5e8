// The entries of the five languages take the same data, and those whose width carries a column
// keep it. That each language holds them all is a matter of the build.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <regex>
#include <set>

#include "base/mdTextos.h"
#include "comun/estadoDeJson.h"

namespace zorbin {
namespace {

nlohmann::json Textos(const std::string& idioma) {
  auto textos = pruebas::LeeJson(ZORBIN_FUENTES "recursos/textos/" + idioma + ".json");
  for (auto& texto : textos) {
    if (texto.is_object()) texto = std::string(texto["texto"]);
  }
  return textos;
}

struct Rango {
  int desde, hasta;
};

// Padded labels, heads of tables, units under them: the figures stand under their letters.
constexpr std::array<Rango, 34> kMismoAncho{
    {{252, 256}, {328, 332},   {337, 340},   {345, 348}, {350, 351}, {353, 353},  {359, 359},
     {364, 367}, {369, 375},   {541, 556},   {559, 561}, {564, 565}, {573, 575},  {578, 581},
     {601, 609}, {613, 636},   {638, 659},   {742, 742}, {744, 746}, {785, 785},  {787, 787},
     {794, 799}, {805, 846},   {850, 854},   {860, 862}, {864, 864}, {866, 867},  {879, 886},
     {887, 890}, {1040, 1043}, {1072, 1072}, {637, 637}, {660, 664}, {1319, 1321}}};

class Idiomas : public testing::TestWithParam<const char*> {};

TEST_P(Idiomas, TieneLosMismosDatosYAnchos) {
  const auto es = Textos("es");
  const auto otro = Textos(GetParam());
  for (const auto& [n, texto] : es.items()) {
    const auto a = texto.get<std::string>();
    const auto b = otro.at(n).get<std::string>();
    EXPECT_FALSE(b.empty()) << n;
    const std::regex marca(R"(\{\d\})");
    const auto marcas = [&marca](const std::string& t) {
      return std::multiset<std::string>(std::sregex_token_iterator(t.begin(), t.end(), marca), {});
    };
    EXPECT_EQ(marcas(a), marcas(b)) << n;
  }
  for (const auto& r : kMismoAncho) {
    for (int n = r.desde; n <= r.hasta; ++n) {
      const std::string clave = std::to_string(n);
      if (!es.contains(clave) || n == 834) continue;
      EXPECT_EQ(Largo(es[clave].get<std::string>()), Largo(otro[clave].get<std::string>()))
          << n << " «" << otro[clave] << "»";
    }
  }
}

TEST_P(Idiomas, LasPalabrasCortasCabenEnSuColumna) {
  const auto otro = Textos(GetParam());
  const auto ancho = [&otro](int n) { return Largo(otro[std::to_string(n)].get<std::string>()); };
  for (int n = 121; n <= 125; ++n) EXPECT_LE(ancho(n), 21u) << n;  // concentrated loads
  for (int n = 126; n <= 130; ++n) EXPECT_LE(ancho(n), 29u) << n;  // fills, with their value 37
  for (int n = 131; n <= 133; ++n) EXPECT_LE(ancho(n), 25u) << n;  // settlement, with value 31
  for (int n = 589; n <= 600; ++n) EXPECT_LE(ancho(n), 60u) << n;
  for (int n = 610; n <= 612; ++n) EXPECT_LE(ancho(n), 8u) << n;
}

INSTANTIATE_TEST_SUITE_P(Fichero, Idiomas, testing::Values("en", "ca", "pt", "fr"),
                         [](const auto& p) { return std::string(p.param); });

}  // namespace
}  // namespace zorbin
