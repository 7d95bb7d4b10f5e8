#include "shell/ayuda/mdVisorPdf.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>
#include <fstream>
#include <map>

namespace zorbin {
namespace {

namespace fs = std::filesystem;

constexpr char kLector[] = "[Desktop Entry]\nType=Application\nExec=lector %f\n";

struct Escritorio {
  QTemporaryDir raiz;
  fs::path base{raiz.path().toStdString()};
  CarpetasEscritorio carpetas{
      {base / "conf", base / "xdg"}, {base / "local", base / "share"}, {"mesa"}, {base / "bin"}};

  void Escribe(const fs::path& ruta, const std::string& texto) const {
    fs::create_directories((base / ruta).parent_path());
    std::ofstream(base / ruta, std::ios::binary) << texto;
  }
  VisorPdf Busca() const { return BuscaVisorPdf(carpetas); }
};

TEST(VisorPdf, CadaListaVale) {
  for (const char* lista :
       {"conf/mimeapps.list", "conf/mesa-mimeapps.list", "xdg/mimeapps.list",
        "local/applications/mimeapps.list", "share/applications/mimeapps.list"}) {
    Escritorio e;
    EXPECT_EQ(e.Busca(), VisorPdf::Ninguno);
    e.Escribe(lista,
              "[Default Applications]\r\nimage/png=foto.desktop\r\n"
              "application/pdf = falta.desktop; sub-lector.desktop;\r\n");
    EXPECT_EQ(e.Busca(), VisorPdf::Ninguno) << lista;  // named, not installed
    e.Escribe("share/applications/sub/lector.desktop", kLector);
    EXPECT_EQ(e.Busca(), VisorPdf::Presente) << lista;
  }
  Escritorio e;
  e.Escribe("share/applications/lector.desktop", kLector);
  e.Escribe("conf/mesa-mimeapps.list", "[Added Associations]\napplication/pdf=lector.desktop\n");
  EXPECT_EQ(e.Busca(), VisorPdf::Ninguno);  // that of a desktop names default ones only
  e.Escribe("conf/mimeapps.list", "[Added Associations]\napplication/pdf=lector.desktop\n");
  EXPECT_EQ(e.Busca(), VisorPdf::Presente);
}

TEST(VisorPdf, LoInstaladoSalvoLoQuitado) {
  Escritorio e;
  e.Escribe("share/applications/lector.desktop", kLector);
  e.Escribe("share/applications/mimeinfo.cache", "[MIME Cache]\napplication/pdf=lector.desktop;\n");
  EXPECT_EQ(e.Busca(), VisorPdf::Presente);
  e.Escribe("conf/mimeapps.list", "[Removed Associations]\napplication/pdf=lector.desktop;\n");
  EXPECT_EQ(e.Busca(), VisorPdf::Ninguno);
}

// The first one installed is the one that opens: another that could be started does not stand in.
TEST(VisorPdf, LaAplicacionDiceComoSeArranca) {
  Escritorio e;
  e.Escribe("conf/mimeapps.list",
            "[Default Applications]\napplication/pdf=roto.desktop;lector.desktop\n");
  e.Escribe("share/applications/lector.desktop", kLector);
  const std::map<std::string, VisorPdf> casos{
      {"[Desktop Entry]\nType=Application\n", VisorPdf::SinOrden},
      {"[Desktop Entry]\nExec= \t\n[Desktop Action X]\nExec=algo\n", VisorPdf::SinOrden},
      {"# Exec=x\n", VisorPdf::SinOrden},
      {"[Desktop Entry]\nHidden=true\n", VisorPdf::Presente},
      {"[Desktop Entry]\nTryExec=no-esta\n", VisorPdf::Presente},
  };
  for (const auto& [texto, visor] : casos) {
    e.Escribe("local/applications/roto.desktop", texto);
    EXPECT_EQ(e.Busca(), visor) << texto;
  }
  e.Escribe("local/applications/roto.desktop", "[Desktop Entry]\nTryExec=lector\n");
  e.Escribe("bin/lector", "");
  EXPECT_EQ(e.Busca(), VisorPdf::Presente);  // a file that can't be run is no program
  fs::permissions(e.base / "bin/lector", fs::perms::owner_all);
  EXPECT_EQ(e.Busca(), VisorPdf::SinOrden);
}

TEST(VisorPdf, NoSaleDeSusCarpetas) {
  Escritorio e;
  e.Escribe("share/lector.desktop", kLector);
  e.Escribe("conf/mimeapps.list", "[Default Applications]\napplication/pdf=../lector.desktop\n");
  EXPECT_EQ(e.Busca(), VisorPdf::Ninguno);
  fs::remove(e.base / "conf/mimeapps.list");
  fs::create_directories(e.base / "conf/mimeapps.list");  // a folder of that name
  EXPECT_EQ(e.Busca(), VisorPdf::Ninguno);
}

TEST(VisorPdf, LasVariablesDeLaSesion) {
  std::map<std::string, std::string> v{{"HOME", "/casa"}};
  const auto variable = [&v](const char* nombre) {
    const auto i = v.find(nombre);
    return i == v.end() ? nullptr : i->second.c_str();
  };
  using Rutas = std::vector<fs::path>;
  auto c = CarpetasDeLaSesion(variable);
  EXPECT_EQ(c.configuracion, (Rutas{"/casa/.config", "/etc/xdg"}));
  EXPECT_EQ(c.datos, (Rutas{"/casa/.local/share", "/usr/local/share", "/usr/share"}));
  EXPECT_TRUE(c.escritorios.empty());
  v = {{"XDG_CONFIG_HOME", "/c"},
       {"XDG_CONFIG_DIRS", "/d1:relativa:/d2"},
       {"XDG_DATA_HOME", ""},
       {"XDG_DATA_DIRS", "/e"},
       {"XDG_CURRENT_DESKTOP", "Una:KDE"}};
  c = CarpetasDeLaSesion(variable);
  EXPECT_EQ(c.configuracion, (Rutas{"/c", "/d1", "/d2"}));
  EXPECT_EQ(c.datos.back(), "/e");
  EXPECT_EQ(c.escritorios, (std::vector<std::string>{"una", "kde"}));
}

}  // namespace
}  // namespace zorbin
