// The PDF read back: what stands on it, where, and in which font.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <sstream>

namespace zorbin {
namespace {

namespace fs = std::filesystem;

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

class Pdf : public testing::Test {
 protected:
  fs::path carpeta = fs::temp_directory_path() / ("zorbin-pdf-" + std::to_string(getpid()));
  fs::path pdf = carpeta / "l.pdf";

  void SetUp() override { fs::create_directories(carpeta); }
  void TearDown() override { fs::remove_all(carpeta); }

  std::string Imprime(const std::string& palabras, int* codigo = nullptr) const {
    return Orden(ZORBIN_CALC " calcula " ZORBIN_FUENTES "muestras/acequia.zrb --registros " +
                     carpeta.string() + " --separador coma " + palabras + " --pdf " + pdf.string(),
                 codigo);
  }
};

TEST_F(Pdf, LaTablaDeCargasTieneSusColumnasEnSuSitio) {
  int codigo = -1;
  EXPECT_NE(Imprime("--listado normal --tramo 1", &codigo).find("l.pdf"), std::string::npos);
  ASSERT_EQ(codigo, 0);
  // Word boxes in points; a column at size 10 is 6 pt.
  const auto hoja = Orden("pdftotext -f 2 -l 2 -bbox " + pdf.string() + " -");
  const auto cajas = hoja.substr(hoja.find(">kN/m2<"));
  const auto derecha = [&cajas](const std::string& palabra) {
    const auto i = cajas.find(">" + palabra + "<");
    const auto x = cajas.rfind("xMax=\"", i);
    return i == std::string::npos ? -1.0 : std::stod(cajas.substr(x + 6));
  };
  // Row "1,00 31,4 45,2 ...": 8 blanks, then fields that end at columns 13, 21, 29.
  EXPECT_NEAR(derecha("1,00"), 13 * 6, 1.0);
  EXPECT_NEAR(derecha("31,4"), 21 * 6, 1.0);
  EXPECT_NEAR(derecha("45,2"), 29 * 6, 1.0);
  const auto fuentes = Orden("pdffonts " + pdf.string());
  EXPECT_NE(fuentes.find("yes"), std::string::npos);
  EXPECT_EQ(fuentes.find(" no  no"), std::string::npos);
  EXPECT_NE(Orden("pdftotext -layout " + pdf.string() + " -").find("RIÑONES"), std::string::npos);
}

TEST_F(Pdf, LaFiguraDelTuboYLaApaisada) {
  Imprime("--listado normal --tramo 1");
  // Pipe, bedding and laying on the first page.
  const auto imagenes = Orden("pdfimages -list -f 1 -l 1 " + pdf.string());
  EXPECT_EQ(std::count(imagenes.begin(), imagenes.end(), '\n'), 2 + 3) << imagenes;
  Imprime("--listado tabular");
  EXPECT_NE(Orden("pdfinfo " + pdf.string()).find("842 x 595"), std::string::npos);
}

TEST_F(Pdf, UnPdfImposibleSeDiceYNoDejaRestos) {
  pdf = "/no/hay/l.pdf";
  int codigo = -1;
  EXPECT_NE(Imprime("--listado normal", &codigo).find("/no/hay/l.pdf"), std::string::npos);
  EXPECT_EQ(codigo, 4);
  // A disk that fills up halfway: the writer of the PDF goes on as if nothing were lost.
  pdf = carpeta / "l.pdf";
  const std::string hidraulica =
      ZORBIN_CALC " hidraulica --metodo hazen --caudal 1 --pdf " + pdf.string();
  EXPECT_NE(Orden("trap '' XFSZ; ulimit -f 2; " + hidraulica, &codigo).find("l.pdf"),
            std::string::npos);
  EXPECT_EQ(codigo, 4);
  EXPECT_TRUE(fs::is_empty(carpeta));
  // A pipe takes the document and stays a pipe.
  Orden("mkfifo " + pdf.string() + "; cat " + pdf.string() + " >" + (carpeta / "c").string() +
            " & sleep 0.1; " + hidraulica + "; r=$?; wait; exit $r",
        &codigo);
  EXPECT_EQ(codigo, 0);
  EXPECT_TRUE(fs::is_fifo(pdf));
  EXPECT_EQ(Orden("head -c 4 " + (carpeta / "c").string()), "%PDF");
}

}  // namespace
}  // namespace zorbin
