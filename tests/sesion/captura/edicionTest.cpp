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

TEST(Teclas, SoloCifrasYUnSeparador) {
  Banco b('.');
  b.Teclea(Ed::edPrsM1, "-1,2.5x");
  EXPECT_EQ(b.e.obra.PrsM1, 1.25);  // "," is ".", the second one and the sign are dropped
  NuevoTramo(b.c);
  EXPECT_EQ(Tecla(b.c, Ed::edAdato, '-'), '\0');  // disabled
  CambiaMarca(b.c, Ed::edIcontes0, true);
  EXPECT_EQ(Tecla(b.c, Ed::edAdato, '-'), '-');  // a field without the filter
}

TEST(Campos, UnBlancoTomaSuDefectoAlEntrar) {
  Banco b;
  NuevoTramo(b.c);
  EligePaginaTipologia(b.c, 1);
  const auto entra = [&](Ed campo) {
    b.Pon(campo, "");
    Entra(b.c, campo);
    return b.c[campo].texto;
  };
  EXPECT_EQ(entra(Ed::edFYKPost), "210,0");
  EXPECT_EQ(b.c.pantalla.pagina.TabPostesados, 1);
  EXPECT_TRUE(b.c[Ed::edFYKPost].seleccionado);
  // Deliberate: these keep the number of MKS under SI.
  EXPECT_EQ(entra(Ed::edFckn), "400,00");
  EXPECT_EQ(entra(Ed::edSFck), "17000");
  EXPECT_EQ(entra(Ed::edEs), "210000");
  EXPECT_EQ(entra(Ed::edSf), "12750");
  EligePaginaTipologia(b.c, 0);
  EXPECT_EQ(entra(Ed::edFck), "35,0");
  EXPECT_EQ(b.c[Ed::edFct].texto, "4,8");
  EXPECT_EQ(entra(Ed::edTipoControl), "Intenso");
  EXPECT_EQ(entra(Ed::edB0), "");  // there is no diameter yet
}

TEST(Campos, ElHormigonArrastraLaTraccionYTieneMinimo) {
  Banco b;
  EligeOpcion(b.c, Ed::rdSistemaUnidades, 1);
  NuevoTramo(b.c);
  EXPECT_EQ(b.c[Ed::edFct].texto, "22");  // default
  b.Olvida();
  EXPECT_EQ(b.Teclea(Ed::edFck, "200"), SalidaCampo::Pasa);
  EXPECT_EQ(b.c[Ed::edFck].texto, "275");
  EXPECT_EQ(b.voz.Ultimo(), "AVISO: Valor Mínimo  ");
  EXPECT_EQ(b.voz.Titulo(), "Resist. del hormigón a compresión");
  EXPECT_NEAR(b.e.tramo.Fct, 0.45 * std::cbrt(275.0 * 275.0), 1e-9);
  EXPECT_EQ(b.Teclea(Ed::edFck, "0"), SalidaCampo::Queda);
  EXPECT_EQ(b.c[Ed::edFck].texto, "350");
}

TEST(Campos, ElAceroArrastraLaTensionDeCalculo) {
  Banco b;
  NuevoTramo(b.c);
  b.Teclea(Ed::edFyd, "100");
  b.Teclea(Ed::edFyk, "210");
  EXPECT_EQ(b.c[Ed::edFyd].texto, "100,0");  // the same value moves nothing
  b.Teclea(Ed::edFyk, "240");
  EXPECT_EQ(b.c[Ed::edFyd].texto, "160,0");
  b.voz.responde = false;
  EXPECT_EQ(b.Teclea(Ed::edFyd, "141"), SalidaCampo::Queda);
  b.voz.responde = true;
  EXPECT_EQ(b.Teclea(Ed::edFyd, "141"), SalidaCampo::Pasa);
  EligePaginaTipologia(b.c, 1);
  b.Teclea(Ed::edSFck, "1000");
  EXPECT_EQ(b.c[Ed::edSf].texto, "750");
  EXPECT_EQ(b.c[Ed::edSf].etiqueta, "Tensión de tesado (750)");
}

TEST(Campos, LaArmaduraExteriorPreguntaPorEncimaDeDosCapas) {
  Banco b;
  NuevoTramo(b.c);
  CambiaMarca(b.c, Ed::edIcontes0, true);
  b.voz.responde = false;
  EXPECT_EQ(b.Teclea(Ed::edAdato, "35,06"), SalidaCampo::Pasa);
  EXPECT_EQ(b.Teclea(Ed::edAdato, "35,07"), SalidaCampo::Queda);
  b.voz.responde = true;
  EXPECT_EQ(b.Teclea(Ed::edAdato, "35,07"), SalidaCampo::Pasa);
  CambiaMarca(b.c, Ed::edIcontes0, false);
  EXPECT_EQ(b.e.tramo.Adato, 0.0);
  EXPECT_EQ(b.c[Ed::edAdato].texto, "");
  EXPECT_TRUE(b.c[Ed::edAdato].gris);
}

TEST(Campos, UnValorQueNadieTocoNoSeRelee) {
  Banco b;
  b.Teclea(Ed::edPrsM1, "10");
  b.Teclea(Ed::edPrs1, "");
  EXPECT_EQ(b.c[Ed::edPrs1].texto, "9,09");
  Entra(b.c, Ed::edPrs1);
  Sale(b.c, Ed::edPrs1);
  EXPECT_DOUBLE_EQ(b.e.obra.Prs1, 10 / 1.1);
}

TEST(Campos, LaZanjaAnchaSoloSeAvisaEnLaTerraplenada) {
  Banco b;
  b.TramoValido();
  b.Teclea(Ed::edB0, "9");
  EXPECT_TRUE(b.voz.mensajes.empty());
  EligeOpcion(b.c, Ed::rdTipoColocacion, 1);
  b.Teclea(Ed::edB0, "9,5");
  EXPECT_EQ(b.voz.Ultimo(), "Ancho de la Zanja mayor que 3\nveces el diámetro interior");
  b.Olvida();
  Entra(b.c, Ed::edB0);
  EXPECT_EQ(Sale(b.c, Ed::edB0), SalidaCampo::Pasa);  // once per change
  EXPECT_TRUE(b.voz.mensajes.empty());
  EXPECT_FALSE(b.c.AnchoZanjaAuto);
  b.Teclea(Ed::edEsp0, "14");  // overwrites the width typed by hand
  EXPECT_EQ(b.c[Ed::edB0].texto, "2,752");
  b.Teclea(Ed::edB0, "0");
  EXPECT_EQ(b.c[Ed::edB0].texto, "2,752");
}

TEST(Campos, ElAnguloYLaGeneratriz) {
  Banco b;
  b.TramoValido();
  EXPECT_EQ(b.Teclea(Ed::edFi0, "90"), SalidaCampo::Pasa);
  EXPECT_EQ(b.Teclea(Ed::edFi0, "91"), SalidaCampo::Queda);
  EXPECT_EQ(b.voz.Titulo(), "ERROR");
  EligeOpcion(b.c, Ed::rdTipoColocacion, 1);
  EXPECT_EQ(b.Teclea(Ed::edHr1, "3"), SalidaCampo::Pasa);
  EXPECT_EQ(b.Teclea(Ed::edHr1, "3,1"), SalidaCampo::Queda);
}

TEST(Campos, UnaListaSinEntradaSeRechazaYVuelveASuDefecto) {
  Banco b;
  b.TramoValido();
  b.c.TramoEditado = false;
  Cambia(b.c, Ed::edTipoCuna0, "");
  EXPECT_EQ(Sale(b.c, Ed::edTipoCuna0), SalidaCampo::Queda);
  EXPECT_EQ(b.voz.Ultimo(), "Dato Requerido");
  EXPECT_EQ(b.voz.Titulo(), "Tipo de Apoyo");
  EXPECT_EQ(b.c[Ed::edTipoCuna0].texto, "Granular, 90 grd");
  Cambia(b.c, Ed::edTipoCuna0, "HORMIGÓN, 120 GRD");
  EXPECT_EQ(Sale(b.c, Ed::edTipoCuna0), SalidaCampo::Pasa);
  EXPECT_EQ(b.e.tramo.TipoCuna, 2);
  EXPECT_EQ(b.c.pantalla.figuraColocacion, "Zanja2a.bmp");
}

TEST(Presiones, DeLaObra) {
  Banco b;
  EXPECT_TRUE(b.c[Ed::edPrs3].bloqueado);
  b.Teclea(Ed::edPrsM1, "10");
  b.Teclea(Ed::edPrsM2, "6");
  EXPECT_EQ(b.voz.Ultimo(), "Presión Final MDP inferior a la Inicial");
  b.Teclea(Ed::edPrsM2, "x6");  // the letter does not get in
  EXPECT_EQ(b.Teclea(Ed::edPrsM2, "16"), SalidaCampo::Pasa);
  EXPECT_FALSE(b.c[Ed::edPrs3].bloqueado);
  EXPECT_EQ(b.Teclea(Ed::edPrs3, "0"), SalidaCampo::Queda);
  EXPECT_EQ(b.Teclea(Ed::edPrs3, "2"), SalidaCampo::Pasa);
  EXPECT_EQ(b.Teclea(Ed::edPrs1, "11"), SalidaCampo::Queda);
  EXPECT_EQ(b.Teclea(Ed::edPrs1, "5"), SalidaCampo::Pasa);
  EXPECT_EQ(b.Teclea(Ed::edPrs2, "4"), SalidaCampo::Queda);
  EXPECT_EQ(b.voz.Ultimo(), "Presión DP Final Inferior a la Inicial");
  EXPECT_EQ(b.Teclea(Ed::edPrs2, "17"), SalidaCampo::Queda);
  EXPECT_EQ(b.Teclea(Ed::edPrs2, "0"), SalidaCampo::Pasa);  // follows MDP
  EXPECT_EQ(b.c[Ed::edPrs2].texto, "14,55");
  b.Teclea(Ed::edPrsM1, "11");  // a DP that is there follows its MDP
  EXPECT_EQ(b.c[Ed::edPrs1].texto, "10,00");
  b.Teclea(Ed::edPrsM2, "0");
  EXPECT_EQ(b.c[Ed::edPrsM2].texto, "11,00");
  EXPECT_EQ(b.e.obra.Prs3, 0.0);
  EXPECT_TRUE(b.c[Ed::edPrs2].bloqueado);
  EXPECT_TRUE(ValidaObra(b.c)) << b.voz.Ultimo();
  // The labels of Obra and Tramo are crossed on purpose.
  Cambia(b.c, Ed::edPrsM2, "a");
  Sale(b.c, Ed::edPrsM2);
  EXPECT_EQ(b.voz.Titulo(), "Presión Final (DP)");
}

TEST(Presiones, ElIncrementoDelTramoQuedaDetrasDelCampo) {
  Banco b;
  NuevoTramo(b.c);
  b.Teclea(Ed::edPrsM1Tram, "1");
  b.Teclea(Ed::edPrsM2Tram, "2");
  b.Teclea(Ed::edPrs3Tram, "0,5");
  b.Teclea(Ed::edPrsM2Tram, "1");
  EXPECT_EQ(b.c[Ed::edPrs3Tram].texto, "0");
  EXPECT_EQ(b.e.tramo.Prs3Tram, 0.5);
  EXPECT_TRUE(b.c[Ed::edPrs3Tram].bloqueado);
}

TEST(Alturas, DeLaObraYDelTramo) {
  Banco b;
  EXPECT_EQ(b.Teclea(Ed::edAlt1, "0,9"), SalidaCampo::Queda);
  EXPECT_EQ(b.Teclea(Ed::edAlt1, "2"), SalidaCampo::Pasa);
  EXPECT_EQ(b.Teclea(Ed::edAlt2, "1"), SalidaCampo::Queda);
  EXPECT_EQ(b.Teclea(Ed::edAlt2, "4"), SalidaCampo::Pasa);
  EXPECT_FALSE(b.c[Ed::edAlt3].bloqueado);
  EXPECT_EQ(b.Teclea(Ed::edAlt3, "0"), SalidaCampo::Queda);
  EXPECT_EQ(b.Teclea(Ed::edAlt3, "0,5"), SalidaCampo::Pasa);
  EXPECT_EQ(b.Teclea(Ed::edAlt2, "0"), SalidaCampo::Pasa);
  EXPECT_EQ(b.c[Ed::edAlt2].texto, "2,00");
  EXPECT_EQ(b.c[Ed::edAlt3].texto, "");
  EXPECT_TRUE(b.c[Ed::edAlt3].bloqueado);
  NuevoTramo(b.c);
  b.Teclea(Ed::edHr0, "0");
  EXPECT_EQ(b.c[Ed::edHr0].texto, "");
  EXPECT_EQ(b.e.corrida.Hr0Actual, 2.0);
  b.Teclea(Ed::edHr0, "3");
  EXPECT_EQ(b.Teclea(Ed::edHr0Final, "2"), SalidaCampo::Queda);
  b.Teclea(Ed::edHr0Final, "5");
  EXPECT_FALSE(b.c[Ed::edHr0Delta].bloqueado);
  b.Teclea(Ed::edHr0Final, "3");
  EXPECT_TRUE(b.c[Ed::edHr0Delta].bloqueado);
}

TEST(Paginas, SeRevisaAntesDePasar) {
  Banco b;
  EXPECT_TRUE(CambiaPagina(b.c, 1));
  EXPECT_FALSE(CambiaPagina(b.c, 2));
  EXPECT_EQ(b.voz.Ultimo(), "Debe seleccionar un Tramo");
  EXPECT_EQ(b.voz.foco, Ed::edTramo);
  EXPECT_EQ(b.c.pantalla.pagina.TabPrincipal, 1);
  NuevoTramo(b.c);
  EXPECT_TRUE(CambiaPagina(b.c, 2));
  EXPECT_EQ(b.c.pantalla.foco, Ed::rdTipoColocacion);
  EXPECT_FALSE(CambiaPaginaColocacion(b.c, 2));
  EXPECT_EQ(b.voz.Ultimo(), "No ha seleccionado Diámetro Exterior (mts)");
  EXPECT_EQ(b.voz.foco, Ed::edDi0);
  b.Teclea(Ed::edDi0, "1,2");
  EXPECT_TRUE(CambiaPaginaColocacion(b.c, 2));
  EXPECT_EQ(b.c.pantalla.avCargas1, "");
  b.Teclea(Ed::edHr0, "8");
  b.Teclea(Ed::edHr0Final, "8");
  EXPECT_TRUE(CambiaPaginaColocacion(b.c, 2));
  EXPECT_NE(b.c.pantalla.avCargas1.find("efecto arco. Si se quiere"), std::string::npos);
  CambiaPagina(b.c, 0);
  b.Pon(Ed::edPrs1, "x");
  EXPECT_FALSE(CambiaPagina(b.c, 1));
  EXPECT_EQ(b.c.pantalla.foco, Ed::edPrs1);
}

TEST(Tipologias, CadaColocacionPideLoSuyo) {
  Banco b;
  b.TramoValido();
  const auto pide = [&] {
    std::string s;
    for (const Ed x : {Ed::edB0, Ed::edTipoRelleno0, Ed::edHr1, Ed::edTipoApoyo0, Ed::edIAs}) {
      s.push_back(b.c[x].habilitado && b.c[x].etiquetaHabilitada && !b.c[x].gris ? '1' : '0');
    }
    return s;
  };
  EXPECT_EQ(pide(), "11010");
  EligeOpcion(b.c, Ed::rdTipoColocacion, 2);
  EXPECT_EQ(pide(), "00101");
  EXPECT_EQ(b.c[Ed::edIAs].texto, "Suelo Ordinario");
  EXPECT_EQ(b.e.tramo.TipoApoyo, 31);
  EXPECT_EQ(b.c[Ed::edB0].texto, "");
  EXPECT_EQ(b.c[Ed::edHr1].etiqueta, "Dist. gen. superior a terreno natural hr' (m):");
  EXPECT_EQ(b.c.pantalla.figuraColocacion, "Terrapl1.bmp");
  EligeOpcion(b.c, Ed::rdTipoColocacion, 1);
  EXPECT_EQ(pide(), "10110");
  EXPECT_EQ(b.c[Ed::edB0].texto, "2,738");
  EXPECT_EQ(b.c[Ed::edTipoApoyo0].texto, "Relleno Compactado");
  EXPECT_EQ(b.c[Ed::edHr1].etiqueta, "Dist. gen. superior a terreno natural hr'' (m):");
}

TEST(Tipologias, ElCambioPreguntaYConNoTodoQueda) {
  Banco b;
  b.TramoValido();
  b.voz.responde = false;
  EligePaginaTipologia(b.c, 1);
  EXPECT_EQ(b.c.pantalla.pagina.TabTipologia, 0);
  EXPECT_EQ(b.e.tramo.Tipologia, 1210);
  EXPECT_EQ(b.c[Ed::edFck].texto, "35,0");
  b.voz.responde = true;
  EligePaginaTipologia(b.c, 1);
  EXPECT_EQ(b.e.tramo.Tipologia, 2211);
  EXPECT_EQ(b.c[Ed::edFck].texto, "");
  EXPECT_EQ(b.c[Ed::edFyk].texto, "210,0");           // on the other page
  EXPECT_EQ(b.c[Ed::edFYKPost].texto, "");            // which nobody fills
  EXPECT_FALSE(b.c[Ed::edReci0].etiquetaHabilitada);  // the reverse of the option
  EXPECT_EQ(b.c.pantalla.figuraTubo, "Tub2211.bmp");
  EXPECT_FALSE(b.c.pantalla.Habilitada(Orden::mnAjustarArmaduras));
  const auto fckn = b.c[Ed::edFckn].texto;
  b.Olvida();
  EligeOpcion(b.c, Ed::rdTipoCamisa, 1);
  EXPECT_EQ(b.e.tramo.Tipologia, 2221);
  EXPECT_EQ(b.c[Ed::edFckn].texto, fckn);  // never clears
  EXPECT_TRUE(b.voz.preguntas.empty());
  EXPECT_FALSE(b.c[Ed::edReci0].habilitado);
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
  const auto texto = b.c[Ed::edFckr].texto;
  ASSERT_EQ(texto, "35,0");
  LimpiaCaptura(b.c, 0);
  EXPECT_EQ(b.c[Ed::edFckr].texto, texto);
  EXPECT_EQ(b.e.tramo.Fckr, 0.0);
  EXPECT_EQ(b.c[Ed::edFckn].texto, "");
  EXPECT_EQ(b.e.tramo.Tipologia, 1210);
  EXPECT_EQ(b.e.tramo.ICar, 1);  // 2 once the field is read
  EXPECT_EQ(b.c[Ed::edICar0].texto, "Eje de 13 Toneladas");
  DefectosArmado(b.c);
  EXPECT_NEAR(b.e.tramo.Fct, 0.4815, 1e-3);  // a tenth of what any recalculation gives
}

TEST(Obra, NoHaberCalculadoElGolpeSeConfirma) {
  Banco b;
  b.voz.responde = false;
  EligeOpcion(b.c, Ed::rdGolpeAriete, 1);
  EXPECT_EQ(b.c[Ed::rdGolpeAriete].opcion, 0);
  EXPECT_TRUE(b.e.obra.GolpeCalculado);
  b.voz.responde = true;
  EligeOpcion(b.c, Ed::rdGolpeAriete, 1);
  EXPECT_FALSE(b.e.obra.GolpeCalculado);
}

// ---------------------------------------------------------------------------------------------

// Somebody who types anything anywhere. The seeds are fixed, so a fault can be repeated.
class Mecanografo {
 public:
  Mecanografo(unsigned semilla, const Carpeta& carpeta) : azar_(semilla) {
    b_.voz.fichero = (carpeta / ("azar" + std::to_string(semilla) + ".zrb")).string();
  }

  void Momento() {
    b_.voz.responde = Dado(3) > 0;
    b_.Olvida();
    const Ed campo = static_cast<Ed>(Dado(kCamposCaptura));
    switch (Dado(12)) {
      case 0:
        Accion();
        break;
      case 1:
        EligeOpcion(b_.c, campo, Dado(3));
        break;
      case 2:
        CambiaMarca(b_.c, Dado(2) ? Ed::edIcontes0 : Ed::edIcontes1, Dado(2) != 0);
        break;
      case 3:
        Dado(2) ? void(CambiaPagina(b_.c, Dado(3))) : void(CambiaPaginaColocacion(b_.c, Dado(3)));
        break;
      case 4:
        Cambia(b_.c, campo, Texto());
        Sale(b_.c, campo);
        break;
      case 5:
        if (!b_.c[campo].entradas.empty() && campo != Ed::edTramo) {
          b_.Escoge(campo, 1 + Dado(static_cast<int>(b_.c[campo].entradas.size())));
        }
        break;
      default:
        b_.Teclea(campo, Numero());
        break;
    }
    Comprueba();
  }

  int guardados() const { return guardados_; }
  const Captura& c() const { return b_.c; }

 private:
  int Dado(int caras) { return static_cast<int>(azar_() % static_cast<unsigned>(caras)); }

  std::string Numero() {
    static const std::vector<std::string> casos{"1",   "0,5", "2",  "30",
                                                "0",   "1,2", "12", "99999999999999999999",
                                                "3,0", "210", "",   "0,0003"};
    return casos[static_cast<std::size_t>(Dado(static_cast<int>(casos.size())))];
  }
  std::string Texto() {
    static const std::vector<std::string> casos{
        "-3", "1e308", "nan", "ñandú", "Ω", std::string(200, '9'), "1.2.3", " ", "inf"};
    return casos[static_cast<std::size_t>(Dado(static_cast<int>(casos.size())))];
  }

  // What makes a save likely now and then.
  void Sensato() {
    for (const auto& [campo, texto] :
         std::vector<std::pair<Ed, std::string>>{{Ed::edAlt1, "3"},
                                                 {Ed::edAlt2, "3"},
                                                 {Ed::edDi0, "1"},
                                                 {Ed::edEsp0, "12"},
                                                 {Ed::edReci0, "3"},
                                                 {Ed::edRece0, "3"},
                                                 {Ed::edB0, "2"},
                                                 {Ed::edGr0, "2"},
                                                 {Ed::edHr0, "2"},
                                                 {Ed::edHr0Final, "2"},
                                                 {Ed::edFYKPost, "210"}}) {
      b_.Teclea(campo, texto);
    }
    Cambia(b_.c, Ed::edObra, "obra");
    Cambia(b_.c, Ed::edCliente, "cliente");
    Cambia(b_.c, Ed::edDescriTramo, "descripción");
    Sale(b_.c, Ed::edDescriTramo);
  }

  void Accion() {
    switch (Dado(6)) {
      case 0:
        NuevoTramo(b_.c);
        break;
      case 1:
        CancelaCaptura(b_.c);
        break;
      case 2:
        AccionGrabaObra(b_.c);
        break;
      case 3:
        EligePaginaTipologia(b_.c, Dado(2));
        break;
      case 4:
        Cambia(b_.c, Ed::edTramo, std::to_string(Dado(5)));
        Sale(b_.c, Ed::edTramo);
        break;
      default:
        if (Dado(2)) Sensato();
        b_.voz.responde = true;
        Graba();
        break;
    }
  }

  // Mends the field that the refusal names, as a person would.
  void Corrige(Ed campo) {
    const bool incremento = campo == Ed::edPrs3 || campo == Ed::edPrs3Tram || campo == Ed::edAlt3 ||
                            campo == Ed::edHr0Delta;
    const bool dp = campo == Ed::edPrs1 || campo == Ed::edPrs2;
    if (Fila(campo).clase == Clase::Lista) {
      b_.Escoge(campo, 1);
    } else {
      b_.Teclea(campo, incremento ? "0,1" : dp ? "0" : "30");
    }
  }

  void Graba() {
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

  void Comprueba() {
    for (const auto& fila : TablaCampos()) {
      if (fila.clase != Clase::Numero) continue;
      const double valor = Variable(b_.c, fila.id);
      ASSERT_TRUE(std::isfinite(valor) && std::fabs(valor) < 1e12) << fila.nombre << " " << valor;
    }
    ASSERT_TRUE(std::isfinite(b_.e.corrida.Q) && std::isfinite(b_.e.corrida.QTerraplen));
    const auto& lista = b_.c[Ed::edTramo].entradas;
    ASSERT_EQ(lista.size(), b_.c.lista.size());
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
