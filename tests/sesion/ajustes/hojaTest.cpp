// The working sheet of a check.
#include "sesion/ajustes/mdHoja.h"

#include <gtest/gtest.h>

#include <fstream>

#include "comun/comparaFichero.h"
#include "sesion/ajustes/banco.h"

namespace zorbin {
namespace {

using prueba::BancoAjustes;

std::string Contenido(const std::filesystem::path& ruta) {
  std::ifstream f(ruta, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), {}};
}

TEST(Hoja, LasMascarasSonCamposFijos) {
  EXPECT_EQ(Rellena("x =##.# y", {2.45}), "x = 2.5 y");
  EXPECT_EQ(Rellena("x =####. y", {1400}), "x =1400. y");
  EXPECT_EQ(Rellena("######./#.###", {-12.6, 0.0004}), "   -13./0.000");
  EXPECT_EQ(Rellena("##.##", {1234.5}), "1234.50");  // a longer number widens its field
  EXPECT_EQ(Rellena("*10*#", {7}), "*10*7");
}

// Composite tension in the three sections; flexo-compression with the axial force in tension and in
// compression.
TEST(Hoja, LaHojaDeTrabajo) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  EligeFila(*b.a, 5);
  std::string texto = Contenido(RutaHoja(b.registros));
  EXPECT_EQ(texto, HojaDeTrabajo(b.a->t.comprobacion));

  auto d = b.a->t.comprobacion.datos;
  d.HipotesisRige = 2, d.presion = 0;
  d.secciones(CLAVE) = {0.9, 12, CalculaM(0.9), CalculaN(12, 0, d.Di)};
  d.secciones(RINONES) = {-0.9, -4.5, CalculaM(-0.9), CalculaN(-4.5, 0, d.Di)};
  d.secciones(SOLERA) = {-0.3, 12, CalculaM(-0.3), CalculaN(12, 0, d.Di)};
  texto += HojaDeTrabajo(Calculo_Arm_Necesaria(d, {}, {20, 3.02, 16.5}));
  EXPECT_EQ(pruebas::Compara("hojaDeTrabajo.txt", texto), "");
}

TEST(Hoja, CadaComprobacionLaEscribeDeNuevoSalvoEnTraccionPura) {
  BancoAjustes b("2");
  ASSERT_TRUE(b.Abre());
  const auto primera = Contenido(RutaHoja(b.registros));
  EligeFila(*b.a, 5);
  const auto segunda = Contenido(RutaHoja(b.registros));
  EXPECT_NE(primera, segunda);
  b.Pulsa(BotonAjuste::btSiguientePresion);  // the factory test governs from here on
  ASSERT_TRUE(b.p().edAvisoCalderaVisible);
  EXPECT_EQ(Contenido(RutaHoja(b.registros)), segunda);
}

// Neither the sheet nor the log of the run stop the work where they cannot be written.
TEST(Hoja, SinCarpetaDeRegistrosSeTrabajaYSeSabe) {
  BancoAjustes b;
  std::ofstream(b.registros) << "no es una carpeta";
  ASSERT_TRUE(b.Abre());
  EXPECT_NE(b.p().aviso.find("Debug_cal.txt"), std::string::npos) << b.p().aviso;
  EXPECT_EQ(b.Linea(0), "Clave 16,66 17,51");
  EXPECT_TRUE(b.voz.mensajes.empty());
}

}  // namespace
}  // namespace zorbin
