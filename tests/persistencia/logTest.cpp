// The debug log, and the folder where the program keeps what is its own.
#include "persistencia/disco/mdLog.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <functional>
#include <optional>

#include "comun/carpeta.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;
using pruebas::Bytes;

std::string Anota(const fs::path& carpeta, const std::string& texto, std::uint64_t maximo = 100) {
  FicheroLog log(carpeta, maximo);
  log.registro() << texto;
  log.registro().Vuelca();
  return log.SinEscribir();
}

unsigned Permisos(const fs::path& ruta) {
  return static_cast<unsigned>(fs::status(ruta).permissions());
}

TEST(Log, SeAnadeHastaSuTopeYQuedaElAnterior) {
  const pruebas::Carpeta propia;
  const fs::path carpeta = propia / "a/b";
  const fs::path log = carpeta / "Debugpim_cal.txt",
                 anterior = carpeta / "Debugpim_cal.anterior.txt";
  const std::string linea(40, 'x');
  EXPECT_EQ(Anota(carpeta, linea), "");
  EXPECT_EQ(Permisos(log), 0600u);
  EXPECT_EQ(Permisos(carpeta), 0700u);
  EXPECT_EQ(Permisos(propia / "a"), 0700u);
  fs::permissions(log, static_cast<fs::perms>(0644));  // of an earlier version
  EXPECT_EQ(Anota(carpeta, linea), "");
  EXPECT_EQ(Permisos(log), 0600u);
  EXPECT_EQ(Bytes(log), linea + linea);
  EXPECT_EQ(Anota(carpeta, "otra" + linea), "");
  EXPECT_EQ(Bytes(anterior), linea + linea);
  EXPECT_EQ(Bytes(log), "otra" + linea);
  EXPECT_EQ(Anota(carpeta, std::string(99, 'y')), "");
  EXPECT_EQ(Bytes(anterior), "otra" + linea);

  // Two programs: the second to find it full does not set aside the new one.
  FicheroLog uno(carpeta, 100), dos(carpeta, 100);
  for (auto* l : {&uno, &dos}) {
    FicheroLog& x = *l;
    x.registro() << linea;
    x.registro().Vuelca();
  }
  EXPECT_EQ(Bytes(log), linea + linea);
  EXPECT_EQ(Bytes(anterior), std::string(99, 'y'));
}

TEST(Log, DondeNoSePuedeNoSeEsperaYSeSabe) {
  const pruebas::Carpeta propia;
  const fs::path log = propia / "Debugpim_cal.txt";
  for (const auto& pone : std::vector<std::function<void()>>{
           [&] { ASSERT_EQ(::mkfifo(log.c_str(), 0600), 0); }, [&] { fs::create_directory(log); },
           [&] { fs::create_symlink("/dev/full", log); },
           [&] { fs::create_symlink("/no/hay", log); }}) {
    pone();
    EXPECT_EQ(Anota(propia.ruta(), "x"), log.string());
    fs::remove(log);
  }
  EXPECT_NE(Anota("/proc/no", "x"), "");
}

class Entorno {
 public:
  Entorno(const char* nombre, const std::optional<std::string>& valor) : nombre_(nombre) {
    if (const char* habia = std::getenv(nombre)) antes_ = habia;
    Pon(valor);
  }
  ~Entorno() { Pon(antes_); }

 private:
  const char* nombre_;
  std::optional<std::string> antes_;
  void Pon(const std::optional<std::string>& valor) const {
    valor ? ::setenv(nombre_, valor->c_str(), 1) : ::unsetenv(nombre_);
  }
};

TEST(CarpetaPropia, NuncaEstaDondeEntranTodos) {
  struct Fila {
    std::optional<std::string> estado, casa;
    std::string carpeta;
  };
  const auto deLaCasa = [] {
    const Entorno estado("XDG_STATE_HOME", {}), casa("HOME", {});
    return CarpetaPropia();
  }();
  EXPECT_TRUE(deLaCasa.is_absolute());
  EXPECT_EQ(deLaCasa.string().find(fs::temp_directory_path().string() + "/"), std::string::npos);
  const std::string sinCasa = deLaCasa.string();
  for (const auto& f : std::vector<Fila>{{"/e", "/c", "/e/zorbin"},
                                         {{}, "/c", "/c/.local/state/zorbin"},
                                         {"e", "/c", "/c/.local/state/zorbin"},
                                         {{}, "", sinCasa},
                                         {{}, ".", sinCasa}}) {
    const Entorno estado("XDG_STATE_HOME", f.estado), casa("HOME", f.casa);
    EXPECT_EQ(CarpetaPropia(), f.carpeta);
  }
  const pruebas::Carpeta propia;
  const Entorno estado("XDG_STATE_HOME", propia.ruta().string());
  fs::create_directories(propia / "zorbin/borradores");  // of an earlier version
  fs::permissions(propia / "zorbin", static_cast<fs::perms>(0777));
  fs::permissions(propia.ruta(), static_cast<fs::perms>(0755));
  EXPECT_EQ(PreparaCarpeta(CarpetaPropia() / "borradores"), 0);
  EXPECT_EQ(Permisos(propia / "zorbin"), 0700u);
  EXPECT_EQ(Permisos(propia / "zorbin/borradores"), 0700u);
  EXPECT_EQ(Permisos(propia.ruta()), 0755u);
}

}  // namespace
}  // namespace zorbin
