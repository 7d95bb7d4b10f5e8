// A result written to a file, with every call that changes the folder failing: the file is that of
// before or the new one whole, nothing else is left, and the next attempt succeeds.
#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>

#include "comun/carpeta.h"
#include "comun/sinDerechos.h"
#include "fallos/fallos.h"
#include "persistencia/disco/mdFicheroSalida.h"

namespace zorbin::fallos {
namespace {

namespace fs = std::filesystem;
using pruebas::Bytes;

const std::string kAntes = "lo de antes\n";

// @return why it could not be written; empty when it was
std::string Escribe(const fs::path& ruta, const std::string& texto) {
  try {
    FicheroSalida f(ruta);
    f.Escribe(std::string_view(texto).substr(0, 100));
    f.Escribe(std::string_view(texto).substr(100));
    f.Termina();
    return "";
  } catch (const ErrorSalida& error) {
    EXPECT_EQ(error.nombre(), ruta.string());
    EXPECT_STRNE(error.what(), "");
    return error.what();
  }
}

struct SalidaConFallos : testing::Test {
  const pruebas::Carpeta propia;
  const fs::path& casa = propia.ruta();
  fs::path ruta = casa / "listado.txt";
  std::string nuevo = std::string(5000, 'x') + "\nfin\n";

  void TearDown() override { fallos_desarma(); }
  void PonAntes() const { pruebas::PonBytes(ruta, kAntes); }
  long Nombres() const {
    return std::distance(fs::directory_iterator(casa), fs::directory_iterator());
  }
};

TEST_F(SalidaConFallos, ElFicheroEsElDeAntesOElNuevoEntero) {
  int puntos = 0;
  for (const auto tipo :
       {FALLO_EIO, FALLO_ENOSPC, FALLO_EROFS, FALLO_CORTO_Y_ENOSPC, FALLO_EINTR, FALLO_CORTO}) {
    for (const bool habia : {true, false}) {
      bool toca = true;
      for (int n = 1; toca; ++n) {
        fs::remove(ruta);
        if (habia) PonAntes();
        fallos_arma(casa.c_str(), n, tipo, 0);
        const auto causa = Escribe(ruta, nuevo);
        toca = fallos_cuenta(-1) >= n;
        fallos_desarma();
        puntos += toca ? 1 : 0;
        SCOPED_TRACE(std::to_string(tipo) + ", call " + std::to_string(n) + ": " + causa);
        if (causa.empty()) {
          EXPECT_EQ(Bytes(ruta), nuevo);
        } else {
          EXPECT_EQ(habia, fs::exists(ruta));
          EXPECT_EQ(Bytes(ruta), habia ? kAntes : "");
        }
        EXPECT_EQ(Nombres(), fs::exists(ruta) ? 1 : 0);
        EXPECT_EQ(Escribe(ruta, nuevo), "");
        EXPECT_EQ(Bytes(ruta), nuevo);
      }
    }
  }
  std::cout << puntos << " points injected\n";
  EXPECT_GT(puntos, 40);
}

TEST_F(SalidaConFallos, DondeNoSePuedeSeDiceYNoSeTocaNada) {
  PonAntes();
  fs::create_directory(casa / "carpeta");
  EXPECT_NE(Escribe(casa / "no" / "hay.txt", nuevo), "");
  EXPECT_NE(Escribe(ruta / "hay.txt", nuevo), "");  // a file in the place of a folder
  EXPECT_NE(Escribe(casa / "carpeta", nuevo), "");
  EXPECT_NE(Escribe(casa / std::string(300, 'n'), nuevo), "");
  EXPECT_NE(Escribe("/dev/full", nuevo), "");
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
  fs::permissions(ruta, fs::perms::owner_read | fs::perms::others_read);
  {
    const pruebas::SinDerechos nadie;
    EXPECT_NE(Escribe(casa / "otro.txt", nuevo), "");
    EXPECT_NE(Escribe(ruta, nuevo), "");
  }
  EXPECT_EQ(Bytes(ruta), kAntes);
  EXPECT_EQ(Nombres(), 2);
}

// A link stays one; the rights are those of the file before; the longest name is taken.
TEST_F(SalidaConFallos, LoQueHabiaConservaEnlaceYPermisos) {
  PonAntes();
  fs::permissions(ruta, fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("listado.txt", casa / "enlace.txt");
  EXPECT_EQ(Escribe(casa / "enlace.txt", nuevo), "");
  EXPECT_TRUE(fs::is_symlink(casa / "enlace.txt"));
  EXPECT_EQ(Bytes(ruta), nuevo);
  EXPECT_EQ(fs::status(ruta).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(Escribe(casa / std::string(255, 'n'), nuevo), "");
  EXPECT_EQ(Escribe("/dev/null", nuevo), "");
}

}  // namespace
}  // namespace zorbin::fallos
