// An Obra whose name and texts are what an attacker, or a careless copy, would make of them: they
// appear as they stand, command nothing and fetch nothing.
#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QTreeWidget>
#include <QWindow>

#include "base/mdAnsi.h"
#include "listados/pintor/mdPintor.h"
#include "persistencia/registros/mdRegistros.h"
#include "programas/zorbin/mdPrograma.h"
#include "shell/entornoPrueba.h"
#include "shell/impresion/frVistaPrevia.h"

namespace zorbin::prueba {
namespace {

const QString kNombre = QStringLiteral(
    "-rf `touch cae` $(touch cae); <b>[*]<img src=\"x\">&lt; && %1 %s\t{1} \u202Eobra");
const std::string kObra = "<img src=\"file:///etc/passwd\"> %1 {1} $(touch cae)\x1b]0;m\x07";
const std::string kCliente = "<b>http://127.0.0.1/</b> &amp; =1+1 %n";
const std::string kTramo = "<script>x</script>[*] \"'; %s {2}";

// What a tooltip shows of its text.
QString Visto(const QString& consejo) {
  if (!Qt::mightBeRichText(consejo)) return consejo;
  QTextDocument documento;
  documento.setHtml(consejo);
  return documento.toPlainText();
}

// No text that is on the screen is taken for HTML, but the one that a tooltip shows as it stands.
void NadaEsHtml(const QWidget& ventana) {
  for (const auto* rotulo : ventana.findChildren<QLabel*>()) {
    if (!Qt::mightBeRichText(rotulo->text())) continue;
    // A link of the program's own has no word of a file.
    if (rotulo->objectName() == QStringLiteral("lbAdvertencia")) continue;
    EXPECT_EQ(rotulo->textFormat(), Qt::PlainText) << S(rotulo->text());
  }
  for (const auto* pieza : ventana.findChildren<QWidget*>()) {
    if (!Qt::mightBeRichText(pieza->toolTip())) continue;
    EXPECT_TRUE(Visto(pieza->toolTip()).contains('<')) << S(pieza->toolTip());
  }
}

struct Sorpresa : testing::Test {
  QTemporaryDir carpeta;
  QString antes = QDir::currentPath();
  Persona persona;
  QString obra = carpeta.filePath(QString(kNombre).replace('/', '|') + ".zrb");
  std::unique_ptr<Programa> programa;

  // The program runs where a command that got loose would leave its file.
  void SetUp() override {
    QDir::setCurrent(carpeta.path());
    ASSERT_TRUE(QFile::copy(ZORBIN_FUENTES "muestras/acequia.zrb", obra));
    FicheroRegistros f(S(obra), FicheroRegistros::Modo::LecturaEscritura);
    f.EscribeRegistro(5, kObra);
    f.EscribeRegistro(6, kCliente);
    f.EscribeRegistro(22, kTramo);
    f.Vacia();
    programa = std::make_unique<Programa>(
        std::make_unique<Preferencias>(carpeta.filePath("u.ini"), carpeta.filePath("m.ini")));
    persona.cajas.clear();
  }
  void TearDown() override {
    programa.reset();
    QDir::setCurrent(antes);
    EXPECT_FALSE(QFile::exists(carpeta.filePath("cae")));
  }
  FormaPrincipal& ventana() { return programa->ventana(); }
};

TEST_F(Sorpresa, EnLaVentanaTodoApareceTalComoEsta) {
  ventana().show();
  ASSERT_TRUE(ventana().Abre(obra));
  EXPECT_TRUE(persona.cajas.empty()) << S(persona.Ultima());
  EXPECT_EQ(ventana().windowHandle()->title(), QFileInfo(obra).fileName() + " - ZORBIN");
  const auto* estado = ventana().findChild<QLabel*>("estadoObra");
  EXPECT_EQ(estado->text(), obra);
  EXPECT_EQ(Visto(estado->toolTip()), QString(obra).replace('\t', ' '));
  EXPECT_EQ(ventana().findChild<QPlainTextEdit*>("edObra")->toPlainText(), Q(kObra));
  EXPECT_EQ(ventana().findChild<QLineEdit*>("edCliente")->text(), Q(kCliente));
  const auto* tramos = ventana().findChild<QTreeWidget*>("Tramos");
  QString renglon;
  for (int i = 0; i < tramos->columnCount(); ++i) renglon += tramos->topLevelItem(0)->text(i);
  EXPECT_TRUE(renglon.contains(Q(kTramo))) << S(renglon);
  NadaEsHtml(ventana());

  // The list of the last Obras, in the menu and on the first page.
  const QString escrito = QFileInfo(obra).fileName().replace('&', "&&").replace('\t', ' ');
  int veces = 0;
  for (const auto* accion : ventana().findChildren<QAction*>()) {
    veces += accion->text().contains(escrito) ? 1 : 0;
  }
  EXPECT_EQ(veces, 1);
  ventana().accion(Orden::mnCerrarObra)->trigger();
  NadaEsHtml(ventana());
  QPushButton* reciente = nullptr;
  for (auto* boton : ventana().findChildren<QPushButton*>()) {
    if (boton->toolTip().contains("img src")) reciente = boton;
  }
  ASSERT_NE(reciente, nullptr);
  EXPECT_EQ(Visto(reciente->toolTip()), QString(obra).replace('\t', ' '));
  reciente->click();
  EXPECT_TRUE(programa->captura().ObraCargada);
}

TEST_F(Sorpresa, EnLosMensajesYEnElPapelTambien) {
  const QString rota = carpeta.filePath("<b>rota<br> %1 {1}.zrb");
  QFile f(rota);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("no es una Obra");
  f.close();
  EXPECT_FALSE(ventana().Abre(rota));
  ASSERT_FALSE(persona.cajas.empty());
  EXPECT_TRUE(persona.Ultima().contains(rota)) << S(persona.Ultima());
  EXPECT_TRUE(persona.cajas.back().literal);

  Mesa mesa;
  Hoja hoja;
  hoja.textos.push_back({20, 10, false, false, kObra});
  frVistaPrevia vista(mesa.textos, mesa.preferencias, mesa.papel, kNombre, {hoja}, nullptr);
  vista.show();
  EXPECT_TRUE(vista.windowHandle()->title().endsWith(" - " + kNombre));
  NadaEsHtml(vista);
}

}  // namespace
}  // namespace zorbin::prueba
