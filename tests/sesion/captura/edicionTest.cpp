// Typing: keys, defaults, what leaving a field does to others, locks and greys.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "sesion/captura/guion.h"
#include "sesion/captura/mdTipologias.h"
#include "sesion/captura/mdValidaObra.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin::prueba {
namespace {

using enum Ed;
using enum SalidaCampo;

bool Avisa(const Banco& b, Ed campo) {
  return std::ranges::any_of(b.c.pantalla.avisos,
                             [campo](const AvisoDeCampo& a) { return a.campo == campo; });
}

// Nothing that is typed is dropped: it is taken, or refused with what it could mean.
TEST(Teclas, LoQueNoEsUnNumeroNoPasaEnSilencio) {
  Banco b;
  b.Teclea({{edPrsM1, "1.5", Pasa, {{edPrsM1, "1,50"}}},
            {edPrsM1, "210.000", Queda, {{edPrsM1, "210.000"}}},
            {edPrsM1, "1.234,5", Queda},
            {edPrsM1, "1/2", Queda},
            {edPrsM1, "abc", Queda}});
  EXPECT_TRUE(b.voz.mensajes.empty());
  EXPECT_EQ(b.c[edPrsM1].texto, "abc");
  EXPECT_EQ(b.e.obra.PrsM1, 1.5);
  for (const auto& [teclas, dice] :
       {std::pair{"210.000", "210,000 o como 210000"}, {"1.234,5", "1.234,5"}}) {
    b.Teclea(edPrsM1, teclas);
    EXPECT_NE(b.c[edPrsM1].falta.find(dice), std::string::npos) << b.c[edPrsM1].falta;
  }
}

TEST(Campos, UnBlancoTomaSuDefectoAlEntrar) {
  Banco b;
  NuevoTramo(b.c);
  const auto entran = [&](std::initializer_list<std::pair<Ed, const char*>> defectos) {
    for (const auto& [campo, defecto] : defectos) {
      b.Pon(campo, "");
      Entra(b.c, campo);
      EXPECT_EQ(b.c[campo].texto, defecto) << Fila(campo).nombre;
    }
  };
  EligeOpcion(b.c, rdTipologia, 1);
  entran({{edFYKPost, "210,0"}});
  EXPECT_EQ(b.c.pantalla.pagina.TabPostesados, 1);
  EXPECT_TRUE(b.c[edFYKPost].seleccionado);
  entran({{edFckn, "40,00"}, {edSFck, "1700"}, {edEs, "210000"}, {edSf, "1275"}});
  EligeOpcion(b.c, rdTipologia, 0);
  entran({{edFck, "35,0"}, {edTipoControl, "Intenso"}, {edB0, ""}});  // there is no diameter yet
  EXPECT_EQ(b.c[edFct].texto, "2,2");
  EXPECT_TRUE(b.c[edFct].bloqueado);
}

TEST(Campos, ElHormigonArrastraLaTraccionYTieneMinimo) {
  Banco b;
  EligeOpcion(b.c, rdSistemaUnidades, 1);
  NuevoTramo(b.c);
  EXPECT_EQ(b.c[edFct].texto, "22");  // default
  b.Olvida();
  b.Teclea({{edFck, "200", Pasa, {{edFck, "275"}}}});
  ASSERT_EQ(b.voz.anuncios.size(), 1u);
  EXPECT_NE(b.voz.anuncios[0].find("200"), std::string::npos) << b.voz.anuncios[0];
  EXPECT_NEAR(b.e.tramo.Fct, 0.45 * std::cbrt(275.0 * 275.0), 1e-9);
  b.Teclea({{edFck, "0", Queda, {{edFck, "0"}}}});
  EXPECT_EQ(b.e.tramo.Fck, 275.0);
}

TEST(Campos, ElAceroArrastraLaTensionDeCalculo) {
  Banco b;
  NuevoTramo(b.c);
  b.Teclea({{edFyd, "100"},
            {edFyk, "210", {}, {{edFyd, "100,0"}}},  // the same value moves nothing
            {edFyk, "240", {}, {{edFyd, "160,0"}}}});
  EXPECT_TRUE(Avisa(b, edFyd));
  b.Teclea({{edFyd, "140"}});
  EXPECT_FALSE(Avisa(b, edFyd));
  EligeOpcion(b.c, rdTipologia, 1);
  b.Teclea({{edSFck, "1000", {}, {{edSf, "750"}}}});
  EXPECT_EQ(b.c[edSf].etiqueta, "Tensión de tesado (750)");
}

TEST(Campos, LaArmaduraExteriorSeAvisaPorEncimaDeDosCapas) {
  Banco b;
  NuevoTramo(b.c);
  CambiaMarca(b.c, edIcontes0, true);
  b.Teclea({{edAdato, "35,06", Pasa}});
  EXPECT_FALSE(Avisa(b, edAdato));
  b.Teclea({{edAdato, "35,07", Pasa}});
  EXPECT_TRUE(Avisa(b, edAdato));
  CambiaMarca(b.c, edIcontes0, false);
  EXPECT_EQ(b.e.tramo.Adato, 0.0);
  EXPECT_EQ(b.c[edAdato].texto, "");
  EXPECT_TRUE(b.c[edAdato].gris);
}

// What no record of the file holds is told at its field, and stays as it was typed.
TEST(Campos, UnTextoQueNoSePuedeGuardarSeRehusa) {
  for (const Ed campo : {edObra, edCliente, edDescriTramo}) {
    for (const auto& [texto, dice] : std::vector<std::pair<std::string, const char*>>{
             {std::string(127, 'x'), "126"}, {"acequia Ω", "Ω"}}) {
      ConTramo b;
      EXPECT_EQ(b.Teclea(campo, texto), Queda);
      EXPECT_NE(b.c[campo].falta.find(dice), std::string::npos) << b.c[campo].falta;
      EXPECT_EQ(b.c[campo].texto, texto);
      EXPECT_FALSE(Graba(b.c));
      EXPECT_EQ(b.voz.ficherosPedidos, 0);
      ASSERT_FALSE(b.c.faltas.empty());
      EXPECT_EQ(b.c.faltas[0].campo, campo);
      EXPECT_EQ(b.Teclea(campo, std::string(126, 'x')), Pasa);
    }
  }
}

TEST(Campos, UnValorQueNadieTocoNoSeRelee) {
  Banco b;
  b.Teclea({{edPrsM1, "10"}, {edPrs1, "", {}, {{edPrs1, "9,09"}}}});
  Entra(b.c, edPrs1);
  Sale(b.c, edPrs1);
  EXPECT_DOUBLE_EQ(b.e.obra.Prs1, 10 / 1.1);
}

TEST(Campos, LaZanjaAnchaSoloSeAvisaEnLaTerraplenada) {
  ConTramo b;
  b.Teclea(edB0, "9");
  EXPECT_FALSE(Avisa(b, edB0));
  EligeOpcion(b.c, rdTipoColocacion, 1);
  EXPECT_TRUE(Avisa(b, edB0));
  EXPECT_TRUE(b.voz.mensajes.empty());
  EXPECT_FALSE(b.c.AnchoZanjaAuto);
  b.Teclea({{edEsp0, "14", {}, {{edB0, "2,752"}}}});  // overwrites the width typed by hand
  ASSERT_FALSE(b.voz.anuncios.empty());               // and says so
  EXPECT_NE(b.voz.anuncios.back().find("2,752"), std::string::npos) << b.voz.anuncios.back();
  b.Teclea({{edB0, "0", {}, {{edB0, "2,752"}}}});
}

TEST(Campos, ElAnguloYLaGeneratriz) {
  ConTramo b;
  b.Teclea({{edFi0, "90", Pasa}, {edFi0, "91", Queda}});
  EXPECT_EQ(b.DeQue(), "ERROR");
  EligeOpcion(b.c, rdTipoColocacion, 1);
  b.Teclea({{edHr1, "3", Pasa}, {edHr1, "3,1", Queda}});
}

TEST(Campos, UnaListaSinEntradaSeRechazaYQueda) {
  ConTramo b;
  const auto antes = b.e.tramo.TipoCuna;
  Cambia(b.c, edTipoCuna0, "granito");
  EXPECT_EQ(Sale(b.c, edTipoCuna0), Queda);
  EXPECT_EQ(b.DeQue(), "Tipo de Apoyo");
  EXPECT_EQ(b.c[edTipoCuna0].texto, "granito");
  EXPECT_EQ(b.e.tramo.TipoCuna, antes);
  Cambia(b.c, edTipoCuna0, "HORMIGÓN, 120 GRD");
  EXPECT_EQ(Sale(b.c, edTipoCuna0), Pasa);
  EXPECT_EQ(b.e.tramo.TipoCuna, 2);
  EXPECT_EQ(b.c[edTipoCuna0].falta, "");
}

TEST(Presiones, DeLaObra) {
  Banco b;
  EXPECT_TRUE(b.c[edPrs3].bloqueado);
  b.Teclea({{edPrsM1, "10"}, {edPrsM2, "6"}});
  EXPECT_EQ(b.Porque(), "Presión Final MDP inferior a la Inicial");
  b.Teclea({{edPrsM2, "16", Pasa}});
  EXPECT_FALSE(b.c[edPrs3].bloqueado);
  b.Teclea({{edPrs3, "0", Queda}, {edPrs3, "2", Pasa}, {edPrs1, "11", Queda}, {edPrs1, "5", Pasa}});
  b.Teclea({{edPrs2, "4", Queda}});
  EXPECT_EQ(b.Porque(), "Presión DP Final Inferior a la Inicial");
  b.Teclea({{edPrs2, "17", Queda},
            {edPrs2, "0", Pasa, {{edPrs2, "14,55"}}},  // follows MDP
            {edPrsM1, "11", {}, {{edPrs1, "10,00"}}},  // a DP that is there follows its MDP
            {edPrsM2, "0", {}, {{edPrsM2, "11,00"}}}});
  EXPECT_EQ(b.e.obra.Prs3, 0.0);
  EXPECT_TRUE(b.c[edPrs2].bloqueado);
  EXPECT_TRUE(ValidaObra(b.c)) << b.Porque();
  // The labels of Obra and Tramo are crossed on purpose.
  Cambia(b.c, edPrsM2, "a");
  Sale(b.c, edPrsM2);
  EXPECT_EQ(b.DeQue(), "Presión Final (DP)");
}

TEST(Presiones, ElIncrementoDelTramoQuedaDetrasDelCampo) {
  Banco b;
  NuevoTramo(b.c);
  b.Teclea({{edPrsM1Tram, "1"},
            {edPrsM2Tram, "2"},
            {edPrs3Tram, "0,5"},
            {edPrsM2Tram, "1", {}, {{edPrs3Tram, ""}}}});
  EXPECT_EQ(b.e.tramo.Prs3Tram, 0.5);
  EXPECT_TRUE(b.c[edPrs3Tram].bloqueado);
}

TEST(Alturas, DeLaObraYDelTramo) {
  Banco b;
  b.Teclea(
      {{edAlt1, "0,9", Queda}, {edAlt1, "2", Pasa}, {edAlt2, "1", Queda}, {edAlt2, "4", Pasa}});
  EXPECT_FALSE(b.c[edAlt3].bloqueado);
  b.Teclea({{edAlt3, "0", Queda}, {edAlt3, "0,5", Pasa}, {edAlt2, "0", Pasa, {{edAlt2, "2,00"}}}});
  EXPECT_EQ(b.c[edAlt3].texto, "");
  EXPECT_TRUE(b.c[edAlt3].bloqueado);
  NuevoTramo(b.c);
  b.Teclea({{edHr0, "0", {}, {{edHr0, ""}}}});
  EXPECT_EQ(AlturasDe(b.e.obra, b.e.tramo).Hr0, 2.0);
  b.Teclea({{edHr0, "3"}, {edHr0Final, "2", Queda}, {edHr0Final, "5"}});
  EXPECT_FALSE(b.c[edHr0Delta].bloqueado);
  b.Teclea(edHr0Final, "3");
  EXPECT_TRUE(b.c[edHr0Delta].bloqueado);
}

// A page is looked at without a question, and looking changes nothing.
TEST(Paginas, SePasaSinPreguntas) {
  ConTramo b;
  const auto antes = VersionActual(b.c);
  b.Pon(edPrs1, "x");
  for (const int pagina : {0, 2, 1}) {
    CambiaPagina(b.c, pagina);
    EXPECT_EQ(b.c.pantalla.pagina.TabPrincipal, pagina);
  }
  CambiaPaginaColocacion(b.c, 2);
  MuestraPagina(b.c, {1, 1, 1, -1});
  EligeOpcion(b.c, rdTipoCamisa, 1);  // of the typology that it is not
  EXPECT_TRUE(VersionActual(b.c) == antes);
  EXPECT_TRUE(b.voz.mensajes.empty() && b.voz.preguntas.empty());
}

TEST(Tipologias, CadaColocacionPideLoSuyo) {
  ConTramo b;
  const auto pide = [&] {
    std::string s;
    for (const Ed x : {edB0, edTipoRelleno0, edHr1, edTipoApoyo0, edIAs}) {
      s.push_back(b.c[x].habilitado && b.c[x].etiquetaHabilitada && !b.c[x].gris ? '1' : '0');
    }
    return s;
  };
  EXPECT_EQ(pide(), "11010");
  EligeOpcion(b.c, rdTipoColocacion, 2);
  EXPECT_EQ(pide(), "00101");
  EXPECT_EQ(b.c[edIAs].texto, "Suelo Ordinario");
  EXPECT_EQ(b.e.tramo.TipoApoyo, 31);
  EXPECT_EQ(b.c[edB0].texto, "");
  EXPECT_EQ(b.c[edHr1].etiqueta, "Dist. gen. superior a terreno natural hr' (m):");
  EligeOpcion(b.c, rdTipoColocacion, 1);
  EXPECT_EQ(pide(), "10110");
  EXPECT_EQ(b.c[edB0].texto, "2,738");
  EXPECT_EQ(b.c[edTipoApoyo0].texto, "Relleno Compactado");
  EXPECT_EQ(b.c[edHr1].etiqueta, "Dist. gen. superior a terreno natural hr'' (m):");
}

TEST(Tipologias, ElCambioTraeLoSuyoYSeDeshaceDeUnaVez) {
  ConTramo b;
  const auto antes = VersionActual(b.c);
  EligeOpcion(b.c, rdTipologia, 1);
  EXPECT_TRUE(b.voz.preguntas.empty());
  EXPECT_EQ(b.e.tramo.Tipologia, 2211);
  EXPECT_EQ(b.c[edFck].texto, "");
  EXPECT_EQ(b.c[edFyk].texto, "210,0");  // on the other page
  EXPECT_EQ(b.c[edFYKPost].texto, "210,0");
  EXPECT_FALSE(b.c[edReci0].etiquetaHabilitada);  // the reverse of the option
  EXPECT_FALSE(b.c.pantalla.Habilitada(Orden::mnAjustarArmaduras));
  const auto fckn = b.c[edFckn].texto;
  EligeOpcion(b.c, rdTipoCamisa, 1);
  EXPECT_EQ(b.e.tramo.Tipologia, 2221);
  EXPECT_EQ(b.c[edFckn].texto, fckn);  // never clears
  EXPECT_FALSE(b.c[edReci0].habilitado);
  b.Deshace();
  b.Deshace();
  EXPECT_TRUE(VersionActual(b.c) == antes);
  EXPECT_EQ(b.c.pantalla.pagina.TabTipologia, 0);
  EXPECT_EQ(b.c[edFck].texto, "35,0");
}

TEST(Tipologias, LaLimpiezaDejaElTextoDelRevestimiento) {
  Banco b;
  EligeOpcion(b.c, rdTipologia, 1);
  const auto texto = b.c[edFckr].texto;
  ASSERT_EQ(texto, "35,0");
  LimpiaCaptura(b.c, 0);
  EXPECT_EQ(b.c[edFckr].texto, texto);
  EXPECT_EQ(b.e.tramo.Fckr, 0.0);
  EXPECT_EQ(b.c[edFckn].texto, "");
  EXPECT_EQ(b.e.tramo.Tipologia, 1210);
  EXPECT_EQ(b.e.tramo.ICar, 2);
  EXPECT_EQ(b.c[edICar0].texto, "Eje de 13 Toneladas");
  DefectosArmado(b.c);
  EXPECT_NEAR(b.e.tramo.Fct, 2.2349, 1e-4);  // as every recalculation
}

}  // namespace
}  // namespace zorbin::prueba
