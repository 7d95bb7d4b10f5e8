// The manual of each language: it can be shown, it is found from the screens, and no translation
// says other numbers than the Spanish one.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <set>

#include "base/mdCarpetas.h"
#include "base/mdCatalogo.h"
#include "base/mdTextos.h"
#include "sesion/captura/mdCampos.h"

namespace zorbin {
namespace {

constexpr int kNombreDeLaAyuda = 433;

// What the viewer understands; nothing that runs or that is loaded from elsewhere.
const std::set<std::string> kElementos{
    "html", "head",  "meta", "title", "style", "body", "h1", "h2",   "h3",  "p", "ul", "ol",
    "li",   "table", "tr",   "th",    "td",    "b",    "i",  "code", "pre", "a", "br"};
const std::set<std::string> kSinCierre{"meta", "br"};

// Opened by the menus and by F1 on the screens that have no anchor for each field.
constexpr std::array<const char*, 16> kPantallas{"inicio",      "ventana",    "captura", "resumen",
                                                 "impresoras",  "hidraulica", "medios",  "ajustes",
                                                 "advertencia", "memoria",    "linea",   "ficheros",
                                                 "listados",    "hipotesis",  "rarezas", "teclado"};

struct Pieza {
  std::string elemento;  // empty: text
  bool cierra = false;
  std::map<std::string, std::string> atributos;
  std::string texto;
};

std::string SinEntidades(std::string texto) {
  const std::array<std::pair<const char*, const char*>, 4> entidades{
      {{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}}};
  for (const auto& [de, a] : entidades) {
    texto = std::regex_replace(texto, std::regex(de), a);
  }
  return texto;
}

Pieza LeeMarca(const std::string& dentro) {
  static const std::regex forma(R"re((/?)([a-z][a-z0-9]*)((?: [a-z]+="[^"<>]*")*))re");
  static const std::regex atributo(R"re( ([a-z]+)="([^"]*)")re");
  Pieza p;
  std::smatch m;
  if (!std::regex_match(dentro, m, forma)) {
    ADD_FAILURE() << "<" << dentro << ">";
    return p;
  }
  p.cierra = m.length(1) > 0;
  p.elemento = m.str(2);
  const std::string resto = m.str(3);
  for (std::sregex_iterator i(resto.begin(), resto.end(), atributo), fin; i != fin; ++i) {
    p.atributos[i->str(1)] = SinEntidades(i->str(2));
  }
  return p;
}

std::vector<Pieza> Trocea(const std::string& html) {
  static const std::regex suelto(R"(&(?!lt;|gt;|amp;|quot;)|>)");
  std::vector<Pieza> piezas;
  for (std::size_t i = html.find('>') + 1; i < html.size();) {  // after the DOCTYPE
    const bool marca = html[i] == '<';
    const std::size_t fin = std::min(html.find(marca ? '>' : '<', i), html.size());
    const std::string trozo = html.substr(i + (marca ? 1 : 0), fin - i - (marca ? 1 : 0));
    i = fin + (marca ? 1 : 0);
    if (marca) {
      piezas.push_back(LeeMarca(trozo));
    } else {
      EXPECT_FALSE(std::regex_search(trozo, suelto)) << trozo;
      piezas.push_back({{}, false, {}, SinEntidades(trozo)});
    }
  }
  return piezas;
}

struct Manual {
  Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  std::vector<Pieza> piezas;

  explicit Manual(int idioma) {
    textos.PonIdioma(static_cast<std::int16_t>(idioma));
    const auto ruta = RutaAyuda(textos.Texto(kNombreDeLaAyuda) + ".html");
    EXPECT_FALSE(ruta.empty()) << textos.Texto(kNombreDeLaAyuda);
    std::ifstream f(ruta);
    piezas = Trocea({std::istreambuf_iterator<char>(f), {}});
  }

  std::vector<std::string> Anclas() const {
    std::vector<std::string> anclas;
    for (const auto& p : piezas) {
      if (const auto n = p.atributos.find("name"); n != p.atributos.end() && p.elemento == "a") {
        anclas.push_back(n->second);
      }
    }
    return anclas;
  }

  // The text from each anchor to the next.
  std::map<std::string, std::string> Apartados() const {
    std::map<std::string, std::string> apartados;
    std::string ancla;
    for (const auto& p : piezas) {
      const auto n = p.atributos.find("name");
      if (n != p.atributos.end() && p.elemento == "a") ancla = n->second;
      if (!ancla.empty()) apartados[ancla] += p.elemento.empty() ? p.texto : " ";
    }
    return apartados;
  }
};

std::string Cifras(const std::string& texto) {
  std::string cifras;
  std::copy_if(texto.begin(), texto.end(), std::back_inserter(cifras),
               [](char c) { return c >= '0' && c <= '9'; });
  std::sort(cifras.begin(), cifras.end());
  return cifras;
}

class ManualDeAyuda : public testing::TestWithParam<int> {};

TEST_P(ManualDeAyuda, EstaBienFormadaYNoCargaNada) {
  const Manual manual(GetParam());
  std::vector<std::string> abiertos;
  for (const auto& p : manual.piezas) {
    if (p.elemento.empty()) {
      EXPECT_EQ(p.texto.find("url("), std::string::npos);
      EXPECT_EQ(p.texto.find("{{"), std::string::npos) << p.texto;
      continue;
    }
    EXPECT_TRUE(kElementos.contains(p.elemento)) << p.elemento;
    EXPECT_FALSE(p.atributos.contains("src"));
    if (kSinCierre.contains(p.elemento)) continue;
    if (!p.cierra) {
      EXPECT_FALSE(p.elemento == "p" && !abiertos.empty() && abiertos.back() == "p");
      abiertos.push_back(p.elemento);
      continue;
    }
    ASSERT_FALSE(abiertos.empty()) << "</" << p.elemento << ">";
    ASSERT_EQ(abiertos.back(), p.elemento);
    abiertos.pop_back();
  }
  EXPECT_TRUE(abiertos.empty());
}

TEST_P(ManualDeAyuda, SusAnclasSonLasDelEspanolYLosEnlacesLlevanAAlguna) {
  const Manual manual(GetParam());
  const auto anclas = manual.Anclas();
  const std::set<std::string> todas(anclas.begin(), anclas.end());
  EXPECT_EQ(anclas.size(), todas.size());
  EXPECT_EQ(anclas, Manual(1).Anclas());
  for (const auto& campo : TablaCampos()) EXPECT_TRUE(todas.contains(std::string(campo.nombre)));
  for (const char* pantalla : kPantallas) EXPECT_TRUE(todas.contains(pantalla)) << pantalla;
  for (std::size_t i = 0; i < manual.piezas.size(); ++i) {
    const auto& p = manual.piezas[i];
    if (p.elemento == "a" && !p.cierra) {
      const auto href = p.atributos.find("href");
      if (href != p.atributos.end()) {
        EXPECT_TRUE(href->second.starts_with("#") && todas.contains(href->second.substr(1)))
            << href->second;
      } else {
        EXPECT_FALSE(Recorta(p.atributos.at("title")).empty()) << p.atributos.at("name");
      }
    }
    // Contents and index are made of the anchors at the beginning of the headings.
    if (p.elemento.size() == 2 && p.elemento[0] == 'h' && p.elemento != "hr" && !p.cierra) {
      EXPECT_TRUE(manual.piezas[i + 1].atributos.contains("name")) << p.elemento;
      EXPECT_TRUE(manual.piezas[i + 2].cierra);
    }
  }
}

TEST_P(ManualDeAyuda, CadaCampoLlevaSuRotuloYSuConsejo) {
  const Manual manual(GetParam());
  const auto apartados = manual.Apartados();
  for (const auto& campo : TablaCampos()) {
    const auto& apartado = apartados.at(std::string(campo.nombre));
    for (const int n : {campo.grupo, campo.rotulo, campo.rotuloSI, campo.consejo}) {
      if (n == 0) continue;
      std::string texto(Recorta(manual.textos.Texto(n)));
      if (texto.ends_with(':')) texto = std::string(Recorta(texto.substr(0, texto.size() - 1)));
      EXPECT_NE(apartado.find(texto), std::string::npos) << campo.nombre << ": " << texto;
    }
  }
}

TEST_P(ManualDeAyuda, SusCifrasSonLasDelEspanol) {
  const auto espanol = Manual(1).Apartados();
  for (const auto& [ancla, texto] : Manual(GetParam()).Apartados()) {
    ASSERT_TRUE(espanol.contains(ancla)) << ancla;
    EXPECT_EQ(Cifras(texto), Cifras(espanol.at(ancla))) << ancla << "\n" << texto;
  }
}

INSTANTIATE_TEST_SUITE_P(Idioma, ManualDeAyuda, testing::Range(1, kIdiomas + 1));

}  // namespace
}  // namespace zorbin
