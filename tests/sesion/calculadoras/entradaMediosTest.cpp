// The nine fields as a person types them, and how an analysis reads them.
#include <gtest/gtest.h>

#include "listados/calculadoras/textoDorado.h"
#include "sesion/calculadoras/mdEntradaMedios.h"

namespace zorbin {
namespace {

using pruebas::Textos;

std::string TextoDe(const std::optional<AvisoCampo>& aviso) {
  return aviso ? Textos().Texto(aviso->titulo) + "|" + TextoAviso(*aviso, Textos()) : "";
}

TEST(EntradaMedios, CadaCampoTieneSuDefecto) {
  auto e = CargaProtecciones('.');
  EXPECT_EQ(e.txpH[kPH].texto, "7.00");
  EXPECT_EQ(e.txpH[kSO4Interior].texto, "0.00");
  Cambia(e, kPH, "");
  EXPECT_FALSE(Sale(e, kPH));
  EXPECT_EQ(e.txpH[kPH].texto, "7.00");
  Cambia(e, kPH, "");
  Entra(e, kPH);
  EXPECT_EQ(e.txpH[kPH].texto, "7.00");
  EXPECT_TRUE(e.txpH[kPH].seleccionado);
}

TEST(EntradaMedios, UnPHFueraDeEscalaSeDiceYSeToma) {
  auto e = CargaProtecciones(',');
  for (const auto& [texto, avisa] : {std::pair{"14", false}, {"14,1", true}, {"7", false}}) {
    Cambia(e, kPH, texto);
    EXPECT_FALSE(Sale(e, kPH)) << texto;
    EXPECT_EQ(AvisoDePlausibilidad(e, kPH).has_value(), avisa) << texto;
  }
}

TEST(EntradaMedios, UnValorRechazadoDejaElAnterior) {
  auto e = CargaProtecciones(',');
  Cambia(e, kCO2, "14,996");
  EXPECT_FALSE(Sale(e, kCO2));
  EXPECT_EQ(e.txpH[kCO2].texto, "15,00");
  Cambia(e, kCO2, "-3");
  EXPECT_EQ(TextoDe(Sale(e, kCO2)), "CO2 agresivo|Valor incorrecto");
  EXPECT_EQ(e.txpH[kCO2].texto, "15,00");
  EXPECT_TRUE(e.txpH[kCO2].seleccionado);
  Cambia(e, kNH4, "mucho");
  EXPECT_EQ(TextoDe(Sale(e, kNH4)), "NH4 (+) |Seleccione un valor númerico ");
  // The number behind the text counts: 14.996 is not yet 15.
  EXPECT_FALSE(Analiza(e));
  EXPECT_EQ(e.resultado->Dosificacion, 0);
}

TEST(EntradaMedios, UnCampoVacioGuardaElValorLeidoAntes) {
  auto e = CargaProtecciones(',');
  Cambia(e, kPH, "");  // the first one reads 0: the most acid water
  EXPECT_FALSE(Analiza(e));
  EXPECT_EQ(e.resultado->muestra.valor[kPH], 0);
  EXPECT_EQ(e.resultado->Adicional, txt::RespuestaSi);

  // The reading order is 0 1 2 3 4 8 5 6 7.
  e = CargaProtecciones(',');
  Cambia(e, kSO4Exterior, "250");
  Cambia(e, kSO4Interior, "");
  Cambia(e, kSO4Suelo, "");
  Cambia(e, kResistividad, "9,5");
  Cambia(e, kCorriente, "");
  EXPECT_FALSE(Analiza(e));
  const auto& v = e.resultado->muestra.valor;
  EXPECT_EQ(v[kSO4Interior], 250);
  EXPECT_EQ(v[kSO4Suelo], 250);
  EXPECT_EQ(v[kCorriente], 9.5);
  Cambia(e, kMg, "1.000,5");
  EXPECT_NE(TextoDe(Analiza(e)).find("Mg (2+)|«1.000,5»"), std::string::npos);
  EXPECT_EQ(e.resultado->muestra.valor[kMg], 0);  // the last result stays
}

}  // namespace
}  // namespace zorbin
