// The manufacturers' tables: what is read, and what is refused with file and line.
#include "persistencia/tablas/mdTablas.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <string>

#include "base/textos.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;

class Tablas : public testing::Test {
 protected:
  Tablas() {
    carpeta_ = fs::temp_directory_path() / ("zorbin-tablas-" + std::to_string(::getpid()));
    fs::remove_all(carpeta_);
    fs::create_directories(carpeta_);
    Pon("TUB#GM", kCabecera + kFila);
  }
  ~Tablas() override {
    std::error_code error;
    fs::remove_all(carpeta_, error);
  }

  void Pon(const std::string& nombre, const std::string& texto) {
    std::ofstream(carpeta_ / nombre, std::ios::binary) << texto;
  }

  // Entry and line of the refusal.
  std::pair<int, std::string> Rechazo() {
    try {
      LeeTablas(carpeta_);
    } catch (const ErrorFichero& e) {
      const auto& m = e.mensaje();
      return {m.texto, m.datos.size() > 1 ? m.datos[1] : std::string{}};
    }
    return {0, {}};
  }

  static inline const std::string kCabecera = "a\r\nb\r\nc\r\n";
  static inline const std::string kFila =
      "1200*  25   26  125*  30   31  135*  25   20  110   32   27  126*  85   28  111\r\n";
  fs::path carpeta_;
};

TEST_F(Tablas, LasColumnasYLaMarcaDeCadaGrupo) {
  const auto t = LeeTablas(carpeta_);
  ASSERT_EQ(t.NumDiametros(), 1);
  const auto& f = t.TablaDimensiones[0];
  EXPECT_EQ(f.Diametro, 1200);
  EXPECT_EQ(f.grupos[0], (DimensionesGrupo{25, 26, 125, '*'}));
  EXPECT_EQ(f.grupos[3], (DimensionesGrupo{32, 27, 126, ' '}));
  EXPECT_EQ(f.grupos[4], (DimensionesGrupo{85, 28, 111, '*'}));
}

TEST_F(Tablas, UnaFilaCortaYLosBlancosSonCero) {
  Pon("TUB#GM", kCabecera + " 300*  25        60\n 400");
  const auto t = LeeTablas(carpeta_);
  ASSERT_EQ(t.NumDiametros(), 2);
  EXPECT_EQ(t.TablaDimensiones[0].grupos[0], (DimensionesGrupo{25, 0, 60, '*'}));
  EXPECT_EQ(t.TablaDimensiones[1].grupos[4], DimensionesGrupo{});
}

TEST_F(Tablas, LosNombresSinCajaYLoQueFalta) {
  fs::rename(carpeta_ / "TUB#GM", carpeta_ / "tub#gm");
  auto t = LeeTablas(carpeta_);
  EXPECT_EQ(t.NumDiametros(), 1);
  EXPECT_EQ(t.NumArmaduras(), 100);
  EXPECT_EQ(t.TablaArmaduras.front(), 5.0);
  EXPECT_EQ(t.TablaArmaduras.back(), 500.0);
  EXPECT_EQ(t.MaxAnchoZanja, 0);
  Pon("TUB#ES", "");
  Pon("Tub#pm", " 3 Veces\r\n\r\n 4 otras\n  sin valor\n");  // the last one with a value
  t = LeeTablas(carpeta_);
  EXPECT_EQ(t.NumArmaduras(), 100);
  EXPECT_EQ(t.MaxAnchoZanja, 4);
  fs::remove(carpeta_ / "tub#gm");
  EXPECT_EQ(Rechazo().first, txt::TablaQueFalta);
}

TEST_F(Tablas, LoMalEscritoSeRechazaConSuLinea) {
  using Fallo = std::pair<int, std::string>;
  const Fallo linea5{txt::TablaMalFormada, "5"};
  for (const std::string& mala : {std::string("\r\n"), std::string("12x0\r\n"),
                                  std::string("1300*  2a\r\n"), std::string("1300*  -5\r\n")}) {
    Pon("TUB#GM", kCabecera + kFila + mala);
    EXPECT_EQ(Rechazo(), linea5) << mala;
  }
  Pon("TUB#GM", kCabecera + kFila);
  Pon("TUB#ES", "5\n\n");
  EXPECT_EQ(Rechazo(), (Fallo{txt::TablaMalFormada, "2"}));
  Pon("TUB#ES", "5\n7.5\n");
  EXPECT_EQ(Rechazo(), (Fallo{txt::TablaMalFormada, "2"}));
  fs::remove(carpeta_ / "TUB#ES");
  Pon("TUB#PM", "3\nx\n");
  EXPECT_EQ(Rechazo(), (Fallo{txt::TablaMalFormada, "2"}));
}

TEST_F(Tablas, CienEntradasYNiUnaMas) {
  std::string cien;
  std::string filas = kCabecera;
  for (int i = 0; i < 100; ++i) {
    cien += "5\n";
    filas += kFila;
  }
  Pon("TUB#ES", cien);
  Pon("TUB#GM", filas);
  EXPECT_EQ(LeeTablas(carpeta_).NumArmaduras(), 100);
  Pon("TUB#ES", cien + "5\n");
  EXPECT_EQ(Rechazo().first, txt::DemasiadasArmaduras);
  Pon("TUB#GM", filas + kFila);
  EXPECT_EQ(Rechazo(), (std::pair<int, std::string>{txt::DemasiadasDimensiones, "104"}));
}

// A line without end, or lines without end, are not read to the end.
TEST_F(Tablas, UnFicheroDesmedidoSeRechazaSinLeerlo) {
  for (const char* nombre : {"TUB#GM", "TUB#ES", "TUB#PM"}) {
    Pon(nombre, std::string(256 * 1024 + 1, '\n'));
    EXPECT_EQ(Rechazo(), (std::pair<int, std::string>{txt::TablaDemasiado, "256"})) << nombre;
    fs::resize_file(carpeta_ / nombre, std::uintmax_t{64} << 30);  // a hole: it takes no disk
    EXPECT_EQ(Rechazo().first, txt::TablaDemasiado) << nombre;
    fs::remove(carpeta_ / nombre);
    Pon("TUB#GM", kCabecera + kFila);
  }
  fs::remove(carpeta_ / "TUB#GM");
  fs::create_symlink("/dev/zero", carpeta_ / "TUB#GM");
  EXPECT_EQ(Rechazo().first, txt::TablaNoSeAbre);
}

TEST(TablasDelPrograma, SonDeUnFabricanteDe300A3000) {
  const auto t = LeeTablas(ZORBIN_FUENTES "recursos/tablas");
  EXPECT_EQ(t.TablaDimensiones.front().Diametro, 300);
  EXPECT_EQ(t.TablaDimensiones.back().Diametro, 3000);
  for (const auto& f : t.TablaDimensiones) {
    for (const auto& g : f.grupos) {
      EXPECT_LE(g.Reci + g.Rece, g.Esp) << f.Diametro;
    }
  }
  for (std::size_t i = 1; i < t.TablaArmaduras.size(); ++i) {
    EXPECT_LT(t.TablaArmaduras[i - 1], t.TablaArmaduras[i]);
  }
  EXPECT_EQ(t.MaxAnchoZanja, 3);
}

}  // namespace
}  // namespace zorbin
