#include <gtest/gtest.h>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>
#include <fstream>

#include "shell/ayuda/frAcercaDe.h"
#include "shell/ayuda/frmTip.h"
#include "shell/ayuda/mdMemoria.h"
#include "shell/entornoPrueba.h"

namespace zorbin {
namespace {

using prueba::Mesa;
using prueba::Persona;

namespace fs = std::filesystem;

QString SinDocumento(int) {
  return {};
}

QString TextoDe(const frmTip& aviso) {
  return aviso.findChild<QTextBrowser*>()->toPlainText();
}

TEST(Advertencia, DiceElDocumentoQueFalta) {
  Mesa mesa;
  const QString derecho =
      "Con la advertencia del Derecho de Uso del Anejo 4 Cálculo Mecánico \n"
      "de la Instrucción del Instituto Eduardo Torroja para tubos de hormigón armado o pretensado\n"
      "de que no se ha encontrado el archivo TEXTOIET.RTF";
  for (const int modo : {1, 0, 4, -1}) {
    const frmTip aviso(mesa.entorno, modo, SinDocumento, nullptr);
    EXPECT_EQ(TextoDe(aviso), derecho) << modo;
    EXPECT_EQ(aviso.windowTitle(), "Advertencia de ZORBIN sobre el programa");
  }
  EXPECT_EQ(TextoDe(frmTip(mesa.entorno, 2, SinDocumento, nullptr)),
            "No se ha encontrado el archivo TEXTOIE2.RTF\n"
            "Con las instrucciones para cargar Acrobat Reader");
  EXPECT_EQ(TextoDe(frmTip(mesa.entorno, 3, SinDocumento, nullptr)),
            "No se ha encontrado el archivo TEXTOIE3.RTF\n"
            "Con recomendaciones sobre la Memoria Técnica");
}

// One that is damaged says so where it would have been read.
TEST(Advertencia, LosDocumentosDelPrograma) {
  Mesa mesa;
  const fs::path carpeta = S(mesa.carpeta.path());
  const auto documentos = DocumentosDelPrograma(
      mesa.textos, [&](const std::string& nombre) { return carpeta / nombre; });
  std::ofstream(carpeta / "TEXTOIET.RTF") << "{\\rtf1 Uno <dos>}";
  std::ofstream(carpeta / "TEXTOIE2.RTF") << "<b>nada</b>";
  EXPECT_EQ(TextoDe(frmTip(mesa.entorno, 1, documentos, nullptr)).trimmed(), "Uno <dos>");
  for (const int modo : {2, 3}) {
    const QString texto = TextoDe(frmTip(mesa.entorno, modo, documentos, nullptr));
    EXPECT_TRUE(texto.contains(QStringLiteral("TEXTOIE%1.RTF").arg(modo))) << S(texto);
  }
}

TEST(Advertencia, LaCasillaGuardaElAjusteDeSuModo) {
  Mesa mesa;
  const std::vector<QString> opciones{"Mostrar sugerencias al iniciar",
                                      "Mostrar sugerencias al iniciar II"};
  for (const int modo : {1, 3}) {
    const frmTip aviso(mesa.entorno, modo, SinDocumento, nullptr);
    auto* casilla = aviso.findChild<QCheckBox*>();
    EXPECT_TRUE(casilla->isEnabled() && casilla->isChecked()) << modo;
    EXPECT_EQ(casilla->text(), "&Mostrar esta Advertencia al iniciar");
    casilla->click();
    const auto suya = static_cast<std::size_t>(modo / 2);
    EXPECT_EQ(mesa.preferencias.OpcionAviso(opciones[suya]), "0");
    EXPECT_EQ(mesa.preferencias.OpcionAviso(opciones[1 - suya]), "1");
    EXPECT_FALSE(QuiereAviso(mesa.preferencias, ModoAviso{modo}));
    EXPECT_FALSE(
        frmTip(mesa.entorno, modo, SinDocumento, nullptr).findChild<QCheckBox*>()->isChecked());
    casilla->click();
    EXPECT_TRUE(QuiereAviso(mesa.preferencias, ModoAviso{modo}));
  }
  const frmTip visor(mesa.entorno, 2, SinDocumento, nullptr);
  EXPECT_FALSE(visor.findChild<QCheckBox*>()->isEnabled());
  EXPECT_TRUE(QuiereAviso(mesa.preferencias, ModoAviso::InstalarVisor));
}

TEST(Advertencia, EnElCentroDeSuVentanaConSuDocumento) {
  Mesa mesa;
  QWidget ventana;
  ventana.setGeometry(60, 50, 700, 500);
  ventana.show();
  std::vector<int> pedidos;
  frmTip aviso(
      mesa.entorno, 3,
      [&pedidos](int entrada) {
        pedidos.push_back(entrada);
        return QString("<p>Lea <b>esto</b> en <a href=\"http://example.org/\">la red</a>.</p>");
      },
      &ventana);
  aviso.show();
  EXPECT_EQ(pedidos, std::vector<int>{431});
  EXPECT_EQ(TextoDe(aviso), "Lea esto en la red.");
  EXPECT_FALSE(aviso.findChild<QTextBrowser*>()->openLinks());
  const QPoint falta = aviso.frameGeometry().center() - ventana.frameGeometry().center();
  EXPECT_LE(falta.manhattanLength(), 2);
}

TEST(AcercaDe, DiceQueProgramaEs) {
  Mesa mesa;
  const std::string carpeta = "/opt/" + std::string(120, 'x');
  frAcercaDe acerca(mesa.entorno, {}, carpeta, nullptr);
  QStringList textos;
  for (const auto* etiqueta : acerca.findChildren<QLabel*>()) textos << etiqueta->text();
  for (const QString& texto : {QString("ZORBIN"), QString(ZORBIN_VERSION), QString("2009-Mar.02"),
                               QString("Qt ") + qVersion(),
                               QString("Cálculo mecánico de tubos de hormigón según el Anejo 4")}) {
    EXPECT_TRUE(textos.contains(texto)) << S(texto);
  }
  EXPECT_EQ(S(acerca.findChild<QLineEdit*>()->text()), carpeta);
  const int ancho = acerca.width();
  acerca.show();
  EXPECT_EQ(acerca.width(), ancho);
  EXPECT_LT(ancho, 1000);
  QTest::keyClick(&acerca, Qt::Key_Return);
  EXPECT_FALSE(acerca.isVisible());
}

// Reads the warnings that come up, and closes them.
class LectorAvisos : public QObject {
 public:
  LectorAvisos() {
    reloj_.setInterval(5);
    connect(&reloj_, &QTimer::timeout, this, [this] {
      auto* aviso = qobject_cast<frmTip*>(QApplication::activeModalWidget());
      if (aviso == nullptr || !aviso->isVisible()) return;
      textos.push_back(TextoDe(*aviso));
      aviso->accept();
    });
    reloj_.start();
  }
  std::vector<QString> textos;

 private:
  QTimer reloj_;
};

struct ConMemoria {
  ConMemoria() {
    memoria.ruta = base / "Especifi #1.pdf";
    memoria.carpetas.datos = {base};
    memoria.documento = [](int entrada) { return QString::number(entrada); };
    memoria.abre = [this](const QUrl& fichero) {
      avisosAlAbrir = avisos.textos.size();
      abiertos.push_back(fichero);
      return abre;
    };
    Escribe(memoria.ruta, "%PDF-1.4");
    fs::create_directories(base / "applications");
    Escribe(base / "applications/mimeinfo.cache", "[MIME Cache]\napplication/pdf=v.desktop;\n");
    PonVisor("[Desktop Entry]\nExec=v %f\n");
  }
  Mesa mesa;
  fs::path base{S(mesa.carpeta.path())};
  MemoriaTecnica memoria;
  Persona persona;
  LectorAvisos avisos;
  bool abre = true;
  std::vector<QUrl> abiertos;
  std::size_t avisosAlAbrir = 0;

  static void Escribe(const fs::path& ruta, const std::string& texto) {
    std::ofstream(ruta, std::ios::binary) << texto;
  }
  void PonVisor(const std::string& texto) const { Escribe(base / "applications/v.desktop", texto); }
  void Muestra() {
    abiertos.clear();
    avisos.textos.clear();
    persona.cajas.clear();
    MuestraMemoria(mesa.entorno, memoria, nullptr);
  }
};

TEST(Memoria, AvisaYSeAbre) {
  ConMemoria m;
  m.Muestra();
  EXPECT_EQ(m.avisos.textos, std::vector<QString>{"431"});
  ASSERT_EQ(m.abiertos.size(), 1U);
  EXPECT_EQ(m.avisosAlAbrir, 1U);
  EXPECT_EQ(S(m.abiertos[0].toLocalFile()), m.memoria.ruta.string());
  EXPECT_TRUE(m.persona.cajas.empty());

  m.mesa.preferencias.PonOpcionAviso("Mostrar sugerencias al iniciar II", false);
  m.abre = false;
  m.Muestra();
  EXPECT_TRUE(m.avisos.textos.empty());
  ASSERT_EQ(m.persona.cajas.size(), 1U);
  EXPECT_EQ(m.persona.cajas[0].titulo, "AVISO");
  EXPECT_EQ(m.persona.Ultima(), "No consiguió planificar el Acrobat Reader");
}

TEST(Memoria, ElFicheroHaDePoderLeerse) {
  ConMemoria m;
  for (const fs::path& ruta : {fs::path(), m.base / "no-esta.pdf", m.memoria.ruta / "dentro"}) {
    m.memoria.ruta = ruta;
    m.Muestra();
    EXPECT_EQ(m.persona.Ultima(), "ESPECIFI.PDF No existe el fichero") << ruta;
  }
  m.memoria.ruta = m.base / "applications";  // a folder
  m.Muestra();
  EXPECT_EQ(m.persona.Ultima(),
            QStringLiteral("Error:%1\nal Abrir el fichero ESPECIFI.PDF").arg(EISDIR));
  EXPECT_TRUE(m.abiertos.empty() && m.avisos.textos.empty());
}

TEST(Memoria, SinVisorSeDice) {
  ConMemoria m;
  m.PonVisor("[Desktop Entry]\nType=Application\n");
  m.Muestra();
  EXPECT_EQ(m.persona.Ultima(), "No tiene bien instalado el Acrobat Reader");
  EXPECT_EQ(m.persona.cajas.back().titulo, "AVISO");
  fs::remove(m.base / "applications/v.desktop");
  m.Muestra();
  EXPECT_TRUE(m.persona.cajas.empty());
  EXPECT_EQ(m.avisos.textos, std::vector<QString>{"430"});
  EXPECT_TRUE(m.abiertos.empty());
}

}  // namespace
}  // namespace zorbin
