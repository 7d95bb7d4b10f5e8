// Pictures of the screens, for the documents and for whoever wants to see them all at once:
// zorbin-fotos FOLDER [language 1-5] [clara|oscura]
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStyleFactory>
#include <QTest>
#include <iostream>

#include "captura/mdCiclo.h"
#include "captura/mdEdicion.h"
#include "captura/mdEtiquetas.h"
#include "captura/mdTipologias.h"
#include "hidraulica/pantalla/CalculoHidraulico.h"
#include "pantallas/entornoPrueba.h"
#include "protecciones/pantalla/Protecciones.h"
#include "recursos/mdCarpetas.h"
#include "recursos/mdRtf.h"
#include "shell/CapturaDatos.h"
#include "shell/FormaPrincipal.h"

namespace zorbin {
namespace {

QPalette Oscura() {
  QPalette p;
  p.setColor(QPalette::Window, QColor(45, 45, 48));
  p.setColor(QPalette::WindowText, QColor(230, 230, 230));
  p.setColor(QPalette::Base, QColor(30, 30, 32));
  p.setColor(QPalette::AlternateBase, QColor(40, 40, 44));
  p.setColor(QPalette::Text, QColor(230, 230, 230));
  p.setColor(QPalette::Button, QColor(60, 60, 64));
  p.setColor(QPalette::ButtonText, QColor(230, 230, 230));
  p.setColor(QPalette::ToolTipBase, QColor(60, 60, 64));
  p.setColor(QPalette::ToolTipText, QColor(230, 230, 230));
  p.setColor(QPalette::PlaceholderText, QColor(140, 140, 140));
  p.setColor(QPalette::Highlight, QColor(38, 110, 180));
  p.setColor(QPalette::HighlightedText, Qt::white);
  for (const auto rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    p.setColor(QPalette::Disabled, rol, QColor(125, 125, 125));
  }
  return p;
}

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
      CancelaCaptura(c);
      Entra(c, Ed::edTramo);
      Cambia(c, Ed::edTramo, numero);
      Sale(c, Ed::edTramo);
    });
  };
  tramo("1");
  foto.Saca(ventana, "armado");
  for (int pagina = 0; pagina < 3; ++pagina) {
    pantalla.Hace([&] {
      CambiaPagina(c, 2);
      CambiaPaginaColocacion(c, pagina);
    });
    foto.Saca(ventana, QString("colocacion%1").arg(pagina));
  }
  tramo("6");
  for (int pagina = 0; pagina < 4; ++pagina) {
    pantalla.Hace([&] { CambiaPaginaPostesados(c, pagina); });
    foto.Saca(ventana, QString("postesado%1").arg(pagina));
  }
  pantalla.Hace([&] {
    NuevoTramo(c);
    c.pantalla.pagina.TabPrincipal = 2;
    c.pantalla.pagina.TabDatosColocacion = 0;
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
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  if (oscura) QApplication::setPalette(Oscura());
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
  for (const auto& caja : persona.cajas) std::cerr << S(caja.texto) << '\n';
  return 0;
}
