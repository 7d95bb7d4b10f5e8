// What the screen of adjustments stores: that it comes back as it was, what a disk refuses, and
// that every reader of a Caso shows it.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

#include "calculo/corrida/mdCalculaTramo.h"
#include "listados/datos/mdJson.h"
#include "listados/obra/mdTipoListado.h"
#include "listados/papel/mdHojasTexto.h"
#include "persistencia/proyecto/mdProyecto.h"
#include "sesion/ajustes/banco.h"
#include "sesion/ajustes/mdAjuste.h"

namespace zorbin {
namespace {

using enum BotonAjuste;
using prueba::BancoAjustes;

TEST(Ajuste, LoGuardadoVuelveComoSuFilaOComoSeleccionDirecta) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  EXPECT_FALSE(HaySinGuardar(*b.a));
  EligeFila(*b.a, 5);
  EXPECT_TRUE(HaySinGuardar(*b.a));
  b.Pulsa(btGuardar);
  EXPECT_FALSE(HaySinGuardar(*b.a));
  b.Pulsa(btSiguienteAltura);
  b.Directa("15", "2,5", "16");
  b.Pulsa(btAceptarAjuste);
  ASSERT_EQ(b.Guardados().size(), 2u);

  ASSERT_TRUE(b.Abre());
  EXPECT_EQ(b.p().opcion, 5);
  b.Pulsa(btSiguienteAltura);
  EXPECT_EQ(b.p().opcion, kFilaDirecta);
  EXPECT_EQ(b.Fila(8), "15,00 2,50 16,00 33,50");
  EXPECT_FALSE(HaySinGuardar(*b.a));
  // The result frees the entry; leaving without saving leaves what was stored.
  EligeFila(*b.a, 0);
  b.Pulsa(btSalir);
  EXPECT_EQ(b.Guardados()[1].areas.Espiras, 2.5);
  ASSERT_TRUE(b.Abre());
  b.Pulsa(btSiguienteAltura);
  EligeFila(*b.a, 0);
  b.Pulsa(btAceptarAjuste);
  EXPECT_TRUE(b.Guardados()[1].Libre());
  EXPECT_FALSE(b.Guardados()[0].Libre());
}

// Cylinder and outer steel of a row with spirals besides are no row; any other area is a change.
TEST(Ajuste, LoQueSoloSePareceAUnaFilaEsSeleccionDirecta) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  b.Directa("16", "2", "14,14");
  b.Pulsa(btAceptarAjuste);
  ASSERT_TRUE(b.Abre());
  EXPECT_EQ(b.Fila(5), "16,00 0,00 14,14 30,14");
  EXPECT_EQ(b.p().opcion, kFilaDirecta);
  for (const auto& otra :
       {std::array{"17", "2", "14,14"}, {"16", "3", "14,14"}, {"16", "2", "15"}}) {
    b.Directa(otra[0], otra[1], otra[2]);
    EXPECT_TRUE(HaySinGuardar(*b.a)) << otra[0] << otra[1] << otra[2];
  }
  b.Directa("16", "2", "14,14");
  EXPECT_FALSE(HaySinGuardar(*b.a));
}

// An adjusted Caso has its bars judged by other rules in a run: 37 of 8 mm in place of the 24 of 10
// that it takes without. What freeing the entry brings back is the latter.
TEST(Ajuste, ElResultadoEsElDelCasoSinSuAjuste) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  b.Pulsa(btSiguientePresion);
  b.Pulsa(btSiguientePresion);
  EXPECT_EQ(b.Fila(0), "20,00 2,51 18,85 41,36");
  EligeFila(*b.a, 6);
  b.Pulsa(btAceptarAjuste);
  ASSERT_TRUE(b.Abre());
  b.Pulsa(btSiguientePresion);
  b.Pulsa(btSiguientePresion);
  EXPECT_EQ(b.p().opcion, 6);
  EXPECT_EQ(b.Fila(0), "20,00 2,51 18,85 41,36");
}

// Walking over the Casos writes nothing that was not there.
TEST(Ajuste, PasarPorLosCasosNoTocaElFichero) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  EligeFila(*b.a, 5);
  b.Pulsa(btGuardar);
  const auto antes = b.Guardados();
  b.Pulsa(btSiguientePresion);
  EligeFila(*b.a, 3);
  b.Pulsa(btAnteriorPresion);
  EXPECT_EQ(b.p().opcion, 5);
  b.Pulsa(btSalir);
  ASSERT_EQ(b.Guardados().size(), antes.size());
  EXPECT_EQ(b.Guardados()[0].areas.Exterior, antes[0].areas.Exterior);
}

// A full disk, by a limit on the size of files: it is told, and the screen stays with what was
// chosen until it can be stored.
class DiscoLleno {
 public:
  DiscoLleno() {
    ::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &antes_);
    rlimit poco = antes_;
    poco.rlim_cur = kBytesRegistro;
    ::setrlimit(RLIMIT_FSIZE, &poco);
  }
  ~DiscoLleno() { ::setrlimit(RLIMIT_FSIZE, &antes_); }
  DiscoLleno(const DiscoLleno&) = delete;
  DiscoLleno& operator=(const DiscoLleno&) = delete;

 private:
  rlimit antes_{};
};

TEST(Ajuste, UnDiscoQueNoAdmiteMasSeDiceYNoSeCierra) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  EligeFila(*b.a, 5);
  {
    const DiscoLleno lleno;
    b.Pulsa(btAceptarAjuste);
  }
  ASSERT_NE(b.a, nullptr);
  EXPECT_NE(b.voz.Ultimo().find("no se puede escribir"), std::string::npos) << b.voz.Ultimo();
  EXPECT_TRUE(HaySinGuardar(*b.a));
  EXPECT_TRUE(b.Guardados().empty());
  b.Pulsa(btAceptarAjuste);
  EXPECT_EQ(b.a, nullptr);
  EXPECT_EQ(b.Guardados().at(0).areas.Camisa, 16);
}

// The whole way: chosen on the screen, stored, and in what every reader shows of that Caso.
TEST(Ajuste, LasAreasAjustadasSalenEnTodoLoQueSeLista) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  b.Pulsa(btSiguientePresion);
  b.Directa("21,3", "4,4", "19,7");
  b.Pulsa(btAceptarAjuste);

  const auto proyecto = LeeProyecto(b.obra);
  const auto pedido = TramosPedidos(proyecto, {1}).at(0);
  const auto datos = DatosDeCalculo(proyecto.obra, pedido.tramo, proyecto.ajustes);
  const auto r = CalculaTramo(datos, RangoDe(datos));
  const EstiloNumeros estilo{true, ','};
  std::ostringstream json;
  const std::map<int, Tramo> capturados{{1, pedido.tramo}};
  ListadoJson lector(json, "o.zrb", capturados, b.textos, estilo);
  lector.EmpiezaObra(proyecto.obra);
  lector.Tramo(r, 1, "1", {});
  lector.AcabaObra();
  int ajustados = 0;
  const auto leido = nlohmann::json::parse(json.str());
  for (const auto& caso : leido["tramos"][0]["casos"]) {
    const auto& armado = caso["armado"];
    if (!armado["HayAjuste"].get<bool>()) continue;
    ++ajustados;
    EXPECT_EQ(caso["DP"], 5.0);
    EXPECT_EQ(caso["Hr"], 2.0);
    EXPECT_DOUBLE_EQ(armado["AsInt"].get<double>(), 25.7);
    EXPECT_EQ(armado["AsExt"], 19.7);
    EXPECT_DOUBLE_EQ(armado["Total"].get<double>(), 45.4);
  }
  EXPECT_EQ(ajustados, 1);

  struct EnPapel {
    TipoListado tipo;
    std::string texto;
  };
  for (const auto& [tipo, texto] :
       {EnPapel{TipoListado::Tabular, "21,3      4,4    25,7        19,7         45,4"},
        {TipoListado::Normal, "25,7 cm2/m"},
        {TipoListado::Normal, "45,4 cm2/m"},
        {TipoListado::Pantalla, "45,40"}}) {
    std::ostringstream salida;
    HojasTexto hojas(salida);
    Papel papel(hojas, OrientacionDe(tipo));
    CreaListado(tipo, {papel, b.textos, estilo, {}})->Tramo(r, 1, "1", {});
    papel.FinDocumento();
    const auto donde = salida.str().find(texto);
    EXPECT_NE(donde, std::string::npos) << texto;
    EXPECT_EQ(salida.str().find(texto, donde + 1), std::string::npos) << texto;
  }
}

// What is chosen on the screen is of the Tramo from then on, is undone with it, and saved anew.
TEST(Ajuste, LoElegidoSigueASuTramoYSeDeshace) {
  BancoAjustes b;
  ASSERT_TRUE(b.Abre());
  EligeFila(*b.a, 5);
  b.Pulsa(btAceptarAjuste);
  EXPECT_FALSE(b.c.EnCambio());
  ASSERT_EQ(b.c.version.tramos[0]->ajustes.size(), 1u);
  EXPECT_EQ(RenumeraTramo(b.c, b.Id(1), "9"), "");
  ASSERT_TRUE(Graba(b.c));
  EXPECT_EQ(b.Guardados().at(0).Tramo, 9);
  b.Deshace();
  EXPECT_TRUE(b.c.EnCambio());
  b.Deshace();
  EXPECT_TRUE(b.c.version.tramos[0]->ajustes.empty());
  ASSERT_TRUE(Graba(b.c));
  EXPECT_TRUE(b.Guardados().empty() || b.Guardados()[0].Libre());
  b.Rehace();
  b.Rehace();
  ASSERT_TRUE(Graba(b.c));
  EXPECT_EQ(b.Guardados().at(0).areas.Camisa, 16);
}

// The file keeps the number of the Tramo, not its place in the list.
TEST(Ajuste, ElTramoSeGuardaPorSuNumero) {
  BancoAjustes b;
  {
    EstadoCalculo e;
    FicheroRegistros& f = *b.c.fichero;
    CargaObra(e, f);
    CargaTramo(e, f, 1);
    const ListaTramos lista{"2", "5"};
    EscribeObra(f, e, lista, b.textos, ',');
    e.tramo.NumeroTramo = 2;
    EscribeTramo(f, e, lista, 1, ',');
    CargaTramo(e, f, 3);
    e.tramo.NumeroTramo = 5;
    EscribeTramo(f, e, lista, 2, ',');
  }
  ASSERT_TRUE(AbreObra(b.c, b.obra));
  b.Teclea(Ed::edTramo, "5");
  ASSERT_TRUE(b.Abre());
  EXPECT_EQ(b.p().txAltura, "2,50");  // the Tramo that stood third
  EligeFila(*b.a, 5);
  b.Pulsa(btAceptarAjuste);
  EXPECT_EQ(b.Guardados().at(0).Tramo, 5);
}

}  // namespace
}  // namespace zorbin
