#include <gtest/gtest.h>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QToolButton>
#include <QTreeWidget>
#include <set>

#include "persistencia/zrb/mdZrb.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdEdicion.h"
#include "shell/captura/CapturaDatos.h"
#include "shell/entornoPrueba.h"
#include "shell/principal/FormaPrincipal.h"
#include "shell/principal/mdArranque.h"

namespace zorbin {
namespace {

using prueba::Mesa;
using prueba::Persona;

// The whole window on a desk, with a person before it.
struct Programa {
  Programa() : voz(mesa.textos, mesa.preferencias), c(e, mesa.textos, mesa.tablas, voz, ',') {
    CierraObra(c);
    ventana = std::make_unique<FormaPrincipal>(c, mesa.entorno);
    voz.PonPadre(ventana.get());
    ventana->resize(1366, 700);
    ventana->show();
    ventana->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
  }

  QString Muestra() {
    const QString ruta = mesa.carpeta.filePath("acequia.zrb");
    QFile::copy(ZORBIN_FUENTES "muestras/acequia.zrb", ruta);
    return ruta;
  }
  QWidget* Campo(Ed id) { return &ventana->captura().campo(id).widget(); }
  QLineEdit* Linea(Ed id) {
    if (auto* lista = qobject_cast<QComboBox*>(Campo(id))) return lista->lineEdit();
    return qobject_cast<QLineEdit*>(Campo(id));
  }
  Ed EnFoco() const { return c.pantalla.foco; }
  bool TieneFoco(Ed id) {
    Delante();
    auto* foco = QApplication::focusWidget();
    return foco != nullptr && (foco == Campo(id) || Campo(id)->isAncestorOf(foco));
  }
  /// Types over what the focused field holds, and goes on with Tab.
  void Teclea(const char* texto, int tecla = Qt::Key_Tab) {
    Delante();
    QTest::qWait(1);
    if (QApplication::focusWidget() == nullptr) return ADD_FAILURE() << "nothing has the focus";
    QTest::keyClicks(QApplication::focusWidget(), texto);
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(tecla));
  }
  void Lanza(Orden orden) { ventana->accion(orden)->trigger(); }
  /// Without a window manager nobody brings the window back after a box.
  void Delante() {
    if (QApplication::activeWindow() == ventana.get()) return;
    ventana->activateWindow();
    QTest::qWait(5);
  }
  /// Goes to a field as a click does.
  void Pincha(Ed id) {
    Delante();
    Campo(id)->setFocus(Qt::MouseFocusReason);
    QTest::qWait(1);
    Delante();
  }

  Mesa mesa;
  Persona persona;
  InterlocutorQt voz;
  EstadoCalculo e;
  Captura c;
  std::unique_ptr<FormaPrincipal> ventana;
};

// The sample Obra open in it.
struct ConMuestra : Programa {
  ConMuestra() { EXPECT_TRUE(ventana->Abre(Muestra())) << S(persona.Ultima()); }
};

TEST(Ventana, UnaObraDesdeCeroConElTeclado) {
  Programa p;
  p.Lanza(Orden::MnNuevaObra);
  ASSERT_TRUE(p.TieneFoco(Ed::edObra));
  p.Teclea("Impulsion de prueba");
  p.Teclea("Cliente");
  EXPECT_TRUE(p.TieneFoco(Ed::edIdioma));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);  // language
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);  // units
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);  // surge
  ASSERT_TRUE(p.TieneFoco(Ed::edPrsM1));
  p.Teclea("0.66", Qt::Key_Return);
  EXPECT_EQ(p.Linea(Ed::edPrsM1)->text(), "0,66");
  ASSERT_TRUE(p.TieneFoco(Ed::edPrs1));
  p.Teclea("");
  EXPECT_EQ(p.Linea(Ed::edPrs1)->text(), "0,60") << "DP follows from MDP";
  p.Lanza(Orden::mnNuevoTramo);
  ASSERT_TRUE(p.TieneFoco(Ed::edDescriTramo));
  p.Teclea("Primer tramo");
  QTest::mouseClick(
      p.ventana->findChild<QWidget*>("TabPrincipal")->findChild<QTabBar*>(), Qt::LeftButton, {},
      p.ventana->findChild<QWidget*>("TabPrincipal")->findChild<QTabBar*>()->tabRect(2).center());
  ASSERT_TRUE(p.TieneFoco(Ed::rdTipoColocacion));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  ASSERT_TRUE(p.TieneFoco(Ed::edDi0));
  p.Teclea("1,2");
  p.Teclea("12");
  p.Teclea("2.5");
  p.Teclea("2.5");
  EXPECT_EQ(p.Linea(Ed::edDe0)->text(), "1,440");
  p.persona.fichero = p.mesa.carpeta.filePath("nueva.zrb");
  p.Lanza(Orden::mnGrabaTramo);
  EXPECT_EQ(p.persona.dialogos, 1) << S(p.persona.Ultima());
  EXPECT_FALSE(p.c.EnCambio()) << S(p.persona.Ultima());
  EstadoCalculo leido;
  const FicheroRegistros f(S(p.persona.fichero), FicheroRegistros::Modo::Lectura);
  ASSERT_EQ(CargaObra(leido, f).lista.size(), 1u);
  CargaTramo(leido, f, 1);
  EXPECT_EQ(leido.obra.NombreObra, "Impulsion de prueba");
  EXPECT_DOUBLE_EQ(leido.tramo.Di, 1.2);
  EXPECT_EQ(leido.tramo.DescriTramo, "Primer tramo");
  EXPECT_EQ(p.mesa.preferencias.ObrasRecientes().size(), 1);
  EXPECT_EQ(p.mesa.preferencias.IdiomaPropio(), 1) << "a new Obra settles the language";
}

TEST(Ventana, MenusDeCadaEstado) {
  Programa p;
  const auto habilitadas = [&](std::initializer_list<Orden> ordenes, bool esperado) {
    for (const Orden o : ordenes) {
      EXPECT_EQ(p.ventana->accion(o)->isEnabled(), esperado)
          << S(p.ventana->accion(o)->text()) << " en " << p.c.EstadoCaptura;
    }
  };
  using enum Orden;
  habilitadas({MnAbriFichero, MnNuevaObra, mnSalir}, true);
  habilitadas({mnCerrarObra, mnGrabaObra, mnTramos, MnImprimir, MnSeleccionarImpresora}, false);
  p.Lanza(MnNuevaObra);
  habilitadas({mnCerrarObra, mnGrabaObra, mnTramos, mnNuevoTramo, mnSalir}, true);
  habilitadas({MnAbriFichero, MnNuevaObra, MnImprimir, MnSeleccionarImpresora, mnCancelar,
               mnGrabaTramo, mnCalculaTramo, mnAjustarArmaduras},
              false);
  ASSERT_TRUE(p.ventana->Abre(p.Muestra())) << S(p.persona.Ultima());
  habilitadas({MnImprimir, MnSeleccionarImpresora, mnTramos, mnNuevoTramo}, true);
  habilitadas({MnAbriFichero, MnNuevaObra, mnCancelar, mnGrabaTramo}, false);
  p.Lanza(mnNuevoTramo);
  habilitadas({mnNuevoTramo}, false);
  habilitadas({mnCancelar, mnGrabaTramo, mnCalculaTramo, mnAjustarArmaduras}, true);
  p.Lanza(mnCancelar);
  habilitadas({mnCancelar, mnGrabaTramo, mnCalculaTramo, mnAjustarArmaduras}, false);
  for (const auto& [numero, armado] : {std::pair{"1", true}, std::pair{"6", false}}) {
    p.Lanza(mnCancelar);
    p.Pincha(Ed::edTramo);
    p.Teclea(numero);
    ASSERT_TRUE(p.c.EnModificaciones());
    habilitadas({mnNuevoTramo, mnCancelar, mnGrabaTramo, mnCalculaTramo}, true);
    habilitadas({mnAjustarArmaduras}, armado);
  }
}

TEST(Ventana, CerrarConCambiosSeNiega) {
  ConMuestra p;
  p.Pincha(Ed::edCliente);
  p.Teclea("Otro");
  EXPECT_TRUE(p.ventana->isWindowModified());
  p.Lanza(Orden::mnCerrarObra);
  EXPECT_EQ(p.persona.Ultima(), p.mesa.Tx(376));
  EXPECT_FALSE(p.ventana->close());
  EXPECT_TRUE(p.c.ObraCargada);
  EXPECT_FALSE(p.ventana->Abre(p.Muestra())) << "opening another does not lose it either";
  QTest::mouseClick(p.ventana->findChild<QToolButton*>("btCierre"), Qt::LeftButton);
  EXPECT_EQ(p.persona.Ultima(), p.mesa.Tx(534) + "\n" + p.mesa.Tx(535));
  p.Lanza(Orden::mnGrabaObra);
  EXPECT_FALSE(p.c.EnCambio()) << S(p.persona.Ultima());
  EXPECT_TRUE(p.ventana->close());
}

TEST(Ventana, AbrirCanceladoYFicherosQueNoSonObras) {
  Programa p;
  p.Lanza(Orden::MnAbriFichero);
  EXPECT_EQ(p.persona.Ultima(), p.mesa.Tx(402));
  EXPECT_EQ(p.e.obra.NombreFichero, " ");
  EXPECT_FALSE(p.c.ObraCargada);
  EXPECT_FALSE(p.ventana->Abre(p.mesa.carpeta.filePath("dibujo.dwg")));
  EXPECT_TRUE(p.persona.Ultima().contains("dibujo.dwg"));
  EXPECT_FALSE(p.ventana->Abre(p.mesa.carpeta.filePath("falta.zrb")));
  EXPECT_TRUE(p.persona.Ultima().contains("falta.zrb"));
  p.persona.fichero = p.Muestra();
  p.Lanza(Orden::MnAbriFichero);
  EXPECT_TRUE(p.c.ObraCargada);
  EXPECT_TRUE(p.ventana->windowTitle().startsWith("acequia.zrb"));
}

TEST(Ventana, SueltaUnaObra) {
  Programa p;
  QMimeData datos;
  datos.setUrls({QUrl::fromLocalFile(p.Muestra())});
  QDragEnterEvent entra(QPoint(9, 9), Qt::CopyAction, &datos, Qt::LeftButton, {});
  QApplication::sendEvent(p.ventana.get(), &entra);
  EXPECT_TRUE(entra.isAccepted());
  QDropEvent suelta(QPointF(9, 9), Qt::CopyAction, &datos, Qt::LeftButton, {});
  QApplication::sendEvent(p.ventana.get(), &suelta);
  QTest::qWait(20);
  EXPECT_TRUE(p.c.ObraCargada);
}

TEST(Captura, UnCampoRechazadoDicePorQue) {
  ConMuestra p;
  p.Pincha(Ed::edAlt1);
  p.Teclea("0,5");
  EXPECT_TRUE(p.TieneFoco(Ed::edAlt1));
  EXPECT_EQ(p.persona.Ultima(), p.mesa.Tx(171));
  EXPECT_TRUE(p.ventana->findChild<QLabel*>("lbFalta")->text().contains(p.mesa.Tx(171)));
  const auto vistas = p.persona.cajas.size();
  p.Pincha(Ed::edCliente);
  EXPECT_TRUE(p.TieneFoco(Ed::edAlt1)) << "a click does not get away from it";
  EXPECT_GT(p.persona.cajas.size(), vistas);
  p.Lanza(Orden::mnNuevoTramo);
  EXPECT_TRUE(p.c.SinTramoEnMano()) << "no action begins over a refused field";
  p.Teclea("3");
  EXPECT_FALSE(p.TieneFoco(Ed::edAlt1));
  EXPECT_TRUE(p.ventana->findChild<QLabel*>("lbFalta")->text().isEmpty());
}

TEST(Captura, CancelarNoEjecutaLaRegla) {
  ConMuestra p;
  p.Lanza(Orden::mnNuevoTramo);
  p.Pincha(Ed::edFck);
  QTest::keyClicks(QApplication::focusWidget(), "0");
  p.persona.cajas.clear();
  p.Lanza(Orden::mnCancelar);
  ASSERT_EQ(p.persona.cajas.size(), 1u);
  EXPECT_EQ(p.persona.cajas[0].texto, p.mesa.Tx(382));
  EXPECT_TRUE(p.c.SinTramoEnMano());
}

TEST(Captura, LoPegadoSeEntiendeOSeRechaza) {
  ConMuestra p;
  p.Pincha(Ed::edAlt2);
  QApplication::clipboard()->setText("12.3");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(p.Linea(Ed::edAlt2)->text(), "12,30");
  p.Pincha(Ed::edAlt2);
  QApplication::clipboard()->setText("1.234,5");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(p.TieneFoco(Ed::edAlt2));
  EXPECT_EQ(p.Linea(Ed::edAlt2)->text(), "1.234,5");
  EXPECT_TRUE(p.persona.Ultima().contains("1.234,5"));
}

TEST(Captura, ElTabuladorSigueElTrabajo) {
  ConMuestra p;
  p.Pincha(Ed::edPrsM1);
  for (const Ed siguiente :
       {Ed::edPrs1, Ed::edPrsM2, Ed::edPrs2, Ed::edPrs3, Ed::edAlt1, Ed::edAlt2, Ed::edAlt3}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(p.TieneFoco(siguiente)) << Fila(siguiente).nombre;
  }
  p.Pincha(Ed::edAlt1);
  p.Teclea("2");
  p.Teclea("2");
  EXPECT_TRUE(p.c[Ed::edAlt3].bloqueado);
  EXPECT_TRUE(p.Linea(Ed::edAlt3)->isReadOnly());
}

TEST(Captura, LaListaDeTramosLlevaAUno) {
  ConMuestra p;
  auto* lista = p.ventana->findChild<QTreeWidget*>("Tramos");
  ASSERT_EQ(lista->topLevelItemCount(), static_cast<int>(p.c.lista.size()));
  auto* sexto = lista->topLevelItem(5);
  EXPECT_TRUE(sexto->text(2).contains(p.mesa.Tx(170)));
  emit lista->itemActivated(sexto, 0);
  EXPECT_TRUE(p.c.EnModificaciones());
  EXPECT_EQ(p.e.tramo.NumeroTramo, 6);
  EXPECT_EQ(p.c.pantalla.pagina.TabPrincipal, 1);
  EXPECT_TRUE(p.TieneFoco(Ed::edDescriTramo));
  p.Teclea("Cambiado");
  emit lista->itemActivated(lista->topLevelItem(0), 0);
  EXPECT_EQ(p.persona.Ultima(), p.mesa.Tx(525) + "\n" + p.mesa.Tx(325));
  EXPECT_EQ(p.e.tramo.NumeroTramo, 1) << "the answer was Yes";
  p.Lanza(Orden::mnNuevoTramo);
  emit lista->itemActivated(sexto, 0);
  EXPECT_EQ(p.persona.Ultima(), p.mesa.Tx(376));
  EXPECT_TRUE(p.c.EnAltas());
}

TEST(Captura, ElUltimoCampoPostesadoLlevaALaColocacion) {
  ConMuestra p;
  p.Pincha(Ed::edTramo);
  p.ventana->captura().Hace([&] { CambiaPagina(p.c, 1); });
  p.Pincha(Ed::edTramo);
  p.Teclea("6");
  p.ventana->captura().Hace([&] { CambiaPaginaPostesados(p.c, 3); });
  p.Pincha(Ed::edEpsr);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(p.c.pantalla.pagina.TabPrincipal, 2);
  EXPECT_TRUE(p.TieneFoco(Ed::rdTipoColocacion));
}

// ---------------------------------------------------------------------------------------------
// Languages

// Texts of the catalogue of a language, without marks of the keyboard.
std::set<QString> TextosDe(const Catalogo& textos, int idioma) {
  std::set<QString> conjunto;
  for (int n = 101; n < kPasoIdioma; ++n) {
    const int entrada = n + (idioma - 1) * kPasoIdioma;
    if (!textos.Existe(entrada)) continue;
    conjunto.insert(Rotulo(textos.LoadRes(entrada)).remove('&').remove(':').trimmed());
  }
  return conjunto;
}

// What the program composes from a caption and a value: the caption stands.
bool EsDelCatalogo(const std::set<QString>& textos, QString texto) {
  texto = texto.remove('&').remove(':').trimmed();
  if (texto.isEmpty() || textos.contains(texto)) return true;
  bool numero = false;
  QString(texto).replace(',', '.').toDouble(&numero);
  if (numero) return true;
  for (auto fin = texto.lastIndexOf(QRegularExpression("[ ']")); fin > 0;
       fin = texto.lastIndexOf(QRegularExpression("[ ']"), fin - 1)) {
    if (textos.contains(texto.left(fin).trimmed())) return true;
  }
  return false;
}

// Every page of the capture, one after the other, with a Tramo of each kind in hand.
void RecorrePaginas(Programa& p, const std::function<void(const std::string&)>& mira) {
  auto& pantalla = p.ventana->captura();
  mira("obra");
  for (const char* numero : {"1", "6"}) {
    pantalla.Hace([&] {
      CambiaPagina(p.c, 1);
      CancelaCaptura(p.c);
      Entra(p.c, Ed::edTramo);
      Cambia(p.c, Ed::edTramo, numero);
      Sale(p.c, Ed::edTramo);
    });
    for (int i = 0; i < (numero[0] == '6' ? 4 : 1); ++i) {
      pantalla.Hace([&] { CambiaPaginaPostesados(p.c, i); });
      mira("tramo " + std::string(numero) + ", " + std::to_string(i));
    }
    for (int i = 0; i < 3; ++i) {
      pantalla.Hace([&] {
        CambiaPagina(p.c, 2);
        CambiaPaginaColocacion(p.c, i);
      });
      mira("colocacion " + std::to_string(i));
    }
  }
  pantalla.Hace([&] { CambiaPagina(p.c, 0); });
}

class EnIdioma : public testing::TestWithParam<int> {};

TEST_P(EnIdioma, TodoTextoEsDelCatalogoYCabe) {
  const int idioma = GetParam();
  ConMuestra p;
  auto* lista = qobject_cast<QComboBox*>(p.Campo(Ed::edIdioma));
  lista->setCurrentIndex(idioma - 1);
  emit lista->activated(idioma - 1);
  ASSERT_EQ(p.mesa.textos.IdiomaOffset(), (idioma - 1) * kPasoIdioma);
  const auto textos = TextosDe(p.mesa.textos, idioma);
  const std::set<QString> datos{Q(p.e.obra.NombreObra)};
  RecorrePaginas(p, [&](const std::string& donde) {
    QTest::qWait(5);
    // The layouts settle in rounds, one inside the other.
    for (int i = 0; i < 5; ++i) {
      QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
      QApplication::processEvents();
    }
    for (auto* area : p.ventana->findChildren<QScrollArea*>()) {
      if (!area->isVisible()) continue;
      EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << donde;
      EXPECT_EQ(area->verticalScrollBar()->maximum(), 0) << donde;
    }
    for (const auto& visto : prueba::TextosALaVista(*p.ventana)) {
      const QString nombre = visto.widget->objectName();
      if (visto.widget == p.ventana.get() || nombre == "estadoObra" || nombre.startsWith("qt_"))
        continue;
      if (qobject_cast<QLineEdit*>(visto.widget->parentWidget()) != nullptr) continue;
      if (nombre == "lbTitulo") {
        EXPECT_EQ(visto.texto, Rotulo(p.c.pantalla.titulo));
        EXPECT_TRUE(visto.texto.endsWith(p.mesa.Tx(384)));
        continue;
      }
      EXPECT_TRUE(EsDelCatalogo(textos, visto.texto))
          << donde << ", " << S(nombre) << ": " << S(visto.texto);
      const auto* rotulo = qobject_cast<const QLabel*>(visto.widget);
      const bool parte = rotulo != nullptr && rotulo->wordWrap();
      const bool ajeno = visto.widget->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
      if (!parte && !ajeno) {
        EXPECT_GE(visto.widget->width(), visto.widget->minimumSizeHint().width())
            << donde << ": " << S(visto.texto);
        EXPECT_GE(visto.widget->height(), visto.widget->minimumSizeHint().height())
            << donde << ": " << S(visto.texto);
      }
      if (rotulo != nullptr && parte) {
        EXPECT_GE(rotulo->height(), rotulo->heightForWidth(rotulo->width()))
            << donde << ": " << S(visto.texto);
      }
    }
  });
  EXPECT_TRUE(p.persona.cajas.empty()) << S(p.persona.Ultima());
}

INSTANTIATE_TEST_SUITE_P(Idiomas, EnIdioma, testing::Range(1, 6));

TEST(Idioma, AlEmpezar) {
  Mesa mesa;
  std::vector<std::string> avisos;
  const auto empieza = [&](const char* falta) {
    return IdiomaAlEmpezar(
        mesa.preferencias, mesa.textos, [&](const std::string& n) { return n != falta; },
        [&](const std::string& t) { avisos.push_back(t); });
  };
  EXPECT_EQ(empieza(""), 1);
  ASSERT_EQ(avisos.size(), 1u) << "told once, when nothing was chosen";
  EXPECT_EQ(mesa.preferencias.IdiomaPropio(), 1);
  EXPECT_EQ(empieza(""), 1);
  EXPECT_EQ(avisos.size(), 1u);
  mesa.preferencias.GrabaIdioma(3);
  EXPECT_EQ(empieza(""), 3);
  EXPECT_EQ(empieza(mesa.textos.LoadRes(433 + 2 * kPasoIdioma).c_str()), 1);
  mesa.preferencias.GrabaIdioma(6);
  EXPECT_EQ(empieza("Falta Recurso 25433"), 1);
  EXPECT_EQ(mesa.textos.IdiomaOffset(), 0);
}

}  // namespace
}  // namespace zorbin
