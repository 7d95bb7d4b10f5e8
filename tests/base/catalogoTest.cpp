#include "base/mdCarpetas.h"
#include "base/mdCatalogo.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>

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

// The numbers stand in headers of named constants; everywhere else a text is called by its name.
TEST(Catalogo, TodoNumeroQueUsaElCodigoExiste) {
  const Catalogo textos = Lee();
  int numeros = 0;
  const std::regex numero(R"(\b([1-9]\d{2,3})\b)");
  const std::regex suelto(R"((Texto|LoadRes|Compone)\(\d)");
  for (const auto& f : fs::recursive_directory_iterator(ZORBIN_FUENTES "src")) {
    const std::string nombre = f.path().filename().string();
    if (nombre.ends_with(".cpp") || nombre.ends_with(".h")) {
      EXPECT_FALSE(std::regex_search(Contenido(f.path()), suelto)) << nombre;
    }
    if (!nombre.starts_with("textos") || !nombre.ends_with(".h")) continue;
    std::istringstream lineas(Contenido(f.path()));
    for (std::string linea; std::getline(lineas, linea);) {
      if (linea.find("inline constexpr") == std::string::npos) continue;
      const std::string valores = linea.substr(linea.find_first_of("={"));
      for (std::sregex_iterator i(valores.begin(), valores.end(), numero), fin; i != fin; ++i) {
        EXPECT_TRUE(textos.Existe(std::stoi(i->str(1)))) << nombre << ": " << linea;
        ++numeros;
      }
    }
  }
  EXPECT_GT(numeros, 90);
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
       {"", "{", "[]", R"({"x":"a"})", R"({"101":1})", R"({"9999":"a"})", "\xff\xfe",
        R"({"+12":"a"})", R"({" 12":"a"})", R"({"012":"a"})", "{\"1\":\"\x1b[2J\\uzzzz\"}"}) {
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
