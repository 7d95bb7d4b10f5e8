// The report read back from its file: what stands on its pages, where its links lead, and what its
// dictionary says.
#define POINTERHOLDER_TRANSITION 4
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <regex>
#include <sstream>

#include "comun/carpeta.h"
#include "comun/proyecto.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;

const std::string kMuestra = ZORBIN_FUENTES "muestras/acequia.zrb";

std::string Orden(const std::string& orden, int* codigo = nullptr) {
  std::string salida;
  FILE* f = popen((orden + " 2>&1").c_str(), "r");
  std::array<char, 4096> bloque;
  for (std::size_t n; (n = fread(bloque.data(), 1, bloque.size(), f)) > 0;) {
    salida.append(bloque.data(), n);
  }
  const int estado = pclose(f);
  if (codigo != nullptr) *codigo = WEXITSTATUS(estado);
  return salida;
}

class Informe : public testing::Test {
 protected:
  pruebas::Carpeta carpeta;
  fs::path pdf = carpeta / "i.pdf";

  int Escribe(const std::string& obra, const std::string& palabras = {},
              std::string* dicho = nullptr) const {
    int codigo = -1;
    const auto texto =
        Orden(ZORBIN_CALC " calcula " + obra + " --registros " + carpeta.ruta().string() +
                  " --listado informe --pdf " + pdf.string() + " " + palabras,
              &codigo);
    if (dicho != nullptr) *dicho = texto;
    return codigo;
  }

  // The sample with something changed, written anew.
  template <class Cambia>
  std::string Otra(const Cambia& cambia) const {
    auto p = pruebas::EnMemoria(kMuestra);
    cambia(p);
    const Catalogo textos = Catalogo::Lee(fs::path(ZORBIN_FUENTES) / "recursos/textos");
    const auto ruta = carpeta / "otra.zrb";
    GrabaProyectoComo(ruta, p, nullptr, textos, ',');
    return ruta.string();
  }

  // Text of each page, from the first.
  std::vector<std::string> Paginas() const {
    std::vector<std::string> paginas;
    std::istringstream texto(Orden("pdftotext -layout " + pdf.string() + " -"));
    for (std::string pagina; std::getline(texto, pagina, '\f');) paginas.push_back(pagina);
    return paginas;
  }

  static std::string Junto(const std::vector<std::string>& paginas) {
    std::string texto;
    for (const auto& p : paginas) texto += p;
    return texto;
  }
};

int PaginaDe(QPDF& lector, QPDFObjectHandle destino) {
  const auto paginas = QPDFPageDocumentHelper(lector).getAllPages();
  for (std::size_t i = 0; i < paginas.size(); ++i) {
    const auto suya = QPDFPageObjectHelper(paginas[i]).getObjectHandle();
    if (suya.getObjGen() == destino.getArrayItem(0).getObjGen()) return static_cast<int>(i);
  }
  return -1;
}

bool Tiene(const std::string& texto, const std::string& que) {
  return texto.find(que) != std::string::npos;
}

TEST_F(Informe, EnCadaIdiomaTieneSusTextosSusPaginasYSusSignos) {
  struct Lengua {
    const char* codigo;
    const char* titulo;
    const char* indice;
    const char* pagina;
    const char* cifra;  // with the decimal sign of the language
  };
  for (const auto& l : {Lengua{"es", "Memoria de cálculo", "Índice", "Página 1?N de N", "1,200"},
                        {"en", "Calculation report", "Contents", "Page 1?N of N", "1.200"},
                        {"ca", "Memòria de càlcul", "Índex", "Pàgina 1?N de N", "1,200"},
                        {"pt", "Memória de cálculo", "Índice", "Página 1?N de N", "1,200"},
                        {"fr", "Note de calcul", "Sommaire", "Page 1?N sur N", "1,200"}}) {
    SCOPED_TRACE(l.codigo);
    ASSERT_EQ(Escribe(kMuestra, std::string("--tramo 1 --detalle resumen --idioma ") + l.codigo),
              0);
    const auto paginas = Paginas();
    const auto texto = Junto(paginas);
    for (const auto* que : {l.titulo, l.indice, l.cifra, "γ", "λ"}) {
      EXPECT_TRUE(Tiene(texto, que)) << que;
    }
    EXPECT_FALSE(Tiene(texto, "Falta Recurso"));
    std::string ultima(l.pagina);
    const auto total = std::to_string(paginas.size());
    ultima = std::regex_replace(ultima, std::regex("1\\?N"), total);
    ultima = std::regex_replace(ultima, std::regex(" N"), " " + total);
    EXPECT_TRUE(Tiene(paginas.back(), ultima)) << ultima;
  }
}

TEST_F(Informe, ElIndiceElEsquemaYLosEnlacesLlevanASuPagina) {
  ASSERT_EQ(Escribe(kMuestra), 0);
  EXPECT_LE(fs::file_size(pdf), 2'000'000u);
  ASSERT_EQ(Escribe(kMuestra, "--tramo 1 --tramo 2 --tramo 6 --tramo 7"), 0);
  const auto paginas = Paginas();
  const auto indice = paginas.at(2) + paginas.at(3);
  QPDF lector;
  lector.processFile(pdf.c_str());
  int apartados = 0;
  auto esquema = lector.getRoot().getKey("/Outlines");
  for (auto capitulo = esquema.getKey("/First"); !capitulo.isNull();
       capitulo = capitulo.getKey("/Next")) {
    for (auto e = capitulo.getKey("/First"); !e.isNull(); e = e.getKey("/Next")) {
      ++apartados;
      const auto titulo = e.getKey("/Title").getUTF8Value();
      const int pagina = PaginaDe(lector, e.getKey("/Dest"));
      ASSERT_GE(pagina, 0) << titulo;
      const auto numero = titulo.substr(0, titulo.find(' '));
      const std::regex linea("(^|\n) *" + numero + " [^\n]*[. ]" + std::to_string(pagina + 1) +
                             " *\n");
      EXPECT_TRUE(Tiene(paginas[static_cast<std::size_t>(pagina)], numero)) << titulo;
      EXPECT_TRUE(std::regex_search(indice, linea)) << titulo << " p. " << pagina + 1;
    }
  }
  EXPECT_GT(apartados, 20);
  int enlaces = 0;
  for (auto& p : QPDFPageDocumentHelper(lector).getAllPages()) {
    for (auto& nota : p.getObjectHandle().getKey("/Annots").aitems()) {
      ++enlaces;
      EXPECT_EQ(nota.getKey("/F").getIntValue(), 4);
      EXPECT_GE(PaginaDe(lector, nota.getKey("/Dest")), 0);
    }
  }
  EXPECT_GT(enlaces, apartados);
}

TEST_F(Informe, EsUnDocumentoDeArchivoConElMismoAutorEnSusDosSitios) {
  const auto obra = Otra([](ProyectoAGrabar& p) {
    p.extras.portada.autor = "Ana Peña & Cía";
    p.extras.portada.revisor = "Lluís Çirera";
    // A picture of 8 by 8 with half of its dots transparent.
    const auto png = DeBase64(
        "iVBORw0KGgoAAAANSUhEUgAAAAgAAAAICAYAAADED76LAAAAFElEQVR4nGNg+M/w/z8DAwMDI5gAAD0YBP/"
        "3SZlqAAAAAElFTkSuQmCC");
    p.extras.portada.logo = png.value_or("");
  });
  ASSERT_EQ(Escribe(obra, "--tramo 1"), 0);
  const auto huella = Orden("sha256sum " + obra).substr(0, 64);
  const auto portada = Paginas().front();
  for (const auto& que : {std::string("Ana Peña & Cía"), std::string("Lluís Çirera"), huella}) {
    EXPECT_TRUE(Tiene(portada, que)) << que;
  }
  QPDF lector;
  lector.processFile(pdf.c_str());
  EXPECT_EQ(lector.getPDFVersion(), "1.4");
  EXPECT_EQ(lector.getRoot().getKey("/Lang").getUTF8Value(), "es-ES");
  EXPECT_EQ(lector.getTrailer().getKey("/Info").getKey("/Author").getUTF8Value(), "Ana Peña & Cía");
  const auto xmp = lector.getRoot().getKey("/Metadata").getStreamData();
  const std::string datos(reinterpret_cast<const char*>(xmp->getBuffer()), xmp->getSize());
  EXPECT_TRUE(Tiene(datos, "<rdf:li>Ana Peña &amp; Cía</rdf:li>"));
  EXPECT_TRUE(Tiene(datos, "<rdf:li>es-ES</rdf:li>"));
  EXPECT_TRUE(Tiene(datos, "<pdfaid:part>1</pdfaid:part>"));
  EXPECT_FALSE(lector.getRoot().getKey("/OutputIntents").isNull());
  for (auto& objeto : lector.getAllObjects()) {
    auto d = objeto.isStream() ? objeto.getDict() : objeto;
    if (!d.isDictionary()) continue;
    EXPECT_FALSE(d.hasKey("/SMask") && !d.getKey("/SMask").isName());
    for (const auto* opacidad : {"/ca", "/CA"}) {
      if (!d.hasKey(opacidad)) continue;
      EXPECT_EQ(d.getKey(opacidad).getNumericValue(), 1.0);
    }
    EXPECT_FALSE(d.isDictionaryOfType("/ObjStm"));
  }
  std::istringstream letras(Orden("pdffonts " + pdf.string()));
  int incrustadas = 0;
  for (std::string linea; std::getline(letras, linea);) {
    if (!Tiene(linea, "Identity-H")) continue;
    ++incrustadas;
    EXPECT_TRUE(Tiene(linea, "Identity-H       yes")) << linea;
  }
  EXPECT_GE(incrustadas, 3);
}

TEST_F(Informe, UnaTablaQueSigueRepiteSuCabezaYNoDejaFilasSolas) {
  const auto obra = Otra([](ProyectoAGrabar& p) {
    p.tramos.resize(1);
    auto& t = p.tramos.front().datos;
    t.Hr0Tramo = 2.0;
    t.Hr0Final = 4.0;
    t.Hr0Delta = 0.1;
  });
  ASSERT_EQ(Escribe(obra, "--detalle resumen"), 0);
  int hojas = 0;
  const std::regex fila("\n *[123] +[23],\\d\\d +0,\\d\\d [^\n]*CUMPLE");
  for (const auto& pagina : Paginas()) {
    const auto n = std::distance(std::sregex_iterator(pagina.begin(), pagina.end(), fila), {});
    if (n == 0) continue;
    ++hojas;
    EXPECT_GE(n, 2);
    EXPECT_TRUE(Tiene(pagina, "Veredicto")) << pagina;
  }
  EXPECT_GE(hojas, 2);
}

TEST_F(Informe, UnTramoQueNoSePuedeCalcularTieneSuCapituloQueDicePorQue) {
  const auto obra = Otra([](ProyectoAGrabar& p) { p.tramos[1].datos.Fi = 0.0; });
  EXPECT_EQ(Escribe(obra, "--sin-validar --detalle resumen"), 3);
  const auto texto = Junto(Paginas());
  EXPECT_TRUE(Tiene(texto, "no llegó a su final"));
  EXPECT_TRUE(Tiene(texto, "Tramo 3"));
}

TEST_F(Informe, LasPalabrasQueNoVanJuntasYLosDocumentosEnormesSeDicen) {
  std::string dicho;
  int codigo = 0;
  Orden(ZORBIN_CALC " calcula " + kMuestra + " --listado informe", &codigo);
  EXPECT_EQ(codigo, 2);
  Orden(ZORBIN_CALC " calcula " + kMuestra + " --detalle todos", &codigo);
  EXPECT_EQ(codigo, 2);
  const auto obra = Otra([](ProyectoAGrabar& p) {
    p.tramos.resize(1);
    auto& t = p.tramos.front().datos;
    t.Hr0Tramo = 1.0;
    t.Hr0Final = 9.0;
    t.Hr0Delta = 0.01;
  });
  EXPECT_EQ(Escribe(obra, "--detalle todos", &dicho), 2);
  EXPECT_TRUE(Tiene(dicho, "--si")) << dicho;
  EXPECT_FALSE(fs::exists(pdf));
}

}  // namespace
}  // namespace zorbin
