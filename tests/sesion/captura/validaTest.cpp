// Every numbered step of the two validations, reached once: texts in, message and focus out.
#include <gtest/gtest.h>

#include "sesion/captura/guion.h"
#include "sesion/captura/mdComprueba.h"
#include "sesion/captura/mdGeometria.h"
#include "sesion/captura/mdPlausibilidad.h"
#include "sesion/captura/mdTipologias.h"
#include "sesion/captura/mdValidaObra.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin::prueba {
namespace {

using enum Ed;

constexpr const char* kValor = nullptr;  // below its least value
constexpr const char* kNoNumero = "Seleccione un valor númerico ";
constexpr const char* kMDP = "La presión MDP no puede ser inferior a la DP";
constexpr const char* kUnMetro = "La altura de tierra no puede ser inferior a 1 m.";

// What stands in the fields, and the refusal that follows.
struct Paso {
  const char* nombre;
  Ed foco;
  const char* titulo;
  std::vector<std::pair<Ed, const char*>> textos;
  const char* mensaje = kValor;
  void (*antes)(Banco&) = nullptr;  // what else the person did

  void Prepara(Banco& b) const {
    if (antes != nullptr) antes(b);
    for (const auto& [campo, texto] : textos) b.Pon(campo, texto);
    b.Olvida();
  }
  // The least value of a field that none has.
  static std::string Minimo(const Banco& b) {
    const std::string texto = b.c.faltas[0].mensaje;
    const bool dicho =
        texto.find("ebe ser") != std::string::npos || texto == "No puede ser negativo";
    return dicho ? texto : "its least value";
  }
  void ExigeFalta(const Banco& b) const {
    ASSERT_FALSE(b.c.faltas.empty());
    EXPECT_EQ(b.c.faltas[0].mensaje, mensaje != nullptr ? mensaje : Minimo(b));
    EXPECT_EQ(b.c.faltas[0].titulo, titulo);
    EXPECT_EQ(b.c.faltas[0].campo, foco);
    EXPECT_FALSE(b.c[foco].falta.empty());
    EXPECT_TRUE(b.voz.mensajes.empty() && b.voz.preguntas.empty());
  }
};

// ---------------------------------------------------------------------------------------------

// clang-format off
const std::vector<Paso> kObra{
    {"P01", edPrs1, "Presión inicial", {{edPrs1, "-1"}}},
    {"P02", edPrs2, "Presión final", {{edPrs2, "a"}}, kNoNumero},
    {"P03", edPrs3, "Incremento de Presión", {{edPrs3, "-1"}}},
    {"P04", edPrsM1, "Presión MDP inicial", {{edPrsM1, "-1"}}},
    {"P05", edPrsM2, "Presión MDP final", {{edPrsM2, "1e3"}}, kNoNumero},
    {"P06", edPrsM1, "ERROR:", {{edPrsM1, "-0,00000000001"}}, "No ha capturado la Presión MDP Inicial"},
    {"P08", edPrs1, "", {{edPrs1, "11"}, {edPrsM1, "10"}}, kMDP},
    {"P09", edPrs2, "", {{edPrs2, "11"}, {edPrsM1, "10"}}, kMDP},
    // The increment is what its editing stored.
    {"P10", edPrs3, "", {{edPrsM1, "10"}, {edPrsM2, "10"}, {edPrs3, "1"}},
     "Debe seleccionar un Incremento de Presión", [](Banco& b) { b.e.obra.Prs3 = 1; }},
    {"P11", edPrs3, "", {{edPrsM1, "10"}, {edPrsM2, "16"}, {edPrs3, "5"}},
     "Debe seleccionar un Incremento de Presión superior a 0", [](Banco& b) { b.e.obra.Prs3 = 0.005; }},
    {"P13", edAlt1, "Altura de tierras inicial", {{edAlt1, "0"}}},
    {"P14", edAlt1, "", {{edAlt1, "0,5"}}, kUnMetro},
    {"P14EnBlanco", edAlt1, "", {{edAlt1, ""}}, kUnMetro},
    {"P15", edAlt2, "Altura de tierras final", {{edAlt2, "0"}}},
    {"P16", edAlt3, "Incremento de Altura de tierras", {{edAlt2, "4"}}}};
// clang-format on

TEST(ValidaObra, CadaFallaConSuMensajeYSuFoco) {
  for (const auto& p : kObra) {
    SCOPED_TRACE(p.nombre);
    Banco b;
    p.Prepara(b);
    EXPECT_FALSE(ValidaObra(b.c));
    p.ExigeFalta(b);
    EXPECT_FALSE(b.c[p.foco].bloqueado);
  }
}

TEST(ValidaObra, CompletaLoQueNadieTeclea) {
  Banco b;
  EXPECT_TRUE(ValidaObra(b.c));  // no MDP at all is accepted
  EXPECT_EQ(b.e.obra.PrsM2, 0.0);
  EXPECT_EQ(b.e.obra.Alt2, 3.0);
  EXPECT_EQ(b.c[edAlt2].texto, "3,00");

  b.e.obra.PrsM1 = 10;  // what an earlier edit left, before step 4 reads the field
  b.Pon({{edPrsM1, "10"}, {edPrs1, ""}, {edPrsM2, ""}, {edPrs3, ""}});
  EXPECT_TRUE(ValidaObra(b.c));
  EXPECT_DOUBLE_EQ(b.e.obra.Prs1, 10 / 1.1);
  EXPECT_EQ(b.c[edPrs1].texto, "9,09");
  EXPECT_EQ(b.e.obra.PrsM2, 10.0);
}

TEST(ValidaObra, LoQueSoloMiraLaEdicionPasaAqui) {
  Banco b;
  b.Pon(edPrsM1, "10");  // a final MDP below the initial one
  b.Pon({{edPrsM2, "6"}, {edPrs3, "0,01"}});
  b.e.obra.Prs3 = 0.01;
  b.Pon(edAlt2, "2");  // and a final height
  EXPECT_TRUE(ValidaObra(b.c)) << b.Porque();
  EXPECT_EQ(b.e.obra.Alt3, 0.0);
}

// ---------------------------------------------------------------------------------------------

// A post-tensioned Tramo that is otherwise whole.
void Postesado(Banco& b) {
  EligeOpcion(b.c, rdTipologia, 1);
  b.Pon(edFYKPost, "210");
}
void AlturasDeTresACuatro(Banco& b) {
  b.e.tramo.Hr0Tramo = 3;
  b.e.tramo.Hr0Final = 4;
}

// clang-format off
const std::vector<Paso> kTramo{
    {"P0_1", edTramo, "ERROR:", {{edTramo, " "}}, "No tiene número de Tramo"},
    {"P0_3", edPrs1Tram, "Presión inicial", {{edPrs1Tram, "-1"}}},
    {"P0_4", edPrs2Tram, "Presión final", {{edPrs2Tram, "x"}}, kNoNumero},
    {"P0_5", edPrs3Tram, "Incremento de Presión", {{edPrs2Tram, "1"}}},
    {"P0_6", edPrsM1Tram, "Presión MDP inicial", {{edPrsM1Tram, "-1"}}},
    {"P0_7", edPrsM2Tram, "Presión MDP final", {{edPrsM2Tram, "x"}}, kNoNumero},
    {"P0_8", edPrsM1Tram, "", {{edPrsM1Tram, "2"}, {edPrsM2Tram, "1"}}, "Presión Final MDP inferior a la Inicial"},

    {"P1_1", edAdato, "Valor Máximo Armadura Exterior", {}, kValor, [](Banco& b) { CambiaMarca(b.c, edIcontes0, true); }},
    {"P1_2", edTipoControl, "ERROR:", {{edTipoControl, ""}}, "No ha capturado Tipo de Control"},
    {"P1_3", edTipoControl, "Tipo de Control", {{edTipoControl, "z"}}, "Valor incorrecto"},
    {"P1_4", edTipoCamisa, "ERROR:", {{edTipoCamisa, ""}}, "No ha capturado Indicador de Camisa"},
    {"P1_5", edTipoCamisa, "ERROR:", {{edTipoCamisa, "z"}}, "Valor Incorrecto de Indicador de Camisa"},
    {"P1_7", edCamMax, "Espesor Máximo de Camisa", {{edCamMax, "-1"}}},
    {"P1_8", edFck, "Resist. del hormigón a compresión", {{edFck, ""}}},
    {"P1_10a", edFyk, "Resistencia característica del acero", {{edFyk, "0"}}},
    {"P1_10b", edFyd, "Resistencia de cálculo del acero", {{edFyd, "0"}}},
    {"P1_11", edGamaB, "Coeficiente Minoración del Hormigón", {{edGamaB, "0"}}},

    {"P2_1", edCoepre1, "Coeficiente de Presión", {}, kValor,
     [](Banco& b) { EligeOpcion(b.c, rdTipologia, 1), CambiaMarca(b.c, edIcontes1, true); }},
    {"P2_2", edDelca, "Espesor máximo (mm.)", {{edDelca, "0"}}, kValor, Postesado},
    {"P2_3", edEs, "Mod. Elasticidad Acero", {{edEs, "0"}}, kValor, Postesado},
    {"P2_4", edEp, "Mod. Elasticidad Alambre", {{edEp, "0"}}, kValor, Postesado},
    {"P2_5", edFYKPost, "Resistencia característica del acero", {{edFYKPost, "0"}}, kValor, Postesado},
    {"P2_6", edFckno, "Resistencia Primario al zunchar", {{edFckno, "0"}}, kValor, Postesado},
    {"P2_7", edFckn, "Resistencia Primario al Final", {{edFckn, "0"}}, kValor, Postesado},
    {"P2_8", edFckn, "ERROR:", {{edFckn, "29,9"}}, "Resistencia del Primario al final menor que al zunchar", Postesado},
    {"P2_9", edFckr, "Resistencia del revestimiento", {{edFckr, "0"}}, kValor, Postesado},
    {"P2_10", edSFck, "Tensión rotura alambre", {{edSFck, "0"}}, kValor, Postesado},
    {"P2_11", edSf, "Tensión de tesado", {{edSf, "0"}}, kValor, Postesado},
    {"P2_12", edRel, "Relajación Final (%)", {{edRel, "0"}}, kValor, Postesado},
    {"P2_13", edFic, "Coeficiente fluencia del primario", {{edFic, "0"}}, kValor, Postesado},
    {"P2_14", edFir, "Coeficiente fluencia del revestimiento", {{edFir, "0"}}, kValor, Postesado},
    {"P2_15", edEpsc, "Coeficiente retracción primario", {{edEpsc, "0"}}, kValor, Postesado},

    {"P3_1", edDi0, "Diámetro Interior (mts)", {{edDi0, "0"}}},
    {"P3_3", edEsp0, "Espesor (cm.)", {{edEsp0, ""}}},
    {"P3_6", edReci0, "Recubrimiento Interior (cm.)", {{edReci0, ""}}},
    {"P3_7", edRece0, "Recubrimiento Exterior (cm.)", {{edRece0, "a"}}, kNoNumero},
    {"P3_10", edGc0, "Densidad del material del Tubo (T/m3): 2,5", {{edGc0, "0"}}},

    {"P4_1", edTipoCuna0, "ERROR:", {{edTipoCuna0, ""}}, "No ha seleccionado Tipo de Apoyo"},
    {"P4_2", edTipoCuna0, "ERROR:", {{edTipoCuna0, "q"}}, "Valor Incorrecto del Tipo de Apoyo"},
    {"P4_3", edTipoApoyo0, "ERROR:", {{edTipoApoyo0, ""}}, "No ha seleccionado Tipo de Colocación"},
    {"P4_5", edHr0, "", {}, "Debe teclear altura de tierras para toda la Obra o para el tramo en particular",
     [](Banco& b) { b.e.obra.Alt1 = 0; }},
    {"P4_6", edHr0, "", {}, kUnMetro, [](Banco& b) { b.e.obra.Alt1 = 0, b.e.tramo.Hr0Tramo = 0.5; }},
    {"P4_7", edHr0, "", {}, "Altura de tierras Final Inferior a la Inicial",
     [](Banco& b) { b.e.tramo.Hr0Tramo = 3, b.e.tramo.Hr0Final = 2; }},
    {"P4_8", edHr0Delta, "", {}, "Debe seleccionar un incremento de alturas", AlturasDeTresACuatro},
    {"P4_8_NoEsNumero", edHr0Delta, "Incremento de Altura de tierras", {{edHr0Delta, "z"}}, kNoNumero, AlturasDeTresACuatro},
    {"P4_MasDe32767", edHr0Delta, "ERROR:", {},
     "el Tramo pasaría de 32767 Casos; aumente el incremento (Incremento de Altura de tierras) o acorte su intervalo",
     [](Banco& b) { b.e.tramo.Hr0Tramo = 3, b.e.tramo.Hr0Final = 4000, b.e.tramo.Hr0Delta = 0.1; }},
    {"P4_9", edB0, "Ancho de Zanja (mts.)", {{edB0, ""}}, kValor, [](Banco& b) { b.c.AnchoZanjaAuto = false; }},
    {"P4_10", edGr0, "Densidad del Terreno", {{edGr0, "0"}}},
    {"P4_11", edFi0, "ERROR", {{edFi0, "90,1"}}, "Angulo de Rozamiento debe estar entre 0º y 90º"},
    {"P4_12", edTipoRelleno0, "ERROR:", {{edTipoRelleno0, "?"}}, "Valor Incorrecto del Tipo de Relleno"},
    {"P4_13", edHr1, "ERROR", {{edHr1, "3,1"}},
     "Distancia de la generatriz superior a la superficie,\nmayor que la Altura del Relleno ",
     [](Banco& b) { EligeOpcion(b.c, rdTipoColocacion, 1); }},
    // In an embankment that distance has no upper bound.
    {"P4_14", edIAs, "ERROR:", {{edHr1, "100"}, {edIAs, ""}}, "No ha seleccionado Razón de Asentamiento",
     [](Banco& b) { EligeOpcion(b.c, rdTipoColocacion, 2); }},
    {"P5_1", edQDato0, "Carga Vertical Total", {{edQDato0, "-1"}}},
    // A load too small to be one.
    {"P5_4", edICar0, "ERROR:", {{edQDato0, "0,0005"}, {edICar0, ""}}, "No ha seleccionado Tipos de Carga Concetrada"}};
// clang-format on

TEST(ValidaTramo, CadaFallaConSuMensajeYSuFoco) {
  for (const auto& p : kTramo) {
    SCOPED_TRACE(p.nombre);
    ConTramo b;
    p.Prepara(b);
    b.c.pantalla.pagina = {0, 1 - b.c.pantalla.pagina.TabTipologia, 0, 0};
    EXPECT_FALSE(ValidaTramo(b.c));
    p.ExigeFalta(b);
    EXPECT_EQ(b.c.pantalla.pagina.TabPrincipal, 0);  // to look is not to go
    LlevaALaFalta(b.c, Falta(b.c.faltas[0]));
    EXPECT_EQ(b.voz.foco, p.foco);
    const auto& pagina = Fila(p.foco).pagina;
    EXPECT_EQ(b.c.pantalla.pagina.TabPrincipal, pagina.TabPrincipal);
    if (pagina.TabPostesados >= 0) {
      EXPECT_EQ(b.c.pantalla.pagina.TabPostesados, pagina.TabPostesados);
    }
  }
}

// With the unit of the field, in the system in force.
TEST(ValidaTramo, UnMinimoSeDiceConSuUnidad) {
  Banco b;
  b.ObraYTramo();
  for (const auto& [campo, teclas, dice] :
       {std::tuple{edHr0, "-1", "negativo"}, {edFyk, "0", "0,001 MPa"}, {edDi0, "0", "0,001 m"}}) {
    b.Teclea(campo, teclas);
    EXPECT_NE(b.Porque().find(dice), std::string::npos) << b.Porque();
    EXPECT_NE(b.c[campo].falta.find(b.Porque()), std::string::npos);
  }
  EligeOpcion(b.c, rdSistemaUnidades, 1);
  b.Teclea(edFyk, "-1");
  EXPECT_NE(b.Porque().find("kp/cm2"), std::string::npos) << b.Porque();
}

// All that is wrong is told at once, each beside its field.
TEST(ValidaTramo, TodasLasFaltasDeUnaVez) {
  ConTramo b;
  b.Pon({{edPrs1Tram, "x"}, {edFck, "0"}, {edGc0, "-1"}, {edTipoCuna0, "q"}, {edQDato0, "y"}});
  EXPECT_FALSE(ValidaTramo(b.c));
  std::vector<Ed> campos;
  for (const auto& f : b.c.faltas) campos.push_back(f.campo);
  EXPECT_EQ(campos, (std::vector<Ed>{edPrs1Tram, edFck, edGc0, edTipoCuna0, edQDato0}));
}

TEST(ValidaTramo, CalculaLoQueNadieTeclea) {
  ConTramo b;
  b.Pon(edPrsM1Tram, "10");
  EXPECT_TRUE(ValidaTramo(b.c)) << b.Porque();
  const auto& t = b.e.tramo;
  EXPECT_EQ(b.c[edPrs1Tram].texto, "9,09");
  EXPECT_DOUBLE_EQ(t.Prs2Tram, 10 / 1.1);
  EXPECT_EQ(t.PrsM2Tram, 10.0);
  EXPECT_NEAR(t.Fct, 2.2349, 1e-4);  // that of 350 kp/cm2, over 10
  EXPECT_DOUBLE_EQ(t.De, t.Di + 2 * t.Esp / 100);
  EXPECT_DOUBLE_EQ(t.B0, 1.4 * t.De + 0.68);  // automatic
  EXPECT_EQ(t.TipoApoyo, 12);
  EXPECT_EQ(t.TipoRelleno, 21);
  EXPECT_EQ(t.ICar, 2);
  EXPECT_EQ(t.IndCar, 1);
  EXPECT_EQ(t.GamaY, 1.0);
  EXPECT_EQ(t.Es, 0.0);
}

TEST(ValidaTramo, LaCargaDadaQuitaLaConcentrada) {
  ConTramo b;
  EligeEntrada(b.c, edTipoApoyo0, 1);
  b.Pon({{edQDato0, "0,05"}, {edICar0, ""}});
  EXPECT_TRUE(ValidaTramo(b.c)) << b.Porque();
  const auto& t = b.e.tramo;
  EXPECT_EQ(t.IndCar, 0);
  EXPECT_EQ(t.ICar, 0);
  EXPECT_DOUBLE_EQ(t.QDato, 0.05);
}

TEST(ValidaTramo, LosLimitesQuePasan) {
  ConTramo b;
  b.Pon({{edCamMax, ""}, {edFi0, "90"}, {edTipoControl, "INTENSO"}});
  b.e.tramo.Hr0Tramo = 0.5;  // below 1 m, in an Obra that has a height
  b.e.tramo.Hr0Final = 0.5;
  b.Pon(edPrs1Tram, "0,2");
  b.Pon(edPrs2Tram, "0,1");  // a final DP below the initial one
  EXPECT_TRUE(ValidaTramo(b.c)) << b.Porque();
  EligeOpcion(b.c, rdTipoColocacion, 1);
  b.Pon(edHr1, "0,5");
  EXPECT_TRUE(ValidaTramo(b.c)) << b.Porque();
  EXPECT_EQ(b.e.tramo.TipoApoyo, 22);
  EXPECT_EQ(b.e.tramo.TipoRelleno, 0);
}

TEST(ValidaTramo, LaRetraccionDelRevestimientoNoSeLee) {
  ConTramo b;
  EligeOpcion(b.c, rdTipologia, 1);
  b.Pon({{edFYKPost, "210"}, {edEpsr, "cualquier cosa"}});
  b.Pon(edFckn, "30");  // as at winding
  b.Pon(edSf, "");
  b.e.tramo.Fyk = 210;
  EXPECT_TRUE(ValidaTramo(b.c)) << b.Porque();
  EXPECT_DOUBLE_EQ(b.e.tramo.Epsr, 0.0003);
  EXPECT_DOUBLE_EQ(b.e.tramo.Sf, 0.75 * 1700);
  EXPECT_EQ(b.e.tramo.Fck, 0.0);
  EXPECT_EQ(b.e.tramo.Fyk, 210.0);  // left alone
}

TEST(ValidaTramo, SinTipologia) {
  ConTramo b;
  b.e.tramo.Tipologia = 1100;  // known to the listings, not to the capture
  EXPECT_FALSE(ValidaTramo(b.c));
  EXPECT_EQ(b.c.faltas.at(0).mensaje, "Sin definir la Tipología");
}

// ---------------------------------------------------------------------------------------------

TEST(Geometria, BuscaElDiametroEnMilimetros) {
  Banco b;
  double esp = 0, reci = 0, rece = 0;
  const auto busca = [&](double di, int tipologia) {
    return RecomendadosGeom(b.c, esp, reci, rece, tipologia, di, ModoGeom::Todo);
  };
  EXPECT_EQ(busca(1.1999999, 1210), kGeomHallado);
  EXPECT_DOUBLE_EQ(reci, 3.0);
  EXPECT_EQ(busca(1.25, 1210), kGeomNoListado);
  EXPECT_EQ(busca(0.3, 1210), kGeomNoSeFabrica);
  EXPECT_EQ(busca(1.2, 9999), kGeomNoListado);  // a typology without group
  EXPECT_EQ(busca(0.9, 2211), kGeomHallado);
  EXPECT_DOUBLE_EQ(rece, 2.5);
  b.tablas.TablaDimensiones.clear();
  EXPECT_EQ(busca(1.2, 1210), kGeomNoListado);
}

TEST(Geometria, LaBandaQueNoSeAvisa) {
  ConTramo b;
  const auto distintas = [&](double espMm, double reciMm, double receMm, std::int16_t tipologia) {
    auto& t = b.e.tramo;
    t.Di = 1.0, t.Tipologia = tipologia;
    t.Esp = espMm / 10, t.Reci = reciMm / 10, t.Rece = receMm / 10;
    return RecomendadasDistintas(b.c).has_value();
  };
  EXPECT_FALSE(distintas(120, 30, 30, 1210));  // the table
  EXPECT_FALSE(distintas(140, 20, 40, 1210));  // 2 % of the diameter, both ends of the band
  EXPECT_TRUE(distintas(141, 30, 30, 1210));
  EXPECT_TRUE(distintas(120, 19, 30, 1210));
  EXPECT_TRUE(distintas(120, 30, 41, 1210));
  EXPECT_FALSE(distintas(95, 40, 50, 2221));  // of a lined pipe only the inner cover
  EXPECT_TRUE(distintas(95, 50, 25, 2221));
}

TEST(Geometria, ElDiametroRellenaRotulaYOfreceElComercial) {
  Banco b;
  b.ObraYTramo();
  EXPECT_EQ(b.Teclea(edDi0, "1,2"), SalidaCampo::Pasa);
  EXPECT_EQ(b.c[edEsp0].texto, "13,5");
  EXPECT_EQ(b.c[edEsp0].etiqueta, "Espesor (cm.) (11 - 16)");  // 11.1 and 15.9
  EXPECT_EQ(b.c[edReci0].etiqueta, "Recubrim. Interior (cm.) (2 - 4)");
  EXPECT_EQ(b.c[edDe0].texto, "1,470");
  EXPECT_EQ(b.c[edB0].texto, "2,738");
  b.Teclea(edEsp0, "14");
  EXPECT_EQ(b.Teclea(edDi0, "1,2"), SalidaCampo::Pasa);  // the same: the text stays
  EXPECT_EQ(b.c[edEsp0].texto, "14,0");
  EXPECT_EQ(b.Teclea(edEsp0, "14"), SalidaCampo::Pasa);
  EXPECT_DOUBLE_EQ(b.e.tramo.Esp, 14.0);
  // Neither another diameter nor another thickness is a question: the page offers those of the
  // table.
  const auto toma = [&](Ed campo) {
    for (const auto& aviso : std::vector(b.c.pantalla.avisos)) {
      if (aviso.campo == campo && !aviso.remedio.empty()) return TomaRemedio(b.c, aviso), true;
    }
    return false;
  };
  EXPECT_FALSE(toma(edDi0));
  EXPECT_EQ(b.Teclea(edDi0, "1,26"), SalidaCampo::Pasa);
  EXPECT_EQ(b.c[edEsp0].etiqueta, "Espesor (cm.)");
  EXPECT_EQ(b.Teclea(edRece0, "0"), SalidaCampo::Queda);
  EXPECT_TRUE(toma(edDi0));
  EXPECT_EQ(b.c[edDi0].texto, "1,300");
  EXPECT_TRUE(b.c.EsComercial);
  b.Teclea(edReci0, "5,0");
  EXPECT_TRUE(toma(edEsp0));
  EXPECT_EQ(b.c[edReci0].texto, "3,0");
  EXPECT_FALSE(toma(edEsp0));
  // One of the table that this typology is not made of is none to offer.
  b.Teclea(edDi0, "0,3");
  ASSERT_TRUE(toma(edDi0));
  EXPECT_TRUE(b.c.EsComercial);
  EXPECT_TRUE(b.voz.preguntas.empty());
}

TEST(Geometria, LasListasRepitenElEspesorYNoElRecubrimientoSeguido) {
  Banco b;
  CargaListasGeom(b.c, 5);
  EXPECT_EQ(b.c[edEsp0].entradas.size(), static_cast<std::size_t>(b.tablas.NumDiametros()));
  EXPECT_EQ(b.c[edReci0].entradas, (std::vector<std::string>{"0,0", "3,0"}));
  EXPECT_EQ(b.c[edDi0].entradas.front(), "0,300");
}

}  // namespace
}  // namespace zorbin::prueba
