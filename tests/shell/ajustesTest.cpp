// The screen of adjustments as a person uses it, from the capture to the summary that shows them.
#include "comun/textoEntero.h"
#include "shell/ajustes/frAjustes.h"

#include <QAction>
#include <QComboBox>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextBrowser>

#include "programas/zorbin/mdPrograma.h"
#include "sesion/ajustes/banco.h"
#include "sesion/ajustes/mdPared.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/trabajo/mdTrabajo.h"
#include "shell/ajustes/mdDibujoAjustes.h"
#include "shell/captura/CapturaDatos.h"
#include "shell/enPantalla.h"
#include "shell/pantallaCalculadora.h"

namespace zorbin {
namespace {

using namespace prueba;

struct Sala {
  explicit Sala(const std::string& tramo = "1") : b(tramo) {}

  BancoAjustes b;
  Mesa mesa;
  Entorno entorno{b.textos, b.tablas, mesa.preferencias, mesa.papel};
  int pedidos = 0;  // of documents
  QString html = "<p>otros recubrimientos</p>";

  QString Tx(int n) const { return Q(b.textos.Texto(n)); }

  /// The order of the menu, with what a person does on the screen. @return times it opened
  int Ajusta(const std::function<void(frAjustes&)>& que) {
    EnPantalla<frAjustes> persona([&](frAjustes& pantalla) {
      Activa(pantalla);
      que(pantalla);
      if (pantalla.isVisible()) pantalla.done(0);
    });
    AbreAjustes(
        b.c, entorno,
        [this](int entrada) {
          ++pedidos;
          EXPECT_EQ(entrada, 411);
          return html;
        },
        nullptr);
    return persona.veces;
  }
  std::string Resumen() {
    auto calculo = CalculaEncargo(EncargaTramo(b.c).value());
    return Resume(calculo);
  }
};

QString Etiqueta(QWidget& p, const QString& nombre) {
  return SinMarcas(Pieza<QLabel>(p, nombre).text());
}

QString Casilla(QWidget& p, const QString& nombre) {
  return Pieza<QLineEdit>(p, nombre).text();
}

// The three columns of areas that a row shows.
QString Fila(QWidget& p, int fila) {
  QString texto;
  for (const char* columna : {"txArmCamisa", "txArmRefuerzo", "txArmExterior"}) {
    auto& celda = Pieza<QWidget>(p, columna + QString::number(fila));
    const auto* etiqueta = qobject_cast<const QLabel*>(&celda);
    texto += (etiqueta != nullptr ? etiqueta->text() : Casilla(p, celda.objectName())) + ' ';
  }
  return texto.trimmed();
}

bool Elegida(QWidget& p, int fila) {
  return Pieza<QRadioButton>(p, QString("obSeleccion%1").arg(fila)).isChecked();
}

bool Habilitado(QWidget& p, const QString& nombre) {
  return Pieza<QWidget>(p, nombre).isEnabled();
}

bool SeVe(QWidget& p, const QString& nombre) {
  return Pieza<QWidget>(p, nombre).isVisible();
}

TEST(PantallaAjustes, SeRecorreSeEligeSeGuardaYVuelve) {
  Sala s;
  EXPECT_EQ(s.Ajusta([&](frAjustes& p) {
    EXPECT_EQ(p.windowTitle(), "         Ajuste de Armaduras");
    EXPECT_EQ(EnFoco(p), "obSeleccion0");
    Pulsa(p, "btAnteriorAltura");
    EXPECT_EQ(s.b.voz.Ultimo(), "No hay mas alturas");
    Pulsa(p, "btSiguientePresion");
    Pulsa(p, "btSiguienteAltura");
    EXPECT_EQ(Casilla(p, "txPresion") + ' ' + Casilla(p, "txAltura"), "0,50 3,00");
    EXPECT_EQ(Etiqueta(p, "lbPresion"), "DP (MPa)");
    Pulsa(p, "btAnteriorAltura");
    EXPECT_EQ(Fila(p, 5), "18,00 0,00 17,98");
    EXPECT_EQ(Etiqueta(p, "txArmTotal5"), "35,98");
    // A press on the figures of a row chooses it.
    QTest::mouseClick(&Pieza<QLabel>(p, "txArmExterior5"), Qt::LeftButton);
    EXPECT_TRUE(Elegida(p, 5));
    EXPECT_EQ(Etiqueta(p, "txArmDispuesta1"), "17,98");
    EXPECT_TRUE(SeVe(p, "lbSinGrabar"));
    QTest::keyClick(Foco(p), Qt::Key_Down);
    EXPECT_TRUE(Elegida(p, 6));
    QTest::keyClick(Foco(p), Qt::Key_Up);
    Pulsa(p, "btSubirValorMedio");
    EXPECT_TRUE(Elegida(p, 4));
    EXPECT_EQ(SinMarcas(Pieza<QRadioButton>(p, "obSeleccion3").text()), "Valor Medio Tanteo");
    EXPECT_EQ(Fila(p, 4), "18,00 0,00 17,98");
    Pulsa(p, "btGuardar");
    EXPECT_FALSE(SeVe(p, "lbSinGrabar"));
    Pulsa(p, "btSalir");
    EXPECT_FALSE(p.isVisible());
  }),
            1);
  EXPECT_TRUE(s.b.voz.preguntas.empty());
  s.Ajusta([&](frAjustes& p) {
    EXPECT_TRUE(Elegida(p, 0));
    Pulsa(p, "btSiguientePresion");
    EXPECT_TRUE(Elegida(p, 5));
    EXPECT_EQ(Fila(p, 5), "18,00 0,00 17,98");
  });
  EXPECT_EQ(s.b.Guardados().size(), 1u);
}

TEST(PantallaAjustes, LaSeleccionDirectaSinRaton) {
  Sala s;
  s.Ajusta([&](frAjustes& p) {
    for (int i = 0; i < 8 && !Elegida(p, 8); ++i) QTest::keyClick(Foco(p), Qt::Key_Down);
    QTest::qWait(5);
    ASSERT_EQ(EnFoco(p), "txArmCamisa8");
    for (const char* nombre : {"btSalir", "btGuardar", "btSubirValorMedio", "btSiguienteAltura",
                               "btCambiarRecubrimientos", "obSeleccion0", "obSeleccion4"}) {
      EXPECT_FALSE(Habilitado(p, nombre)) << nombre;
    }
    p.close();  // not with this open
    EXPECT_TRUE(p.isVisible());
    EXPECT_EQ(Q(s.b.voz.Ultimo()), s.Tx(1384));
    Pulsa(p, "btSeleccionDirecta");
    EXPECT_EQ(s.b.voz.Ultimo(), "Armadura Interior igual a 0");
    EXPECT_EQ(EnFoco(p), "txArmCamisa8");
    QTest::keyClicks(Foco(p), "10");
    QTest::keyClick(Foco(p), Qt::Key_Return);
    EXPECT_EQ(EnFoco(p), "txArmRefuerzo8");
    EXPECT_EQ(Etiqueta(p, "txArmTotal8"), "10,00");
    Pulsa(p, "btSeleccionDirecta");
    EXPECT_EQ(s.b.voz.Ultimo(), "Armadura Exterior igual a 0");
    EXPECT_EQ(EnFoco(p), "txArmExterior8");
    s.b.Olvida();
    QTest::keyClicks(Foco(p), "20.5");
    QTest::keyClick(Foco(p), Qt::Key_Return);
    EXPECT_EQ(EnFoco(p), "btSeleccionDirecta");
    QTest::keyClick(Foco(p), Qt::Key_Return);
    EXPECT_TRUE(s.b.voz.mensajes.empty());
    EXPECT_EQ(Fila(p, 8), "10,00 0,00 20,50");
    EXPECT_EQ(EnFoco(p), "obSeleccion8");
    EXPECT_TRUE(Pieza<QLineEdit>(p, "txArmCamisa8").isReadOnly());
    // What falls short is marked, and says by how much.
    EXPECT_TRUE(SeVe(p, "imAlerta0"));
    EXPECT_FALSE(SeVe(p, "imAlerta1"));
    EXPECT_NE(Pieza<QWidget>(p, "imAlerta0").toolTip().indexOf("se disponen 10,00"), -1);
    EXPECT_TRUE(SeVe(p, "lbRige2"));
    EXPECT_FALSE(SeVe(p, "lbRige0"));
    // Typed again and given up.
    QTest::keyClick(Foco(p), Qt::Key_Space);
    EXPECT_EQ(EnFoco(p), "txArmCamisa8");
    QTest::keyClicks(Foco(p), "7");
    QTest::keyClick(Foco(p), Qt::Key_Escape);
    EXPECT_TRUE(p.isVisible());
    EXPECT_TRUE(Elegida(p, 7));  // the last row that the arrows went over
    EXPECT_EQ(Fila(p, 8), "0,00 0,00 0,00");
    EXPECT_TRUE(Habilitado(p, "btSalir"));
  });
}

TEST(PantallaAjustes, OtrosRecubrimientosConSuAviso) {
  Sala s;
  s.Ajusta([&](frAjustes& p) {
    EXPECT_FALSE(SeVe(p, "tbAviso"));
    EXPECT_EQ(s.pedidos, 1);
    const QString fila = Fila(p, 4);
    Pulsa(p, "btCambiarRecubrimientos");
    EXPECT_TRUE(SeVe(p, "tbAviso"));
    EXPECT_EQ(Pieza<QTextBrowser>(p, "tbAviso").toPlainText(), "otros recubrimientos");
    EXPECT_EQ(EnFoco(p), "txRecInterior");
    Teclea(p, "txRecInterior", ",");
    QTest::keyClick(Foco(p), Qt::Key_Tab);  // no number
    EXPECT_EQ(s.b.voz.Titulo(), "Recubrimiento Interior (cm.)");
    EXPECT_EQ(EnFoco(p), "txRecInterior");
    s.b.Olvida();
    Teclea(p, "txRecInterior", "3");
    QTest::keyClick(Foco(p), Qt::Key_Return);
    EXPECT_EQ(EnFoco(p), "txRecExterior");
    Pulsa(p, "btAceptarRecubrimientos");
    EXPECT_TRUE(s.b.voz.mensajes.empty()) << s.b.voz.Ultimo();
    EXPECT_FALSE(SeVe(p, "tbAviso"));
    EXPECT_EQ(Casilla(p, "txRecInterior"), "3,0");
    EXPECT_EQ(Fila(p, 4).left(5), "15,56");
    EXPECT_NE(Pieza<DibujoPared>(p, "pared").accessibleName().indexOf("interior 3,0 cm"), -1);
    Pulsa(p, "btCambiarRecubrimientos");
    Teclea(p, "txRecExterior", "4");
    QTest::keyClick(Foco(p), Qt::Key_Escape);
    EXPECT_EQ(Fila(p, 4), fila);
    EXPECT_EQ(Casilla(p, "txRecExterior"), "2,5");
  });
  s.html.clear();
  s.Ajusta([&](frAjustes& p) {
    EXPECT_NE(Pieza<QTextBrowser>(p, "tbAviso").toPlainText().indexOf("AvisoRec.rtf"), -1);
  });
}

// Every Caso can be chosen from the list, and what is stored is marked there.
TEST(PantallaAjustes, LaListaLlevaACualquierCaso) {
  Sala s;
  s.Ajusta([&](frAjustes& p) {
    auto& lista = Pieza<QComboBox>(p, "cbCasos");
    ASSERT_EQ(lista.count(), 9);
    EXPECT_EQ(lista.currentIndex(), 0);
    emit lista.activated(5);
    EXPECT_EQ(Casilla(p, "txPresion") + ' ' + Casilla(p, "txAltura"), "0,60 3,00");
    EXPECT_EQ(lista.currentIndex(), 5);
    Pulsa(p, "obSeleccion5");
    Pulsa(p, "btGuardar");
    EXPECT_TRUE(lista.itemText(5).contains("✎")) << S(lista.itemText(5));
    EXPECT_FALSE(lista.itemText(4).contains("✎"));
    Pulsa(p, "btSalir");
  });
}

TEST(PantallaAjustes, LoNoGuardadoSePreguntaAntesDePerderse) {
  Sala s;
  s.Ajusta([&](frAjustes& p) {
    Pulsa(p, "obSeleccion5");
    s.b.voz.responde = false;
    emit Pieza<QComboBox>(p, "cbCasos").activated(5);
    EXPECT_EQ(Casilla(p, "txPresion"), "0,40");
    Pulsa(p, "btSiguientePresion");
    EXPECT_EQ(Casilla(p, "txPresion"), "0,40");
    QTest::keyClick(&p, Qt::Key_Escape);
    EXPECT_TRUE(p.isVisible());
    ASSERT_EQ(s.b.voz.preguntas.size(), 3u);
    EXPECT_EQ(s.b.voz.preguntas[1].titulo, "AVISO");
    s.b.voz.responde = true;
    p.close();
    EXPECT_FALSE(p.isVisible());
  });
  EXPECT_TRUE(s.b.Guardados().empty());
}

// On the summary, on paper and in the file until a datum of the Tramo changes.
TEST(PantallaAjustes, ElResumenLoLlevaYUnDatoLoBorra) {
  Sala s;
  const auto antes = s.Resumen();
  s.Ajusta([&](frAjustes& p) {
    Pulsa(p, "btSiguientePresion");
    Pulsa(p, "obSeleccion8");
    QTest::keyClicks(Foco(p), "21,37");
    Teclea(p, "txArmRefuerzo8", "4,4");
    Teclea(p, "txArmExterior8", "19,7");
    Pulsa(p, "btSeleccionDirecta");
    Pulsa(p, "btAceptarAjuste");
    EXPECT_FALSE(p.isVisible());
  });
  const auto despues = s.Resumen();
  EXPECT_EQ(antes.find("45,47"), std::string::npos);
  EXPECT_NE(despues.find("45,47"), std::string::npos) << despues;
  s.b.Teclea(Ed::edGr0, "1,95");
  ASSERT_TRUE(Graba(s.b.c)) << s.b.voz.Ultimo();
  EXPECT_EQ(s.Resumen().find("45,47"), std::string::npos);
  s.Ajusta([&](frAjustes& p) {
    Pulsa(p, "btSiguientePresion");
    EXPECT_TRUE(Elegida(p, 0));
  });
}

TEST(PantallaAjustes, LoQueSeNiegaNoAbreNada) {
  Sala s;
  const FicheroDpe otro(RutaDpe(s.b.obra), ',');
  EXPECT_EQ(s.Ajusta([](frAjustes&) {}), 0);
  EXPECT_NE(s.b.voz.Ultimo().find("otro programa"), std::string::npos);
}

// The sheet stands at its cover from the inner face, and the outer bars at theirs, to one scale.
TEST(PantallaAjustes, LaParedEstaAEscala) {
  DibujoPared dibujo;
  dibujo.resize(500, 300);
  ParedDeTubo pared;
  pared.Esp = 12;
  pared.Reci = 2;
  pared.Rece = 4;
  pared.CAMISA = 2;
  pared.exteriores = {40, 10, 2.5};
  dibujo.Pon(pared, {});
  const QImage imagen = dibujo.grab().toImage();
  const QColor fondo = imagen.pixelColor(1, 1);
  const auto columna = [&](int x, auto cumple) {
    std::vector<int> filas;
    for (int y = 0; y < imagen.height(); ++y) {
      if (cumple(imagen.pixelColor(x, y))) filas.push_back(y);
    }
    return filas;
  };
  const int x = imagen.width() / 2;
  const auto muro = columna(x, [&](const QColor& c) { return c != fondo; });
  const auto chapa = columna(x, [](const QColor& c) { return c.blue() > c.red() + 60; });
  ASSERT_FALSE(muro.empty());
  ASSERT_FALSE(chapa.empty());
  const double escala = (muro.back() - muro.front()) / 12.0;
  EXPECT_GT(escala, 10);
  EXPECT_NEAR((muro.back() - (chapa.front() + chapa.back()) / 2.0) / escala, 2.0, 0.15);
  EXPECT_NEAR(static_cast<double>(chapa.size()) / escala, 0.2, 0.1);
  // Where a bar is widest, it is as wide as its diameter; the next one is a separation on.
  const int y = static_cast<int>(std::lround(muro.front() + 4 * escala));
  std::vector<int> comienzos;
  bool dentro = false;
  for (int i = 0; i < imagen.width(); ++i) {
    const QColor c = imagen.pixelColor(i, y);
    const bool barra = c.green() > c.red() + 60;
    if (barra && !dentro) comienzos.push_back(i);
    dentro = barra;
  }
  ASSERT_GE(comienzos.size(), 4u);
  EXPECT_NEAR((comienzos[3] - comienzos[0]) / escala, 3 * 2.5, 0.2);
}

// ---- Languages

QSet<QString> Buenos(const Catalogo& textos) {
  QSet<QString> buenos;
  for (int n = 101; n < kPasoIdioma; ++n) {
    if (textos.Existe(n)) buenos.insert(SinMarcas(Q(textos.Texto(n))).simplified());
  }
  return buenos;
}

// What is composed stands in the catalogue up to its first number or bracket.
bool EsCompuesto(const QSet<QString>& buenos, const QString& texto) {
  if (QRegularExpression("^[0-9,]+$").match(texto).hasMatch()) return true;
  for (const auto& bueno : buenos) {
    QString patron = QRegularExpression::escape(bueno);
    patron.replace(QRegularExpression(R"(\\\{[1-9]\\\})"), ".+");
    patron.append(R"(( \((MPa|at|cm2/m)\))?)");
    if (QRegularExpression("^" + patron + "$").match(texto).hasMatch()) return true;
  }
  return false;
}

void CompruebaPantalla(frAjustes& p, const QSet<QString>& buenos) {
  QTest::qWait(5);
  for (auto* area : p.findChildren<QScrollArea*>()) {
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
  }
  QSet<QChar> teclas;
  for (const auto& [widget, texto] : TextosALaVista(p)) {
    if (widget->objectName().startsWith("qt_")) continue;
    const std::string donde = S(widget->objectName()) + ": " + S(texto);
    const QString limpio = SinMarcas(texto).simplified();
    EXPECT_TRUE(buenos.contains(limpio) || EsCompuesto(buenos, limpio)) << donde;
    const auto marca = texto.indexOf('&');
    if (marca >= 0) {
      EXPECT_FALSE(teclas.contains(texto[marca + 1].toUpper())) << donde;
      teclas.insert(texto[marca + 1].toUpper());
    }
    EXPECT_TRUE(marca >= 0 || qobject_cast<const QAbstractButton*>(widget) == nullptr) << donde;
    if (widget == &p) continue;
    const auto* rotulo = qobject_cast<const QLabel*>(widget);
    if (rotulo != nullptr && rotulo->wordWrap()) {
      EXPECT_GE(rotulo->height(), rotulo->heightForWidth(rotulo->width())) << donde;
    } else {
      EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << donde;
      EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << donde;
    }
    EXPECT_EQ(widget->visibleRegion().boundingRect().size(), widget->size()) << donde;
  }
}

class AjustesEnIdioma : public testing::TestWithParam<int> {};

TEST_P(AjustesEnIdioma, TodoTextoEsDelCatalogoYCabe) {
  Sala s("2");
  CambiaIdioma(s.b.c, static_cast<std::int16_t>(GetParam()));
  ASSERT_TRUE(Graba(s.b.c));
  const auto buenos = Buenos(s.b.textos);
  const int veces = s.Ajusta([&](frAjustes& p) {
    p.resize(1366, 700);
    CompruebaPantalla(p, buenos);
    Pulsa(p, "btSiguientePresion");
    ASSERT_TRUE(SeVe(p, "edAvisoCaldera"));
    Pulsa(p, "obSeleccion5");
    CompruebaPantalla(p, buenos);
    Pulsa(p, "obSeleccion8");
    CompruebaPantalla(p, buenos);
    Pulsa(p, "btAnulaSeleccionDirecta");
    Pulsa(p, "btCambiarRecubrimientos");
    CompruebaPantalla(p, buenos);
    for (auto* w : p.findChildren<QWidget*>()) {
      const bool campo = qobject_cast<QLineEdit*>(w) != nullptr ||
                         qobject_cast<QRadioButton*>(w) != nullptr ||
                         w->objectName().startsWith("barra") || w->objectName() == "pared";
      EXPECT_TRUE(!campo || !w->accessibleName().isEmpty()) << S(w->objectName());
    }
  });
  EXPECT_EQ(veces, 1);
}

INSTANTIATE_TEST_SUITE_P(Idiomas, AjustesEnIdioma, testing::Range(1, 6));

// The order of the program: over its own capture, with the program's own document.
TEST(PantallaAjustes, LaAbreElPrograma) {
  const Carpeta carpeta;
  std::filesystem::copy_file(ZORBIN_FUENTES "muestras/acequia.zrb", carpeta / "o.zrb");
  Persona persona;
  Programa programa(std::make_unique<Preferencias>(Q((carpeta / "u.ini").string()),
                                                   Q((carpeta / "m.ini").string())));
  auto& ventana = programa.ventana();
  ventana.show();
  ASSERT_TRUE(ventana.Abre(Q((carpeta / "o.zrb").string())));
  ventana.captura().Hace([&] {
    Entra(programa.captura(), Ed::edTramo);
    Cambia(programa.captura(), Ed::edTramo, "1");
    Sale(programa.captura(), Ed::edTramo);
  });
  ASSERT_TRUE(ventana.accion(Orden::mnAjustarArmaduras)->isEnabled()) << S(persona.Ultima());
  QString aviso;
  EnPantalla<frAjustes> ingeniero([&](frAjustes& p) {
    Activa(p);
    aviso = Pieza<QTextBrowser>(p, "tbAviso").toPlainText();
    Pulsa(p, "obSeleccion5");
    Pulsa(p, "btAceptarAjuste");
  });
  ventana.accion(Orden::mnAjustarArmaduras)->trigger();
  EXPECT_EQ(ingeniero.veces, 1) << S(persona.Ultima());
  EXPECT_GT(aviso.size(), 200);
  EXPECT_EQ(LeeAjustes(RutaDpe(carpeta / "o.zrb")).size(), 1u);
  EXPECT_FALSE(programa.captura().EnCambio());
}

TEST(PantallaAjustes, LaAyudaEsLaSuya) {
  Sala s;
  QString ancla;
  s.entorno.ayuda = [&ancla](const QString& a) { ancla = a; };
  s.Ajusta([](frAjustes& p) { QTest::keyClick(&p, Qt::Key_F1); });
  EXPECT_EQ(ancla, "ajustes");
}

}  // namespace
}  // namespace zorbin
