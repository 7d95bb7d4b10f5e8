// The technical report: that it is whole, that its numbers are those of the program, and that a
// fault in its sources is told where it stands.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>

#include "base/aritmetica.h"
#include "base/mdNumeros.h"
#include "calculo/cargas/mdOval.h"
#include "calculo/verificacion/mdEjemplos.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;

const fs::path kCapitulos = ZORBIN_FUENTES "docs/memoria/es";

std::string Lee(const fs::path& ruta) {
  std::ifstream f(ruta, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), {}};
}

std::vector<fs::path> Capitulos() {
  std::vector<fs::path> capitulos;
  for (const auto& f : fs::directory_iterator(kCapitulos)) {
    if (f.path().filename() != "portada.html") capitulos.push_back(f.path());
  }
  std::sort(capitulos.begin(), capitulos.end());
  return capitulos;
}

// With single blanks; a no-break one is like any other.
std::string Llano(const std::string& s) {
  return std::regex_replace(s, std::regex("(\\s|\xC2\xA0)+"), " ");
}

struct Salida {
  int codigo;
  std::string texto;
};

Salida Orden(const std::string& orden) {
  Salida s{};
  FILE* f = popen(("ASAN_OPTIONS=detect_leaks=0 " + orden + " 2>&1").c_str(), "r");
  std::array<char, 4096> bloque;
  for (std::size_t n; (n = fread(bloque.data(), 1, bloque.size(), f)) > 0;) {
    s.texto.append(bloque.data(), n);
  }
  s.codigo = WEXITSTATUS(pclose(f));
  return s;
}

class Memoria : public testing::Test {
 protected:
  fs::path carpeta = fs::temp_directory_path() / ("zorbin-memoria-" + std::to_string(getpid()));

  void SetUp() override { fs::create_directories(carpeta); }
  void TearDown() override { fs::remove_all(carpeta); }

  // A copy of the chapters in which `viejo`, which stands in `fichero` once, is `nuevo`.
  fs::path Copia(const std::string& fichero, const std::string& viejo, const std::string& nuevo) {
    const fs::path copia = carpeta / "es";
    fs::remove_all(copia);
    fs::copy(kCapitulos, copia);
    std::string s = Lee(copia / fichero);
    const auto donde = s.find(viejo);
    EXPECT_NE(donde, std::string::npos) << viejo;
    EXPECT_EQ(s.find(viejo, donde + 1), std::string::npos) << viejo;
    if (donde != std::string::npos) s.replace(donde, viejo.size(), nuevo);
    std::ofstream(copia / fichero, std::ios::binary) << s;
    return copia;
  }

  Salida Genera(const fs::path& capitulos) const {
    return Orden(ZORBIN_GENERA_MEMORIA " " + capitulos.string() + " " ZORBIN_FIGURAS_PRUEBA " " +
                 (carpeta / "m.pdf").string());
  }

  Salida Comprueba(const fs::path& capitulos) const {
    static const std::map<std::string, std::string> kDatos{
        {"acequia", "calcula " ZORBIN_FUENTES "muestras/acequia.zrb"},
        {"darcy", "hidraulica --metodo darcy --pendiente 0.002"},
        {"prandtl", "hidraulica --metodo prandtl --pendiente 0.002"},
        {"prandtlq", "hidraulica --metodo prandtl --caudal 1.5"},
        {"hazen", "hidraulica --metodo hazen --pendiente 0.002"}};
    std::string ficheros;
    for (const auto& [nombre, palabras] : kDatos) {
      const auto json = carpeta / (nombre + ".json");
      const auto r = Orden("XDG_STATE_HOME=" + carpeta.string() + " " ZORBIN_CALC " " + palabras +
                           " --formato json --separador punto >" + json.string());
      EXPECT_EQ(r.codigo, 0) << r.texto;
      ficheros += " " + nombre + "=" + json.string();
    }
    return Orden(ZORBIN_GENERA_MEMORIA " " + capitulos.string() + " --comprueba" + ficheros);
  }
};

TEST_F(Memoria, TieneTodosSusCapitulosYNadaSinComponer) {
  const std::string pdf = ZORBIN_MEMORIA;
  const auto paginas = Orden("pdfinfo " + pdf);
  std::smatch m;
  ASSERT_TRUE(std::regex_search(paginas.texto, m, std::regex("Pages: +(\\d+)"))) << paginas.texto;
  EXPECT_GE(std::stoi(m[1]), 30);
  const std::string texto = Llano(Orden("pdftotext -layout " + pdf + " -").texto);
  int numero = 0;
  for (const auto& capitulo : Capitulos()) {
    const std::string s = Lee(capitulo);
    ASSERT_TRUE(std::regex_search(s, m, std::regex("<h1[^>]*>(.*)</h1>"))) << capitulo;
    const std::string titulo = std::to_string(++numero) + " " + Llano(m[1]);
    // In the table of contents, over its pages and as its heading.
    const auto primera = texto.find(titulo);
    EXPECT_NE(primera, std::string::npos) << titulo;
    EXPECT_NE(texto.find(titulo, primera + 1), std::string::npos) << titulo;
  }
  EXPECT_GE(numero, 15);
  for (const char* resto : {"$", "\\", "{", "}", "&", "<h", "data-dato"}) {
    EXPECT_EQ(texto.find(resto), std::string::npos) << resto;
  }
  EXPECT_EQ(Orden("pdffonts " + pdf).texto.find(" no  no"), std::string::npos);
}

TEST_F(Memoria, LasCifrasDeLosEjemplosSonLasDelPrograma) {
  const auto r = Comprueba(kCapitulos);
  EXPECT_EQ(r.codigo, 0) << r.texto;
  std::smatch m;
  ASSERT_TRUE(std::regex_search(r.texto, m, std::regex("(\\d+) numbers compared, 0 faults")))
      << r.texto;
  EXPECT_GE(std::stoi(m[1]), 1200);
}

TEST_F(Memoria, UnaCifraFalsaSeDice) {
  // One in a table, one in a formula, one unit in its last place.
  auto r = Comprueba(Copia("14-ejemplo-armado.html", "a.Total\">31,08<", "a.Total\">31,09<"));
  EXPECT_EQ(r.codigo, 1);
  EXPECT_NE(r.texto.find("says 31,09, but a.Total gives 31.08"), std::string::npos) << r.texto;
  r = Comprueba(
      Copia("15-ejemplo-postesado.html", "h5.PerdFluRet}{1180,97}", "h5.PerdFluRet}{1180,98}"));
  EXPECT_EQ(r.codigo, 1);
  EXPECT_NE(r.texto.find("15-ejemplo-postesado.html:"), std::string::npos) << r.texto;
  // In the text of a chapter, a figure that the published examples give.
  r = Comprueba(Copia("17-particularidades.html", "[4].usual.max\">31<", "[4].usual.max\">30<"));
  EXPECT_EQ(r.codigo, 1);
  EXPECT_NE(r.texto.find("says 30, but v.terraplen[4].usual.max gives 30.8"), std::string::npos)
      << r.texto;
  // What the program does not give is a fault too.
  r = Comprueba(Copia("14-ejemplo-armado.html", "a.Total\">", "a.Totales\">"));
  EXPECT_EQ(r.codigo, 1);
  EXPECT_NE(r.texto.find("there is no 'Totales'"), std::string::npos) << r.texto;
}

// Row by row, the three figures that the expressions of a row name stand in the pages.
TEST_F(Memoria, LaVerificacionTraeTodosLosEjemplosConSusCifras) {
  const std::string pdf = Llano(Orden("pdftotext -layout " ZORBIN_MEMORIA " -").texto);
  const std::string s = Lee(kCapitulos / "18-verificacion.html");
  const auto celda = [](const std::string& clave, const char* que) {
    return "<td><span data-cifra=\"v\\." + clave + "\\." + que + "\" decimales=\"(\\d)\"";
  };
  for (const auto& x : EjemplosPublicados()) {
    const std::string clave(x.clave);
    std::smatch m;
    ASSERT_TRUE(std::regex_search(
        s, m,
        std::regex(celda(clave, "publicado") + "/></td>" + celda(clave, "zorbin") + "/></td>" +
                   celda(clave, "dif") + " signo=\"1\"/></td>")))
        << clave;
    std::string dif = TextoDecimal(x.Diferencia(), std::stoi(m[3]), ',');
    if (dif[0] == '-') {
      dif.replace(0, 1, "−");
    } else if (dif.find_first_not_of("0,") != std::string::npos) {
      dif.insert(0, "+");
    }
    const std::string cifras = TextoDecimal(x.publicado, std::stoi(m[1]), ',') + " " +
                               TextoDecimal(x.zorbin, std::stoi(m[2]), ',') + " " + dif;
    EXPECT_NE(pdf.find(cifras), std::string::npos) << clave << ": " << cifras;
  }
}

TEST_F(Memoria, UnaFaltaDeLasFuentesDetieneLaComposicionEnSuLinea) {
  struct Falta {
    std::string viejo, nuevo, dice;
  };
  const std::string ancha(200, 'x');
  const std::vector<Falta> kFaltas{
      {"$$ H_e = \\frac{x D_e}{m} $$", "$$ H_e = \\fraq{x D_e}{m} $$", "unknown command \\fraq"},
      {"$$ H_e = \\frac{x D_e}{m} $$", "$$ H_e = \\frac{x D_e}{m $$", "'}' expected"},
      {"$$ H_e = \\frac{x D_e}{m} $$", "$$ \\text{" + ancha + "} $$", "too wide"},
      {"$$ H_e = \\frac{x D_e}{m} $$", "$$ H_e = x \\left( D_e $$", "\\left without \\right"},
      {"<h2 id=\"ap-terraplen\">", "<h2 id=\"ap-otra\">", "no id ap-terraplen"},
      {"ZanjaT1a.bmp", "ZanjaT9a.bmp", "no picture ZanjaT9a.bmp"},
      {"<caption>Regla de adopción</caption>", "<leyenda>x</leyenda>", "unknown tag <leyenda>"},
  };
  auto r = Genera(Copia("18-verificacion.html", "v.zanja1.zorbin", "v.zanja7.zorbin"));
  EXPECT_EQ(r.codigo, 1);
  EXPECT_TRUE(std::regex_search(
      r.texto, std::regex("18-verificacion\\.html:\\d+: in 'v\\.zanja7.*no 'zanja7'")))
      << r.texto;
  for (const auto& f : kFaltas) {
    r = Genera(Copia("04-tierras.html", f.viejo, f.nuevo));
    EXPECT_EQ(r.codigo, 1) << f.dice;
    EXPECT_NE(r.texto.find(f.dice), std::string::npos) << r.texto;
    EXPECT_TRUE(std::regex_search(r.texto, std::regex("\\.html:[1-9]\\d*: "))) << r.texto;
    EXPECT_FALSE(fs::exists(carpeta / "m.pdf"));
  }
}

// The coefficients of the program, found from its results with two rings: those of A and B or C and
// D from two ratios De/Dm, those of A and C apart by the height of earth.
std::map<std::string, std::array<double, 9>> CoeficientesDelAnillo() {
  constexpr double Q = 1.7, gamma = 2.0, landa = 0.3;
  std::map<std::string, std::array<double, 9>> K;
  for (std::int16_t cuna = 1; cuna <= 3; ++cuna) {
    for (int s = 1; s <= kSecciones; ++s) {
      const auto i = static_cast<std::size_t>((cuna - 1) * kSecciones + s - 1);
      struct Anillo {
        double w, Mp, Np, Nf, Mt, Nt, Mv, Nv, Ml, Nl, MlDe, NlDe;
      };
      const auto mide = [&](double De) {
        DatosOval d{1.0, De, gamma, gamma, landa, Q, 0.0, 0.0, cuna};
        const auto sinTierra = CalculaTerminos(d);
        d.QH = gamma;  // one metre of earth
        const auto t = CalculaTerminos(d);
        const double Dm = (1.0 + De) / 2.0;
        const double Wp = (De * De - 1.0) * gamma * kPi / 4.0;
        const double Wt = (0.5 - kPi / 8.0) * De * De * gamma;
        const double Wl = landa * gamma * De;
        const double De0M = sinTierra.lateral.M(s);
        const double De0N = sinTierra.lateral.N(s);
        return Anillo{De / Dm,
                      t.propio.M(s) / Wp / Dm,
                      t.propio.N(s) / Wp,
                      t.fluido.N(s) / (kPi / 4.0),
                      t.timpanos.M(s) / Wt / Dm,
                      t.timpanos.N(s) / Wt,
                      t.vertical.M(s) / (Q * De) / Dm,
                      t.vertical.N(s) / (Q * De),
                      (t.lateral.M(s) - De0M) / Wl / Dm,
                      (t.lateral.N(s) - De0N) / Wl,
                      De0M / Wl / Dm / De,
                      De0N / Wl / De};
      };
      const Anillo a = mide(1.2);
      const Anillo b = mide(1.6);
      const auto recta = [&](const std::string& x, const std::string& y, double Anillo::*que) {
        const double pendiente = (b.*que - a.*que) / (b.w - a.w);
        K[x][i] = pendiente;
        K[y][i] = a.*que - pendiente * a.w;
      };
      K["Mp"][i] = a.Mp;
      K["Np"][i] = a.Np;
      K["Nf"][i] = a.Nf;
      recta("MtA", "MtB", &Anillo::Mt);
      recta("NtA", "NtB", &Anillo::Nt);
      recta("MvA", "MvB", &Anillo::Mv);
      recta("NvA", "NvB", &Anillo::Nv);
      recta("MlA", "MlB", &Anillo::Ml);
      recta("NlA", "NlB", &Anillo::Nl);
      recta("MlC", "MlD", &Anillo::MlDe);
      recta("NlC", "NlD", &Anillo::NlDe);
    }
  }
  return K;
}

TEST_F(Memoria, LaTablaDelAnilloEsLaDelPrograma) {
  const auto K = CoeficientesDelAnillo();
  const std::string s = Lee(kCapitulos / "06-anillo.html");
  const std::regex fila("\\$K_\\{(\\w+)\\}\\$</td>((?:<td>[^<]*</td>){9})");
  int filas = 0;
  for (std::sregex_iterator f(s.begin(), s.end(), fila), fin; f != fin; ++f, ++filas) {
    const auto k = K.find((*f)[1]);
    ASSERT_NE(k, K.end()) << (*f)[1];
    std::string celdas = std::regex_replace((*f)[2].str(), std::regex("−"), "-");
    std::replace(celdas.begin(), celdas.end(), ',', '.');
    const std::regex numero("<td>([^<]*)</td>");
    std::size_t i = 0;
    for (std::sregex_iterator c(celdas.begin(), celdas.end(), numero); c != fin; ++c, ++i) {
      EXPECT_NEAR(std::stod((*c)[1]), k->second[i], 1e-9) << (*f)[1] << " " << i;
    }
  }
  EXPECT_EQ(filas, 19);
}

}  // namespace
}  // namespace zorbin
