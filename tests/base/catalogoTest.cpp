#include "base/mdCarpetas.h"
#include "base/mdCatalogo.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "base/mdTextos.h"
#include "comun/carpeta.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;

Catalogo Lee() {
  return Catalogo::Lee(CarpetaRecursos() / "textos");
}

// That every name has its entry is a matter of the build.
TEST(Catalogo, NingunTextoSeLlamaPorSuNumero) {
  const std::regex suelto(R"((Texto|LoadRes|Compone)\(\d)");
  for (const auto& f : fs::recursive_directory_iterator(ZORBIN_FUENTES "src")) {
    const std::string extension = f.path().extension().string();
    if (extension != ".cpp" && extension != ".h") continue;
    EXPECT_FALSE(std::regex_search(pruebas::Bytes(f.path()), suelto)) << f.path();
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
  const pruebas::Carpeta carpeta;
  const auto rechazo = [&carpeta](const std::string& malo) -> std::string {
    pruebas::PonBytes(carpeta / "es.json", malo);
    try {
      Catalogo::Lee(carpeta.ruta());
      return "accepted: " + malo.substr(0, 20);
    } catch (const ErrorCatalogo& error) {
      return error.what();
    }
  };
  for (const char* malo :
       {"", "{", "[]", R"({"x":"a"})", R"({"101":1})", R"({"101":{}})", R"({"101":{"texto":1}})",
        R"({"9999":"a"})", "\xff\xfe", R"({"+12":"a"})", R"({" 12":"a"})", R"({"012":"a"})",
        "{\"1\":\"\x1b[2J\\uzzzz\"}"}) {
    EXPECT_NE(rechazo(malo).find("es.json"), std::string::npos) << rechazo(malo);
    EXPECT_EQ(rechazo(malo).find('\x1b'), std::string::npos);
  }
  // Neither the text that is quoted nor what is read grows with the file.
  for (const auto& malo :
       {"{\"1\":\"" + std::string(1 << 20, 'x'), std::string(9 << 20, ' '),
        std::string(1 << 20, '['), "{\"" + std::string(1 << 20, 'y') + "\":\"\"}"}) {
    EXPECT_NE(rechazo(malo).find("es.json"), std::string::npos) << rechazo(malo);
    EXPECT_LT(rechazo(malo).size(), 500u);
  }
  EXPECT_THROW(Catalogo::Lee(carpeta / "nada"), ErrorCatalogo);
}

}  // namespace
}  // namespace zorbin
