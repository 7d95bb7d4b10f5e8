#include "listados/papel/mdFormato.h"

#include <gtest/gtest.h>

#include "base/mdTextos.h"

namespace zorbin {
namespace {

TEST(Formato, CamposDeAnchoFijo) {
  EXPECT_EQ(FormatoEntero(7, 4), "   7");
  EXPECT_EQ(FormatoEntero(-12345, 4), "-12345");
  EXPECT_EQ(FormatoTexto("RIÑONES", 8), "RIÑONES ");
  EXPECT_EQ(FormatoTexto("RIÑONES", 3), "RIÑ");
  EXPECT_EQ(FormatoTexto("RIÑONES", 7), "RIÑONES");
  EXPECT_EQ(FormatoTexto("", 2), "  ");
}

TEST(Formato, NumerosConConversionYUnidad) {
  const EstiloNumeros si{true, ','};
  const EstiloNumeros mks{false, '.'};
  EXPECT_EQ(mks.FormatoNumero(6, 6, 1, "at->MPa", true), "  6.00 at");
  EXPECT_EQ(si.FormatoNumero(6, 6, 1, "at->MPa", true), " 0,600 MPa");
  EXPECT_EQ(si.FormatoNumero(12.345, 7, 3, "mT->mkN"), " 123,45");
  EXPECT_EQ(si.FormatoNumero(0.4, 2, 0), " 0");
  EXPECT_EQ(si.FormatoNumero(1234567, 4, 1), "1234567,0");
  EXPECT_EQ(si.FormatoNumero(-0.0004, 7, 3, ""), "  0,000");
}

TEST(Formato, PartirTextoCortaPorElSaltoOPorElBlanco) {
  using P = std::pair<std::string, std::string>;
  EXPECT_EQ(PartirTexto("corta", 10), (P{"corta", ""}));
  EXPECT_EQ(PartirTexto("una\r\ndos tres", 10), (P{"una", "dos tres"}));
  EXPECT_EQ(PartirTexto("una dos tres", 9), (P{"una dos", "tres"}));
  EXPECT_EQ(PartirTexto("unadostrescuatro", 9), (P{"unadostre", "scuatro"}));
  EXPECT_EQ(PartirTexto("ñandúñandú cañón", 12), (P{"ñandúñandú", "cañón"}));
  EXPECT_EQ(PartirTexto("123456789\r\nresto", 9), (P{"123456789", "resto"}));
}

}  // namespace
}  // namespace zorbin
