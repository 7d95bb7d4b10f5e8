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
#include <algorithm>
#include <set>

#include "base/textos.h"
#include "persistencia/zrb/mdZrb.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdEdicion.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdPaginas.h"
#include "shell/captura/CapturaDatos.h"
#include "shell/captura/mdDibujoDatos.h"
#include "shell/entornoPrueba.h"
#include "shell/piezas/mdTema.h"
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
  /// Takes a Tramo from the list, by its place.
  void ElijeTramo(int lugar) {
    auto* lista = ventana->findChild<QTreeWidget*>("Tramos");
    lista->setCurrentItem(lista->topLevelItem(lugar));
    emit lista->itemActivated(lista->topLevelItem(lugar), 0);
    Delante();
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
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  ASSERT_TRUE(p.TieneFoco(Ed::edPrsM1));
  p.Teclea("0.66", Qt::Key_Return);
  EXPECT_EQ(p.Linea(Ed::edPrsM1)->text(), "0,66");
  ASSERT_TRUE(p.TieneFoco(Ed::edPrs1));
  p.Teclea("");
  EXPECT_EQ(p.Linea(Ed::edPrs1)->text(), "0,60") << "DP follows from MDP";
  p.Lanza(Orden::mnNuevoTramo);
  ASSERT_TRUE(p.TieneFoco(Ed::edDescriTramo));
  p.Teclea("Primer tramo");
  p.Pincha(Ed::edDi0);
  p.Teclea("1,2");
  p.Teclea("12");
  p.Teclea("2.5");
  p.Teclea("2.5");
  EXPECT_EQ(p.Linea(Ed::edDe0)->text(), "1,440");
  p.persona.fichero = p.mesa.carpeta.filePath("nueva.zrb");
  p.Lanza(Orden::mnGrabaObra);
  EXPECT_EQ(p.persona.dialogos, 1) << S(p.persona.Ultima());
  EXPECT_TRUE(p.persona.cajas.empty()) << S(p.persona.Ultima());
  EXPECT_FALSE(p.c.EnCambio()) << S(p.persona.Ultima());
  EstadoCalculo leido;
  const FicheroRegistros f(S(p.persona.fichero), FicheroRegistros::Modo::Lectura);
  ASSERT_EQ(CargaObra(leido, f).lista.size(), 1u);
  CargaTramo(leido, f, 1);
  EXPECT_EQ(leido.obra.NombreObra, "Impulsion de prueba");
  EXPECT_DOUBLE_EQ(leido.tramo.Di, 1.2);
  EXPECT_EQ(leido.tramo.DescriTramo, "Primer tramo");
  EXPECT_EQ(p.mesa.preferencias.ObrasRecientes().size(), 1);
}

TEST(Ventana, MenusDeCadaEstado) {
  Programa p;
  const auto habilitadas = [&](std::initializer_list<Orden> ordenes, bool esperado) {
    for (const Orden o : ordenes) {
      EXPECT_EQ(p.ventana->accion(o)->isEnabled(), esperado)
          << S(p.ventana->accion(o)->text()) << ", " << p.c.enMano;
    }
  };
  using enum Orden;
  const auto deTramo = {mnCancelar,   mnCalculaTramo, mnDuplicaTramos, mnBorraTramos,
                        mnSubeTramos, mnBajaTramos,   mnRenumeraTramo, mnCopiaTramos};
  habilitadas({MnAbriFichero, MnNuevaObra, MnSeleccionarImpresora, mnSalir}, true);
  habilitadas({mnCerrarObra, mnGrabaObra, mnGrabarComo, mnTramos, MnImprimir, mnPegaTramos}, false);
  p.Lanza(MnNuevaObra);
  habilitadas({MnAbriFichero, MnNuevaObra, mnCerrarObra, mnGrabaObra, mnGrabarComo, mnTramos,
               mnNuevoTramo, mnPegaTramos, MnImprimir, mnSalir},
              true);
  habilitadas(deTramo, false);
  p.Lanza(mnNuevoTramo);
  habilitadas({mnNuevoTramo, mnAjustarArmaduras}, true);
  habilitadas(deTramo, true);
  p.persona.alCerrar = {1};
  ASSERT_TRUE(p.ventana->Abre(p.Muestra())) << S(p.persona.Ultima());
  for (const auto& [lugar, armado] : {std::pair{0, true}, std::pair{5, false}}) {
    p.ElijeTramo(lugar);
    ASSERT_TRUE(p.c.EnModificaciones());
    habilitadas(deTramo, true);
    habilitadas({mnAjustarArmaduras}, armado);
  }
}

// Closing, ending and opening another ask what to do with what is unsaved, and Cancel loses
// nothing.
TEST(Ventana, LoQueEstaSinGrabarSePregunta) {
  ConMuestra p;
  const auto cambia = [&p](const char* texto) {
    p.Pincha(Ed::edCliente);
    p.Teclea(texto);
    EXPECT_TRUE(p.ventana->isWindowModified());
  };
  cambia("Otro");
  p.Lanza(Orden::mnCerrarObra);
  EXPECT_FALSE(p.ventana->close());
  EXPECT_FALSE(p.ventana->Abre(p.Muestra()));
  p.Lanza(Orden::MnNuevaObra);
  QTest::mouseClick(p.ventana->findChild<QToolButton*>("btCierre"), Qt::LeftButton);
  EXPECT_EQ(p.persona.cajas.size(), 5u);
  EXPECT_TRUE(p.persona.Ultima().contains("acequia.zrb")) << S(p.persona.Ultima());
  EXPECT_EQ(p.e.obra.Cliente, "Otro");
  p.persona.alCerrar = {0};
  ASSERT_TRUE(p.ventana->Abre(p.mesa.carpeta.filePath("acequia.zrb")));
  EXPECT_EQ(p.e.obra.Cliente, "Otro") << "saved before it was opened again";
  cambia("Nadie");
  p.persona.alCerrar = {1};
  ASSERT_TRUE(p.ventana->Abre(p.mesa.carpeta.filePath("acequia.zrb")));
  EXPECT_EQ(p.e.obra.Cliente, "Otro");
  EXPECT_TRUE(p.ventana->close());
}

// What was done is undone by key and menu, whose entries name it.
TEST(Ventana, DeshacerYRehacerVanPorElMenu) {
  ConMuestra p;
  auto* deshacer = p.ventana->findChild<QAction*>("mnDeshacer");
  auto* rehacer = p.ventana->findChild<QAction*>("mnRehacer");
  EXPECT_FALSE(deshacer->isEnabled());
  p.ElijeTramo(0);
  p.Pincha(Ed::edGamaB);
  p.Teclea("1,7");
  EXPECT_TRUE(deshacer->text().contains(Q(NombreDeCampo(p.c, Ed::edGamaB)))) << S(deshacer->text());
  p.Lanza(Orden::mnDuplicaTramos);
  EXPECT_EQ(p.c.version.tramos.size(), 8u);
  p.Lanza(Orden::mnBorraTramos);
  deshacer->trigger();
  deshacer->trigger();
  EXPECT_EQ(p.c.version.tramos.size(), 7u);
  QTest::keyClick(p.ventana.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(p.c.EnCambio());
  EXPECT_EQ(p.Linea(Ed::edGamaB)->text(), "1,50");
  rehacer->trigger();
  EXPECT_DOUBLE_EQ(p.e.tramo.GamaB, 1.7);
  EXPECT_TRUE(p.ventana->isWindowModified());
}

TEST(Ventana, AbrirCanceladoYFicherosQueNoSonObras) {
  Programa p;
  p.Lanza(Orden::MnAbriFichero);
  EXPECT_TRUE(p.persona.cajas.empty()) << S(p.persona.Ultima());
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

TEST(Captura, UnCampoRechazadoDicePorQueYNoEstorba) {
  ConMuestra p;
  const auto* faltas = p.ventana->findChild<QLabel*>("lbFaltas");
  p.Pincha(Ed::edAlt1);
  p.Teclea("0,5");
  EXPECT_FALSE(p.TieneFoco(Ed::edAlt1));
  EXPECT_EQ(p.Linea(Ed::edAlt1)->text(), "0,5");
  EXPECT_TRUE(faltas->text().contains(p.mesa.Tx(171))) << S(faltas->text());
  p.Lanza(Orden::mnNuevoTramo);
  EXPECT_FALSE(p.c.SinTramoEnMano());
  p.Lanza(Orden::mnGrabaObra);
  EXPECT_TRUE(p.c.EnCambio()) << "what is refused is not saved";
  EXPECT_TRUE(p.TieneFoco(Ed::edAlt1));
  EXPECT_TRUE(p.persona.cajas.empty()) << S(p.persona.Ultima());
  p.Teclea("3");
  EXPECT_FALSE(faltas->text().contains(p.mesa.Tx(171))) << S(faltas->text());
}

TEST(Captura, ReleerNoEjecutaLaRegla) {
  ConMuestra p;
  p.ElijeTramo(0);
  p.Pincha(Ed::edFck);
  const QString antes = p.Linea(Ed::edFck)->text();
  QTest::keyClicks(QApplication::focusWidget(), "0");
  p.Lanza(Orden::mnCancelar);
  EXPECT_EQ(p.Linea(Ed::edFck)->text(), antes);
  EXPECT_FALSE(p.c.EnCambio());
  EXPECT_TRUE(p.persona.cajas.empty());
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
  EXPECT_EQ(p.Linea(Ed::edAlt2)->text(), "1.234,5");
  EXPECT_NE(p.c[Ed::edAlt2].falta.find("1.234,5"), std::string::npos);
}

// Beside the fields the data are seen as they are, at once; large, they go on following.
TEST(Captura, LosDibujosSiguenALosDatos) {
  ConMuestra p;
  p.ElijeTramo(0);
  auto* tubo = p.ventana->findChild<DibujoDatos*>("ptPostesado");
  auto* zanja = p.ventana->findChild<DibujoDatos*>("ptColocacion");
  const auto dice = [](VistaLamina& vista, const char* texto) {
    return std::ranges::any_of(vista.lamina().lamina.piezas, [texto](const Pieza& pieza) {
      const auto* r = std::get_if<Letrero>(&pieza);
      return r != nullptr && r->texto == texto;
    });
  };
  CambiaPagina(p.c, 1);
  p.ventana->captura().Refresca();
  EXPECT_TRUE(dice(*tubo, "Di 1200"));
  QTest::mouseDClick(tubo, Qt::LeftButton);
  auto* grande = p.ventana->findChild<frDibujo*>();
  ASSERT_NE(grande, nullptr);
  auto& vista = *grande->findChild<VistaLamina*>();
  p.Pincha(Ed::edDi0);
  p.Teclea("13");
  EXPECT_TRUE(dice(*tubo, "Di 13000"));
  EXPECT_TRUE(dice(vista, "Di 13000"));
  EXPECT_TRUE(dice(*zanja, "De = 13,24 m"));
  p.Pincha(Ed::edDi0);
  p.Linea(Ed::edDi0)->clear();
  p.Teclea("");
  const std::string nada = p.mesa.textos.Texto(txt::DibFaltanDatos);
  EXPECT_TRUE(dice(*tubo, nada.c_str()) && dice(vista, nada.c_str()));
  EXPECT_TRUE(dice(*zanja, nada.c_str()));
  grande->close();
}

TEST(Captura, ElTabuladorSigueElTrabajo) {
  ConMuestra p;
  p.Pincha(Ed::edPrsM1);
  for (const Ed siguiente : {Ed::edPrs1, Ed::edPrsM2, Ed::edPrs2, Ed::edPrs3, Ed::rdSistemaUnidades,
                             Ed::rdGolpeAriete, Ed::edAlt1, Ed::edAlt2, Ed::edAlt3}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(p.TieneFoco(siguiente)) << Fila(siguiente).nombre;
  }
  p.Pincha(Ed::edAlt1);
  p.Teclea("2");
  p.Teclea("2");
  EXPECT_TRUE(p.c[Ed::edAlt3].bloqueado);
  EXPECT_TRUE(p.Linea(Ed::edAlt3)->isReadOnly());
}

TEST(Captura, LaListaDeTramosLlevaAUnoSinPreguntar) {
  ConMuestra p;
  auto* lista = p.ventana->findChild<QTreeWidget*>("Tramos");
  ASSERT_EQ(lista->topLevelItemCount(), 7);
  lista->setCurrentItem(lista->topLevelItem(5));
  EXPECT_EQ(p.e.tramo.NumeroTramo, 6);
  EXPECT_EQ(p.c.pantalla.pagina.TabPrincipal, 1);
  p.Pincha(Ed::edDescriTramo);
  ASSERT_TRUE(p.TieneFoco(Ed::edDescriTramo)) << S(QApplication::focusWidget()->objectName());
  p.Teclea("Cambiado");
  EXPECT_EQ(p.e.tramo.DescriTramo, "Cambiado") << p.c[Ed::edDescriTramo].texto;
  lista->setCurrentItem(lista->topLevelItem(0));
  EXPECT_EQ(p.e.tramo.NumeroTramo, 1);
  EXPECT_TRUE(p.persona.cajas.empty()) << S(p.persona.Ultima());
  lista->setCurrentItem(lista->topLevelItem(5));
  EXPECT_EQ(p.e.tramo.DescriTramo, "Cambiado");
  p.ventana->findChild<QLineEdit*>("buscaTramo")->setText("cambiado");
  EXPECT_TRUE(lista->topLevelItem(0)->isHidden());
  EXPECT_FALSE(lista->topLevelItem(5)->isHidden());
}

// Several are dragged at once, as one step that is undone.
TEST(Captura, LosTramosSeArrastranAOtroSitio) {
  ConMuestra p;
  auto* lista = p.ventana->findChild<QTreeWidget*>("Tramos");
  const auto orden = [&p] {
    std::string numeros;
    for (const auto& t : p.c.version.tramos) numeros += t->numero;
    return numeros;
  };
  const auto suelta = [&](int encima, bool arriba) {
    QModelIndexList filas;
    for (const int i : {1, 2}) filas += lista->indexFromItem(lista->topLevelItem(i));
    const std::unique_ptr<QMimeData> datos(lista->model()->mimeData(filas));
    const QRect sitio = lista->visualItemRect(lista->topLevelItem(encima));
    const QPoint donde =
        arriba ? sitio.topLeft() + QPoint(9, 2) : sitio.bottomLeft() - QPoint(-9, 2);
    QDragEnterEvent entra(donde, Qt::MoveAction, datos.get(), Qt::LeftButton, {});
    QApplication::sendEvent(lista->viewport(), &entra);
    EXPECT_TRUE(entra.isAccepted());
    QDropEvent suceso(donde, Qt::MoveAction, datos.get(), Qt::LeftButton, {});
    QApplication::sendEvent(lista->viewport(), &suceso);
    EXPECT_NE(suceso.dropAction(), Qt::MoveAction) << "the toolkit would take the rows away";
  };
  ASSERT_EQ(lista->dragDropMode(), QAbstractItemView::InternalMove);
  ASSERT_EQ(orden(), "1234567");
  suelta(4, false);
  EXPECT_EQ(orden(), "1452367");
  p.ventana->findChild<QAction*>("mnDeshacer")->trigger();
  EXPECT_EQ(orden(), "1234567");
  EXPECT_FALSE(p.c.EnCambio());
  suelta(0, true);
  EXPECT_EQ(orden(), "2314567");
  suelta(6, false);
  EXPECT_EQ(orden(), "2456731") << "what lies there by now, to the end";
  EXPECT_EQ(lista->topLevelItemCount(), 7);
}

TEST(Ventana, ElTemaDelSistemaSigueAlEscritorio) {
  ConMuestra p;
  const bool delEscritorio = EsOscura(QApplication::palette());
  for (const auto& [tema, queda] :
       {std::pair{Tema::Sistema, delEscritorio}, {Tema::Oscuro, true}}) {
    p.mesa.preferencias.PonTema(static_cast<int>(tema));
    QApplication::setPalette(PaletaDe(!queda));
    QEvent suceso(QEvent::ThemeChange);
    QApplication::sendEvent(p.ventana.get(), &suceso);
    EXPECT_EQ(EsOscura(QApplication::palette()), queda);
  }
  p.mesa.preferencias.PonTema(static_cast<int>(Tema::Sistema));
  PonTema(Tema::Sistema);
}

// ---------------------------------------------------------------------------------------------
// Languages

// Texts of the catalogue of a language, in small letters, without marks of the keyboard.
std::set<QString> TextosDe(const Catalogo& textos, int idioma) {
  std::set<QString> conjunto;
  for (int n = 101; n < kPasoIdioma; ++n) {
    const int entrada = n + (idioma - 1) * kPasoIdioma;
    if (!textos.Existe(entrada)) continue;
    conjunto.insert(Rotulo(textos.LoadRes(entrada)).remove('&').remove(':').trimmed().toLower());
  }
  return conjunto;
}

// A text of the catalogue, or the beginning of one: a caption without its unit, or one with a value
// behind it.
bool EsDelCatalogo(const std::set<QString>& textos, QString texto) {
  texto = texto.remove('&').remove(':').trimmed().toLower();
  if (texto.isEmpty()) return true;
  bool numero = false;
  QString(texto).replace(',', '.').toDouble(&numero);
  if (numero) return true;
  for (auto fin = texto.size(); fin > 0;
       fin = texto.lastIndexOf(QRegularExpression("[ ']"), fin - 1)) {
    const QString trozo = texto.left(fin).trimmed();
    const auto f = textos.lower_bound(trozo);
    if (!trozo.isEmpty() && f != textos.end() && f->startsWith(trozo)) return true;
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
  CambiaIdioma(p.c, static_cast<std::int16_t>(idioma));
  p.ventana->AplicaIdioma();
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
    }
    for (const auto& visto : prueba::TextosALaVista(*p.ventana)) {
      const QString nombre = visto.widget->objectName();
      if (visto.widget == p.ventana.get() || nombre == "estadoObra" || nombre.startsWith("qt_"))
        continue;
      if (qobject_cast<QLineEdit*>(visto.widget->parentWidget()) != nullptr) continue;
      // Units, and what a rule said of a field; a sign without words.
      if (nombre.startsWith("nt") || nombre == "ordenaTramos") continue;
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
  const auto empieza = [&](int delEscritorio, const std::string& falta = "-") {
    return IdiomaAlEmpezar(mesa.preferencias, mesa.textos, delEscritorio,
                           [&](const std::string& n) { return n != falta; });
  };
  EXPECT_EQ(empieza(1), 1);
  EXPECT_EQ(empieza(4), 4) << "nobody has chosen one yet";
  mesa.preferencias.GrabaIdioma(3);
  EXPECT_EQ(empieza(1), 3);
  EXPECT_EQ(empieza(1, mesa.textos.LoadRes(433 + 2 * kPasoIdioma)), 1);
  mesa.preferencias.GrabaIdioma(6);
  EXPECT_EQ(empieza(1, "Falta Recurso 25433"), 1);
  EXPECT_EQ(mesa.textos.IdiomaOffset(), 0);
}

}  // namespace
}  // namespace zorbin
