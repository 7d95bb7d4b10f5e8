// What the desktop is told of the programs, and an installation of them.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>

#include "comun/comparaFichero.h"
#include "persistencia/zrb/mdZrb.h"
#include "programas/zorbin-calc/mdPalabras.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;

const fs::path kEscritorio = ZORBIN_FUENTES "recursos/escritorio";

std::string Contenido(const fs::path& ruta) {
  std::ifstream f(ruta, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), {}};
}

struct Resultado {
  int codigo;
  std::string salida;
};

Resultado Corre(const std::string& orden) {
  std::string salida;
  FILE* tubo = popen((orden + " 2>&1").c_str(), "r");
  std::array<char, 4096> bloque{};
  for (std::size_t n; (n = std::fread(bloque.data(), 1, bloque.size(), tubo)) > 0;) {
    salida.append(bloque.data(), n);
  }
  const int estado = pclose(tubo);
  return {WEXITSTATUS(estado), salida};
}

// ---------------------------------------------------------------------------------------------
// Man pages

using Opciones = std::map<std::string, std::string>;  // name to its values, "coma|punto"

// Of the help of an order, by its columns.
Opciones OpcionesDeAyuda(const std::string& ayuda) {
  Opciones opciones;
  std::istringstream lineas(ayuda);
  const std::regex opcion(R"(^  (?:-h,)?(--[a-z0-9-]+)(?: ([^ ]+))?)");
  std::smatch m;
  for (std::string linea; std::getline(lineas, linea);) {
    if (!std::regex_search(linea, m, opcion)) continue;
    opciones[m.str(1)] = m.str(2);
  }
  return opciones;
}

// Of the sections of a man page: the title of each with the options under it.
std::map<std::string, Opciones> OpcionesDePagina(const std::string& pagina) {
  std::map<std::string, Opciones> secciones;
  const auto limpia = std::regex_replace(pagina, std::regex(R"(\\-)"), "-");
  std::istringstream lineas(limpia);
  const std::regex titulo(R"re(^\.S[SH] "?([^"]+)"?$)re");
  const std::regex opcion(R"re(^\.B[IR]? (?:-h ", " )?(--[a-z0-9-]+)(?: " ([^"]+)")?$)re");
  std::string seccion, anterior;
  std::smatch m;
  for (std::string linea; std::getline(lineas, linea); anterior = linea) {
    if (std::regex_match(linea, m, titulo)) seccion = m.str(1);
    if (anterior == ".TP" && std::regex_match(linea, m, opcion))
      secciones[seccion][m.str(1)] = m.str(2);
  }
  return secciones;
}

std::set<std::string> CodigosDePagina(const std::string& pagina) {
  std::set<std::string> codigos;
  const std::regex codigo(R"(\.TP\n\.B (\d+)\n)");
  for (std::sregex_iterator i(pagina.begin(), pagina.end(), codigo), fin; i != fin; ++i) {
    codigos.insert(i->str(1));
  }
  return codigos;
}

TEST(PaginasDeManual, DicenLasOpcionesYLosCodigosDeLaLinea) {
  std::map<std::string, Opciones> deLaAyuda;
  for (const char* orden : {"calcula", "valida", "ajustes", "rescata", "dibuja", "importa",
                            "mediciones", "hidraulica", "medios"}) {
    deLaAyuda[orden] =
        OpcionesDeAyuda(Corre(ZORBIN_CALC " " + std::string(orden) + " --help").salida);
    ASSERT_GT(deLaAyuda[orden].size(), 2u);
  }
  const auto general = OpcionesDeAyuda(Corre(ZORBIN_CALC " --help").salida);
  const std::array<std::pair<const char*, const char*>, 2> paginas{
      {{"man/zorbin-calc.1.in", "OPTIONS"}, {"man/es/zorbin-calc.1.in", "OPCIONES"}}};
  for (const auto& [fichero, titulo] : paginas) {
    const auto pagina = Contenido(kEscritorio / fichero);
    auto esperadas = deLaAyuda;
    esperadas[titulo] = general;
    EXPECT_EQ(OpcionesDePagina(pagina), esperadas) << fichero;
    EXPECT_EQ(CodigosDePagina(pagina), (std::set<std::string>{"0", "1", "2", "3", "4"})) << fichero;
  }
  static_assert(kHecho == 0 && kFicheroRechazado == 1 && kPalabrasMalas == 2 &&
                kFalloDeCorrida == 3 && kSalidaImposible == 4);
}

// ---------------------------------------------------------------------------------------------
// Menu entry, file type, metadata

TEST(Escritorio, CadaTextoEstaEnCincoIdiomas) {
  const auto cuenta = [](const std::string& texto, const std::string& patron) {
    const std::regex r(patron);
    return std::distance(std::sregex_iterator(texto.begin(), texto.end(), r),
                         std::sregex_iterator());
  };
  const auto entrada = Contenido(kEscritorio / "zorbin.desktop");
  for (const char* clave : {"GenericName", "Comment", "Keywords"}) {
    EXPECT_EQ(cuenta(entrada, std::string("\n") + clave + R"((\[(es|ca|pt|fr)\])?=)"), 5) << clave;
  }
  EXPECT_EQ(cuenta(Contenido(kEscritorio / "zorbin.xml"), "<comment[ >]"), 5);
  const auto metadatos = Contenido(kEscritorio / "zorbin.metainfo.xml.in");
  for (const char* etiqueta : {"summary", "p", "li"}) {
    const auto ingles = cuenta(metadatos, std::string("<") + etiqueta + ">");
    EXPECT_GT(ingles, 0) << etiqueta;
    for (const char* idioma : {"es", "ca", "pt", "fr"}) {
      EXPECT_EQ(cuenta(metadatos, std::string("<") + etiqueta + " xml:lang=\"" + idioma + "\">"),
                ingles)
          << etiqueta << ' ' << idioma;
    }
  }
}

TEST(Escritorio, LaFirmaDelTipoEsLaDelFichero) {
  const auto tipo = Contenido(kEscritorio / "zorbin.xml");
  const auto muestra = Contenido(ZORBIN_FUENTES "muestras/acequia.zrb");
  std::smatch longitud, texto;
  ASSERT_TRUE(std::regex_search(tipo, longitud,
                                std::regex(R"re(type="little16" offset="0" value="(\d+)")re")));
  ASSERT_TRUE(std::regex_search(tipo, texto,
                                std::regex(R"re(type="string" offset="2" value="([^"]+)")re")));
  EXPECT_EQ(texto.str(1), kVersionFichero);
  EXPECT_EQ(std::stoul(longitud.str(1)), kVersionFichero.size());
  EXPECT_EQ(muestra.substr(0, 2),
            std::string({static_cast<char>(std::stoi(longitud.str(1))), '\0'}));
  EXPECT_EQ(muestra.substr(2, kVersionFichero.size()), kVersionFichero);
}

TEST(Escritorio, ElRegistroDeCambiosEmpiezaPorEstaVersion) {
  const auto cambios = Contenido(kEscritorio / "debian/changelog");
  EXPECT_TRUE(cambios.starts_with("zorbin (" ZORBIN_VERSION ") ")) << cambios.substr(0, 40);
}

// ---------------------------------------------------------------------------------------------
// Installation

// The source tree stays where the programs could find it: that they read what is beside them shows
// in a text and in a table that differ there.
class Instalado : public testing::Test {
 protected:
  fs::path prefijo = fs::temp_directory_path() / ("zorbin-instalado-" + std::to_string(getpid()));
  fs::path datos = prefijo / "share/zorbin";

  void SetUp() override {
    const auto r = Corre("cmake --install " ZORBIN_CONSTRUCCION " --prefix " + prefijo.string());
    ASSERT_EQ(r.codigo, 0) << r.salida;
  }
  void TearDown() override { fs::remove_all(prefijo); }

  Resultado Calc(const std::string& palabras) const {
    return Corre("env -i XDG_STATE_HOME=" + (prefijo / "estado").string() + ' ' +
                 (prefijo / "bin/zorbin-calc").string() + ' ' + palabras);
  }
};

TEST_F(Instalado, CalculaConLoQueTieneASuLado) {
  EXPECT_EQ(Calc("--version").salida, "zorbin-calc " ZORBIN_VERSION "\n");
  const auto muestra = (datos / "muestras/acequia.zrb").string();
  const auto r = Calc("calcula " + muestra + " --separador coma");
  EXPECT_EQ(r.codigo, 0);
  EXPECT_EQ(pruebas::Compara("acequia-resumen.txt", r.salida), "");

  auto textos = Contenido(datos / "textos/es.json");
  const std::string ayuda = "Muestra esta ayuda";
  const auto lugar = textos.find(ayuda);
  ASSERT_NE(lugar, std::string::npos);
  std::ofstream(datos / "textos/es.json") << textos.replace(lugar, ayuda.size(), "Otra ayuda");
  EXPECT_NE(Calc("--help").salida.find("Otra ayuda"), std::string::npos);

  fs::remove(datos / "tablas/TUB#GM");
  const auto sinTabla = Calc("calcula " + muestra);
  EXPECT_EQ(sinTabla.codigo, 1);
  EXPECT_NE(sinTabla.salida.find((datos / "tablas/TUB#GM").string()), std::string::npos)
      << sinTabla.salida;
}

TEST_F(Instalado, SinPantallaSeDiceEnUnaFrase) {
  const std::string zorbin = (prefijo / "bin/zorbin").string();
  for (const auto& [entorno, frase] : std::to_array<std::pair<std::string, std::string>>({
           {"LANG=es_ES.UTF-8", "ZORBIN necesita una pantalla y no la encuentra (DISPLAY=)"},
           {"LC_ALL=fr_FR.UTF-8 DISPLAY=:987",
            "besoin d'un écran et n'en trouve pas (DISPLAY=:987)"},
           {"LANGUAGE=en LANG=en_GB.UTF-8 QT_QPA_PLATFORM=nada",
            "finds none (QT_QPA_PLATFORM=nada)"},
       })) {
    const auto r = Corre("env -i " + entorno + ' ' + zorbin);
    EXPECT_EQ(r.codigo, 1);
    EXPECT_NE(r.salida.find(frase), std::string::npos) << r.salida;
    EXPECT_EQ(std::count(r.salida.begin(), r.salida.end(), '\n'), 1) << r.salida;
  }
}

TEST_F(Instalado, EstaTodoLoQueSeEnsenaAUnaPersona) {
  for (const char* fichero :
       {"bin/zorbin", "share/applications/zorbin.desktop", "share/mime/packages/zorbin.xml",
        "share/icons/hicolor/scalable/apps/zorbin.svg",
        "share/icons/hicolor/scalable/mimetypes/application-x-zorbin-obra.svg",
        "share/metainfo/org.zorbin.zorbin.metainfo.xml", "share/man/man1/zorbin.1.gz",
        "share/man/man1/zorbin-calc.1.gz", "share/man/es/man1/zorbin.1.gz",
        "share/man/es/man1/zorbin-calc.1.gz", "share/doc/zorbin/copyright",
        "share/zorbin/documentos/ESPECIFI.PDF"}) {
    EXPECT_TRUE(fs::is_regular_file(prefijo / fichero)) << fichero;
  }
  for (const char* carpeta : {"textos", "tablas", "ayuda", "documentos"}) {
    std::set<std::string> fuentes, instalados;
    for (const auto& f : fs::directory_iterator(fs::path(ZORBIN_FUENTES "recursos") / carpeta)) {
      fuentes.insert(f.path().filename().string());
    }
    for (const auto& f : fs::directory_iterator(datos / carpeta)) {
      instalados.insert(f.path().filename().string());
    }
    EXPECT_TRUE(std::includes(instalados.begin(), instalados.end(), fuentes.begin(), fuentes.end()))
        << carpeta;
  }
  // Nothing is left to be filled in.
  EXPECT_EQ(Contenido(prefijo / "share/metainfo/org.zorbin.zorbin.metainfo.xml").find('@'),
            std::string::npos);
}

}  // namespace
}  // namespace zorbin
