// Every numbered step of the two validations, reached once: texts in, message and focus out.
#include <gtest/gtest.h>

#include <functional>

#include "base/textos.h"
#include "sesion/captura/guion.h"
#include "sesion/captura/mdGeometria.h"
#include "sesion/captura/mdTipologias.h"
#include "sesion/captura/mdValidaObra.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin::prueba {
namespace {

struct Paso {
  const char* nombre;
  std::function<void(Banco&)> prepara;
  std::string mensaje;
  std::string titulo;
  Ed foco;
};

std::string NombreDe(const testing::TestParamInfo<Paso>& p) {
  return p.param.nombre;
}

// ---------------------------------------------------------------------------------------------

class FallaObra : public testing::TestWithParam<Paso> {};

TEST_P(FallaObra, ConSuMensajeYSuFoco) {
  Banco b;
  const auto& p = GetParam();
  p.prepara(b);
  b.Olvida();
  EXPECT_FALSE(ValidaObra(b.c));
  ASSERT_EQ(b.voz.mensajes.size(), 1U);
  EXPECT_EQ(b.voz.Ultimo(), p.mensaje);
  EXPECT_EQ(b.voz.Titulo(), p.titulo);
  EXPECT_EQ(b.voz.foco, p.foco);
  EXPECT_EQ(b.c.pantalla.pagina.TabPrincipal, 0);
  EXPECT_FALSE(b.c[p.foco].bloqueado);
  ASSERT_TRUE(b.c.falta);
}

const std::string kValor = "Valor incorrecto";
const std::string kNoNumero = "Seleccione un valor númerico ";
const std::string kMDP = "La presión MDP no puede ser inferior a la DP";

INSTANTIATE_TEST_SUITE_P(
    Pasos, FallaObra,
    testing::Values(Paso{"P01", [](Banco& b) { b.Pon(Ed::edPrs1, "-1"); }, kValor,
                         "Presión inicial", Ed::edPrs1},
                    Paso{"P02", [](Banco& b) { b.Pon(Ed::edPrs2, "a"); }, kNoNumero,
                         "Presión final", Ed::edPrs2},
                    Paso{"P03", [](Banco& b) { b.Pon(Ed::edPrs3, "-1"); }, kValor,
                         "Incremento de Presión", Ed::edPrs3},
                    Paso{"P04", [](Banco& b) { b.Pon(Ed::edPrsM1, "-1"); }, kValor,
                         "Presión MDP inicial", Ed::edPrsM1},
                    Paso{"P05", [](Banco& b) { b.Pon(Ed::edPrsM2, "1e3"); }, kNoNumero,
                         "Presión MDP final", Ed::edPrsM2},
                    Paso{"P06", [](Banco& b) { b.Pon(Ed::edPrsM1, "-0,00000000001"); },
                         "No ha capturado la Presión MDP Inicial", "ERROR:", Ed::edPrsM1},
                    Paso{"P08",
                         [](Banco& b) {
                           b.Pon(Ed::edPrs1, "11");
                           b.Pon(Ed::edPrsM1, "10");
                         },
                         kMDP, "", Ed::edPrs1},
                    Paso{"P09",
                         [](Banco& b) {
                           b.Pon(Ed::edPrs2, "11");
                           b.Pon(Ed::edPrsM1, "10");
                         },
                         kMDP, "", Ed::edPrs2},
                    Paso{"P10",
                         [](Banco& b) {
                           b.Pon(Ed::edPrsM1, "10");
                           b.Pon(Ed::edPrsM2, "10");
                           b.Pon(Ed::edPrs3, "1");
                           b.e.obra.Prs3 = 1;  // the increment is what its editing stored
                         },
                         "Debe seleccionar un Incremento de Presión", "", Ed::edPrs3},
                    Paso{"P11",
                         [](Banco& b) {
                           b.Pon(Ed::edPrsM1, "10");
                           b.Pon(Ed::edPrsM2, "16");
                           b.Pon(Ed::edPrs3, "5");
                           b.e.obra.Prs3 = 0.005;
                         },
                         "Debe seleccionar un Incremento de Presión superior a 0", "", Ed::edPrs3},
                    Paso{"P13", [](Banco& b) { b.Pon(Ed::edAlt1, "0"); }, kValor,
                         "Altura de tierras inicial", Ed::edAlt1},
                    Paso{"P14", [](Banco& b) { b.Pon(Ed::edAlt1, "0,5"); },
                         "La altura de tierra no puede ser inferior a 1 m.", "", Ed::edAlt1},
                    Paso{"P14EnBlanco", [](Banco& b) { b.Pon(Ed::edAlt1, ""); },
                         "La altura de tierra no puede ser inferior a 1 m.", "", Ed::edAlt1},
                    Paso{"P15", [](Banco& b) { b.Pon(Ed::edAlt2, "0"); }, kValor,
                         "Altura de tierras final", Ed::edAlt2},
                    Paso{"P16", [](Banco& b) { b.Pon(Ed::edAlt2, "4"); }, kValor,
                         "Incremento de Altura de tierras", Ed::edAlt3}),
    NombreDe);

TEST(ValidaObra, CompletaLoQueNadieTeclea) {
  Banco b;
  EXPECT_TRUE(ValidaObra(b.c));  // no MDP at all is accepted
  EXPECT_EQ(b.e.obra.PrsM2, 0.0);
  EXPECT_EQ(b.e.obra.Alt2, 3.0);
  EXPECT_EQ(b.c[Ed::edAlt2].texto, "3,00");

  b.e.obra.PrsM1 = 10;  // what an earlier edit left, before step 4 reads the field
  b.Pon(Ed::edPrsM1, "10");
  b.Pon(Ed::edPrs1, "");
  b.Pon(Ed::edPrsM2, "");
  b.Pon(Ed::edPrs3, "");
  EXPECT_TRUE(ValidaObra(b.c));
  EXPECT_DOUBLE_EQ(b.e.obra.Prs1, 10 / 1.1);
  EXPECT_EQ(b.c[Ed::edPrs1].texto, "9,09");
  EXPECT_EQ(b.e.obra.PrsM2, 10.0);
}

TEST(ValidaObra, LoQueSoloMiraLaEdicionPasaAqui) {
  Banco b;
  b.Pon(Ed::edPrsM1, "10");  // a final MDP below the initial one
  b.Pon(Ed::edPrsM2, "6");
  b.Pon(Ed::edPrs3, "0,01");
  b.e.obra.Prs3 = 0.01;
  b.Pon(Ed::edAlt2, "2");  // and a final height
  EXPECT_TRUE(ValidaObra(b.c)) << b.voz.Ultimo();
  EXPECT_EQ(b.e.obra.Alt3, 0.0);
}

// ---------------------------------------------------------------------------------------------

class FallaTramo : public testing::TestWithParam<Paso> {};

TEST_P(FallaTramo, ConSuMensajeYSuFoco) {
  Banco b;
  const auto& p = GetParam();
  b.TramoValido();
  p.prepara(b);
  b.Olvida();
  b.c.pantalla.pagina = {0, b.c.pantalla.pagina.TabTipologia, 0, 0};
  EXPECT_FALSE(ValidaTramo(b.c, true));
  ASSERT_EQ(b.voz.mensajes.size(), 1U);
  EXPECT_EQ(b.voz.Ultimo(), p.mensaje);
  EXPECT_EQ(b.voz.Titulo(), p.titulo);
  EXPECT_EQ(b.voz.foco, p.foco);
  const auto& pagina = Fila(p.foco).pagina;
  EXPECT_EQ(b.c.pantalla.pagina.TabPrincipal, pagina.TabPrincipal);
  if (pagina.TabPostesados >= 0) {
    EXPECT_EQ(b.c.pantalla.pagina.TabPostesados, pagina.TabPostesados);
  }

  // In the silent manner the same message, and nothing moves.
  const auto antes = b.c.pantalla.pagina;
  b.Olvida();
  EXPECT_FALSE(ValidaTramo(b.c, false));
  EXPECT_EQ(b.voz.Ultimo(), p.mensaje);
  EXPECT_FALSE(b.voz.foco);
  EXPECT_EQ(b.c.pantalla.pagina, antes);
}

Paso Numero(const char* nombre, Ed campo, const std::string& texto, const std::string& titulo,
            Ed foco) {
  return {nombre, [=](Banco& b) { b.Pon(campo, texto); },
          texto.find_first_not_of("-0123456789,") == std::string::npos ? kValor : kNoNumero, titulo,
          foco};
}
Paso Numero(const char* nombre, Ed campo, const std::string& texto, const std::string& titulo) {
  return Numero(nombre, campo, texto, titulo, campo);
}
// A text in a post-tensioned Tramo that is otherwise whole.
Paso Postesado(const char* nombre, Ed campo, const std::string& titulo, Ed foco) {
  return {nombre,
          [=](Banco& b) {
            EligePaginaTipologia(b.c, 1);
            b.Pon(Ed::edFYKPost, "210");
            b.Pon(campo, "0");
          },
          kValor, titulo, foco};
}
Paso Postesado(const char* nombre, Ed campo, const std::string& titulo) {
  return Postesado(nombre, campo, titulo, campo);
}
Paso Otro(const char* nombre, Ed campo, std::function<void(Banco&)> prepara,
          const std::string& mensaje, const std::string& titulo) {
  return {nombre, std::move(prepara), mensaje, titulo, campo};
}

INSTANTIATE_TEST_SUITE_P(
    Cabecera, FallaTramo,
    testing::Values(
        Otro(
            "P0_1", Ed::edTramo, [](Banco& b) { b.Pon(Ed::edTramo, " "); },
            "No tiene número de Tramo", "ERROR:"),
        Numero("P0_3", Ed::edPrs1Tram, "-1", "Presión inicial"),
        Numero("P0_4_FocoEnElPrimero", Ed::edPrs2Tram, "x", "Presión final", Ed::edPrs1Tram),
        Numero("P0_5", Ed::edPrs2Tram, "1", "Incremento de Presión", Ed::edPrs3Tram),
        Numero("P0_6", Ed::edPrsM1Tram, "-1", "Presión MDP inicial"),
        Numero("P0_7_FocoEnElPrimero", Ed::edPrsM2Tram, "x", "Presión MDP final", Ed::edPrsM1Tram),
        Otro(
            "P0_8", Ed::edPrsM1Tram,
            [](Banco& b) {
              b.Pon(Ed::edPrsM1Tram, "2");
              b.Pon(Ed::edPrsM2Tram, "1");
            },
            "Presión Final MDP inferior a la Inicial", "")),
    NombreDe);

INSTANTIATE_TEST_SUITE_P(
    Armado, FallaTramo,
    testing::Values(Otro(
                        "P1_1", Ed::edAdato,
                        [](Banco& b) { CambiaMarca(b.c, Ed::edIcontes0, true); }, kValor,
                        "Valor Máximo Armadura Exterior"),
                    Otro(
                        "P1_2", Ed::edTipoControl, [](Banco& b) { b.Pon(Ed::edTipoControl, ""); },
                        "No ha capturado Tipo de Control", "ERROR:"),
                    Otro(
                        "P1_3", Ed::edTipoControl, [](Banco& b) { b.Pon(Ed::edTipoControl, "z"); },
                        kValor, "Tipo de Control"),
                    Otro(
                        "P1_4", Ed::edTipoCamisa, [](Banco& b) { b.Pon(Ed::edTipoCamisa, ""); },
                        "No ha capturado Indicador de Camisa", "ERROR:"),
                    Otro(
                        "P1_5", Ed::edTipoCamisa, [](Banco& b) { b.Pon(Ed::edTipoCamisa, "z"); },
                        "Valor Incorrecto de Indicador de Camisa", "ERROR:"),
                    Numero("P1_7", Ed::edCamMax, "-1", "Espesor Máximo de Camisa"),
                    Numero("P1_8", Ed::edFck, "", "Resist. del hormigón a compresión"),
                    Numero("P1_10a", Ed::edFyk, "0", "Resistencia característica del acero"),
                    Numero("P1_10b", Ed::edFyd, "0", "Resistencia de cálculo del acero")),
    NombreDe);

INSTANTIATE_TEST_SUITE_P(
    Postesado, FallaTramo,
    testing::Values(Otro(
                        "P2_1", Ed::edCoepre1,
                        [](Banco& b) {
                          EligePaginaTipologia(b.c, 1);
                          CambiaMarca(b.c, Ed::edIcontes1, true);
                        },
                        kValor, "Coeficiente de Presión"),
                    Postesado("P2_2", Ed::edDelca, "Espesor máximo (mm.)"),
                    Postesado("P2_3", Ed::edEs, "Mod. Elasticidad Acero"),
                    Postesado("P2_4", Ed::edEp, "Mod. Elasticidad Alambre"),
                    Otro(
                        "P2_5_NadieEntroEnElCampo", Ed::edFYKPost,
                        [](Banco& b) { EligePaginaTipologia(b.c, 1); }, kValor,
                        "Resistencia característica del acero"),
                    Postesado("P2_6", Ed::edFckno, "Resistencia Primario al zunchar"),
                    Postesado("P2_7", Ed::edFckn, "Resistencia Primario al Final"),
                    Otro(
                        "P2_8", Ed::edFckn,
                        [](Banco& b) {
                          EligePaginaTipologia(b.c, 1);
                          b.Pon(Ed::edFYKPost, "210");
                          b.Pon(Ed::edFckn, "29,9");
                        },
                        "Resistencia del Primario al final menor que al zunchar", "ERROR:"),
                    Postesado("P2_9", Ed::edFckr, "Resistencia del revestimiento"),
                    Postesado("P2_10", Ed::edSFck, "Tensión rotura alambre"),
                    Postesado("P2_11", Ed::edSf, "Tensión de tesado"),
                    Postesado("P2_12", Ed::edRel, "Relajación Final (%)"),
                    Postesado("P2_13", Ed::edFic, "Coeficiente fluencia del primario"),
                    Postesado("P2_14", Ed::edFir, "Coeficiente fluencia del revestimiento"),
                    Postesado("P2_15", Ed::edEpsc, "Coeficiente retracción primario")),
    NombreDe);

INSTANTIATE_TEST_SUITE_P(
    Seccion, FallaTramo,
    testing::Values(
        Numero("P3_1", Ed::edDi0, "0", "Diámetro Interior (mts)"),
        Numero("P3_3", Ed::edEsp0, "", "Espesor (cm.)"),
        Numero("P3_6", Ed::edReci0, "", "Recubrimiento Interior (cm.)"),
        Numero("P3_7", Ed::edRece0, "a", "Recubrimiento Exterior (cm.)"),
        Otro(
            "P3_10", Ed::edGc0, [](Banco& b) { b.Pon(Ed::edGc0, "0"); }, kValor,
            "Densidad del material del Tubo (T/m3): 2,5"),
        Otro(
            "P4_1", Ed::edTipoCuna0, [](Banco& b) { b.Pon(Ed::edTipoCuna0, ""); },
            "No ha seleccionado Tipo de Apoyo", "ERROR:"),
        Otro(
            "P4_2", Ed::edTipoCuna0, [](Banco& b) { b.Pon(Ed::edTipoCuna0, "q"); },
            "Valor Incorrecto del Tipo de Apoyo", "ERROR:"),
        Otro(
            "P4_3", Ed::edTipoApoyo0, [](Banco& b) { b.Pon(Ed::edTipoApoyo0, ""); },
            "No ha seleccionado Tipo de Colocación", "ERROR:"),
        Otro(
            "P4_5", Ed::edHr0, [](Banco& b) { b.e.obra.Alt1 = 0; },
            "Debe teclear altura de tierras para toda la Obra o para el tramo en particular", ""),
        Otro(
            "P4_6", Ed::edHr0,
            [](Banco& b) {
              b.e.obra.Alt1 = 0;
              b.e.tramo.Hr0Tramo = 0.5;
            },
            "La altura de tierra no puede ser inferior a 1 m.", ""),
        Otro(
            "P4_7", Ed::edHr0,
            [](Banco& b) {
              b.e.tramo.Hr0Tramo = 3;
              b.e.tramo.Hr0Final = 2;
            },
            "Altura de tierras Final Inferior a la Inicial", ""),
        Otro(
            "P4_8", Ed::edHr0Delta,
            [](Banco& b) {
              b.e.tramo.Hr0Tramo = 3;
              b.e.tramo.Hr0Final = 4;
            },
            "Debe seleccionar un incremento de alturas", ""),
        Otro(
            "P4_8_NoEsNumero", Ed::edHr0Delta,
            [](Banco& b) {
              b.e.tramo.Hr0Tramo = 3;
              b.e.tramo.Hr0Final = 4;
              b.Pon(Ed::edHr0Delta, "z");
            },
            kNoNumero, "Incremento de Altura de tierras"),
        Otro(
            "P4_9", Ed::edB0,
            [](Banco& b) {
              b.c.AnchoZanjaAuto = false;
              b.Pon(Ed::edB0, "");
            },
            kValor, "Ancho de Zanja (mts.)"),
        Numero("P4_10", Ed::edGr0, "0", "Densidad del Terreno"),
        Otro(
            "P4_11", Ed::edFi0, [](Banco& b) { b.Pon(Ed::edFi0, "90,1"); },
            "Angulo de Rozamiento debe estar entre 0º y 90º", "ERROR"),
        Otro(
            "P4_12", Ed::edTipoRelleno0, [](Banco& b) { b.Pon(Ed::edTipoRelleno0, "?"); },
            "Valor Incorrecto del Tipo de Relleno", "ERROR:"),
        Otro(
            "P4_13", Ed::edHr1,
            [](Banco& b) {
              EligeOpcion(b.c, Ed::rdTipoColocacion, 1);
              b.Pon(Ed::edHr1, "3,1");
            },
            "Distancia de la generatriz superior a la superficie,\nmayor que la Altura del "
            "Relleno ",
            "ERROR"),
        Otro(
            "P4_14", Ed::edIAs,
            [](Banco& b) {
              EligeOpcion(b.c, Ed::rdTipoColocacion, 2);
              b.Pon(Ed::edHr1, "100");  // without upper bound in an embankment
              b.Pon(Ed::edIAs, "");
            },
            "No ha seleccionado Razón de Asentamiento", "ERROR:"),
        Numero("P5_1", Ed::edQDato0, "-1", "Carga Vertical Total"),
        Otro(
            "P5_4", Ed::edICar0,
            [](Banco& b) {
              b.Pon(Ed::edQDato0, "0,0005");  // no load given
              b.Pon(Ed::edICar0, "");
            },
            "No ha seleccionado Tipos de Carga Concetrada", "ERROR:")),
    NombreDe);

// ---------------------------------------------------------------------------------------------

TEST(ValidaTramo, CalculaLoQueNadieTeclea) {
  Banco b;
  b.TramoValido();
  b.Pon(Ed::edPrsM1Tram, "10");
  EXPECT_TRUE(ValidaTramo(b.c, true)) << b.voz.Ultimo();
  const auto& t = b.e.tramo;
  EXPECT_EQ(b.c[Ed::edPrs1Tram].texto, "9,09");
  EXPECT_DOUBLE_EQ(t.Prs2Tram, 10 / 1.1);
  EXPECT_EQ(t.PrsM2Tram, 10.0);
  EXPECT_NEAR(t.Fct, 4.815, 0.001);  // 0.45 (35^2)^(1/3)
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
  Banco b;
  b.TramoValido();
  EligeEntrada(b.c, Ed::edTipoApoyo0, 1);
  b.Pon(Ed::edQDato0, "0,05");
  b.Pon(Ed::edICar0, "");
  EXPECT_TRUE(ValidaTramo(b.c, true)) << b.voz.Ultimo();
  const auto& t = b.e.tramo;
  EXPECT_EQ(t.IndCar, 0);
  EXPECT_EQ(t.ICar, 0);
  EXPECT_DOUBLE_EQ(b.e.corrida.Q, 0.05);
  EXPECT_DOUBLE_EQ(b.e.corrida.QTerraplen, t.De * 0.05 / t.B0);  // whatever the width
}

TEST(ValidaTramo, LosLimitesQuePasan) {
  Banco b;
  b.TramoValido();
  b.Pon(Ed::edCamMax, "");
  b.Pon(Ed::edFi0, "90");
  b.Pon(Ed::edTipoControl, "INTENSO");
  b.e.tramo.Hr0Tramo = 0.5;  // below 1 m, in an Obra that has a height
  b.e.tramo.Hr0Final = 0.5;
  b.Pon(Ed::edPrs1Tram, "0,2");
  b.Pon(Ed::edPrs2Tram, "0,1");  // a final DP below the initial one
  EXPECT_TRUE(ValidaTramo(b.c, true)) << b.voz.Ultimo();
  EligeOpcion(b.c, Ed::rdTipoColocacion, 1);
  b.Pon(Ed::edHr1, "0,5");
  EXPECT_TRUE(ValidaTramo(b.c, true)) << b.voz.Ultimo();
  EXPECT_EQ(b.e.tramo.TipoApoyo, 22);
  EXPECT_EQ(b.e.tramo.TipoRelleno, 0);
}

TEST(ValidaTramo, LaRetraccionDelRevestimientoNoSeLee) {
  Banco b;
  b.TramoValido();
  EligePaginaTipologia(b.c, 1);
  b.Pon(Ed::edFYKPost, "210");
  b.Pon(Ed::edEpsr, "cualquier cosa");
  b.Pon(Ed::edFckn, "30");  // as at winding
  b.Pon(Ed::edSf, "");
  b.e.tramo.Fyk = 210;
  EXPECT_TRUE(ValidaTramo(b.c, true)) << b.voz.Ultimo();
  EXPECT_DOUBLE_EQ(b.e.tramo.Epsr, 0.0003);
  EXPECT_DOUBLE_EQ(b.e.tramo.Sf, 0.75 * 1700);
  EXPECT_EQ(b.e.tramo.Fck, 0.0);
  EXPECT_EQ(b.e.tramo.Fyk, 210.0);  // left alone
}

TEST(ValidaTramo, LaTensionDelAceroSePreguntaYNoSeProhibe) {
  Banco b;
  b.TramoValido();
  b.Pon(Ed::edFyd, "140");
  EXPECT_TRUE(ValidaTramo(b.c, true));
  EXPECT_TRUE(b.voz.preguntas.empty());
  b.Pon(Ed::edFyd, "140,1");
  EXPECT_TRUE(ValidaTramo(b.c, true));
  ASSERT_EQ(b.voz.preguntas.size(), 1U);
  EXPECT_EQ(b.voz.preguntas[0].texto,
            "La Tensión de cálculo del acero supera el valor140,000 MPa\n¿ Desea Continuar ?");
  b.voz.responde = false;
  OlvidaCambios(b.c);
  EXPECT_FALSE(ValidaTramo(b.c, true));
  EXPECT_EQ(b.voz.foco, Ed::edFyd);
  EXPECT_TRUE(b.c.EnCambio());
  EXPECT_FALSE(ValidaTramo(b.c, false));
  EXPECT_FALSE(b.c.EnCambio());
  EXPECT_TRUE(b.c.pantalla.Habilitada(Orden::btGrabar));
}

TEST(ValidaTramo, LasDimensionesSePreguntanYEnSilencioNo) {
  Banco b;
  b.TramoValido();
  b.Pon(Ed::edReci0, "5,0");
  b.voz.responde = true;  // wants to change them
  EXPECT_FALSE(ValidaTramo(b.c, true));
  EXPECT_EQ(b.voz.foco, Ed::edDi0);
  ASSERT_EQ(b.voz.preguntas.size(), 1U);
  EXPECT_NE(b.voz.preguntas[0].texto.find("Rec.  Interior: 50,00 Recomendado: 30,00"),
            std::string::npos);
  b.voz.responde = false;
  EXPECT_TRUE(ValidaTramo(b.c, true));
  b.Olvida();
  EXPECT_TRUE(ValidaTramo(b.c, false));
  EXPECT_TRUE(b.voz.preguntas.empty());
}

TEST(ValidaTramo, EnSilencioNoPareceUnaEdicion) {
  Banco b;
  b.TramoValido();
  b.c.TramoEditado = b.c.ObraEditada = true;
  EXPECT_TRUE(ValidaTramo(b.c, true));
  EXPECT_TRUE(b.c.EnCambio());
  EXPECT_TRUE(ValidaTramo(b.c, false));
  EXPECT_FALSE(b.c.EnCambio());
}

TEST(ValidaTramo, ElCoeficienteDelHormigon) {
  Banco b;
  b.TramoValido();
  b.Pon(Ed::edGamaB, "0");
  EXPECT_FALSE(ValidaTramo(b.c, true));
  EXPECT_EQ(b.voz.Titulo(), b.textos.Texto(txt::EtGamaB));
  EXPECT_EQ(b.voz.foco, Ed::edGamaB);
}

TEST(ValidaTramo, SinTipologia) {
  Banco b;
  b.TramoValido();
  b.e.tramo.Tipologia = 1100;  // known to the listings, not to the capture
  EXPECT_FALSE(ValidaTramo(b.c, true));
  EXPECT_EQ(b.voz.Ultimo(), "Sin definir la Tipología");
  EXPECT_EQ(b.c.pantalla.pagina.TabPrincipal, 1);
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

TEST(Geometria, LaBandaQueSeAceptaSinPreguntar) {
  Banco b;
  const auto pregunta = [&](double espMm, double reciMm, double receMm, int tipologia) {
    b.Olvida();
    double esp = espMm / 10, reci = reciMm / 10, rece = receMm / 10;
    RecomendadosGeom(b.c, esp, reci, rece, tipologia, 1.0, ModoGeom::Compara);
    return !b.voz.preguntas.empty();
  };
  EXPECT_FALSE(pregunta(120, 30, 30, 1210));  // the table
  EXPECT_FALSE(pregunta(140, 20, 40, 1210));  // 2 % of the diameter, both ends of the band
  EXPECT_TRUE(pregunta(141, 30, 30, 1210));
  EXPECT_TRUE(pregunta(120, 19, 30, 1210));
  EXPECT_TRUE(pregunta(120, 30, 41, 1210));
  EXPECT_FALSE(pregunta(95, 40, 50, 2221));  // of a lined pipe only the inner cover
  EXPECT_TRUE(pregunta(95, 50, 25, 2221));
}

TEST(Geometria, ElDiametroRellenaYRotula) {
  Banco b;
  b.ObraYTramo();
  EXPECT_EQ(b.Teclea(Ed::edDi0, "1,2"), SalidaCampo::Pasa);
  EXPECT_EQ(b.c[Ed::edEsp0].texto, "13,5");
  EXPECT_EQ(b.c[Ed::edEsp0].etiqueta, "Espesor (cm.) (11 - 16)");  // 11.1 and 15.9
  EXPECT_EQ(b.c[Ed::edReci0].etiqueta, "Recubrim. Interior (cm.) (2 - 4)");
  EXPECT_EQ(b.c[Ed::edDe0].texto, "1,470");
  EXPECT_EQ(b.c[Ed::edB0].texto, "2,738");
  b.Teclea(Ed::edEsp0, "14");
  EXPECT_EQ(b.Teclea(Ed::edDi0, "1,2"), SalidaCampo::Pasa);  // the same: the text stays
  EXPECT_EQ(b.c[Ed::edEsp0].texto, "14,0");
  EXPECT_EQ(b.Teclea(Ed::edEsp0, "14"), SalidaCampo::Pasa);
  EXPECT_DOUBLE_EQ(b.e.tramo.Esp, 14.0);
  // Not commercial: the person may keep it.
  b.voz.responde = true;
  EXPECT_EQ(b.Teclea(Ed::edDi0, "1,25"), SalidaCampo::Queda);
  b.voz.responde = false;
  EXPECT_EQ(b.Teclea(Ed::edDi0, "1,26"), SalidaCampo::Pasa);
  EXPECT_EQ(b.voz.preguntas.back().titulo, "Este Diametro no es Comercial");
  EXPECT_EQ(b.c[Ed::edEsp0].etiqueta, "Espesor (cm.)");
  EXPECT_EQ(b.Teclea(Ed::edRece0, "0"), SalidaCampo::Queda);
}

TEST(Geometria, LasListasRepitenElEspesorYNoElRecubrimientoSeguido) {
  Banco b;
  CargaListasGeom(b.c, 5);
  EXPECT_EQ(b.c[Ed::edEsp0].entradas.size(), static_cast<std::size_t>(b.tablas.NumDiametros()));
  EXPECT_EQ(b.c[Ed::edReci0].entradas, (std::vector<std::string>{"0,0", "3,0"}));
  EXPECT_EQ(b.c[Ed::edDi0].entradas.front(), "0,300");
}

}  // namespace
}  // namespace zorbin::prueba
