// Typing: keys, defaults, what leaving a field does to others, locks and greys.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "base/textos.h"
#include "sesion/captura/guion.h"
#include "sesion/captura/mdTipologias.h"
#include "sesion/captura/mdValidaObra.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin::prueba {
namespace {

using enum Ed;
using enum SalidaCampo;

// Nothing that is typed is dropped: it is taken, or refused with what it could mean.
TEST(Teclas, LoQueNoEsUnNumeroNoPasaEnSilencio) {
  Banco b;
  b.Teclea({{edPrsM1, "1.5", Pasa, {{edPrsM1, "1,50"}}},
            {edPrsM1, "210.000", Queda, {{edPrsM1, "210.000"}}},
            {edPrsM1, "1.234,5", Queda},
            {edPrsM1, "1/2", Queda},
            {edPrsM1, "abc", Queda}});
  ASSERT_EQ(b.voz.mensajes.size(), 4u);
  EXPECT_NE(b.voz.mensajes[0].texto.find("210,000 o como 210000"), std::string::npos);
  EXPECT_NE(b.voz.mensajes[1].texto.find("1.234,5"), std::string::npos);
  EXPECT_EQ(b.e.obra.PrsM1, 1.5);
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
  EligePaginaTipologia(b.c, 1);
  entran({{edFYKPost, "210,0"}});
  EXPECT_EQ(b.c.pantalla.pagina.TabPostesados, 1);
  EXPECT_TRUE(b.c[edFYKPost].seleccionado);
  // Deliberate: these keep the number of MKS under SI.
  entran({{edFckn, "400,00"}, {edSFck, "17000"}, {edEs, "210000"}, {edSf, "12750"}});
  EligePaginaTipologia(b.c, 0);
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
  EXPECT_EQ(b.voz.Ultimo(), "AVISO: Valor Mínimo  ");
  EXPECT_EQ(b.voz.Titulo(), "Resist. del hormigón a compresión");
  EXPECT_NEAR(b.e.tramo.Fct, 0.45 * std::cbrt(275.0 * 275.0), 1e-9);
  b.Teclea({{edFck, "0", Queda, {{edFck, "350"}}}});
}

TEST(Campos, ElAceroArrastraLaTensionDeCalculo) {
  Banco b;
  NuevoTramo(b.c);
  b.Teclea({{edFyd, "100"},
            {edFyk, "210", {}, {{edFyd, "100,0"}}},  // the same value moves nothing
            {edFyk, "240", {}, {{edFyd, "160,0"}}}});
  b.voz.responde = false;
  b.Teclea({{edFyd, "141", Queda}});
  b.voz.responde = true;
  b.Teclea({{edFyd, "141", Pasa}});
  EligePaginaTipologia(b.c, 1);
  b.Teclea({{edSFck, "1000", {}, {{edSf, "750"}}}});
  EXPECT_EQ(b.c[edSf].etiqueta, "Tensión de tesado (750)");
}

TEST(Campos, LaArmaduraExteriorPreguntaPorEncimaDeDosCapas) {
  Banco b;
  NuevoTramo(b.c);
  CambiaMarca(b.c, edIcontes0, true);
  b.voz.responde = false;
  b.Teclea({{edAdato, "35,06", Pasa}, {edAdato, "35,07", Queda}});
  b.voz.responde = true;
  b.Teclea({{edAdato, "35,07", Pasa}});
  CambiaMarca(b.c, edIcontes0, false);
  EXPECT_EQ(b.e.tramo.Adato, 0.0);
  EXPECT_EQ(b.c[edAdato].texto, "");
  EXPECT_TRUE(b.c[edAdato].gris);
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
  EXPECT_TRUE(b.voz.mensajes.empty());
  EligeOpcion(b.c, rdTipoColocacion, 1);
  b.Teclea(edB0, "9,5");
  EXPECT_EQ(b.voz.Ultimo(), "Ancho de la Zanja mayor que 3\nveces el diámetro interior");
  b.Olvida();
  Entra(b.c, edB0);
  EXPECT_EQ(Sale(b.c, edB0), Pasa);  // once per change
  EXPECT_TRUE(b.voz.mensajes.empty());
  EXPECT_FALSE(b.c.AnchoZanjaAuto);
  b.Teclea({{edEsp0, "14", {}, {{edB0, "2,752"}}},  // overwrites the width typed by hand
            {edB0, "0", {}, {{edB0, "2,752"}}}});
}

TEST(Campos, ElAnguloYLaGeneratriz) {
  ConTramo b;
  b.Teclea({{edFi0, "90", Pasa}, {edFi0, "91", Queda}});
  EXPECT_EQ(b.voz.Titulo(), "ERROR");
  EligeOpcion(b.c, rdTipoColocacion, 1);
  b.Teclea({{edHr1, "3", Pasa}, {edHr1, "3,1", Queda}});
}

TEST(Campos, UnaListaSinEntradaSeRechazaYVuelveASuDefecto) {
  ConTramo b;
  b.c.TramoEditado = false;
  Cambia(b.c, edTipoCuna0, "");
  EXPECT_EQ(Sale(b.c, edTipoCuna0), Queda);
  EXPECT_EQ(b.voz.Ultimo(), "Dato Requerido");
  EXPECT_EQ(b.voz.Titulo(), "Tipo de Apoyo");
  EXPECT_EQ(b.c[edTipoCuna0].texto, "Granular, 90 grd");
  Cambia(b.c, edTipoCuna0, "HORMIGÓN, 120 GRD");
  EXPECT_EQ(Sale(b.c, edTipoCuna0), Pasa);
  EXPECT_EQ(b.e.tramo.TipoCuna, 2);
  EXPECT_EQ(b.c.pantalla.figuraColocacion, "Zanja2a.bmp");
}

TEST(Presiones, DeLaObra) {
  Banco b;
  EXPECT_TRUE(b.c[edPrs3].bloqueado);
  b.Teclea({{edPrsM1, "10"}, {edPrsM2, "6"}});
  EXPECT_EQ(b.voz.Ultimo(), "Presión Final MDP inferior a la Inicial");
  b.Teclea({{edPrsM2, "x6"}, {edPrsM2, "16", Pasa}});  // the letter does not get in
  EXPECT_FALSE(b.c[edPrs3].bloqueado);
  b.Teclea({{edPrs3, "0", Queda}, {edPrs3, "2", Pasa}, {edPrs1, "11", Queda}, {edPrs1, "5", Pasa}});
  b.Teclea({{edPrs2, "4", Queda}});
  EXPECT_EQ(b.voz.Ultimo(), "Presión DP Final Inferior a la Inicial");
  b.Teclea({{edPrs2, "17", Queda},
            {edPrs2, "0", Pasa, {{edPrs2, "14,55"}}},  // follows MDP
            {edPrsM1, "11", {}, {{edPrs1, "10,00"}}},  // a DP that is there follows its MDP
            {edPrsM2, "0", {}, {{edPrsM2, "11,00"}}}});
  EXPECT_EQ(b.e.obra.Prs3, 0.0);
  EXPECT_TRUE(b.c[edPrs2].bloqueado);
  EXPECT_TRUE(ValidaObra(b.c)) << b.voz.Ultimo();
  // The labels of Obra and Tramo are crossed on purpose.
  Cambia(b.c, edPrsM2, "a");
  Sale(b.c, edPrsM2);
  EXPECT_EQ(b.voz.Titulo(), "Presión Final (DP)");
}

TEST(Presiones, ElIncrementoDelTramoQuedaDetrasDelCampo) {
  Banco b;
  NuevoTramo(b.c);
  b.Teclea({{edPrsM1Tram, "1"},
            {edPrsM2Tram, "2"},
            {edPrs3Tram, "0,5"},
            {edPrsM2Tram, "1", {}, {{edPrs3Tram, "0"}}}});
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

TEST(Paginas, SeRevisaAntesDePasar) {
  Banco b;
  EXPECT_TRUE(CambiaPagina(b.c, 1));
  EXPECT_FALSE(CambiaPagina(b.c, 2));
  EXPECT_EQ(b.voz.Ultimo(), "Debe seleccionar un Tramo");
  EXPECT_EQ(b.voz.foco, edTramo);
  EXPECT_EQ(b.c.pantalla.pagina.TabPrincipal, 1);
  NuevoTramo(b.c);
  EXPECT_TRUE(CambiaPagina(b.c, 2));
  EXPECT_EQ(b.c.pantalla.foco, rdTipoColocacion);
  EXPECT_FALSE(CambiaPaginaColocacion(b.c, 2));
  EXPECT_EQ(b.voz.Ultimo(), "No ha seleccionado Diámetro Exterior (mts)");
  EXPECT_EQ(b.voz.foco, edDi0);
  b.Teclea(edDi0, "1,2");
  EXPECT_TRUE(CambiaPaginaColocacion(b.c, 2));
  EXPECT_EQ(b.c.pantalla.avCargas1, "");
  b.Teclea({{edHr0, "8"}, {edHr0Final, "8"}});
  EXPECT_TRUE(CambiaPaginaColocacion(b.c, 2));
  EXPECT_NE(b.c.pantalla.avCargas1.find("efecto arco. Si se quiere"), std::string::npos);
  CambiaPagina(b.c, 0);
  b.Pon(edPrs1, "x");
  EXPECT_FALSE(CambiaPagina(b.c, 1));
  EXPECT_EQ(b.c.pantalla.foco, edPrs1);
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
  EXPECT_EQ(b.c.pantalla.figuraColocacion, "Terrapl1.bmp");
  EligeOpcion(b.c, rdTipoColocacion, 1);
  EXPECT_EQ(pide(), "10110");
  EXPECT_EQ(b.c[edB0].texto, "2,738");
  EXPECT_EQ(b.c[edTipoApoyo0].texto, "Relleno Compactado");
  EXPECT_EQ(b.c[edHr1].etiqueta, "Dist. gen. superior a terreno natural hr'' (m):");
}

TEST(Tipologias, ElCambioPreguntaYConNoTodoQueda) {
  ConTramo b;
  b.voz.responde = false;
  EligePaginaTipologia(b.c, 1);
  EXPECT_EQ(b.c.pantalla.pagina.TabTipologia, 0);
  EXPECT_EQ(b.e.tramo.Tipologia, 1210);
  EXPECT_EQ(b.c[edFck].texto, "35,0");
  b.voz.responde = true;
  EligePaginaTipologia(b.c, 1);
  EXPECT_EQ(b.e.tramo.Tipologia, 2211);
  EXPECT_EQ(b.c[edFck].texto, "");
  EXPECT_EQ(b.c[edFyk].texto, "210,0");           // on the other page
  EXPECT_EQ(b.c[edFYKPost].texto, "");            // which nobody fills
  EXPECT_FALSE(b.c[edReci0].etiquetaHabilitada);  // the reverse of the option
  EXPECT_EQ(b.c.pantalla.figuraTubo, "Tub2211.bmp");
  EXPECT_FALSE(b.c.pantalla.Habilitada(Orden::mnAjustarArmaduras));
  const auto fckn = b.c[edFckn].texto;
  b.Olvida();
  EligeOpcion(b.c, rdTipoCamisa, 1);
  EXPECT_EQ(b.e.tramo.Tipologia, 2221);
  EXPECT_EQ(b.c[edFckn].texto, fckn);  // never clears
  EXPECT_TRUE(b.voz.preguntas.empty());
  EXPECT_FALSE(b.c[edReci0].habilitado);
}

TEST(Tipologias, SinTramoNiCambiosNoSePregunta) {
  Banco b;
  EligePaginaTipologia(b.c, 1);
  EXPECT_TRUE(b.voz.preguntas.empty());
  EXPECT_EQ(b.e.tramo.Tipologia, 2211);
}

TEST(Tipologias, LaLimpiezaDejaElTextoDelRevestimiento) {
  Banco b;
  EligePaginaTipologia(b.c, 1);
  const auto texto = b.c[edFckr].texto;
  ASSERT_EQ(texto, "35,0");
  LimpiaCaptura(b.c, 0);
  EXPECT_EQ(b.c[edFckr].texto, texto);
  EXPECT_EQ(b.e.tramo.Fckr, 0.0);
  EXPECT_EQ(b.c[edFckn].texto, "");
  EXPECT_EQ(b.e.tramo.Tipologia, 1210);
  EXPECT_EQ(b.e.tramo.ICar, 1);  // 2 once the field is read
  EXPECT_EQ(b.c[edICar0].texto, "Eje de 13 Toneladas");
  DefectosArmado(b.c);
  EXPECT_NEAR(b.e.tramo.Fct, 2.2349, 1e-4);  // as every recalculation
}

TEST(Obra, NoHaberCalculadoElGolpeSeConfirma) {
  Banco b;
  b.voz.responde = false;
  EligeOpcion(b.c, rdGolpeAriete, 1);
  EXPECT_EQ(b.c[rdGolpeAriete].opcion, 0);
  EXPECT_TRUE(b.e.obra.GolpeCalculado);
  b.voz.responde = true;
  EligeOpcion(b.c, rdGolpeAriete, 1);
  EXPECT_FALSE(b.e.obra.GolpeCalculado);
}

// ---------------------------------------------------------------------------------------------

constexpr std::array kNumeros{"1",   "0,5", "2", "30",    "0", "1,2", "12", "99999999999999999999",
                              "3,0", "210", "",  "0,0003"};
const std::array<std::string, 9> kTextos{
    "-3", "1e308", "nan", "ñandú", "Ω", std::string(200, '9'), "1.2.3", " ", "inf"};
// What makes a save likely now and then.
constexpr std::array<std::pair<Ed, const char*>, 11> kSensatos{{{edAlt1, "3"},
                                                                {edAlt2, "3"},
                                                                {edDi0, "1"},
                                                                {edEsp0, "12"},
                                                                {edReci0, "3"},
                                                                {edRece0, "3"},
                                                                {edB0, "2"},
                                                                {edGr0, "2"},
                                                                {edHr0, "2"},
                                                                {edHr0Final, "2"},
                                                                {edFYKPost, "210"}}};

// Somebody who types anything anywhere. The seeds are fixed, so a fault can be repeated.
class Mecanografo {
 public:
  Mecanografo(unsigned semilla, const Carpeta& carpeta) : azar_(semilla) {
    b_.voz.fichero = (carpeta / ("azar" + std::to_string(semilla) + ".zrb")).string();
  }

  void Momento() {
    b_.voz.responde = Dado(3) > 0;
    b_.Olvida();
    auto& c = b_.c;
    const Ed campo = static_cast<Ed>(Dado(kCamposCaptura));
    const auto entradas = static_cast<int>(campo == edTramo ? 0 : c[campo].entradas.size());
    const std::function<void()> gestos[]{
        [&] { Accion(); },
        [&] { EligeOpcion(c, campo, Dado(3)); },
        [&] { CambiaMarca(c, Dado(2) ? edIcontes0 : edIcontes1, Dado(2) != 0); },
        [&] { CambiaPagina(c, Dado(3)); },
        [&] { CambiaPaginaColocacion(c, Dado(3)); },
        [&] { Cambia(c, campo, Uno(kTextos)), Sale(c, campo); },
        [&] { entradas > 0 ? b_.Escoge(campo, 1 + Dado(entradas)) : void(); },
    };
    const auto n = static_cast<std::size_t>(Dado(14));
    n < std::size(gestos) ? gestos[n]() : void(b_.Teclea(campo, Uno(kNumeros)));
    Comprueba();
  }

  int guardados() const { return guardados_; }

 private:
  int Dado(int caras) { return static_cast<int>(azar_() % static_cast<unsigned>(caras)); }
  template <class T, std::size_t N>
  const T& Uno(const std::array<T, N>& de) {
    return de[static_cast<std::size_t>(Dado(static_cast<int>(N)))];
  }

  void Accion() {
    auto& c = b_.c;
    const std::function<void()> acciones[]{
        [&] { NuevoTramo(c); },
        [&] { CancelaCaptura(c); },
        [&] { AccionGrabaObra(c); },
        [&] { EligePaginaTipologia(c, Dado(2)); },
        [&] { Cambia(c, edTramo, std::to_string(Dado(5))), Sale(c, edTramo); },
        [&] { Graba(); },
    };
    acciones[Dado(6)]();
  }

  void Graba() {
    if (Dado(2)) {
      for (const auto& [campo, texto] : kSensatos) b_.Teclea(campo, texto);
    }
    b_.voz.responde = true;
    b_.voz.niega = b_.textos.Texto(txt::RecTitulo);  // keeps the dimensions as they are
    bool grabado = AccionGrabaTramo(b_.c);
    for (int i = 0; i < 8 && !grabado && b_.c.falta; ++i) {
      Corrige(b_.c.falta->campo);
      grabado = AccionGrabaTramo(b_.c);
    }
    if (!grabado) return;
    ++guardados_;
    // What was saved reads back, on its own and whole.
    EstadoCalculo e;
    const FicheroRegistros f(b_.c.fichero->ruta(), FicheroRegistros::Modo::Lectura);
    const auto leida = CargaObra(e, f);
    ASSERT_EQ(leida.lista, b_.c.lista);
    for (int i = 1; i <= static_cast<int>(leida.lista.size()); ++i) CargaTramo(e, f, i);
  }

  // Mends the field that the refusal names, as a person would.
  void Corrige(Ed campo) {
    static const std::map<Ed, const char*> otros{{edPrs3, "0,1"}, {edPrs3Tram, "0,1"},
                                                 {edAlt3, "0,1"}, {edHr0Delta, "0,1"},
                                                 {edPrs1, "0"},   {edPrs2, "0"}};
    if (Fila(campo).clase == Clase::Lista) return b_.Escoge(campo, 1);
    const auto otro = otros.find(campo);
    b_.Teclea(campo, otro == otros.end() ? "30" : otro->second);
  }

  void Comprueba() {
    for (const auto& fila : TablaCampos()) {
      if (fila.clase != Clase::Numero) continue;
      const double valor = Variable(b_.c, fila.id);
      ASSERT_TRUE(std::isfinite(valor) && std::fabs(valor) < 1e12) << fila.nombre << " " << valor;
    }
    ASSERT_EQ(b_.c[edTramo].entradas.size(), b_.c.lista.size());
  }

  std::mt19937 azar_;
  Banco b_;
  int guardados_ = 0;
};

TEST(Mecanografia, AlAzarNuncaRompeNiGuardaLoQueNoSeLee) {
  const Carpeta carpeta;
  int guardados = 0;
  for (unsigned semilla = 1; semilla <= 4; ++semilla) {
    Mecanografo m(semilla, carpeta);
    for (int i = 0; i < 1500; ++i) {
      m.Momento();
      if (testing::Test::HasFatalFailure()) FAIL() << "seed " << semilla << ", moment " << i;
    }
    guardados += m.guardados();
  }
  EXPECT_GT(guardados, 20);
}

}  // namespace
}  // namespace zorbin::prueba
