// Screen texts of the six operations and their printed pages.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "listados/calculadoras/mdHidraulicaListado.h"
#include "listados/calculadoras/mdHidraulicaPapel.h"
#include "listados/calculadoras/textoDorado.h"

namespace zorbin {
namespace {

using pruebas::ComparaDorado;
using pruebas::kConComa;
using pruebas::Textos;

std::string Pantalla(const ResultadoHidraulico& r) {
  return TextoHidraulico(r, Textos(), kConComa);
}

pruebas::Impreso Impreso(const ResultadoHidraulico& r) {
  return pruebas::Imprime([&r](Papel& p) { PapelHidraulico(r, Textos(), kConComa, p); });
}

std::string EnPapel(const ResultadoHidraulico& r) {
  return Impreso(r).texto;
}

// The lines of a text that hold `parte`.
std::vector<std::string> Con(const std::string& texto, const std::string& parte) {
  std::istringstream entrada(texto);
  std::vector<std::string> lineas;
  for (std::string linea; std::getline(entrada, linea);) {
    if (linea.find(parte) != std::string::npos) lineas.push_back(linea);
  }
  return lineas;
}

TEST(ListadoHidraulico, LasSeisPantallas) {
  ComparaDorado("hidraulica/Sub3000.txt", Pantalla(PrColeBrook_Pendiente(0.001, 0.06)));
  ComparaDorado("hidraulica/Sub3000_P.txt", Pantalla(PrColeBrook_Caudal(0.5, 0.06)));
  ComparaDorado("hidraulica/Sub3000_Hazen.txt", Pantalla(Hazen_Pendiente(0.001, 0)));
  ComparaDorado("hidraulica/Sub3000_Hazen_P.txt", Pantalla(Hazen_Caudal(0.5, 120)));
  ComparaDorado("hidraulica/Sub3500.txt", Pantalla(DarcyWeiss_Pendiente(0.002, 0.05)));
  ComparaDorado("hidraulica/Sub3500_P.txt", Pantalla(DarcyWeiss_Caudal(0.003, 0.05)));
}

TEST(ListadoHidraulico, DosPaginasImpresas) {
  ComparaDorado("hidraulica/papel_Sub3000.txt", EnPapel(PrColeBrook_Pendiente(0.001, 0.06)));
  ComparaDorado("hidraulica/papel_Sub3500_P.txt", EnPapel(DarcyWeiss_Caudal(0.003, 0.05)));
}

TEST(ListadoHidraulico, SoloElTituloDeCadaBloqueVaEnNegrita) {
  const auto impreso = Impreso(Hazen_Pendiente(0.001, 120));
  int negritas = 0;
  for (const auto& hoja : impreso.hojas) {
    for (const auto& t : hoja.textos) {
      EXPECT_EQ(t.cuerpo, 10.0);
      if (t.negrita && t.texto != " ") ++negritas;
    }
  }
  EXPECT_EQ(negritas, 2);
  EXPECT_TRUE(impreso.hojas[0].textos.at(4).negrita);  // after four blank lines
}

TEST(ListadoHidraulico, DiferenciasDeLasPaginasImpresas) {
  const std::string hazen = EnPapel(Hazen_Pendiente(0.0025, 110));
  EXPECT_EQ(Con(hazen, "Cwh"),
            (std::vector<std::string>{std::string(20, ' ') + "Coeficiente Cwh =  110,00",
                                      std::string(20, ' ') + "Coeficiente Cwh =  110"}));
  EXPECT_EQ(Con(hazen, "PENDIENTE 0"),
            (std::vector<std::string>{std::string(30, ' ') + "PENDIENTE 0,002500 m/m",
                                      std::string(30, ' ') + "PENDIENTE 0,002500 m/m"}));
  EXPECT_TRUE(Con(hazen, "Viscosidad").empty());
  const std::string caudal = EnPapel(Hazen_Caudal(0.5, 0));
  EXPECT_EQ(Con(caudal, "139.3 + 6.65 * DIAM. (M)").size(), 2u);
  EXPECT_EQ(Con(caudal, "m3/sg."),
            std::vector<std::string>(2, std::string(30, ' ') + "CAUDAL   0,500 m3/sg."));
  EXPECT_EQ(Con(caudal, " m/km.").size(), 30u);
  const std::string darcy = EnPapel(DarcyWeiss_Pendiente(0.002, 0.05));
  EXPECT_EQ(Con(darcy, "VELOCIDAD").at(0),
            std::string(15, ' ') + "DIAMETRO       VELOCIDAD     CAUDAL        NUM. REYNOLDS");
  EXPECT_EQ(Con(darcy, "PENDIENTE").at(0), std::string(15, ' ') + "PENDIENTE 0,002000 m/m");
  EXPECT_EQ(Con(darcy, "Rugosidad").at(0),
            std::string(20, ' ') + "Rugosidad equivalente en arena Ka =  0,05000 mm.");
}

TEST(ListadoHidraulico, SinFactorDeFriccionQuedaUnMenosUno) {
  auto r = DarcyWeiss_Caudal(0.5, 0.05);
  r.filas[0].JLlena = -1.0;
  r.filas[0].ReLlena = -1.0;
  r.filas[0].JExacta.reset();
  EXPECT_EQ(Con(Pantalla(r), " 600 ").at(0), "     600         1,77    -1000,000               -1");
  const auto textos = Impreso(r).hojas.at(0).textos;
  EXPECT_EQ(textos.at(1).texto, "SE HA PRODUCIDO UN ERROR (SUBRUTINA CALCULO F DE DARCY)");
  EXPECT_TRUE(textos[1].negrita);
  EXPECT_EQ(textos.at(2 + 1 + 4).texto.find("Fórmula"), 20u);
}

}  // namespace
}  // namespace zorbin
