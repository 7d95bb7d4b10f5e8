// The formulas of the steps beside the technical report: where each stands there, and that its
// mathematics can be set.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>

#include "calculo/rastro/mdEscritura.h"
#include "listados/maqueta/mdError.h"
#include "listados/maqueta/mdFormula.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> Capitulos() {
  std::vector<fs::path> v;
  for (const auto& f : fs::directory_iterator(ZORBIN_FUENTES "docs/memoria/es")) {
    if (f.path().filename() != "portada.html") v.push_back(f.path());
  }
  std::sort(v.begin(), v.end());
  return v;
}

// Numbers of a chapter by what they name.
void Numera(int capitulo, const std::string& texto, std::map<std::string, std::string>& numeros) {
  static const std::regex kMarca("<(h2|div|table)\\b([^>]*)>");
  static const std::regex kId("id=\"([^\"]*)\"");
  std::map<std::string, int> cuenta;
  for (std::sregex_iterator m(texto.begin(), texto.end(), kMarca), fin; m != fin; ++m) {
    const std::string marca = (*m)[1];
    const std::string atributos = (*m)[2];
    std::smatch id;
    const bool hay = std::regex_search(atributos, id, kId);
    if (marca == "div" && !hay) continue;
    const auto tras = texto.substr(static_cast<std::size_t>(m->position()) + m->str().size(), 12);
    if (marca == "table" && tras.find("<caption>") == std::string::npos) continue;
    const int n = ++cuenta[marca];
    if (hay) numeros[id[1]] = std::to_string(capitulo) + "." + std::to_string(n);
  }
}

TEST(Formulas, LlevanSuNumeroDeLaMemoria) {
  std::map<std::string, std::string> numeros;
  int capitulo = 0;
  for (const auto& ruta : Capitulos()) {
    std::ifstream f(ruta);
    Numera(++capitulo, std::string(std::istreambuf_iterator<char>(f), {}), numeros);
  }
  for (int i = 0; i < kFormulas; ++i) {
    const auto& info = InfoDe(static_cast<Formula>(i));
    EXPECT_EQ(numeros[std::string(info.ancla)], info.numero) << info.expresion;
  }
}

TEST(Formulas, SePuedenComponer) {
  for (int i = 0; i < kFormulas; ++i) {
    Paso paso;
    paso.formula = static_cast<Formula>(i);
    const auto& info = InfoDe(paso.formula);
    for (std::size_t k = 0; k < LeeExpresion(info.expresion).simbolos.size(); ++k) {
      paso.valores.push_back((k % 2 == 0 ? 1.0 : -1.0) * std::pow(10.0, k % 9) / 3000.0);
    }
    for (const bool si : {false, true}) {
      const auto x = EscribePaso(paso, si, si ? ',' : '.');
      for (const auto& linea : {x.simbolos.formula, x.cifras.formula, x.resultado.formula}) {
        EXPECT_NO_THROW(memoria::LeeFormula(QString::fromStdString(linea), 1))
            << info.expresion << ": " << linea;
        EXPECT_EQ(linea.find("--"), std::string::npos) << linea;
      }
    }
  }
}

}  // namespace
}  // namespace zorbin
