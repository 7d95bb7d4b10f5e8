#include "base/mdCarpetas.h"
#include "base/mdCatalogo.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>

#include "base/mdTextos.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;

Catalogo Lee() {
  return Catalogo::Lee(CarpetaRecursos() / "textos");
}

std::string Contenido(const fs::path& ruta) {
  std::ifstream f(ruta);
  return {std::istreambuf_iterator<char>(f), {}};
}

// That every name has its entry is a matter of the build.
TEST(Catalogo, NingunTextoSeLlamaPorSuNumero) {
  const std::regex suelto(R"((Texto|LoadRes|Compone)\(\d)");
  for (const auto& f : fs::recursive_directory_iterator(ZORBIN_FUENTES "src")) {
    const std::string extension = f.path().extension().string();
    if (extension != ".cpp" && extension != ".h") continue;
    EXPECT_FALSE(std::regex_search(Contenido(f.path()), suelto)) << f.path();
  }
}

TEST(Catalogo, UnaEntradaQueFaltaSeVeYNoPara) {
  Catalogo textos = Lee();
  EXPECT_EQ(textos.LoadRes(6), "Falta Recurso 6");
  EXPECT_EQ(textos.Texto(244), "CALCULANDO EL CASO");
  EXPECT_EQ(textos.CuentaIdiomas(), 5);
  EXPECT_EQ(textos.PonIdioma(6), 1);
  EXPECT_EQ(textos.IdiomaOffset(), 0);
  EXPECT_EQ(textos.Compone(1122, {"--formato", "{1}"}), "el valor «{1}» no sirve para --formato");
  EXPECT_EQ(textos.Compone(1122, {"\x1b[1m\xc2\x9b\xff", "a\nb\té"}),
            "el valor «a\nb\té» no sirve para \\x1B[1m\\x9B\ufffd");
}

TEST(Catalogo, UnFicheroRotoSeRechazaPorSuNombre) {
  const auto carpeta = fs::temp_directory_path() / ("zorbin-textos-" + std::to_string(getpid()));
  fs::create_directories(carpeta);
  for (const char* malo :
       {"", "{", "[]", R"({"x":"a"})", R"({"101":1})", R"({"101":{}})", R"({"101":{"texto":1}})",
        R"({"9999":"a"})", "\xff\xfe", R"({"+12":"a"})", R"({" 12":"a"})", R"({"012":"a"})",
        "{\"1\":\"\x1b[2J\\uzzzz\"}"}) {
    std::ofstream(carpeta / "es.json", std::ios::binary) << malo;
    try {
      Catalogo::Lee(carpeta);
      ADD_FAILURE() << malo;
    } catch (const ErrorCatalogo& error) {
      EXPECT_NE(std::string(error.what()).find("es.json"), std::string::npos);
      EXPECT_EQ(std::string(error.what()).find('\x1b'), std::string::npos);
    }
  }
  // Neither the text that is quoted nor what is read grows with the file.
  for (const auto& malo :
       {"{\"1\":\"" + std::string(1 << 20, 'x'), std::string(9 << 20, ' '),
        std::string(1 << 20, '['), "{\"" + std::string(1 << 20, 'y') + "\":\"\"}"}) {
    std::ofstream(carpeta / "es.json", std::ios::binary) << malo;
    try {
      Catalogo::Lee(carpeta);
      ADD_FAILURE() << malo.substr(0, 9);
    } catch (const ErrorCatalogo& error) {
      EXPECT_LT(std::string(error.what()).size(), 500u);
    }
  }
  fs::remove_all(carpeta);
  EXPECT_THROW(Catalogo::Lee(carpeta), ErrorCatalogo);
}

}  // namespace
}  // namespace zorbin
