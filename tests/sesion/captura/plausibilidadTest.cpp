// What is unusual is told on its page and by the validation of a batch, and refuses nothing.
#include "sesion/captura/mdPlausibilidad.h"

#include <gtest/gtest.h>

#include <functional>

#include "sesion/captura/guion.h"

namespace zorbin::prueba {
namespace {

using enum Ed;

// A Tramo in SI with nothing to tell.
Tramo Comun(bool postesado) {
  Tramo t;
  t.Tipologia = postesado ? kEmbebida : kArmada;
  t.Di = 1.2, t.Esp = 13, t.De = 1.46, t.Reci = t.Rece = 3, t.B0 = 2.7;
  t.Fck = 35, t.Fyk = 210, t.Fyd = 140;
  t.Es = 210000, t.Ep = 200000, t.FYKPost = 210, t.Fckno = 30, t.Fckn = 40, t.Fckr = 35;
  t.SFck = 1700, t.Sf = 1275;
  t.Hr0Tramo = 3, t.Hr0Final = 5, t.Hr0Delta = 1, t.IndCar = 1, t.ICar = 2;
  return t;
}

std::vector<AvisoDeCampo> Avisos(const Tramo& t, const Catalogo& textos) {
  return AvisosDePlausibilidad(Obra{}, t, textos, ',');
}

TEST(Plausibilidad, CadaDatoFueraDeLoUsualSeDiceUnaVez) {
  Banco b;
  for (const bool postesado : {false, true}) {
    const auto avisos = Avisos(Comun(postesado), b.textos);
    EXPECT_TRUE(avisos.empty()) << avisos[0].texto;
  }
  struct Fila {
    Ed campo;
    bool postesado;
    std::function<void(Tramo&)> cambia;
    const char* dice;
  };
  for (const auto& f : std::vector<Fila>{
           {edB0, false, [](Tramo& t) { t.B0 = 1.4; }, "1,400 m; lo usual es 1,460 m o más"},
           {edEsp0, true, [](Tramo& t) { t.Esp = 8; }, "8,0 cm; lo usual es 8,4 cm o más"},
           {edReci0, false, [](Tramo& t) { t.Reci = 10.1; },
            "13,1 cm; lo usual es 13,0 cm o menos"},
           {edAdato, false, [](Tramo& t) { t.Icontes0 = true, t.Adato = 1; },
            "0,08 %; lo usual es de 0,10 % a 4,00 %"},
           {edAdato, false, [](Tramo& t) { t.Icontes0 = true, t.Adato = 35.07; }, "35,060 cm2/m"},
           {edFyd, false, [](Tramo& t) { t.Fyd = 141; }, "lo usual es 140,0 MPa o menos"},
           {edFck, false, [](Tramo& t) { t.Fck = 350; },
            "350,0 MPa; lo usual es de 25,0 MPa a 70,0 MPa"},
           {edFyd, false, [](Tramo& t) { t.Fyd = 100; }, "de 105,0 MPa a 210,0 MPa"},
           {edEs, true, [](Tramo& t) { t.Es = 210; }, "210 MPa; lo usual es de 190000 MPa"},
           {edFckn, true, [](Tramo& t) { t.Fckn = 400; }, "400,0 MPa"},
           {edSf, true, [](Tramo& t) { t.Sf = 1400; }, "de 850 MPa a 1360 MPa"},
           {edHr0, false, [](Tramo& t) { t.Hr0Tramo = t.Hr0Final = 0.5; },
            "0,50 m; lo usual es 0,60 m o más"},
           {edQDato0, false, [](Tramo& t) { t.Hr0Final = 8; },
            "8,00 m; lo usual es 7,30 m o menos"},
           {edHr0Final, false, [](Tramo& t) { t.Hr0Final = 5.5; }, "5,50 m, no se calcula"}}) {
    auto t = Comun(f.postesado);
    f.cambia(t);
    const auto avisos = Avisos(t, b.textos);
    ASSERT_EQ(avisos.size(), 1u) << f.dice;
    EXPECT_EQ(avisos[0].campo, f.campo) << f.dice;
    EXPECT_NE(avisos[0].texto.find(f.dice), std::string::npos) << avisos[0].texto;
  }
}

TEST(Plausibilidad, SeDiceEnSuPaginaYSuRemedioLoQuita) {
  Banco b;
  b.Teclea({{edAlt1, "2"}, {edAlt2, "5,5"}, {edAlt3, "1"}});
  ASSERT_EQ(AvisosDelante(b.c.pantalla).size(), 1u);
  b.c.pantalla.pagina.TabPrincipal = 1;
  EXPECT_TRUE(AvisosDelante(b.c.pantalla).empty());
  TomaRemedio(b.c, AvisoDeCampo(b.c.pantalla.avisos[0]));
  EXPECT_EQ(b.c[edAlt3].texto, "0,70");
  EXPECT_TRUE(b.c.pantalla.avisos.empty());
  EXPECT_TRUE(b.voz.mensajes.empty());
  EXPECT_TRUE(b.Deshace());
  EXPECT_EQ(b.c[edAlt3].texto, "1,00");
}

}  // namespace
}  // namespace zorbin::prueba
