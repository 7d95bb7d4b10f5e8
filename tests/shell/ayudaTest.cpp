#include <gtest/gtest.h>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextFrame>
#include <QToolButton>
#include <QTreeWidget>
#include <QWindow>

#include "base/textos.h"
#include "shell/ayuda/frAyuda.h"
#include "shell/entornoPrueba.h"
#include "shell/piezas/mdVisorHtml.h"

namespace zorbin {
namespace {

using prueba::Mesa;

constexpr char kManual[] = R"(<!DOCTYPE HTML><html lang="es"><head>
<link rel="stylesheet" href="hoja.css">
<style>body { color: #000000; background-color: #ffffff; } h1 { font-size: 20pt; }</style>
</head><body>
<!-- <h1><a name="oculto"></a>Oculto</h1> -->
<p>Prólogo.</p>
<h1><a name="inicio" title="Zanja; zinc"></a>Manual &amp; gu&iacute;a</h1>
<p>El <a name="dentro" title="&Aacute;ngulo; zanja">ángulo</a> de la presión.
<a href="#cuna">Cuna</a> <a href="http://example.org/">fuera</a> <a href="otro.html">otro</a>
<a href="#nada">nada</a> <img src="foto.png"></p>
RELLENO
<h2 class="x">
<a name='cuna' title='apoyo > 90; altura; Árido'></a>La <i>cuna</i></h2>
<p>Presiones en la altura; contrapresión.</p>
RELLENO
<h2>Sin <a name="tarde"></a>ancla delante</h2>
<h3><a name="granular"></a>Granular</h3><p>Arena.</p>
RELLENO
<h1><a name="final"></a>Final</h1><p>Fin.</p>
</body></html>)";

QString PaginaDe(const QString& texto) {
  QString relleno;
  for (int i = 0; i < 60; ++i) relleno += QStringLiteral("<p>Renglón %1.</p>").arg(i);
  return QString(texto).replace("RELLENO", relleno);
}

void Escribe(const QString& ruta, const QString& texto) {
  QFile fichero(ruta);
  ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
  fichero.write(texto.toUtf8());
}

struct ConAyuda {
  ConAyuda() {
    Escribe(Ruta("Zorbinesp.html"), PaginaDe(kManual));
    Escribe(Ruta("Zorbinfra.html"), PaginaDe(kManual).replace("Granular", "Granulaire"));
    ayuda.resize(700, 400);
  }
  Mesa mesa;
  frAyuda ayuda{mesa.entorno, [this](const std::string& nombre) -> std::filesystem::path {
                  const QString ruta = Ruta(Q(nombre));
                  return QFile::exists(ruta) ? S(ruta) : std::string();
                }};

  QString Ruta(const QString& nombre) const { return mesa.carpeta.filePath(nombre); }
  void Abre(const QString& ancla) {
    ayuda.Muestra(ancla);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ayuda));
  }
  VisorHtml& Visor() { return *ayuda.findChild<VisorHtml*>(); }
  QTreeWidget& Contenido() { return *ayuda.findChild<QTreeWidget*>("contenido"); }
  QListWidget& Lista(const char* nombre) { return *ayuda.findChild<QListWidget*>(nombre); }
  QLineEdit& Campo(const char* nombre) { return *ayuda.findChild<QLineEdit*>(nombre); }
  // The text of the line at the top of the page.
  QString Arriba() {
    QTextCursor lugar(Visor().document());
    lugar.setPosition(Visor().LugarArriba());
    return lugar.block().text();
  }
  void Pulsa(const QString& enlace) { emit Visor().anchorClicked(QUrl(enlace)); }
};

QStringList Visibles(const QListWidget& lista) {
  QStringList textos;
  for (int i = 0; i < lista.count(); ++i) {
    if (!lista.item(i)->isHidden()) textos << lista.item(i)->text();
  }
  return textos;
}

TEST(Manual, ApartadosEIndice) {
  const auto manual = InterpretaManual(QString::fromUtf8(kManual));
  QStringList apartados, indice;
  for (const auto& a : manual.apartados) {
    apartados << QStringLiteral("%1 %2 %3").arg(a.nivel).arg(a.ancla, a.titulo);
  }
  for (const auto& e : manual.indice) indice << e.texto + '@' + e.ancla;
  EXPECT_EQ(apartados, (QStringList{"1 inicio Manual & guía", "2 cuna La cuna",
                                    "3 granular Granular", "1 final Final"}));
  EXPECT_EQ(indice, (QStringList{"altura@cuna", "Ángulo@dentro", "apoyo > 90@cuna", "Árido@cuna",
                                 "Zanja@inicio", "zanja@dentro", "zinc@inicio"}));
}

TEST(Manual, UnaPaginaRotaNoLoEs) {
  for (const char* html :
       {"", "<", "<h1><a name=x", "<h1><a name='x'></a>Sin cerrar", "<!-- sin fin",
        "<style>h1 { <h1>", "</h1></h2><a>", "<h1><a name=\"x\" title=\";;\">"}) {
    const auto manual = InterpretaManual(QString::fromUtf8(html));
    EXPECT_TRUE(manual.apartados.empty() && manual.indice.empty()) << html;
  }
}

TEST(Manual, LosColoresSiguenAlTema) {
  const QString html =
      "<style>#nota { color: #000; }\np { background: #FFFFFF; margin: 8px; "
      "font-size: 10.5pt }</style><p>#000; 8px</p>";
  const Vestido claro{Qt::black, Qt::white, 1.0};
  EXPECT_TRUE(VisteManual(html, claro).contains("{ color: #000000; }"));
  const Vestido oscuro{QColor("#ebebeb"), QColor("#232323"), 2.0};
  EXPECT_EQ(VisteManual(html, oscuro),
            "<style>#nota { color: #ebebeb; }\np { background: #232323; margin: 16.00px; "
            "font-size: 21.00pt }</style><p>#000; 8px</p>");
  for (const char* color : {"#1f3b57", "#fff4d6", "#1a5a96", "#808080"}) {
    const QColor como(color);
    EXPECT_EQ(ColorVestido(como, claro).name(), como.name());
    const QColor vestido = ColorVestido(como, oscuro);
    EXPECT_NEAR(vestido.lightnessF(), 0.92 - 0.78 * como.lightnessF(), 0.02) << color;
    EXPECT_NEAR(vestido.hslHueF(), como.hslHueF(), 0.02) << color;
  }
}

TEST(Ayuda, SeRecorrePorElContenido) {
  ConAyuda a;
  a.Abre("cuna");
  EXPECT_EQ(a.Arriba(), "La cuna");
  auto* arbol = &a.Contenido();
  ASSERT_EQ(arbol->topLevelItemCount(), 2);
  const auto* cuna = arbol->topLevelItem(0)->child(0);
  EXPECT_EQ(arbol->currentItem(), cuna);
  EXPECT_EQ(cuna->child(0)->text(0), "Granular");

  emit arbol->itemClicked(cuna->child(0), 0);
  EXPECT_EQ(a.Arriba(), "Granular");
  a.ayuda.Muestra("no existe");
  EXPECT_EQ(a.Visor().verticalScrollBar()->value(), 0);
  EXPECT_EQ(arbol->currentItem(), arbol->topLevelItem(0));

  QTest::keyClick(&a.ayuda, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(a.Arriba(), "Granular");
  QTest::keyClick(&a.ayuda, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(a.Arriba(), "La cuna");
  QTest::keyClick(&a.ayuda, Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(a.Arriba(), "Granular");
  EXPECT_EQ(arbol->currentItem()->text(0), "Granular");
}

// The last section is too short to come to the top; scrolling marks what is read.
TEST(Ayuda, ElContenidoMarcaLoQueSeLee) {
  ConAyuda a;
  a.ayuda.Muestra("final");
  EXPECT_EQ(a.Contenido().currentItem()->text(0), "Final");
  auto* barra = a.Visor().verticalScrollBar();
  EXPECT_EQ(barra->value(), barra->maximum());
  barra->setValue(barra->maximum() - 1);
  EXPECT_EQ(a.Contenido().currentItem()->text(0), "Granular");
}

TEST(Ayuda, ElIndiceSeFiltra) {
  ConAyuda a;
  a.ayuda.MuestraIndice();
  QTest::keyClicks(&a.Campo("filtro"), "a");
  EXPECT_EQ(Visibles(a.Lista("indice")), (QStringList{"altura", "Ángulo", "apoyo > 90", "Árido"}));
  QTest::keyClicks(&a.Campo("filtro"), "R");
  EXPECT_EQ(Visibles(a.Lista("indice")), QStringList{"Árido"});
  QTest::keyClick(&a.Campo("filtro"), Qt::Key_Return);
  EXPECT_EQ(a.Arriba(), "La cuna");
  a.Campo("filtro").setText("zan");  // the word of two places says which
  EXPECT_EQ(Visibles(a.Lista("indice")), (QStringList{"Zanja – Manual & guía", "zanja"}));
}

TEST(Ayuda, BuscaEnElTexto) {
  ConAyuda a;
  a.ayuda.Muestra("inicio");
  auto& palabras = a.Campo("palabras");
  const auto& lista = a.Lista("hallazgos");
  palabras.setText("PRESION");
  EXPECT_EQ(Visibles(lista), (QStringList{"Manual & guía", "La cuna"}));
  ASSERT_EQ(a.Visor().extraSelections().size(), 2);
  EXPECT_EQ(a.Visor().extraSelections()[0].cursor.selectedText(), "presión");
  EXPECT_EQ(a.Visor().extraSelections()[1].cursor.selectedText(), "Presion");

  palabras.setText("renglon altura");
  EXPECT_EQ(Visibles(lista), QStringList{"La cuna"});
  EXPECT_EQ(a.Visor().extraSelections().size(), 61);
  QTest::keyClick(&palabras, Qt::Key_Return);
  EXPECT_EQ(a.Arriba(), "La cuna");
  palabras.setText("prologo");  // above the first heading
  EXPECT_EQ(Visibles(lista), QStringList{"Manual & guía"});

  for (const char* nada : {"oculto", "ontra", "altura arena", "font", "  "}) {
    palabras.setText(nada);
    EXPECT_EQ(lista.count(), 0) << nada;
    EXPECT_TRUE(a.Visor().extraSelections().isEmpty()) << nada;
  }
}

TEST(Ayuda, NadaSeTraeDeFuera) {
  ConAyuda a;
  QImage foto(40, 40, QImage::Format_RGB32);
  foto.fill(Qt::red);
  ASSERT_TRUE(foto.save(a.Ruta("foto.png")));
  Escribe(a.Ruta("otro.html"), "<p>Otro</p>");
  Escribe(a.Ruta("hoja.css"), "p { color: #ff0000; }");
  a.ayuda.Muestra({});
  const QString texto = a.Visor().toPlainText();
  const QUrl pagina = a.Visor().source();
  for (const auto& [tipo, fichero] : {std::pair{QTextDocument::ImageResource, "foto.png"},
                                      {QTextDocument::StyleSheetResource, "hoja.css"},
                                      {QTextDocument::HtmlResource, "otro.html"}}) {
    const QUrl suelto = QUrl(fichero);
    const QUrl entero = pagina.resolved(suelto);
    for (const QUrl& url : {suelto, entero}) {
      EXPECT_EQ(a.Visor().document()->resource(tipo, url), QVariant(QByteArray(""))) << fichero;
    }
  }
  for (const auto& enlace :
       {QString("http://example.org/"), QString("otro.html"),
        QUrl::fromLocalFile(a.Ruta("otro.html")).toString(), QString("#nada")}) {
    a.Pulsa(enlace);
    EXPECT_EQ(a.Visor().source(), pagina) << S(enlace);
    EXPECT_EQ(a.Visor().toPlainText(), texto) << S(enlace);
  }
  a.Pulsa("#cuna");
  EXPECT_EQ(a.Arriba(), "La cuna");
}

TEST(Ayuda, SeAmpliaPorDondeSeLee) {
  ConAyuda a;
  a.Abre("granular");
  const auto titulo = [&a] {
    return a.Visor().document()->find("Manual").charFormat().fontPointSize();
  };
  const int alto = a.Visor().document()->size().toSize().height();
  for (int i = 0; i < 3; ++i) QTest::keyClick(&a.ayuda, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(a.Arriba(), "Granular");
  EXPECT_NEAR(titulo(), 30, 0.01);
  EXPECT_GT(a.Visor().document()->size().toSize().height(), alto * 12 / 10);
  a.ayuda.resize(500, 400);
  EXPECT_EQ(a.Arriba(), "Granular");
  for (int i = 0; i < 20; ++i) QTest::keyClick(&a.ayuda, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_NEAR(titulo(), 10, 0.01);
  a.ayuda.close();

  frAyuda otra(a.mesa.entorno, [](const std::string&) { return std::filesystem::path(); });
  EXPECT_EQ(otra.size(), QSize(500, 400));
  otra.Muestra({});
  EXPECT_TRUE(QTest::qWaitForWindowActive(&otra));
  QTest::keyClick(&otra, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(a.mesa.preferencias.Valor("Ayuda/Escala").toInt(), 67);
}

TEST(Ayuda, CambiaDeIdiomaPorDondeSeLee) {
  ConAyuda a;
  a.ayuda.Muestra("granular");
  a.mesa.textos.PonIdioma(5);
  a.ayuda.RenuevaTextos();
  EXPECT_EQ(a.Arriba(), "Granulaire");
  EXPECT_EQ(a.ayuda.windowTitle(), a.mesa.Tx(txt::TituloAyuda));

  a.mesa.textos.PonIdioma(2);
  a.ayuda.RenuevaTextos();
  EXPECT_TRUE(a.Visor().toPlainText().startsWith("Could not find the file Zorbineng.html"));
  EXPECT_EQ(a.Contenido().topLevelItemCount(), 0);
  Escribe(a.Ruta("Zorbineng.html"), kManual);
  a.ayuda.Muestra({});
  EXPECT_TRUE(a.Visor().toPlainText().contains("Manual & guía"));
}

TEST(Ayuda, LaPaginaSigueAlTema) {
  ConAyuda a;
  a.Abre("cuna");
  QPalette oscura = a.ayuda.palette();
  oscura.setColor(QPalette::Base, QColor("#202020"));
  oscura.setColor(QPalette::Text, QColor("#f0f0f0"));
  a.ayuda.setPalette(oscura);
  auto* pagina = a.Visor().document();
  EXPECT_EQ(pagina->rootFrame()->frameFormat().background().color(), QColor("#202020"));
  EXPECT_EQ(pagina->find("Arena").charFormat().foreground().color(), QColor("#f0f0f0"));
  EXPECT_EQ(a.Arriba(), "La cuna");
  QTest::keyClick(&a.Contenido(), Qt::Key_Escape);
  EXPECT_FALSE(a.ayuda.isVisible());
}

// From a modal screen the manual can be read and used.
TEST(Ayuda, SeUsaDesdeUnaPantallaModal) {
  ConAyuda a;
  a.Abre("inicio");
  QDialog modal;
  modal.setModal(true);
  modal.show();
  QToolButton* boton = nullptr;
  for (auto* uno : a.ayuda.findChildren<QToolButton*>()) boton = uno->text() == "+" ? uno : boton;
  ASSERT_NE(boton, nullptr);
  const auto amplia = [&] {
    const QPoint sitio = boton->mapTo(&a.ayuda, boton->rect().center());
    QTest::mouseClick(a.ayuda.windowHandle(), Qt::LeftButton, {}, sitio);
    return a.mesa.preferencias.Valor("Ayuda/Escala", 100).toInt();
  };
  EXPECT_EQ(amplia(), 100);
  a.ayuda.Muestra("cuna");
  EXPECT_EQ(amplia(), 110);
  modal.close();
  EXPECT_EQ(amplia(), 125);
}

}  // namespace
}  // namespace zorbin
