// What ends the build when the texts, their names and those who read them don't agree.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace zorbin {
namespace {

namespace fs = std::filesystem;

struct Mezcla {
  const char* es;
  const char* en;
  const char* fuente;
  const char* queja;  // nullptr: the header is written
};

constexpr const char* kUno = R"({"1": {"nombre": "Uno", "texto": "a", "nota": "{1} file"}})";
constexpr const char* kLista =
    R"({"2": {"nombre": "L[1]", "texto": "b"}, "1": {"nombre": "L[0]", "texto": "a"}})";

const Mezcla kMezclas[] = {
    {kUno, R"({"1": "a"})", "f(txt::Uno);", nullptr},
    {kLista, R"({"1": "a", "2": "b"})", "f(txt::L[1]);", nullptr},
    {R"({"1": {"reserva": true, "texto": "a"}})", R"({"1": "a"})", "", nullptr},
    {kUno, R"({"1": "a"})", "// f(txt::Uno);", "entry 1, Uno, is read by no source"},
    {kUno, R"({"1": "a"})", "f(txt::Uno);\ng(txt::Dos);",
     "a.cpp:2: no entry of es.json is called Dos"},
    {kUno, "{}", "f(txt::Uno);", "en.json: entry 1 is missing"},
    {kUno, R"({"1": "a", "7": "b"})", "f(txt::Uno);", "en.json: entry 7 is not in es.json"},
    {R"({"1": {"nombre": "Uno", "texto": "a"}, "2": {"nombre": "Uno", "texto": "b"}})",
     R"({"1": "a", "2": "b"})", "f(txt::Uno);", "entry 1 and entry 2 are both called Uno"},
    {R"({"1": {"nombre": "L[0]", "texto": "a"}, "3": {"nombre": "L[1]", "texto": "b"}})",
     R"({"1": "a", "3": "b"})", "f(txt::L[0]);", "entry 3, L[1], does not follow"},
    {R"({"1": {"nombre": "L", "texto": "a"}, "2": {"nombre": "L[0]", "texto": "b"}})",
     R"({"1": "a", "2": "b"})", "f(txt::L);", "entry 1 and entry 2 are both called L"},
    {R"({"1": "a"})", R"({"1": "a"})", "", "entry 1 needs"},
    {R"({"1": {"nombre": "Uno", "reserva": true, "texto": "a"}})", R"({"1": "a"})", "",
     "entry 1 needs"},
    {R"({"1": {"nombre": "un o", "texto": "a"}})", R"({"1": "a"})", "", "\"un o\" is not a name"},
    {kUno, R"({"1": "a", "1": "b"})", "f(txt::Uno);", "en.json: \"1\" stands twice"},
};

TEST(GeneraTextos, LoQueNoCasaParaLaConstruccion) {
  const auto carpeta = fs::temp_directory_path() / ("zorbin-nombres-" + std::to_string(getpid()));
  const auto lee = [](const fs::path& ruta) {
    std::ifstream f(ruta);
    return std::string(std::istreambuf_iterator<char>(f), {});
  };
  for (const auto& m : kMezclas) {
    fs::remove_all(carpeta);
    fs::create_directories(carpeta / "textos");
    fs::create_directories(carpeta / "src");
    std::ofstream(carpeta / "textos/es.json") << m.es;
    std::ofstream(carpeta / "textos/en.json") << m.en;
    std::ofstream(carpeta / "src/a.cpp") << m.fuente << '\n';
    const auto orden =
        "cd " + carpeta.string() + " && " ZORBIN_GENERA_TEXTOS " textos src textos.h 2>quejas";
    const bool vale = std::system(orden.c_str()) == 0;
    const auto quejas = lee(carpeta / "quejas");
    EXPECT_EQ(vale, m.queja == nullptr) << m.es << '\n' << quejas;
    EXPECT_EQ(fs::exists(carpeta / "textos.h"), vale) << m.es;
    if (m.queja) EXPECT_NE(quejas.find(m.queja), std::string::npos) << m.es << '\n' << quejas;
    const auto cabecera = lee(carpeta / "textos.h");
    if (m.es == kUno && vale) {
      EXPECT_NE(cabecera.find("int Uno = 1;  // {1} file\n"), std::string::npos) << cabecera;
    } else if (m.es == kLista) {
      EXPECT_NE(cabecera.find("std::array<int, 2> L{1, 2};"), std::string::npos) << cabecera;
    }
  }
  fs::remove_all(carpeta);
}

}  // namespace
}  // namespace zorbin
