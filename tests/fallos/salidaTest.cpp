// A result written to a file, with every call that changes the folder failing: the file is that of
// before or the new one whole, nothing else is left, and the next attempt succeeds.
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <functional>
#include <iostream>

#include "comun/carpeta.h"
#include "comun/sinDerechos.h"
#include "fallos/fallos.h"
#include "persistencia/disco/mdFicheroSalida.h"
#include "sesion/captura/mdCajon.h"

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

// Also where the file has another name, and takes the bytes itself.
TEST_F(SalidaConFallos, ElFicheroEsElDeAntesOElNuevoEntero) {
  const fs::path otro = casa / "otro nombre";
  int puntos = 0;
  for (const auto tipo :
       {FALLO_EIO, FALLO_ENOSPC, FALLO_EROFS, FALLO_CORTO_Y_ENOSPC, FALLO_EINTR, FALLO_CORTO}) {
    for (const int nombres : {0, 1, 2}) {
      bool toca = true;
      for (int n = 1; toca; ++n) {
        for (const auto& f : fs::directory_iterator(casa)) fs::remove(f);
        if (nombres > 0) PonAntes();
        if (nombres > 1) fs::create_hard_link(ruta, otro);
        fallos_arma(casa.c_str(), n, tipo, 0);
        const auto causa = Escribe(ruta, nuevo);
        toca = fallos_cuenta(-1) >= n;
        EXPECT_EQ(fallos_puestos() > 0, toca);
        fallos_desarma();
        puntos += toca ? 1 : 0;
        SCOPED_TRACE(std::to_string(tipo) + ", call " + std::to_string(n) + ": " + causa);
        EXPECT_EQ(Bytes(ruta), causa.empty() ? nuevo : nombres > 0 ? kAntes : "");
        EXPECT_TRUE(nombres < 2 || fs::equivalent(ruta, otro));
        // Beside them there is only what could not be removed.
        const int esperados = causa.empty() ? std::max(nombres, 1) : nombres;
        EXPECT_TRUE(Nombres() == esperados || (nombres == 2 && causa.empty())) << Nombres();
        EXPECT_EQ(Escribe(ruta, nuevo), "");
        EXPECT_EQ(Bytes(ruta), nuevo);
      }
    }
  }
  std::cout << puntos << " points injected\n";
  EXPECT_GT(puntos, 80);
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

// Owner, group, rights and links of the file before; the longest name is taken.
TEST_F(SalidaConFallos, LoQueHabiaConservaDuenoPermisosYEnlaces) {
  struct Caso {
    const char* nombre;
    std::function<void()> prepara;
  };
  const fs::path otro = casa / "otro nombre";
  struct stat antes {};
  struct stat despues {};
  const auto nota = [&] { return ::getxattr(ruta.c_str(), "user.nota", nullptr, 0) == 1; };
  for (const auto& [nombre, prepara] : std::to_array<Caso>({
           {"rights", [&] { ASSERT_EQ(::chmod(ruta.c_str(), 0640), 0); }},
           {"owner", [&] { ASSERT_TRUE(::chown(ruta.c_str(), 1234, 4321) == 0 || ::getuid()); }},
           {"hard link", [&] { fs::create_hard_link(ruta, otro); }},
           // Where the file system has any.
           {"attribute", [&] { ::setxattr(ruta.c_str(), "user.nota", "n", 1, 0); }},
       })) {
    SCOPED_TRACE(nombre);
    fs::remove(otro);
    fs::remove(ruta);
    pruebas::PonBytes(ruta, std::string(9000, 'a'));  // longer than what comes
    prepara();
    ASSERT_EQ(::stat(ruta.c_str(), &antes), 0);
    const bool anotado = nota();
    EXPECT_EQ(Escribe(ruta, nuevo), "");
    ASSERT_EQ(::stat(ruta.c_str(), &despues), 0);
    EXPECT_EQ(Bytes(ruta), nuevo);
    EXPECT_EQ(antes.st_mode, despues.st_mode);
    EXPECT_EQ(antes.st_uid, despues.st_uid);
    EXPECT_EQ(antes.st_gid, despues.st_gid);
    EXPECT_EQ(antes.st_nlink, despues.st_nlink);
    EXPECT_EQ(nota(), anotado);
    // A new file, unless it could not be as that of before.
    EXPECT_EQ(antes.st_ino == despues.st_ino, antes.st_nlink > 1 || anotado);
    EXPECT_TRUE(antes.st_nlink == 1 || Bytes(otro) == nuevo);
  }
  fs::remove(otro);
  fs::create_symlink("listado.txt", casa / "enlace.txt");
  EXPECT_EQ(Escribe(casa / "enlace.txt", kAntes + nuevo), "");
  EXPECT_TRUE(fs::is_symlink(casa / "enlace.txt"));
  EXPECT_EQ(Bytes(ruta), kAntes + nuevo);
  EXPECT_EQ(Escribe(casa / std::string(255, 'n'), nuevo), "");
  EXPECT_EQ(Escribe("/dev/null", nuevo), "");
  EXPECT_EQ(Nombres(), 3);
}

// What takes its name is on the disk, or a power cut may leave the name without the bytes.
TEST_F(SalidaConFallos, SeSincronizaAntesDeTomarSuNombre) {
  const auto una = [this] { Escribe(ruta, nuevo); };
  const auto borrador = [this] { Cajon(casa).Guarda("{}"); };
  for (const auto& graba : {std::function<void()>(una), std::function<void()>(borrador)}) {
    struct Orden {
      int escrituras = 0, sinAsegurar = 0, nombres = 0;
      bool malo = false;
    } orden;
    fallos_escucha(
        [](const fallos_suceso* s, void* de) {
          auto& o = *static_cast<Orden*>(de);
          if (s->clase == SUCESO_ESCRIBE) ++o.escrituras, ++o.sinAsegurar;
          if (s->clase == SUCESO_SINCRONIZA) o.sinAsegurar = 0;
          if (s->clase != SUCESO_RENOMBRA) return;
          ++o.nombres;
          o.malo = o.malo || o.sinAsegurar > 0;
        },
        &orden);
    fallos_arma(casa.c_str(), 0, FALLO_NINGUNO, 0);
    graba();
    fallos_desarma();
    fallos_escucha(nullptr, nullptr);
    EXPECT_GE(orden.escrituras, 1);
    EXPECT_EQ(orden.nombres, 1);
    EXPECT_FALSE(orden.malo);
  }
}

TEST_F(SalidaConFallos, UnBorradorNoSeEscribePorUnEnlace) {
  const Cajon cajon(casa);
  PonAntes();
  for (const char* final : {"", "-nuevo"}) {
    fs::create_symlink(ruta, cajon.ruta().string() + final);
    try {
      cajon.Guarda("{}");
    } catch (const ErrorFichero&) {
    }
    EXPECT_EQ(Bytes(ruta), kAntes) << final;
    fs::remove(cajon.ruta().string() + final);
  }
}

}  // namespace
}  // namespace zorbin::fallos
