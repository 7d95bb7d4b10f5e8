#include "persistencia/mdDpe.h"

#include <gtest/gtest.h>

#include "persistencia/mdLog.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;

TEST(Dpe, NombreJuntoALaObra) {
  EXPECT_EQ(RutaDpe("/a/v1.2/obra.zrb"), "/a/v1.2/obra.dpe");
  EXPECT_EQ(RutaDpe("/a/v1.2/obra"), "/a/v1.2/obra.dpe");
  EXPECT_EQ(RutaDpe("x.dpe"), "x.dpe.dpe");  // the two files never coincide
}

TEST(Dpe, IdaYVuelta) {
  const auto ruta = fs::temp_directory_path() / ("zorbin-" + std::to_string(getpid()) + ".dpe");
  EXPECT_TRUE(LeeAjustes(ruta).empty());
  {
    FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
    EscribeAjustes(f, {{6, 1, 2.5, {20, 3.5, 18}}, {}}, ',');
    EXPECT_EQ(f.LeeRegistro(1), "17");
    EXPECT_EQ(f.LeeRegistro(7), "2,50");  // the height is the sixth field
  }
  const auto leidas = LeeAjustes(ruta);
  ASSERT_EQ(leidas.size(), 2u);
  EXPECT_EQ(leidas[0].Hr, 2.5);
  EXPECT_EQ(leidas[0].areas.Espiras, 3.5);
  EXPECT_TRUE(leidas[1].Libre());
  fs::remove(ruta);
}

// An appended entry may end the file at its height: the reserved records after it were never
// written.
TEST(Dpe, UnaUltimaEntradaSinSusReservasCuenta) {
  const auto ruta = fs::temp_directory_path() / ("zorbin-c" + std::to_string(getpid()) + ".dpe");
  {
    FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
    EscribeAjustes(f, {{6, 1, 2.5, {20, 3.5, 18}}}, ',');
  }
  fs::resize_file(ruta, 7 * kBytesRegistro);
  EXPECT_EQ(LeeAjustes(ruta).size(), 1u);
  fs::resize_file(ruta, kBytesRegistro);
  EXPECT_TRUE(LeeAjustes(ruta).empty());
  FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
  f.Vacia();
  EXPECT_THROW(f.EscribeRegistro(2, std::string(127, '9')), ErrorFichero);
  fs::remove(ruta);
}

TEST(Log, SeAnadeYNoSeTrunca) {
  const auto carpeta = fs::temp_directory_path() / ("zorbin-log-" + std::to_string(getpid())) / "x";
  for (int i = 0; i < 2; ++i) {
    FicheroLog log(carpeta);
    log.registro() << "una";
    log.registro().FinLinea();
    log.registro().Vuelca();
  }
  EXPECT_EQ(fs::file_size(carpeta / "Debugpim_cal.txt"), 8u);
  EXPECT_THROW(FicheroLog(carpeta / "Debugpim_cal.txt"), ErrorEjecucion);
  fs::remove_all(carpeta.parent_path());
}

}  // namespace
}  // namespace zorbin
