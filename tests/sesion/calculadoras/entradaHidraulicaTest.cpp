// The inputs as a person types them: keys, leaving, options, the button.
#include <gtest/gtest.h>

#include <limits>

#include "base/textos.h"
#include "listados/calculadoras/textoDorado.h"
#include "sesion/calculadoras/mdEntradaHidraulica.h"

namespace zorbin {
namespace {

using pruebas::Textos;
using enum CampoHidraulico;
using enum MetodoHidraulico;
using enum DatoHidraulico;

void Teclea(EntradaHidraulica& e, CampoHidraulico cual, const std::string& teclas) {
  Entra(e, cual);
  Cambia(e, cual, "");  // the content was selected whole: the first key replaces it
  for (std::size_t n = 1; n <= teclas.size(); ++n) Cambia(e, cual, teclas.substr(0, n));
}

std::string TextoDe(const std::optional<AvisoCampo>& aviso) {
  return aviso ? Textos().Texto(aviso->titulo) + "|" + TextoAviso(*aviso, Textos()) : "";
}

EntradaHidraulica Con(MetodoHidraulico metodo, DatoHidraulico tipo, const std::string& dato) {
  auto e = CargaCalculoHidraulico(',');
  CambiaMetodo(e, metodo);
  CambiaTipoDato(e, tipo);
  Teclea(e, DatoOrigen, dato);
  EXPECT_FALSE(Sale(e, DatoOrigen));
  return e;
}

TEST(EntradaHidraulica, AbreEnDarcyConPendienteYSinDato) {
  const auto e = CargaCalculoHidraulico('.');
  EXPECT_EQ(e.rdTipoCalculo, DarcyWeissbach);
  EXPECT_EQ(e.rdTipoDato, Pendiente);
  EXPECT_EQ(e.txRugosidad.texto, "0.050");
  EXPECT_EQ(NotaRugosidad(e, Textos()), "(0.050)");
  EXPECT_EQ(e.txDatoOrigen.texto, "");
  EXPECT_FALSE(e.imprimible);
}

TEST(EntradaHidraulica, LoQueSeLeeDeDosManerasSeRechazaConLasDos) {
  auto e = CargaCalculoHidraulico(',');
  Teclea(e, DatoOrigen, "1.200");
  EXPECT_NE(TextoDe(Sale(e, DatoOrigen)).find("«1.200» se puede leer como 1,200 o como 1200"),
            std::string::npos);
  Teclea(e, DatoOrigen, "0.0012");
  EXPECT_FALSE(Sale(e, DatoOrigen));
  EXPECT_EQ(e.txDatoOrigen.valor, 0.0012);
}

TEST(EntradaHidraulica, CambiarDeMetodoPoneSuRugosidadYGuardaElDato) {
  auto e = Con(DarcyWeissbach, Pendiente, "0,002");
  Teclea(e, Rugosidad, "0,3");
  EXPECT_FALSE(Sale(e, Rugosidad));
  EXPECT_EQ(e.txRugosidad.texto, "0,300");
  CambiaMetodo(e, PrandtlColebrook);
  EXPECT_EQ(e.txRugosidad.texto, "0,060");
  EXPECT_EQ(e.txRugosidad.valor, 0.06);
  EXPECT_EQ(Textos().Texto(EtiquetaRugosidad(e)), "Rugosidad absoluta en mm (Ks)");
  CambiaMetodo(e, HazenWilliams);
  EXPECT_EQ(e.txRugosidad.texto, "0");
  EXPECT_EQ(e.txRugosidad.valor, 0.0);
  EXPECT_EQ(NotaRugosidad(e, Textos()), "139.3 + 6.65 * DIAM. (M)");
  EXPECT_EQ(TextoAyuda(e, Textos()), Textos().Texto(txt::AyudaHazen));
  CambiaMetodo(e, DarcyWeissbach);
  EXPECT_EQ(Textos().Texto(EtiquetaRugosidad(e)), "Rugosidad equivalente en arena en mm (Ka)");
  EXPECT_NE(TextoAyuda(e, Textos()).find("etc.\n\nPara considerar"), std::string::npos);
  EXPECT_EQ(e.txDatoOrigen.valor, 0.002);
  CambiaTipoDato(e, Caudal);
  EXPECT_EQ(e.txDatoOrigen.texto, "");
  EXPECT_EQ(e.txDatoOrigen.valor, 0.0);
  EXPECT_EQ(Textos().Texto(EtiquetaDato(e)), "Caudal (m3/seg)");
  CambiaTipoDato(e, Ninguno);
  EXPECT_EQ(Textos().Texto(EtiquetaDato(e)), "???");
}

TEST(EntradaHidraulica, AlSalirSeRechazaYVuelveElValorPorDefecto) {
  auto e = CargaCalculoHidraulico(',');
  Teclea(e, DatoOrigen, "0,00009");
  EXPECT_EQ(TextoDe(Sale(e, DatoOrigen)), "Pendiente (m/m)|Valor incorrecto");
  EXPECT_EQ(e.txDatoOrigen.texto, "");
  EXPECT_EQ(e.txDatoOrigen.valor, 0.0);
  EXPECT_TRUE(e.txDatoOrigen.seleccionado);
  EXPECT_FALSE(Sale(e, DatoOrigen));  // untouched since: the focus is not trapped

  Cambia(e, Rugosidad, "0,05 mm");  // pasted
  EXPECT_EQ(TextoDe(Sale(e, Rugosidad)),
            "Rugosidad equivalente en arena en mm (Ka)|Seleccione un valor númerico ");
  EXPECT_EQ(e.txRugosidad.texto, "0,050");
  Teclea(e, Rugosidad, "");  // an empty field is 0
  EXPECT_TRUE(Sale(e, Rugosidad));
  Teclea(e, DatoOrigen, "5");
  Cambia(e, DatoOrigen, "");
  EXPECT_TRUE(Sale(e, DatoOrigen));

  CambiaMetodo(e, HazenWilliams);
  Teclea(e, Rugosidad, "");
  EXPECT_FALSE(Sale(e, Rugosidad));
  EXPECT_EQ(e.txRugosidad.texto, "0,00");
  Teclea(e, Rugosidad, "120,456");
  EXPECT_FALSE(Sale(e, Rugosidad));
  EXPECT_EQ(e.txRugosidad.texto, "120,46");
  EXPECT_EQ(e.txRugosidad.valor, 120.456);
}

TEST(EntradaHidraulica, UnaPendienteQueSeVeComoCeroNoSePierde) {
  auto e = Con(DarcyWeissbach, Pendiente, "0,0004");
  EXPECT_EQ(e.txDatoOrigen.texto, "0,000");
  Entra(e, DatoOrigen);
  EXPECT_FALSE(Sale(e, DatoOrigen));
  Teclea(e, DatoOrigen, "0,000");  // the same text again
  EXPECT_FALSE(Sale(e, DatoOrigen));
  EXPECT_EQ(e.txDatoOrigen.valor, 0.0004);
  EXPECT_FALSE(Calcula(e));
  EXPECT_EQ(e.resultado->dato, 0.0004);
}

TEST(EntradaHidraulica, ValidacionEnSuOrden) {
  auto e = CargaCalculoHidraulico(',');
  EXPECT_EQ(TextoDe(Calcula(e)), "Error|Debe capturar un valor para Pendiente (m/m)");
  e.txDatoOrigen.valor = -1;
  EXPECT_EQ(TextoDe(Calcula(e)), "Error|El valor de Pendiente (m/m) debe ser mayor que 0");
  e.txDatoOrigen.valor = 0.001;
  e.txRugosidad.valor = 0;
  EXPECT_EQ(TextoDe(Calcula(e)),
            "Error|Debe capturar un valor para Rugosidad equivalente en arena en mm (Ka)");
  e.txRugosidad.valor = -0.1;
  EXPECT_EQ(TextoDe(Calcula(e)),
            "Error|El valor de Rugosidad equivalente en arena en mm (Ka) debe ser mayor que 0");
  CambiaMetodo(e, HazenWilliams);
  EXPECT_FALSE(ValidaDatosHidraulicos(e));  // 0 is the rule by diameter
  e.txRugosidad.valor = -120;
  EXPECT_EQ(TextoDe(Calcula(e)), "Error|El valor de Coeficiente Cwh debe ser mayor que 0");
  EXPECT_FALSE(e.resultado);
}

TEST(EntradaHidraulica, LoQueLaFormulaNoAdmiteNombraSuCampo) {
  auto e = Con(PrandtlColebrook, Pendiente, "0,001");
  Teclea(e, Rugosidad, "3000");
  EXPECT_EQ(TextoDe(Calcula(e)),
            "Error|El valor de Rugosidad absoluta en mm (Ks) es demasiado grande para los "
            "diámetros de la tabla");
  e = Con(PrandtlColebrook, Caudal, "0,5");
  e.txDatoOrigen.valor = 1e-6;
  EXPECT_EQ(TextoDe(Calcula(e)),
            "Error|El valor de Caudal (m3/seg) es demasiado pequeño para los diámetros de la "
            "tabla");
  e.txDatoOrigen.valor = std::numeric_limits<double>::max();
  EXPECT_EQ(TextoDe(Calcula(e)), "Error en ejecución|Desbordamiento");
  CambiaTipoDato(e, Ninguno);
  Teclea(e, DatoOrigen, "1");
  EXPECT_EQ(TextoDe(Calcula(e)), "Error|Debe capturar un valor para ???");
}

TEST(EntradaHidraulica, SeImprimeSoloLaTablaDeLosDatosALaVista) {
  auto e = Con(PrandtlColebrook, Caudal, "0,5");
  EXPECT_FALSE(Calcula(e));
  EXPECT_TRUE(e.imprimible);
  EXPECT_EQ(e.resultado->tipoDato, Caudal);
  Entra(e, DatoOrigen);
  EXPECT_FALSE(Sale(e, DatoOrigen));
  EXPECT_TRUE(e.imprimible);
  Cambia(e, DatoOrigen, "0,6");  // and the button before the field is left
  EXPECT_FALSE(e.imprimible);
  EXPECT_FALSE(Calcula(e));
  EXPECT_EQ(e.resultado->dato, 0.6);
  CambiaMetodo(e, HazenWilliams);
  EXPECT_FALSE(e.imprimible);
  EXPECT_EQ(e.resultado->metodo, PrandtlColebrook);  // the text area keeps its table
  EXPECT_FALSE(Calcula(e));
  CambiaTipoDato(e, Pendiente);
  EXPECT_FALSE(e.imprimible);
  PoneBotones(e, false);
  EXPECT_FALSE(e.resultado);
}

}  // namespace
}  // namespace zorbin
