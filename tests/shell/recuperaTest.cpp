// Typed work that outlives its program, at the window; and what the status bar tells.
#include <gtest/gtest.h>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <filesystem>
#include <fstream>

#include "base/textos.h"
#include "comun/grabadoRoto.h"
#include "programas/zorbin/mdPrograma.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdEdicion.h"
#include "shell/captura/CapturaDatos.h"
#include "shell/enPantalla.h"
#include "shell/entornoPrueba.h"
#include "shell/principal/mdAvisoEstado.h"

namespace zorbin {
namespace {

using prueba::EnPantalla;
using prueba::Persona;

namespace fs = std::filesystem;

struct Puesto {
  Puesto() { QFile::copy(ZORBIN_FUENTES "muestras/acequia.zrb", ruta); }

  std::unique_ptr<Programa> Abre() {
    auto preferencias =
        std::make_unique<Preferencias>(carpeta.filePath("u.ini"), carpeta.filePath("m.ini"));
    preferencias->PonOpcionAviso("Mostrar sugerencias al iniciar", false);
    preferencias->GrabaIdioma(1);
    auto p = std::make_unique<Programa>(std::move(preferencias), Cajon(estado));
    p->ventana().show();
    return p;
  }
  /// What a program leaves behind that was killed while a person changed Tramo 1.
  void Corta() {
    auto p = Abre();
    ASSERT_TRUE(p->ventana().Abre(ruta)) << S(persona.Ultima());
    Cambia1(*p, "41");
    Espera([&] { return !Borradores().empty(); });
    auto b = LeeBorrador(pruebas::Bytes(Borradores().at(0)));
    ASSERT_TRUE(b.has_value());
    b->autor.arranque += 1;
    p.reset();
    for (const auto& dejado : Borradores()) fs::remove(dejado);
    std::ofstream(estado / "borrador-1-1.json") << TextoDeBorrador(*b);
  }
  static void Cambia1(Programa& p, const std::string& fck) {
    p.ventana().captura().Hace([&] {
      Entra(p.captura(), Ed::edTramo);
      Cambia(p.captura(), Ed::edTramo, "1");
      Sale(p.captura(), Ed::edTramo);
      Entra(p.captura(), Ed::edFck);
      Cambia(p.captura(), Ed::edFck, fck);
    });
  }
  std::vector<fs::path> Borradores() const {
    std::vector<fs::path> hay;
    std::error_code error;
    for (const auto& f : fs::directory_iterator(estado, error)) {
      if (f.path().extension() == ".json") hay.push_back(f.path());
    }
    return hay;
  }
  template <class Condicion>
  static void Espera(const Condicion& condicion) {
    EXPECT_TRUE(QTest::qWaitFor(condicion, 10'000));
  }

  QTemporaryDir carpeta;
  QString ruta = carpeta.filePath("o.zrb");
  fs::path estado = S(carpeta.filePath("estado"));
  Persona persona;
};

void Pulsa(frRecuperar& dialogo, int texto, const Catalogo& textos) {
  for (auto* boton : dialogo.findChildren<QPushButton*>()) {
    if (boton->text() == Q(textos.Texto(texto))) return boton->click();
  }
  ADD_FAILURE() << "no button " << textos.Texto(texto);
}

TEST(Recuperacion, SeGuardaMientrasHayAlgoQuePerder) {
  Puesto s;
  auto p = s.Abre();
  p->ventana().Abre(s.ruta);
  QTest::qWait(GuardaBorradores::kCada + 200);
  EXPECT_TRUE(s.Borradores().empty()) << "nothing was typed";
  Puesto::Cambia1(*p, "41");
  Puesto::Espera([&] { return s.Borradores().size() == 1; });
  const auto b = LeeBorrador(pruebas::Bytes(s.Borradores().at(0)));
  ASSERT_TRUE(b.has_value());
  ASSERT_TRUE(b->ConTramo());
  ASSERT_TRUE(b->tecleado.has_value());
  EXPECT_EQ(b->tecleado->texto, "41");
  EXPECT_EQ(b->fichero, S(s.ruta));

  p->ventana().accion(Orden::mnGrabaObra)->trigger();
  EXPECT_FALSE(p->captura().EnCambio()) << S(s.persona.Ultima());
  Puesto::Espera([&] { return s.Borradores().empty(); });

  // An end with edits that nobody gave up keeps them; a clean one leaves nothing.
  Puesto::Cambia1(*p, "42");
  Puesto::Espera([&] { return s.Borradores().size() == 1; });
  p->ventana().accion(Orden::mnCancelar)->trigger();
  p->ventana().close();
  p.reset();
  EXPECT_TRUE(s.Borradores().empty());
}

TEST(Recuperacion, SeOfreceConLasDosVersionesYSeRecupera) {
  Puesto s;
  s.Corta();
  auto p = s.Abre();
  QString cabecera, fichero, tecleado;
  EnPantalla<frRecuperar> ingeniero([&](frRecuperar& d) {
    cabecera = d.findChild<QLabel*>()->text();
    auto* tabla = d.findChild<QTreeWidget*>("versiones");
    fichero = tabla->topLevelItem(0)->text(1);
    tecleado = tabla->topLevelItem(0)->text(2);
    EXPECT_EQ(tabla->topLevelItemCount(), 1);
    Pulsa(d, txt::BtRecuperar, p->textos());
  });
  p->Empieza(s.ruta);
  Puesto::Espera([&] { return p->captura().ObraCargada; });
  EXPECT_EQ(ingeniero.veces, 1);
  EXPECT_TRUE(cabecera.contains(s.ruta)) << S(cabecera);
  EXPECT_TRUE(cabecera.contains("Tramo 1")) << S(cabecera);
  EXPECT_EQ(tecleado, "41");
  EXPECT_NE(fichero, "41");
  auto& c = p->captura();
  EXPECT_EQ(c[Ed::edFck].texto, "41");
  EXPECT_TRUE(c.EnCambio() && c.EnModificaciones());
  EXPECT_TRUE(p->ventana().accion(Orden::mnGrabaObra)->isEnabled());
  EXPECT_EQ(p->ventana().findChild<AvisoEstado*>("avisoEstado")->avisos().size(), 1);
  ASSERT_EQ(s.Borradores().size(), 1U) << "kept until it is saved";
  EXPECT_NE(s.Borradores().at(0).filename(), "borrador-1-1.json");
  p->ventana().accion(Orden::mnGrabaObra)->trigger();
  Puesto::Espera([&] { return s.Borradores().empty(); });
  EXPECT_TRUE(p->ventana().findChild<AvisoEstado*>("avisoEstado")->avisos().isEmpty());
}

TEST(Recuperacion, SePuedeDejarParaLuegoODescartar) {
  Puesto s;
  s.Corta();
  const auto responde = [&](int boton, std::vector<bool> respuestas) {
    auto p = s.Abre();
    s.persona.respuestas = std::move(respuestas);
    EnPantalla<frRecuperar> ingeniero([&](frRecuperar& d) {
      Pulsa(d, boton, p->textos());
      if (d.isVisible()) d.reject();  // asked, and answered No
    });
    p->Empieza();
    Puesto::Espera([&] { return ingeniero.veces == 1; });
    EXPECT_FALSE(p->captura().ObraCargada);
    return s.Borradores().size();
  };
  EXPECT_EQ(responde(txt::BtMasTarde, {}), 1U);
  EXPECT_EQ(responde(txt::BtDescartar, {false}), 1U);
  EXPECT_EQ(responde(txt::BtDescartar, {true}), 0U);
}

// It is only read, and what was typed can be saved as another.
TEST(Recuperacion, UnaObraQueTieneOtroTomaElBorrador) {
  Puesto s;
  s.Corta();
  const FicheroRegistros otro(S(s.ruta), FicheroRegistros::Modo::LecturaEscritura);
  auto p = s.Abre();
  EnPantalla<frRecuperar> ingeniero(
      [&](frRecuperar& d) { Pulsa(d, txt::BtRecuperar, p->textos()); });
  p->Empieza();
  Puesto::Espera([&] { return p->captura().EnCambio(); });
  EXPECT_TRUE(p->captura().SoloLectura());
  EXPECT_TRUE(s.persona.cajas.empty()) << S(s.persona.Ultima());
  EXPECT_EQ(s.Borradores().size(), 1U);
}

TEST(Avisos, LaBarraDeEstadoDiceLoQueSeDeshizoYLoQueSoloSeLee) {
  Puesto s;
  pruebas::DejaCabeceraAMedias(S(s.ruta));
  auto p = s.Abre();
  auto* aviso = p->ventana().findChild<AvisoEstado*>("avisoEstado");
  EXPECT_FALSE(aviso->isVisible());
  ASSERT_TRUE(p->ventana().Abre(s.ruta));
  EXPECT_TRUE(s.persona.cajas.empty()) << S(s.persona.Ultima());
  EXPECT_TRUE(aviso->isVisible());
  ASSERT_EQ(aviso->avisos().size(), 1);
  aviso->click();
  EXPECT_TRUE(s.persona.Ultima().contains(s.ruta));
  p->ventana().Cierra();
  EXPECT_FALSE(aviso->isVisible());

  const FicheroRegistros otro(S(s.ruta), FicheroRegistros::Modo::LecturaEscritura);
  ASSERT_TRUE(p->ventana().Abre(s.ruta));
  EXPECT_TRUE(aviso->isVisible());
  EXPECT_TRUE(p->ventana().windowTitle().contains(Q(p->textos().Texto(txt::MarcaSoloLectura))))
      << S(p->ventana().windowTitle());
}

}  // namespace
}  // namespace zorbin
