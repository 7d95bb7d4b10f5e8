// Text of the result box and of the printed page.
#include <gtest/gtest.h>

#include <algorithm>

#include "listados/calculadoras/mdHojasCalculadora.h"
#include "listados/calculadoras/mdMediosPapel.h"
#include "listados/calculadoras/textoDorado.h"

namespace zorbin {
namespace {

using pruebas::ComparaDorado;
using pruebas::kConComa;
using pruebas::Textos;

MuestraMedios TodoAgresivo() {
  return {{5.0, 20.0, 0.0, 0.0, 800.0, 13000.0, 10.0, 150.0, 800.0}, true};
}

std::string Pantalla(const MuestraMedios& m) {
  return TextoMedios(AnalizaMedios(m), Textos(), kConComa);
}

TEST(ListadoMedios, PantallaYPapel) {
  const auto r = AnalizaMedios(TodoAgresivo());
  ComparaDorado("protecciones/pantalla.txt", TextoMedios(r, Textos(), kConComa));
  const auto papel = pruebas::Imprime([&r](Papel& p) { PapelMedios(r, Textos(), kConComa, p); });
  ComparaDorado("protecciones/papel.txt", papel.texto);
  const auto& textos = papel.hojas.at(0).textos;
  EXPECT_EQ(std::count_if(textos.begin(), textos.end(),
                          [](const TextoHoja& x) { return x.negrita && x.texto != " "; }),
            2);
}

// More lines than a sheet has: each foot tells which of how many, and whose program made it.
TEST(HojasCalculadora, CadaHojaTieneSuPie) {
  struct Hojas : DestinoHojas {
    void RecibeHoja(const Hoja& hoja) override { pies.push_back(hoja.textos.back().texto); }
    std::vector<std::string> pies;
  } hojas;
  EscribeCalculadora(hojas, "ANÁLISIS", {"21/11/2026", ""}, Textos(), [](Papel& papel) {
    for (int i = 0; i < 100; ++i) papel.Linea(0, "x");
  });
  ASSERT_EQ(hojas.pies.size(), 2u);
  for (const auto& pie : hojas.pies) EXPECT_NE(pie.find(" ANÁLISIS  "), std::string::npos);
  EXPECT_TRUE(hojas.pies[0].ends_with("ZORBIN " ZORBIN_VERSION " · 21/11/2026 · Página 1 de 2"));
  EXPECT_TRUE(hojas.pies[1].ends_with("Página 2 de 2"));
}

TEST(ListadoMedios, SinFactoresNoHayTitulosPeroSiMedidas) {
  EXPECT_EQ(Pantalla({}),
            "ANÁLISIS DE MEDIOS AGRESIVOS\n============================\n\n"
            "Terrenos y aguas exteriores al tubo\n"
            "Dosificación de cemento         400,00 kg/m3\n"
            "Relación a/c                      0,45\n"
            "Tipo de cemento                     Normal\n"
            "Necesidades adicionales             Sí\n");
}

TEST(ListadoMedios, UnaCorrienteDebilSolaTraeTambienLaFraseFinal) {
  MuestraMedios m;
  m.valor[kPH] = 7;
  m.valor[kCorriente] = 150;
  m.ciclos = true;  // shown only after the sulphates of the soil
  EXPECT_EQ(Pantalla(m).substr(Pantalla(m).find("\nMedio agresivo: corr")),
            "\nMedio agresivo: corrientes vagabundas\n"
            "Corriente                                =   150,00 mV\n"
            "\nMEDIDAS DE PROTECCION\n=====================\n\n"
            "Existencia de corrientes vagabundas\n"
            "La discontinuidad de la junta elastica dificulta la circulación de corrientes y "
            "beneficia al tubo\n"
            "No es necesaria ninguna protección contra agresión química\n");
  m.valor[kCorriente] = 201;
  const std::string fuerte = Pantalla(m);
  EXPECT_TRUE(fuerte.ends_with("Existencia de corrientes vagabundas\nEliminar o controlar\n"));
}

TEST(ListadoMedios, ElMarcoDeLasAguasSaleUnaVez) {
  MuestraMedios m;
  m.valor[kResistividad] = 40;
  m.valor[kSO4Interior] = 100;
  const std::string texto = Pantalla(m);
  EXPECT_LT(texto.find("suelos con baja resistividad"), texto.find("agua exterior e interior"));
  const std::string todo = Pantalla(TodoAgresivo());
  EXPECT_EQ(todo.find("agua exterior e interior"), todo.rfind("agua exterior e interior"));
}

TEST(ListadoMedios, DondeSeParteUnaLineaLarga) {
  EXPECT_EQ(BuscaBlanco(std::string(65, 'a')), -1);
  EXPECT_EQ(BuscaBlanco(std::string(64, 'a') + " b"), 64);   // the blank is character 65
  EXPECT_EQ(BuscaBlanco(std::string(65, 'a') + " b"), -1);   // the blank is character 66
  EXPECT_EQ(BuscaBlanco("aá b" + std::string(70, 'c')), 2);  // characters, not bytes
}

}  // namespace
}  // namespace zorbin
