// What goes wrong while something is written, printed or done: it is told, nothing is lost, and the
// program goes on.
#include <gtest/gtest.h>

#include <QFile>
#include <QLineEdit>
#include <new>

#include "comun/carpeta.h"
#include "comun/discoLleno.h"
#include "persistencia/disco/mdFicheroSalida.h"
#include "programas/zorbin/mdAplicacion.h"
#include "programas/zorbin/mdPrograma.h"
#include "sesion/ajustes/mdHoja.h"
#include "sesion/captura/mdCiclo.h"
#include "shell/entornoPrueba.h"
#include "shell/impresion/mdGuardar.h"
#include "shell/impresion/mdImpresora.h"

namespace zorbin::prueba {
namespace {

using pruebas::DiscoLleno;

std::string Lee(const QString& ruta) {
  return pruebas::Bytes(S(ruta));
}

// A document of some hundred kilobytes.
Documento Listado() {
  return [](DestinoHojas& destino) {
    Hoja hoja;
    for (int i = 0; i < 60; ++i)
      hoja.textos.push_back({4.0 * i, 10, false, false, "Una línea " + std::to_string(i)});
    for (int i = 0; i < 20; ++i) destino.RecibeHoja(hoja);
  };
}

// A kind of file that a person keeps.
struct Clase {
  QString extension;
  std::function<bool(Mesa&)> guarda;
};

std::vector<Clase> Clases() {
  return {
      {"pdf", [](Mesa& m) { return GuardaPdf(nullptr, m.textos, m.preferencias, "x", Listado()); }},
      {"txt", [](Mesa& m) {
         return GuardaTexto(
             nullptr, m.textos, m.preferencias, "x",
             [](MarchaFaena&, FicheroSalida& f) { f.Escribe(std::string(99'999, 'x')); });
       }}};
}

TEST(Salidas, LoQueNoSePuedeEscribirSeDiceYElSegundoIntentoVale) {
  for (const auto& [extension, guarda] : Clases()) {
    Mesa mesa;
    Persona persona;
    const auto en = [&](const char* nombre) {
      return mesa.carpeta.filePath(nombre) + '.' + extension;
    };
    pruebas::PonBytes(S(en("bueno")), "lo de antes");
    QDir(mesa.carpeta.path()).mkdir("carpeta." + extension);
    for (const auto& ruta :
         {en("no/hay"), en("carpeta"),
          QString(mesa.carpeta.filePath("bueno." + extension + "/x.") + extension)}) {
      persona.fichero = ruta;
      EXPECT_FALSE(guarda(mesa)) << S(ruta);
      EXPECT_TRUE(persona.Ultima().contains(ruta)) << S(persona.Ultima());
      EXPECT_TRUE(persona.Ultima().contains("Compruebe la carpeta")) << S(persona.Ultima());
    }
    persona.fichero = en("bueno");
    const auto nombres = [&] {
      return QDir(mesa.carpeta.path())
          .entryList({"*." + extension, ".*"}, QDir::Files | QDir::Hidden);
    };
    {
      const DiscoLleno lleno(4096);
      EXPECT_FALSE(guarda(mesa));
    }
    EXPECT_TRUE(persona.Ultima().contains(en("bueno"))) << S(persona.Ultima());
    EXPECT_EQ(Lee(en("bueno")), "lo de antes");
    EXPECT_EQ(nombres().size(), 1) << S(nombres().join(' '));
    EXPECT_TRUE(guarda(mesa));
    EXPECT_GT(Lee(en("bueno")).size(), 20'000u);
    EXPECT_EQ(nombres().size(), 1);
  }
}

TEST(Salidas, UnaImpresoraQueSeVaMientrasTantoSeDiceYDespuesImprime) {
  Mesa mesa;
  Persona persona;
  bool viva = false;
  qint64 recibido = 0;
  Impresora impresora(mesa.textos, mesa.preferencias,
                      {[] { return QStringList{"Laser"}; }, [] { return QString("Laser"); },
                       [](const QString&) { return QPageSize(QPageSize::A4); },
                       [&](const TrabajoImpresion& t) {
                         if (!viva) throw ErrorImpresora(t.impresora, "Broken pipe");
                         recibido = QFile(Q(t.fichero)).size();
                       }});
  EXPECT_FALSE(impresora.Imprime(nullptr, "acequia", Listado()));
  EXPECT_TRUE(persona.Ultima().contains("«Laser» no ha aceptado el listado: Broken pipe"));
  viva = true;
  {  // the disk fills before there is anything to hand over
    const DiscoLleno lleno(4096);
    EXPECT_FALSE(impresora.Imprime(nullptr, "acequia", Listado()));
  }
  EXPECT_TRUE(persona.Ultima().contains("listado.pdf")) << S(persona.Ultima());
  EXPECT_EQ(recibido, 0);
  EXPECT_TRUE(impresora.Imprime(nullptr, "acequia", Listado()));
  EXPECT_GT(recibido, 20'000);
  EXPECT_EQ(persona.cajas.size(), 2U);
}

TEST(Salidas, UnaHojaDeTrabajoQueNoCabeDejaLaDeAntes) {
  const QTemporaryDir carpeta;
  const std::filesystem::path donde = S(carpeta.path());
  ASSERT_TRUE(EscribeHoja(donde, "la de antes"));
  {
    const DiscoLleno lleno(100);
    EXPECT_FALSE(EscribeHoja(donde, std::string(5000, 'x')));
  }
  EXPECT_EQ(Lee(Q(RutaHoja(donde).string())), "la de antes");
  EXPECT_FALSE(EscribeHoja(RutaHoja(donde), "x"));  // a file in the place of the folder
  EXPECT_TRUE(EscribeHoja(donde, "otra"));
}

TEST(Salidas, LosAjustesDelProgramaNoSePierdenConElDiscoLleno) {
  Mesa mesa;
  mesa.preferencias.PonImpresora("Laser");
  ASSERT_TRUE(mesa.preferencias.Guarda());
  const auto antes = Lee(mesa.preferencias.Fichero());
  mesa.preferencias.PonValor("Largo", QString(5000, 'x'));
  mesa.preferencias.PonTipoListado(3);
  {
    const DiscoLleno lleno(1000);
    EXPECT_FALSE(mesa.preferencias.Guarda());
  }
  EXPECT_EQ(Lee(mesa.preferencias.Fichero()), antes);
  EXPECT_EQ(mesa.preferencias.TipoListado(), 3);
  EXPECT_TRUE(mesa.preferencias.Guarda());
  {  // and what another program has put meanwhile
    Preferencias otra(mesa.preferencias.Fichero(), mesa.carpeta.filePath("maquina.ini"));
    EXPECT_EQ(otra.TipoListado(), 3);
    EXPECT_EQ(otra.Valor("Largo").toString().size(), 5000);
    otra.PonTipoListado(2);
  }
  mesa.preferencias.PonCopias(7);
  const Preferencias tercera(mesa.preferencias.Fichero(), mesa.carpeta.filePath("maquina.ini"));
  EXPECT_EQ(tercera.TipoListado(), 2);
  EXPECT_EQ(tercera.Copias(), 7);
  EXPECT_EQ(
      QDir(mesa.carpeta.path()).entryList({".zorbin*"}, QDir::AllEntries | QDir::Hidden).size(), 0);
}

TEST(Salidas, AlCerrarSeDiceQueLosAjustesNoSeGuardan) {
  const QTemporaryDir carpeta;
  Persona persona;
  const QString fichero = carpeta.filePath("u.ini");
  Programa programa(std::make_unique<Preferencias>(fichero, carpeta.filePath("m.ini")));
  programa.ventana().show();
  persona.cajas.clear();
  {
    const DiscoLleno lleno(10);
    programa.ventana().close();
  }
  ASSERT_EQ(persona.cajas.size(), 1U);
  EXPECT_TRUE(persona.Ultima().contains(fichero)) << S(persona.Ultima());
  EXPECT_FALSE(programa.ventana().isVisible());
}

// Whatever an event throws: it is told once, what was typed stays, and the program goes on.
TEST(Salidas, LoQueNadiePrevioSeDiceYElProgramaSigue) {
  const QTemporaryDir carpeta;
  Persona persona;
  Programa programa(
      std::make_unique<Preferencias>(carpeta.filePath("u.ini"), carpeta.filePath("m.ini")));
  auto* aplicacion = dynamic_cast<Aplicacion*>(qApp);
  ASSERT_NE(aplicacion, nullptr);
  aplicacion->PonVoz([&](const std::exception* error) { programa.DiFallo(error); });
  auto& c = programa.captura();
  programa.ventana().show();
  programa.ventana().accion(Orden::MnNuevaObra)->trigger();
  auto* campo = programa.ventana().findChild<QLineEdit*>("edCliente");
  ASSERT_NE(campo, nullptr);
  QTest::keyClicks(campo, "Comunidad");
  persona.cajas.clear();
  const std::function<void()> fallos[] = {[] { throw std::runtime_error("<b>rayo</b>"); },
                                          [] { throw std::bad_alloc(); }, [] { throw 7; }};
  const QString dichos[] = {"<b>rayo</b>", "memoria", "?"};
  for (std::size_t i = 0; i < 3; ++i) {
    for (int veces = 0; veces < 3; ++veces) QTimer::singleShot(0, fallos[i]);
    ASSERT_TRUE(QTest::qWaitFor([&] { return persona.cajas.size() > i; }, 10'000));
    QTest::qWait(50);
    ASSERT_EQ(persona.cajas.size(), i + 1);
    EXPECT_TRUE(persona.Ultima().startsWith("Ha ocurrido un error que el programa no esperaba: "));
    EXPECT_TRUE(persona.Ultima().contains(dichos[i])) << S(persona.Ultima());
  }
  aplicacion->PonVoz({});
  EXPECT_EQ(campo->text(), "Comunidad");
  EXPECT_TRUE(c.ObraCargada);
  QTest::keyClicks(campo, " de Regantes");
  EXPECT_EQ(campo->text(), "Comunidad de Regantes");
  persona.respuestas = {false};
  CierraObra(c);
}

}  // namespace
}  // namespace zorbin::prueba
