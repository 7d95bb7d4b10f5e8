#include "persistencia/dpe/mdDpe.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "comun/carpeta.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;

TEST(Dpe, NombreJuntoALaObra) {
  EXPECT_EQ(RutaDpe("/a/v1.2/obra.zrb"), "/a/v1.2/obra.dpe");
  EXPECT_EQ(RutaDpe("/a/v1.2/obra"), "/a/v1.2/obra.dpe");
  EXPECT_EQ(RutaDpe("x.dpe"), "x.dpe.dpe");  // the two files never coincide
}

TEST(Dpe, IdaYVuelta) {
  const pruebas::Carpeta carpeta;
  const auto ruta = carpeta / "o.dpe";
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
}

// An appended entry may end the file at its height: the reserved records after it were never
// written. A file that ends before that has lost something.
TEST(Dpe, UnaUltimaEntradaSinSusReservasCuenta) {
  const pruebas::Carpeta carpeta;
  const auto ruta = carpeta / "o.dpe";
  {
    FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
    EscribeAjustes(f, {{6, 1, 2.5, {20, 3.5, 18}}}, ',');
  }
  fs::resize_file(ruta, 7 * kBytesRegistro);
  EXPECT_EQ(LeeAjustes(ruta).size(), 1u);
  fs::resize_file(ruta, 6 * kBytesRegistro);
  EXPECT_THROW(LeeAjustes(ruta), ErrorFichero);
}

class DpeAbierto : public testing::Test {
 protected:
  const pruebas::Carpeta carpeta;
  const fs::path ruta = carpeta / "o.dpe";
  Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");

  // What the file says when it is refused; empty when it opens.
  std::string Rechazo() const {
    try {
      FicheroDpe(ruta, ',');
      return {};
    } catch (const ErrorFichero& error) {
      return textos.Compone(error.mensaje());
    }
  }
  void Pon(int registro, const std::string& texto) const {
    FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
    f.EscribeRegistro(registro, texto);
    f.Vacia();
  }
  std::string Registro(int n) const {
    return FicheroRegistros(ruta, FicheroRegistros::Modo::Lectura).LeeRegistro(n);
  }
};

TEST_F(DpeAbierto, ElCasoSeAnadeSeReescribeSeLiberaYSeReutiliza) {
  FicheroDpe f(ruta, ',');
  EXPECT_EQ(Registro(1), "0");
  f.GrabaUnTramoPresion({6, 1, 2.5, {}}, true);  // nothing to store, nothing to free
  EXPECT_EQ(f.TotalRegistrosDpe(), 0);
  f.GrabaUnTramoPresion({6, 1, 2.5, {20, 3.5, 18}}, false);
  f.GrabaUnTramoPresion({6.05, 1, 2.5, {21, 0, 19}}, false);  // another Caso
  EXPECT_EQ(f.TotalRegistrosDpe(), 17);
  EXPECT_EQ(Registro(1), "17");
  f.GrabaUnTramoPresion({6.04, 1, 2.52, {22.126, 0, 20}}, false);  // the first one: 6.00 and 6.04
  EXPECT_EQ(Registro(2), "6,00");                                  // keeps its pressure
  EXPECT_EQ(Registro(4), "22,13");
  EXPECT_EQ(Registro(7), "2,52");
  EXPECT_EQ(f.entradas()[0].areas.Camisa, 22.13);  // what the file holds, not what was given
  f.GrabaUnTramoPresion({6, 1, 2.5, {}}, true);
  for (int r = 2; r <= 7; ++r) EXPECT_EQ(Registro(r), "0,00") << r;
  EXPECT_EQ(f.TotalRegistrosDpe(), 17);  // a free entry keeps its place...
  f.GrabaUnTramoPresion({4, 2, 3, {30, 0, 25}}, false);
  EXPECT_EQ(f.TotalRegistrosDpe(), 17);  // ...which the next Caso takes
  EXPECT_EQ(Registro(3), "2,00");
  f.BorraTramo(1);
  EXPECT_TRUE(LeeAjustes(ruta)[1].Libre());
  EXPECT_EQ(LeeAjustes(ruta)[0].areas.Exterior, 25);
}

TEST_F(DpeAbierto, OtroProgramaNoEntraMientrasVive) {
  {
    const FicheroDpe f(ruta, ',');
    EXPECT_TRUE(f.ConCerrojo());
    EXPECT_NE(Rechazo().find("otro programa"), std::string::npos) << Rechazo();
    EXPECT_TRUE(LeeAjustes(ruta).empty());  // reading is nobody's privilege
  }
  EXPECT_EQ(Rechazo(), "");
}

TEST_F(DpeAbierto, SinCerrojosSeTrabajaYSeSabe) {
  FicheroDpe f(ruta, ',', [](int, int) { return errno = ENOLCK, -1; });
  EXPECT_FALSE(f.ConCerrojo());
  f.GrabaUnTramoPresion({6, 1, 2.5, {20, 3.5, 18}}, false);
  EXPECT_EQ(LeeAjustes(ruta).size(), 1u);
}

TEST_F(DpeAbierto, LoRotoSeRechazaPorSuRegistroYQuedaComoEstaba) {
  {
    FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
    EscribeAjustes(f, {{6, 1, 2.5, {20, 3.5, 18}}, {8, 1, 2.5, {21, 0, 19}}}, ',');
  }
  const auto entero = fs::file_size(ruta);
  fs::resize_file(ruta, entero - 3 * kBytesRegistro + 3);  // inside the height of the second
  EXPECT_NE(Rechazo().find("registro 15"), std::string::npos) << Rechazo();
  fs::resize_file(ruta, 9 * kBytesRegistro);  // the whole second entry
  EXPECT_NE(Rechazo().find("anota 2 ajustes y el fichero acaba en el registro 9"),
            std::string::npos)
      << Rechazo();
  EXPECT_EQ(fs::file_size(ruta), 9u * kBytesRegistro);
  Pon(1, "9");
  EXPECT_EQ(Rechazo(), "");
  Pon(5, "mucha");
  EXPECT_NE(Rechazo().find("registro 5 (Refuerzo)"), std::string::npos) << Rechazo();
  for (const char* malo : {"-1", "2,5", "40000", "x"}) {
    Pon(1, malo);
    EXPECT_NE(Rechazo().find("registro 1"), std::string::npos) << malo << Rechazo();
  }
  fs::remove(ruta);
  fs::create_directory(ruta);
  EXPECT_NE(Rechazo(), "");
}

TEST_F(DpeAbierto, ElQueNoCabeSeDice) {
  {
    FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
    EscribeAjustes(f, std::vector<EntradaAjuste>(4095, {6, 1, 2.5, {20, 3.5, 18}}), ',');
  }
  FicheroDpe f(ruta, ',');
  EXPECT_EQ(f.TotalRegistrosDpe(), 32761);
  EXPECT_THROW(f.GrabaUnTramoPresion({9, 1, 2.5, {1, 1, 1}}, false), ErrorFichero);
  EXPECT_EQ(LeeAjustes(ruta).size(), 4095u);
}

}  // namespace
}  // namespace zorbin
