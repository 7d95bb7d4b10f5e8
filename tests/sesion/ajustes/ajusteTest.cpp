// The screen of adjustments by its model: opening, rows, direct entry, covers, Casos, the wall.
#include "sesion/ajustes/mdAjuste.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <random>

#include "base/mdNumeros.h"
#include "comun/estadoDeJson.h"
#include "core/mdUnidades.h"
#include "sesion/ajustes/banco.h"
#include "sesion/ajustes/mdPared.h"

namespace zorbin {
namespace {

using enum BotonAjuste;
using prueba::BancoAjustes;

// Tramo 1 of the sample, height 2 m, DP 5 at. By hand, with fyd 1400, lever arm 12 - 2.5 - 2.5 = 7:
//   hypothesis 5 governs; MDP 6, so N = (n + 6·10·1.2/2)·1000:
//     crown   M  51737.48, N 35472.15: 51737.48/9800 + 35472.15/2800 = 17.94796
//     haunch  M -55439.77, N 32139.27: 55439.77/9800 + 32139.27/2800 = 17.13543
//     invert  M  59707.39, N 33325.58: 59707.39/9800 + 33325.58/2800 = 17.99458
//   all in composite tension, so the least inner area stays 15; the mean is 17.69266, and the first
//   entry of the series above it is 18.
//   Outer area of the row of 15: crown 15·(15·9800 - 7·35472.15 - 51737.48)/(51737.48 - 15·9800)
//   = 24.0980, invert 25.0857; haunch, s = 15·9800 - 7·32139.27 - 55439.77 = -133414.64,
//   (sqrt(s² + 4·9800·55439.77·15) - s)/19600 = 18.2607. The largest is 25.09.
TEST(Ajuste, LasFilasDeUnCasoAMano) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  b.Pulsa(btSiguientePresion);
  EXPECT_EQ(b.p().txPresion, "0,50");
  EXPECT_EQ(b.p().rotuloPresion, "DP (MPa)");
  EXPECT_EQ(b.p().txAltura, "2,00");
  EXPECT_EQ(b.Fila(0), "15,00 3,93 16,49 35,42");
  EXPECT_EQ(b.Fila(1), "15,00 0,00 25,09 40,09");
  EXPECT_EQ(b.Fila(2), "16,00 0,00 22,44 38,44");
  EXPECT_EQ(b.Fila(3), "17,00 0,00 20,10 37,10");
  EXPECT_EQ(b.Fila(4), "17,69 0,00 18,61 36,31");
  EXPECT_EQ(b.Fila(5), "18,00 0,00 17,98 35,98");
  EXPECT_EQ(b.Fila(6), "19,00 0,00 16,23 35,23");
  EXPECT_EQ(b.Fila(7), "20,00 0,00 15,78 35,78");
  EXPECT_EQ(b.Fila(8), "0,00 0,00 0,00 0,00");
  EXPECT_EQ(b.p().filas[4].rotulo, "Valor Medio Tanteo");
  EXPECT_EQ(b.p().filas[3].rotulo, "");
  // The result: crown and invert by the inner steel, 18.93, with the outer 16.49:
  // (51737.48/7 + 35472.15·18.93/35.42)/1400 = 18.821; haunch by the outer one.
  EXPECT_EQ(b.Linea(0), "Clave 18,82 18,93");
  EXPECT_EQ(b.Linea(1), "Riñones 16,34 16,49");
  EXPECT_EQ(b.Linea(2), "Solera 18,81 18,93");
  EligeFila(*b.a, 7);
  EXPECT_EQ(b.Linea(1), "Riñones 15,78 15,78");  // the haunch decides: just enough
  EXPECT_EQ(b.a->t.comprobacion.LineaQueRige(), 1);
  EXPECT_EQ(b.p().titulo, "         Ajuste de Armaduras");
}

TEST(Ajuste, EnMksSonLasMismasAreas) {
  BancoAjustes si;
  ASSERT_TRUE(si.Abre());
  BancoAjustes mks;
  {
    const auto e = pruebas::EnMks(pruebas::EstadoDeMuestra(1));
    FicheroRegistros& f = *mks.c.fichero;
    EscribeObra(f, e, {"1"}, mks.textos, ',');
    EscribeTramo(f, e, {"1"}, 1, ',');
  }
  ASSERT_TRUE(AbreObra(mks.c, mks.obra));
  mks.Teclea(Ed::edTramo, "1");
  ASSERT_TRUE(mks.Abre());
  EXPECT_EQ(mks.p().rotuloPresion, "DP (at)");
  EXPECT_EQ(mks.p().txPresion, "4,00");
  EXPECT_EQ(mks.p().tbPRSaCalcular, si.p().tbPRSaCalcular);
  for (int i = 0; i <= 8; ++i) EXPECT_EQ(mks.Fila(i), si.Fila(i)) << i;
}

// ---- Opening

TEST(Ajuste, SoloSeAbreSobreUnTramoArmadoYGrabado) {
  BancoAjustes b;
  b.Teclea(Ed::edGr0, "1,95");
  EXPECT_TRUE(b.Abre());  // it saves first
  EXPECT_FALSE(b.c.EnCambio());
  b.a.reset();
  b.Teclea(Ed::edFck, "0");
  EXPECT_FALSE(b.Abre());
  EXPECT_EQ(b.voz.foco, Ed::edFck);
  EXPECT_TRUE(b.voz.mensajes.empty() && b.voz.preguntas.empty());

  BancoAjustes postesado("6");
  EXPECT_FALSE(postesado.Abre());
  BancoAjustes nueva;
  NuevaObra(nueva.c);
  nueva.TramoValido();
  EXPECT_FALSE(nueva.Abre());
  EXPECT_EQ(nueva.voz.ficherosPedidos, 1);
  nueva.voz.fichero = (nueva.carpeta / "otra.zrb").string();
  EXPECT_TRUE(nueva.Abre());
}

TEST(Ajuste, UnFicheroDeAjustesRotoUOcupadoSeDiceYNoSeAbre) {
  BancoAjustes b;
  {
    const FicheroDpe otro(RutaDpe(b.obra), ',');
    EXPECT_FALSE(b.Abre());
    EXPECT_NE(b.voz.Ultimo().find("otro programa"), std::string::npos) << b.voz.Ultimo();
  }
  EXPECT_TRUE(b.Abre());
  EXPECT_THROW(FicheroDpe(RutaDpe(b.obra), ','), ErrorFichero);  // as long as the screen is there
  b.Pulsa(btSalir);
  std::ofstream(RutaDpe(b.obra)) << "roto";
  EXPECT_FALSE(b.Abre());
  EXPECT_NE(b.voz.Ultimo().find("o.dpe: registro 1"), std::string::npos) << b.voz.Ultimo();
  EXPECT_TRUE(b.c.ObraCargada);
}

TEST(Ajuste, SinCerrojosSeAbreYSeDice) {
  BancoAjustes b;
  b.a = AjustaArmaduras(b.c, b.registros, [](int, int) { return errno = EOPNOTSUPP, -1; });
  ASSERT_NE(b.a, nullptr);
  EXPECT_NE(b.p().aviso.find("o.dpe"), std::string::npos);
}

TEST(Ajuste, LaCapturaQuedaComoEstaba) {
  BancoAjustes b;
  const auto antes = b.e;
  ASSERT_TRUE(b.Abre());
  b.Pulsa(btSiguienteAltura);
  b.Pulsa(btSalir);
  EXPECT_EQ(b.a, nullptr);
  EXPECT_EQ(b.e.tramo.Esp, antes.tramo.Esp);
  EXPECT_EQ(b.e.tramo.Fck, antes.tramo.Fck);
  EXPECT_EQ(b.e.tramo.Hr1, antes.tramo.Hr1);
  EXPECT_EQ(b.e.obra.Prs1, antes.obra.Prs1);
  EXPECT_FALSE(b.c.EnCambio());
}

// ---- Choosing

std::string Habilitados(const ModeloAjustes& p) {
  std::string s;
  for (const auto& boton : p.botones) s += boton.habilitado ? '1' : '0';
  for (const auto& fila : p.filas) s += fila.habilitada ? 'o' : '-';
  for (const bool abierto : p.abiertos) s += abierto ? 'a' : '.';
  return s;
}

// Buttons in the order of their list, then the nine options, then the five fields.
TEST(Ajuste, LosTresEstadosDeLosBotones) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  const std::string libre = "111110010011111";
  const std::string filas = "o--oooooo";  // the series has nothing from 15 down for two rows
  EXPECT_EQ(Habilitados(b.p()), libre + filas + ".....");
  EligeFila(*b.a, kFilaDirecta);
  EXPECT_EQ(Habilitados(b.p()), "000001100000000--------oaaa..");
  EXPECT_EQ(b.p().opcion, kFilaDirecta);
  EXPECT_FALSE(PuedeCerrar(*b.a));
  b.Pulsa(btGuardar);  // disabled: nothing happens
  EXPECT_TRUE(b.Guardados().empty());
  b.Pulsa(btAnulaSeleccionDirecta);
  EXPECT_EQ(Habilitados(b.p()), libre + filas + ".....");
  b.Pulsa(btCambiarRecubrimientos);
  EXPECT_EQ(Habilitados(b.p()), "000000001100000---------...aa");
  EXPECT_TRUE(b.p().tbAvisoVisible);
  b.Pulsa(btAnularRecubrimientos);
  EXPECT_EQ(Habilitados(b.p()), libre + filas + ".....");
  EXPECT_FALSE(b.p().tbAvisoVisible);
  EligeFila(*b.a, 1);  // a row without entry
  EXPECT_EQ(b.p().opcion, 0);

  BancoAjustes unaAltura("5");
  ASSERT_TRUE(unaAltura.Abre());
  EXPECT_EQ(Habilitados(unaAltura.p()).substr(0, 15), "111110010010011");
}

TEST(Ajuste, LaSeleccionDirectaPideInteriorYExterior) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  b.Directa("0", "", "20");
  EXPECT_EQ(b.voz.Ultimo(), "Armadura Interior igual a 0");
  EXPECT_EQ(b.voz.Titulo(), "AVISO");
  EXPECT_EQ(b.p().estado, EstadoAjuste::Directa);
  b.Escribe(CampoAjuste::txArmRefuerzo, "5");
  b.Escribe(CampoAjuste::txArmExterior, "0,004");  // which is 0.00 where it is shown and stored
  b.Pulsa(btSeleccionDirecta);
  EXPECT_EQ(b.voz.Ultimo(), "Armadura Exterior igual a 0");
  b.Olvida();
  for (const char* malo : {"doce", "-1", "1e3", "99999999999"}) {
    EXPECT_FALSE(b.Escribe(CampoAjuste::txArmCamisa, malo)) << malo;
    EXPECT_EQ(b.p().Texto(CampoAjuste::txArmCamisa), "0,00") << malo;
  }
  EXPECT_EQ(b.voz.Titulo(), "Camisa Armadura Interior");
  EXPECT_EQ(b.voz.mensajes[0].texto, "Seleccione un valor númerico ");
  EXPECT_EQ(b.voz.mensajes[1].texto, "Valor incorrecto");
  b.Olvida();
  b.Escribe(CampoAjuste::txArmCamisa, "12,006");
  EXPECT_TRUE(b.Escribe(CampoAjuste::txArmExterior, "14"));
  EXPECT_EQ(b.Fila(8), "12,01 5,00 14,00 31,01");
  b.Pulsa(btSeleccionDirecta);
  EXPECT_TRUE(b.voz.mensajes.empty());
  EXPECT_EQ(b.p().opcion, kFilaDirecta);
  EXPECT_EQ(b.p().estado, EstadoAjuste::Libre);
  EXPECT_EQ(b.Linea(0).substr(b.Linea(0).rfind(' ')), " 17,01");
  // Choosing a row drops it; a typed entry that is rejected leaves the row.
  EligeFila(*b.a, 5);
  EXPECT_EQ(b.Fila(8), "0,00 0,00 0,00 0,00");
  EligeFila(*b.a, kFilaDirecta);
  b.Escribe(CampoAjuste::txArmCamisa, "40");
  b.Pulsa(btAnulaSeleccionDirecta);
  EXPECT_EQ(b.p().opcion, 5);
  EXPECT_EQ(b.a->t.Disp.Camisa, 16);
  EXPECT_EQ(b.Fila(8), "0,00 0,00 0,00 0,00");
}

TEST(Ajuste, UnaSeccionQueNoLlegaSeMarca) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  b.Directa("10", "0", "20");
  EXPECT_TRUE(b.p().lineas[0].imAlerta);
  EXPECT_FALSE(b.p().lineas[1].imAlerta);
  EXPECT_NE(b.p().lineas[0].consejo.find("se disponen 10,00"), std::string::npos);
  EXPECT_EQ(b.a->t.comprobacion.LineaQueRige(), 2);
}

TEST(Ajuste, ElValorMedioSeMueveConLoElegido) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  b.Pulsa(btSiguientePresion);
  EligeFila(*b.a, 2);
  const auto elegida = b.Fila(2).substr(0, 5);
  b.Pulsa(btSubirValorMedio);
  EXPECT_EQ(b.a->t.FilaTanteo, 3);
  EXPECT_EQ(b.p().opcion, 1);
  EXPECT_EQ(b.Fila(1).substr(0, 5), elegida);
  EXPECT_EQ(b.p().filas[3].rotulo, "Valor Medio Tanteo");
  EXPECT_EQ(b.Fila(3).substr(0, 5), "17,69");
  b.Pulsa(btSubirValorMedio);
  EXPECT_EQ(b.voz.Ultimo(), "La armadura seleccionada esta en la primera fila");
  EXPECT_EQ(b.a->t.FilaTanteo, 3);
  EligeFila(*b.a, 0);
  b.Pulsa(btSubirValorMedio);
  b.Pulsa(btSubirValorMedio);
  EXPECT_EQ(b.a->t.FilaTanteo, 1);
  EXPECT_EQ(b.p().opcion, 0);  // the result never moves
  b.Pulsa(btSubirValorMedio);
  EXPECT_EQ(b.voz.Ultimo(), "Esta en la primera fila");
  EligeFila(*b.a, 7);
  b.Pulsa(btBajarValorMedio);
  EXPECT_EQ(b.voz.Ultimo(), "La armadura seleccionada esta en la ultima fila");
  EligeFila(*b.a, 0);
  for (int i = 0; i < 6; ++i) b.Pulsa(btBajarValorMedio);
  EXPECT_EQ(b.a->t.FilaTanteo, 7);
  b.Pulsa(btBajarValorMedio);
  EXPECT_EQ(b.voz.Ultimo(), "Esta en la ultima fila");
}

// A direct entry does not hold the mean value back, whatever row was chosen before it.
TEST(Ajuste, ConSeleccionDirectaElValorMedioSeMueveSinEstorbo) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  b.Pulsa(btSiguientePresion);
  EligeFila(*b.a, 1);
  b.Directa("20", "0", "18");
  b.Pulsa(btSubirValorMedio);
  EXPECT_TRUE(b.voz.mensajes.empty());
  EXPECT_EQ(b.a->t.FilaTanteo, 3);
  EXPECT_EQ(b.a->t.Disp.Camisa, 20);
  EligeFila(*b.a, kFilaDirecta);
  b.Pulsa(btAnulaSeleccionDirecta);
  EXPECT_EQ(b.p().opcion, 0);  // the row it came from is no longer there
}

// ---- Covers

TEST(Ajuste, OtrosRecubrimientosCambianLasFilasYNadaMas) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  const auto fila4 = b.Fila(4);
  const auto fila0 = b.Fila(0);
  EXPECT_EQ(b.p().txRecInterior, "2,5");
  b.Pulsa(btCambiarRecubrimientos);
  EXPECT_TRUE(b.Escribe(CampoAjuste::txRecInterior, "3"));
  b.Pulsa(btAceptarRecubrimientos);
  EXPECT_EQ(b.p().estado, EstadoAjuste::Libre);
  EXPECT_EQ(b.p().txRecInterior, "3,0");
  // Lever arm 6.5: M/(6.5·1400) + N/2800 at each section; the mean grows from 15.12 to 15.56.
  EXPECT_EQ(b.Fila(4).substr(0, 5), "15,56");
  EXPECT_EQ(b.Fila(0), fila0);
  EXPECT_EQ(ParedElegida(*b.a).Reci, 3);
  // What the screen shows is what is stored, and nothing of the covers.
  EligeFila(*b.a, 4);
  const double exterior = b.a->t.Disp.Exterior;
  b.Pulsa(btAceptarAjuste);
  ASSERT_EQ(b.a, nullptr);
  EXPECT_EQ(b.Guardados().at(0).areas.Camisa, 15.56);
  EXPECT_EQ(b.Guardados().at(0).areas.Exterior, exterior);
  ASSERT_TRUE(b.Abre());
  EXPECT_EQ(b.Fila(4), fila4);
  EXPECT_EQ(b.p().opcion, kFilaDirecta);  // with the covers of the Tramo no row has those areas
  b.Pulsa(btCambiarRecubrimientos);
  b.Escribe(CampoAjuste::txRecExterior, "4");
  b.Pulsa(btAceptarRecubrimientos);
  EXPECT_NE(b.Fila(4), fila4);
  b.Pulsa(btRecubrimientosOrigen);
  EXPECT_EQ(b.Fila(4), fila4);
  EXPECT_EQ(b.p().txRecExterior, "2,5");
}

TEST(Ajuste, LosRecubrimientosQueNoValenSeDicen) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  b.Pulsa(btCambiarRecubrimientos);
  EXPECT_FALSE(b.Escribe(CampoAjuste::txRecInterior, "dos"));
  EXPECT_EQ(b.voz.Titulo(), "Recubrimiento Interior (cm.)");
  EXPECT_FALSE(b.Escribe(CampoAjuste::txRecExterior, "-2"));
  EXPECT_EQ(b.voz.Titulo(), "Recubrimiento Exterior (cm.)");
  // A 0 takes the recommended one, 30 mm in the table of the program for a diameter of 1200.
  EXPECT_TRUE(b.Escribe(CampoAjuste::txRecInterior, "0"));
  EXPECT_EQ(b.p().txRecInterior, "3,0");
  EXPECT_TRUE(b.Escribe(CampoAjuste::txRecExterior, "9"));
  b.Pulsa(btAceptarRecubrimientos);
  EXPECT_NE(b.voz.Ultimo().find("12,0 cm"), std::string::npos) << b.voz.Ultimo();
  EXPECT_EQ(b.p().estado, EstadoAjuste::Recubrimientos);
  b.Pulsa(btAnularRecubrimientos);
  EXPECT_FALSE(b.a->t.RecAltActivo);

  BancoAjustes noComercial;
  noComercial.Teclea(Ed::edDi0, "1,234");
  ASSERT_TRUE(noComercial.Abre());
  noComercial.Olvida();
  noComercial.Pulsa(btCambiarRecubrimientos);
  EXPECT_FALSE(noComercial.Escribe(CampoAjuste::txRecInterior, "0"));
  EXPECT_EQ(noComercial.voz.Ultimo(), "Valor incorrecto");
}

// A row that the new covers take off the list cannot stay chosen with nothing in it.
TEST(Ajuste, UnaFilaQueDesapareceVuelveAlResultado) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  b.Pulsa(btSiguientePresion);
  EligeFila(*b.a, 1);
  b.Pulsa(btCambiarRecubrimientos);
  b.Escribe(CampoAjuste::txRecInterior, "1");
  b.Escribe(CampoAjuste::txRecExterior, "1");
  b.Pulsa(btAceptarRecubrimientos);
  ASSERT_FALSE(b.p().filas[1].utilizable);
  EXPECT_EQ(b.p().opcion, 0);
  EXPECT_GT(b.a->t.Disp.Camisa, 0);
}

// ---- Walking over the Casos

TEST(Ajuste, SeRecorrenLasAlturasYLasPresiones) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  const auto esta = [&] { return b.p().tbHRaCalcular + "/" + b.p().tbPRSaCalcular; };
  b.Pulsa(btAnteriorAltura);
  EXPECT_EQ(b.voz.Ultimo(), "No hay mas alturas");
  EXPECT_EQ(b.voz.Titulo(), "AVISO");
  b.Pulsa(btAnteriorPresion);
  EXPECT_EQ(b.voz.Ultimo(), "No hay mas presiones");
  b.Olvida();
  b.Pulsa(btSiguienteAltura);
  b.Pulsa(btSiguientePresion);
  EXPECT_EQ(esta(), "3/5");
  b.Pulsa(btSiguienteAltura);
  b.Pulsa(btSiguientePresion);
  EXPECT_EQ(esta(), "4/6");
  EXPECT_TRUE(b.voz.mensajes.empty());
  b.Pulsa(btSiguienteAltura);
  EXPECT_EQ(b.voz.Ultimo(), "No hay mas alturas");
  b.Pulsa(btSiguientePresion);
  EXPECT_EQ(b.voz.Ultimo(), "No hay mas presiones");
  b.Pulsa(btAnteriorAltura);
  b.Pulsa(btAnteriorPresion);
  EXPECT_EQ(esta(), "3/5");
  EXPECT_FALSE(b.a->t.fila.ajustado);
}

// The step is that of the run: for a Tramo with pressures of its own, its own. 0.3 to 0.5 MPa in
// steps of MDP of 0.22 over a slope of 1.1.
TEST(Ajuste, ElPasoDePresionEsElDelTramo) {
  BancoAjustes b("3");
  ASSERT_TRUE(b.Abre());
  EXPECT_EQ(b.p().tbPRSaCalcular, "3");
  b.Pulsa(btSiguientePresion);
  EXPECT_EQ(b.p().txPresion, "0,50");
  b.Pulsa(btSiguientePresion);
  EXPECT_EQ(b.voz.Ultimo(), "No hay mas presiones");
  b.Pulsa(btAnteriorPresion);
  EXPECT_EQ(b.p().tbPRSaCalcular, "3");
}

// 2, 2.1 … 2.5 in steps that binary fractions overshoot; and a last height that a step lands on.
TEST(Ajuste, LasAlturasSonLasDeLaCorrida) {
  EXPECT_EQ(AlturaAnterior(5.005, 1, 2), 4.0);
  EXPECT_EQ(AlturaAnterior(4.0, 1, 2), 3.0);
  EXPECT_EQ(AlturaAnterior(2.0, 1, 2), std::nullopt);
  EXPECT_EQ(AlturaAnterior(3.0, 0, 2), std::nullopt);
  BancoAjustes b;
  b.Teclea(Ed::edHr0, "2");
  b.Teclea(Ed::edHr0Final, "2,5");
  b.Teclea(Ed::edHr0Delta, "0,1");
  ASSERT_TRUE(b.Abre()) << b.voz.Ultimo();
  b.Olvida();
  for (int i = 0; i < 5; ++i) b.Pulsa(btSiguienteAltura);
  EXPECT_TRUE(b.voz.mensajes.empty());
  EXPECT_EQ(b.p().tbHRaCalcular, "2,5");
  b.Pulsa(btSiguienteAltura);
  EXPECT_EQ(b.voz.mensajes.size(), 1u);
  for (int i = 0; i < 5; ++i) b.Pulsa(btAnteriorAltura);
  EXPECT_EQ(b.p().tbHRaCalcular, "2");
  EXPECT_EQ(b.voz.mensajes.size(), 1u);
}

// A pressure that overflows the ring: the Caso is told, the one before stays.
TEST(Ajuste, UnCasoQueNoSePuedeCalcularSeDiceYQuedaElAnterior) {
  BancoAjustes b("2");
  ASSERT_TRUE(b.Abre());
  const auto fila = b.Fila(4);
  EXPECT_FALSE(CalculaunTramoEspecifico(*b.a, 3, 1e308));
  EXPECT_FALSE(b.voz.mensajes.empty());
  EXPECT_EQ(b.voz.Titulo(), "Error en ejecución");
  EXPECT_NE(b.voz.Ultimo().find("o.zrb"), std::string::npos) << b.voz.Ultimo();
  EXPECT_EQ(b.Fila(4), fila);
  EXPECT_EQ(b.p().txAltura, "2,00");
  b.Pulsa(btSiguienteAltura);
  EXPECT_EQ(b.p().txAltura, "3,00");
}

TEST(Ajuste, EnTraccionPuraSeAvisaYSeComparanLasCaras) {
  BancoAjustes b("2");
  ASSERT_TRUE(b.Abre());
  EXPECT_FALSE(b.p().edAvisoCalderaVisible);
  b.Pulsa(btSiguientePresion);
  EXPECT_TRUE(b.p().edAvisoCalderaVisible);
  EXPECT_TRUE(b.p().edAvisoCaldera.starts_with("EL CASO CALCULADO COMO PÉSIMO"));
  // Row 1 of the table, not the bars that another hypothesis left.
  const auto& T = b.a->t.caso.Armado().TablaHip(1);
  EXPECT_EQ(b.a->t.Disp.Camisa, AreaMostrada(T.AsInt));
  EXPECT_EQ(b.Linea(0), "EXTERIOR 15,00 7,86 !");
  EXPECT_EQ(b.Linea(1), "INTERIOR 7,86 15,00");
  EXPECT_EQ(b.Linea(2), "TOTAL 22,86 22,86");
  // What is drawn is what is laid out for them.
  EXPECT_TRUE(ParedElegida(*b.a).delDiseno);
  EXPECT_EQ(ParedElegida(*b.a).CAMISA, 1.5);
  EXPECT_EQ(ParedElegida(*b.a).exteriores.cuenta, 10);  // of 10 mm: 7.854
  b.Pulsa(btAnteriorPresion);
  EXPECT_FALSE(b.p().edAvisoCalderaVisible);
  EXPECT_EQ(b.p().lineas[0].lbPosicion, "Clave");
}

// ---- Drawing

TEST(Ajuste, LaParedAEscala) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  auto p = ParedElegida(*b.a);
  EXPECT_TRUE(p.delDiseno);
  EXPECT_EQ(p.Esp, 12);
  EXPECT_EQ(p.BRAZO(), 7);
  EXPECT_EQ(p.CAMISA, 1.5);
  EXPECT_EQ(p.espiras.cuenta, 5);  // 5 of 8 mm: 2.51 cm2/m
  EXPECT_EQ(p.espiras.diametro, 8);
  EXPECT_EQ(p.exteriores.cuenta, 12);  // 12 of 12 mm: 13.57 cm2/m
  EXPECT_NEAR(p.exteriores.separacion, 100.0 / 12, 1e-12);
  // Of a trial row only the areas are known: the bars are those that make them.
  EligeFila(*b.a, 6);
  p = ParedElegida(*b.a);
  EXPECT_FALSE(p.delDiseno);
  EXPECT_EQ(p.CAMISA, 1.7);
  EXPECT_EQ(p.espiras.cuenta, 0);
  EXPECT_GE(p.exteriores.cuenta * p.exteriores.diametro * p.exteriores.diametro * kPi / 400, 13.56);
}

TEST(Ajuste, UnAreaQueNingunaBarraDaNoSeDibuja) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  b.Directa("1000000", "0", "1000000");
  EXPECT_EQ(b.p().opcion, kFilaDirecta);
  EXPECT_EQ(ParedElegida(*b.a).exteriores.cuenta, 0);
}

// The warnings of a design that nobody would see otherwise: there is no summary here.
TEST(Ajuste, LosAvisosDelDisenoEstanALaVista) {
  BancoAjustes b("4");
  b.Teclea(Ed::edFck, "20");
  b.Teclea(Ed::edHr0, "30");
  b.Teclea(Ed::edHr0Final, "30");
  ASSERT_TRUE(b.Abre()) << b.voz.Ultimo();
  ASSERT_FALSE(b.p().avisosDelCaso.empty());
  EXPECT_NE(b.p().avisosDelCaso[0].find("MOMENTO MAYOR QUE MOMENTO TOPE"), std::string::npos)
      << b.p().avisosDelCaso[0];
}

// ---- Anybody at all

// Buttons, rows and texts in any order: nothing breaks, what is chosen is one of the rows that can
// be, its areas are those on the screen, and the file holds what it says.
TEST(Ajuste, UnaPersonaAlAzar) {
  constexpr std::array<const char*, 9> kTextos{"",   "0",   "2,5", "15",       "31,27",
                                               "-3", "dos", "1e9", "999999999"};
  std::mt19937 azar(20260807);
  const auto hasta = [&azar](int n) { return static_cast<int>(azar() % static_cast<unsigned>(n)); };
  BancoAjustes b;
  int abiertas = 0;
  for (int i = 0; i < 1500; ++i) {
    if (!b.a) {
      b.Teclea(Ed::edTramo, std::to_string(1 + hasta(5)));
      ASSERT_TRUE(b.Abre()) << b.voz.Ultimo();
      ++abiertas;
    }
    switch (hasta(4)) {
      case 0:
        b.Pulsa(static_cast<BotonAjuste>(hasta(kBotonesAjuste)));
        break;
      case 1:
        EligeFila(*b.a, hasta(kFilasAjuste));
        break;
      default:
        b.Escribe(static_cast<CampoAjuste>(hasta(kCamposAjuste)),
                  kTextos[static_cast<std::size_t>(hasta(kTextos.size()))]);
    }
    if (!b.a) continue;
    const auto& t = b.a->t;
    const auto& fila = b.p().filas[static_cast<std::size_t>(b.p().opcion)];
    ASSERT_TRUE(fila.utilizable) << i;
    if (b.p().estado == EstadoAjuste::Libre) {
      ASSERT_EQ(fila.txArmExterior, FormatoMascara(t.Disp.Exterior, kMascaraArea, ',')) << i;
      ASSERT_EQ(fila.txArmCamisa, FormatoMascara(t.Disp.Camisa, kMascaraArea, ',')) << i;
    }
    ParedElegida(*b.a);
    ASSERT_EQ(b.Guardados().size(), b.a->dpe->entradas().size()) << i;
  }
  EXPECT_GT(abiertas, 10);
}

}  // namespace
}  // namespace zorbin
