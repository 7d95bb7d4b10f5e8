// Pictures of the screens, for the documents and for whoever wants to see them all at once:
// zorbin-fotos FOLDER [language 1-5] [clara|oscura]
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>
#include <iostream>

#include "base/mdCarpetas.h"
#include "persistencia/documentos/mdRtf.h"
#include "sesion/ajustes/banco.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdEdicion.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdPaginas.h"
#include "sesion/captura/mdTramos.h"
#include "shell/ajustes/frAjustes.h"
#include "shell/calculadoras/CalculoHidraulico.h"
#include "shell/calculadoras/Protecciones.h"
#include "shell/captura/CapturaDatos.h"
#include "shell/entornoPrueba.h"
#include "shell/piezas/mdTema.h"
#include "shell/principal/FormaPrincipal.h"
#include "shell/principal/mdRecuperacion.h"

namespace zorbin {
namespace {

class Fotografo {
 public:
  Fotografo(const QString& carpeta, const QString& cola) : carpeta_(carpeta), cola_(cola) {
    QDir().mkpath(carpeta);
  }
  void Saca(QWidget& ventana, const QString& nombre) const {
    QTest::qWait(30);
    ventana.grab().save(carpeta_ + '/' + nombre + cola_ + ".png");
  }

 private:
  QString carpeta_;
  QString cola_;
};

void Captura_(Fotografo& foto, Captura& c, FormaPrincipal& ventana, int idioma) {
  foto.Saca(ventana, "inicio");
  const QString obra = ventana.property("obra").toString();
  ventana.Abre(obra);
  ventana.captura().Hace([&] { CambiaIdioma(c, static_cast<std::int16_t>(idioma)); });
  ventana.AplicaIdioma();
  foto.Saca(ventana, "obra");
  auto& pantalla = ventana.captura();
  const auto tramo = [&](const char* numero) {
    pantalla.Hace([&] {
      CambiaPagina(c, 1);
      Entra(c, Ed::edTramo);
      Cambia(c, Ed::edTramo, numero);
      Sale(c, Ed::edTramo);
    });
  };
  tramo("1");
  foto.Saca(ventana, "armado");
  pantalla.Hace([&] { CambiaPagina(c, 2); });
  foto.Saca(ventana, "colocacion");
  tramo("6");
  foto.Saca(ventana, "postesado");
  pantalla.Hace([&] {
    NuevoTramo(c);
    CambiaPagina(c, 2);
  });
  foto.Saca(ventana, "nuevo");
}

void Escribe(QWidget& ventana, const QString& campo, const QString& texto) {
  auto* casilla = ventana.findChild<QLineEdit*>(campo);
  casilla->setFocus();
  casilla->selectAll();
  QTest::keyClicks(casilla, texto);
}

void Calculadoras_(Fotografo& foto, Entorno& entorno) {
  CalculoHidraulico hidraulica(entorno);
  hidraulica.show();
  hidraulica.activateWindow();
  foto.Saca(hidraulica, "hidraulica0");
  hidraulica.findChild<QAbstractButton*>("rdTipoCalculo2")->click();
  hidraulica.findChild<QAbstractButton*>("rdTipoDato1")->click();
  Escribe(hidraulica, "txDatoOrigen", "0,85");
  hidraulica.findChild<QAbstractButton*>("btCalcular")->click();
  foto.Saca(hidraulica, "hidraulica1");
  hidraulica.findChild<QAbstractButton*>("rdTipoCalculo0")->click();
  foto.Saca(hidraulica, "hidraulica2");
  hidraulica.hide();

  Protecciones medios(entorno, [&entorno](int entrada) {
    return Q(HtmlDeRtf(LeeRtf(RutaDocumento(entorno.textos.Texto(entrada)))));
  });
  medios.show();
  medios.activateWindow();
  foto.Saca(medios, "medios0");
  Escribe(medios, "txpH0", "5");
  Escribe(medios, "txpH5", "13000");
  Escribe(medios, "txpH6", "8");
  medios.findChild<QAbstractButton*>("Check1")->click();
  medios.findChild<QAbstractButton*>("btVisualizar")->click();
  foto.Saca(medios, "medios1");
}

// The screen of adjustments, over an Obra of its own that the other pictures do not see.
struct FotoAjustes {
  FotoAjustes(prueba::Mesa& mesa, int idioma, const std::string& tramo)
      : banco(tramo), entorno{banco.textos, banco.tablas, mesa.preferencias, mesa.papel} {
    CambiaIdioma(banco.c, static_cast<std::int16_t>(idioma));
    Graba(banco.c);
    banco.Abre();
    pantalla = std::make_unique<frAjustes>(*banco.a, entorno, [this](int entrada) {
      return Q(HtmlDeRtf(LeeRtf(RutaDocumento(banco.textos.Texto(entrada)))));
    });
    pantalla->resize(1366, 700);
    pantalla->show();
    pantalla->activateWindow();
  }
  void Pulsa(const char* nombre) { pantalla->findChild<QAbstractButton*>(nombre)->click(); }

  prueba::BancoAjustes banco;
  Entorno entorno;
  std::unique_ptr<frAjustes> pantalla;
};

void Ajustes_(Fotografo& foto, prueba::Mesa& mesa, int idioma) {
  FotoAjustes f(mesa, idioma, "1");
  f.Pulsa("btSiguientePresion");
  foto.Saca(*f.pantalla, "ajustes0");
  f.Pulsa("obSeleccion5");
  foto.Saca(*f.pantalla, "ajustes1");
  f.Pulsa("obSeleccion8");
  Escribe(*f.pantalla, "txArmCamisa8", "15");
  Escribe(*f.pantalla, "txArmRefuerzo8", "3");
  Escribe(*f.pantalla, "txArmExterior8", "16");
  foto.Saca(*f.pantalla, "ajustes2");
  f.Pulsa("btSeleccionDirecta");
  foto.Saca(*f.pantalla, "ajustes3");
  f.Pulsa("btCambiarRecubrimientos");
  foto.Saca(*f.pantalla, "ajustes4");
  FotoAjustes traccion(mesa, idioma, "2");
  traccion.Pulsa("btSiguientePresion");
  foto.Saca(*traccion.pantalla, "ajustes5");
}

// Unsaved work that is offered: a stored Tramo that was changed, and a new one.
void Recupera_(Fotografo& foto, Captura& c, const Entorno& entorno) {
  const auto toma = [&](const QString& nombre) {
    const auto b = TomaBorrador(c);
    frRecuperar dialogo(entorno, b, ComparaVersiones(b, c.textos, c.tablas, ','), nullptr);
    dialogo.show();
    QTest::qWait(50);
    foto.Saca(dialogo, nombre);
  };
  PonEnMano(c, c.version.tramos.front()->id);
  Cambia(c, Ed::edFck, "42");
  EligeOpcion(c, Ed::rdTipoColocacion, 2);
  toma("recupera");
  NuevoTramo(c);
  toma("recupera-nuevo");
}

}  // namespace
}  // namespace zorbin

int main(int argumentos, char** palabras) {
  using namespace zorbin;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication aplicacion(argumentos, palabras);
  const auto lista = QApplication::arguments();
  if (lista.size() < 2) {
    std::cerr << "zorbin-fotos FOLDER [language 1-5] [clara|oscura]\n";
    return 2;
  }
  const int idioma = lista.size() > 2 ? lista[2].toInt() : 1;
  const bool oscura = lista.size() > 3 && lista[3] == "oscura";
  PonTema(oscura ? Tema::Oscuro : Tema::Claro);
  prueba::Mesa mesa;
  prueba::Persona persona;
  InterlocutorQt voz(mesa.textos, mesa.preferencias);
  EstadoCalculo e;
  mesa.textos.PonIdioma(static_cast<std::int16_t>(idioma));
  Captura c(e, mesa.textos, mesa.tablas, voz, ',');
  CierraObra(c);
  FormaPrincipal ventana(c, mesa.entorno);
  voz.PonPadre(&ventana);
  const QString obra = mesa.carpeta.filePath("acequia.zrb");
  QFile::copy(ZORBIN_FUENTES "muestras/acequia.zrb", obra);
  ventana.setProperty("obra", obra);
  ventana.resize(1366, 700);
  ventana.show();
  QTest::qWait(50);
  Fotografo foto(lista[1], QString("-%1%2").arg(idioma).arg(oscura ? "-oscura" : ""));
  Captura_(foto, c, ventana, idioma);
  Calculadoras_(foto, mesa.entorno);
  Ajustes_(foto, mesa, idioma);
  Recupera_(foto, c, mesa.entorno);
  for (const auto& caja : persona.cajas) std::cerr << S(caja.texto) << '\n';
  return 0;
}
