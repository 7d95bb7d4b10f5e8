// The summary screen, the box of a long run, and the road from the capture to paper.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QWheelEvent>
#include <atomic>
#include <sstream>
#include <thread>

#include "comun/comparaFichero.h"
#include "comun/textoEntero.h"
#include "listados/papel/mdHojasTexto.h"
#include "sesion/captura/guion.h"
#include "sesion/captura/mdEdicion.h"
#include "sesion/captura/mdTramos.h"
#include "sesion/trabajo/mdTrabajo.h"
#include "shell/enPantalla.h"
#include "shell/entornoPrueba.h"
#include "shell/piezas/mdFaena.h"
#include "shell/resultados/frEscribePantalla.h"
#include "shell/resultados/mdCalculos.h"
#include "shell/resultados/mdVisorTexto.h"

namespace zorbin::prueba {
namespace {

struct Sala {
  Mesa mesa;
  std::vector<TipoListado> pedidos;

  std::unique_ptr<frEscribePantalla> Abre(const std::string& texto, bool conLame = false,
                                          bool conPapel = true) {
    return Abre(std::make_unique<TextoTroceado>(texto), conLame, conPapel);
  }
  std::unique_ptr<frEscribePantalla> Abre(std::unique_ptr<FuenteTexto> fuente, bool conLame = false,
                                          bool conPapel = true) {
    Resumido resumido{std::move(fuente), conLame, "acequia - Tramo 1"};
    resumido.conPapel = conPapel;
    resumido.lista = [this](TipoListado tipo, DestinoHojas& hojas) {
      pedidos.push_back(tipo);
      hojas.RecibeHoja(Hoja{});
    };
    auto pantalla = std::make_unique<frEscribePantalla>(mesa.entorno, std::move(resumido));
    pantalla->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(pantalla.get()));
    return pantalla;
  }
};

VisorTexto& Texto(const QDialog& pantalla) {
  return *pantalla.findChild<VisorTexto*>("edPantalla");
}

// What the screen has, read to its end.
std::string TextoEntero(const QDialog& pantalla) {
  auto& texto = Texto(pantalla).Texto();
  EXPECT_TRUE(texto.EsperaTodo([] { return true; }));
  std::string entero;
  for (int n = 0; n < texto.LaCuenta().lineas; ++n) entero += (n > 0 ? "\n" : "") + texto.Linea(n);
  return entero;
}

void Pulsa(const QDialog& pantalla, const char* boton) {
  pantalla.findChild<QPushButton*>(boton)->click();
}

QRadioButton& Opcion(const QDialog& pantalla, int tipo) {
  return *pantalla.findChildren<QRadioButton*>().at(tipo);
}

TEST(PantallaResumen, LaEleccionSeRecuerdaYLameSoloDondeSeOfrece) {
  Sala r;
  auto pantalla = r.Abre("x", true);
  EXPECT_EQ(pantalla->windowTitle(), "         RESUMEN DE CALCULO");
  EXPECT_EQ(pantalla->Tipo(), TipoListado::Normal);
  Opcion(*pantalla, 3).click();
  pantalla = r.Abre("x", true);
  EXPECT_EQ(pantalla->Tipo(), TipoListado::Lame);
  pantalla = r.Abre("x", false);
  EXPECT_EQ(pantalla->Tipo(), TipoListado::Normal);
  EXPECT_FALSE(Opcion(*pantalla, 3).isEnabled());
  pantalla = r.Abre("x", true);  // only not offered: still the last used
  EXPECT_EQ(pantalla->Tipo(), TipoListado::Lame);
  Opcion(*pantalla, 1).click();
  EXPECT_EQ(r.mesa.preferencias.TipoListado(), 1);
  pantalla = r.Abre("x", false);
  EXPECT_EQ(pantalla->Tipo(), TipoListado::Tabular);
}

TEST(PantallaResumen, ImprimirCierraSiSeImprimio) {
  Sala r;
  auto pantalla = r.Abre("x");
  Opcion(*pantalla, 2).click();
  Pulsa(*pantalla, "btVistaPrevia");
  EXPECT_EQ(r.mesa.papel.vistas, 1);
  EXPECT_TRUE(pantalla->isVisible());
  r.mesa.papel.sale = false;
  Pulsa(*pantalla, "btImprimeTramo");
  EXPECT_TRUE(pantalla->isVisible());
  r.mesa.papel.sale = true;
  Pulsa(*pantalla, "btImprimeTramo");
  EXPECT_FALSE(pantalla->isVisible());
  EXPECT_EQ(r.pedidos, std::vector<TipoListado>(3, TipoListado::Pantalla));
  EXPECT_EQ(r.mesa.papel.nombres.back(), "acequia - Tramo 1 - Pantalla");
}

TEST(PantallaResumen, GuardaElTextoYElPdf) {
  Sala r;
  const std::string texto = "RIÑONES\n  señal\n";
  auto pantalla = r.Abre(texto);
  const QString nombre = r.mesa.carpeta.filePath("r.txt");
  const QString pdf = r.mesa.carpeta.filePath("r.pdf");
  Persona persona;
  persona.ficheros = QStringList{nombre, pdf, r.mesa.carpeta.filePath("no/r.txt")};
  EXPECT_FALSE(Texto(*pantalla).HayEleccion());
  Pulsa(*pantalla, "btTexto");
  QFile f(nombre);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  EXPECT_EQ(f.readAll().toStdString(), texto);
  Pulsa(*pantalla, "btPdf");
  EXPECT_TRUE(QFile::exists(pdf));
  EXPECT_TRUE(persona.cajas.empty());
  Pulsa(*pantalla, "btTexto");
  EXPECT_NE(persona.Ultima().indexOf("no/r.txt"), -1);
  EXPECT_TRUE(pantalla->isVisible());
  Pulsa(*pantalla, "btCopiar");
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), texto);
  QTest::keyClick(pantalla.get(), Qt::Key_Escape);
  EXPECT_FALSE(pantalla->isVisible());
}

TEST(PantallaResumen, BuscaDaLaVueltaYDiceLoQueNoEsta) {
  Sala r;
  auto pantalla = r.Abre("CASO 1\nuno\nCaso 2\ndos\n");
  auto& texto = Texto(*pantalla);
  QTest::keyClick(pantalla.get(), Qt::Key_F, Qt::ControlModifier);
  auto* que = pantalla->findChild<QLineEdit*>("edBuscar");
  auto* dice = pantalla->findChild<QLabel*>("lbBuscar");
  ASSERT_TRUE(que->isVisible());
  EXPECT_TRUE(que->hasFocus());
  QTest::keyClicks(que, "caso");
  EXPECT_EQ(texto.Desde(), Lugar{});
  EXPECT_EQ(texto.Marcas(), 2);
  QTest::keyClick(que, Qt::Key_Return);
  EXPECT_EQ(texto.Elegido(), "Caso");
  EXPECT_EQ(dice->text(), "");
  QTest::keyClick(pantalla.get(), Qt::Key_F3);
  EXPECT_EQ(texto.Desde(), Lugar{});
  EXPECT_EQ(dice->text(), r.mesa.Tx(1269));
  QTest::keyClick(pantalla.get(), Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(texto.Elegido(), "Caso");
  EXPECT_EQ(dice->text(), r.mesa.Tx(1270));
  que->setText("tres");
  EXPECT_EQ(dice->text(), "No se encuentra «tres»");
  EXPECT_EQ(texto.Marcas(), 0);
  QTest::keyClick(que, Qt::Key_Escape);
  EXPECT_FALSE(que->isVisible());
  EXPECT_TRUE(pantalla->isVisible());
}

// A text whose blocks behind the first wait for leave.
struct TextoLento : TextoTroceado {
  TextoLento(const std::string& texto, std::shared_ptr<std::atomic<bool>> va)
      : TextoTroceado(texto, 10), va_(std::move(va)) {}
  std::string Bloque(std::size_t i) override {
    while (i > 0 && !*va_) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return TextoTroceado::Bloque(i);
  }
  std::shared_ptr<std::atomic<bool>> va_;
};

TEST(PantallaResumen, UnTextoLargoSeLeeMientrasSeCuenta) {
  Sala r;
  std::string texto = "principio\n";
  while (texto.size() < 300'000) texto += "  CALCULANDO EL CASO : 1/   1  RIÑONES Y CLAVE\n\n";
  texto += "el final\n";
  const auto va = std::make_shared<std::atomic<bool>>(false);
  auto pantalla = r.Abre(std::make_unique<TextoLento>(texto, va));
  auto& ed = Texto(*pantalla);
  EXPECT_EQ(ed.Lineas(), 10);
  // What is not there yet is looked for all the same, until the person gives up; nor is there paper
  // of it.
  const auto renuncia = [](const std::function<void()>& que) {
    EnPantalla<CajaProgreso> persona([](CajaProgreso& caja) { Pulsa(caja, "btCancelar"); });
    que();
    EXPECT_EQ(persona.veces, 1);
  };
  QTest::keyClick(pantalla.get(), Qt::Key_F, Qt::ControlModifier);
  renuncia([&] { pantalla->findChild<QLineEdit*>("edBuscar")->setText("el final"); });
  EXPECT_FALSE(ed.HayEleccion());
  renuncia([&] { Pulsa(*pantalla, "btImprimeTramo"); });
  EXPECT_TRUE(r.pedidos.empty());
  *va = true;
  QTest::keyClick(pantalla->findChild<QLineEdit*>("edBuscar"), Qt::Key_Return);
  EXPECT_EQ(ed.Elegido(), "el final");
  EXPECT_TRUE(QTest::qWaitFor([&] { return ed.Texto().LaCuenta().lineas == ed.Lineas(); }));
  EXPECT_EQ(ed.Lineas() - 2, ed.Desde().linea);
  EXPECT_GT(ed.verticalScrollBar()->value(), 10'000);
  // Not EXPECT_EQ, which would look for the differences of so many characters.
  EXPECT_TRUE(TextoEntero(*pantalla) == texto);
  QTest::keyClick(&ed, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&ed, Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QApplication::clipboard()->text().toStdString() == texto);
}

TEST(PantallaResumen, SeEligeConTeclasYConElRaton) {
  Sala r;
  std::string texto = "uno\nRIÑONES y clave\n\n";
  for (int i = 0; i < 500; ++i) texto += std::to_string(i) + "\n";
  auto pantalla = r.Abre(texto);
  auto& ed = Texto(*pantalla);
  ASSERT_TRUE(ed.hasFocus());
  const auto teclas = [&](std::initializer_list<std::pair<Qt::Key, Qt::KeyboardModifiers>> cuales) {
    for (const auto& [tecla, con] : cuales) QTest::keyClick(&ed, tecla, con);
  };
  const auto copiado = [&] {
    QTest::keyClick(&ed, Qt::Key_C, Qt::ControlModifier);
    return QApplication::clipboard()->text();
  };
  const auto kSola = Qt::NoModifier;
  const auto kMayus = Qt::ShiftModifier;
  teclas({{Qt::Key_Down, kSola}, {Qt::Key_Right, kSola}, {Qt::Key_End, kMayus}});
  EXPECT_EQ(copiado(), "IÑONES y clave");
  teclas({{Qt::Key_Home, kSola}, {Qt::Key_Left, kMayus}, {Qt::Key_Left, kMayus}});
  EXPECT_EQ(copiado(), "o\n");
  teclas({{Qt::Key_End, Qt::ControlModifier}, {Qt::Key_Up, kMayus}, {Qt::Key_Up, kMayus}});
  EXPECT_EQ(copiado(), "498\n499\n");
  EXPECT_EQ(ed.verticalScrollBar()->value(), ed.verticalScrollBar()->maximum());
  teclas({{Qt::Key_PageUp, kSola}});
  EXPECT_LT(ed.verticalScrollBar()->value(), ed.verticalScrollBar()->maximum());
  teclas({{Qt::Key_Home, Qt::ControlModifier}});
  EXPECT_EQ(ed.verticalScrollBar()->value(), 0);

  const QFontMetricsF letra(ed.font());
  const auto en = [&](int linea, int columna) {
    return QPoint(4 + static_cast<int>(columna * letra.horizontalAdvance('0')),
                  4 + linea * ed.fontMetrics().lineSpacing() + 3);
  };
  QTest::mousePress(ed.viewport(), Qt::LeftButton, {}, en(0, 1));
  QMouseEvent lleva(QEvent::MouseMove, en(1, 3), ed.viewport()->mapToGlobal(en(1, 3)), Qt::NoButton,
                    Qt::LeftButton, {});
  QApplication::sendEvent(ed.viewport(), &lleva);
  QTest::mouseRelease(ed.viewport(), Qt::LeftButton, {}, en(1, 3));
  EXPECT_EQ(copiado(), "no\nRIÑ");
  QTest::mouseDClick(ed.viewport(), Qt::LeftButton, {}, en(1, 4));
  EXPECT_EQ(copiado(), "RIÑONES");
}

TEST(PantallaResumen, LaLetraSeAgrandaYSeConserva) {
  Sala r;
  int cuerpo = 0;
  {
    auto pantalla = r.Abre("x");
    auto& ed = Texto(*pantalla);
    cuerpo = ed.font().pointSize();
    QTest::keyClick(pantalla.get(), Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(pantalla.get(), Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(pantalla.get(), Qt::Key_Minus, Qt::ControlModifier);
    const QPointF aqui(5, 5);
    QWheelEvent rueda(aqui, ed.viewport()->mapToGlobal(aqui), {}, {0, 120}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(ed.viewport(), &rueda);
    EXPECT_EQ(ed.font().pointSize(), cuerpo + 2);
  }
  auto pantalla = r.Abre("x");
  EXPECT_EQ(Texto(*pantalla).font().pointSize(), cuerpo + 2);
  QTest::keyClick(pantalla.get(), Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Texto(*pantalla).font().pointSize(), cuerpo);
}

// A part of a calculation is not to be taken for the whole: only its text can be kept.
TEST(PantallaResumen, DeLoCanceladoNoHayPapel) {
  Sala r;
  auto pantalla = r.Abre("x", false, false);
  for (const char* boton : {"btImprimeTramo", "btVistaPrevia", "btPdf"}) Pulsa(*pantalla, boton);
  QTest::keyClick(pantalla.get(), Qt::Key_P, Qt::ControlModifier);
  EXPECT_TRUE(r.pedidos.empty());
  EXPECT_TRUE(pantalla->isVisible());
  EXPECT_TRUE(pantalla->findChild<QPushButton*>("btTexto")->isEnabled());
}

// ---------------------------------------------------------------------------------------------

// Waits in the work's own thread until something has happened in the window's.
template <class Que>
void Aguarda(const Que& que) {
  while (!que()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

TEST(Faena, LaVentanaSigueMientrasTantoYLaCajaDiceYCancela) {
  Mesa mesa;
  QWidget ventana;
  ventana.show();
  std::atomic<int> latidos = 0;
  QTimer reloj;
  QObject::connect(&reloj, &QTimer::timeout, [&latidos] { ++latidos; });
  reloj.start(1);
  std::vector<QString> dichos;
  std::vector<int> barras;
  EnPantalla<CajaProgreso> persona([&](CajaProgreso& caja) {
    // The work speaks after some beats of the window, which a busy machine may take long over.
    for (caja.Renueva(); caja.findChild<QLabel*>()->text().isEmpty(); caja.Renueva()) {
      QTest::qWait(5);
    }
    dichos.push_back(caja.findChild<QLabel*>()->text());
    barras.push_back(caja.findChild<QProgressBar*>()->value());
    QTest::keyClick(&caja, Qt::Key_Escape);
    EXPECT_TRUE(caja.isVisible());  // until the work hears of it
  });
  bool cancelada = false;
  HazFaena(&ventana, mesa.textos, 1272, [&](MarchaFaena& marcha) {
    Aguarda([&] { return latidos > 20; });  // before the box is there
    marcha.Di({"Caso 4 de 9", 0.25});
    Aguarda([&] { return !marcha.Sigue(); });
    cancelada = true;
  });
  EXPECT_TRUE(cancelada);
  EXPECT_EQ(dichos, std::vector<QString>{"Caso 4 de 9"});
  EXPECT_EQ(barras, std::vector<int>{250});
}

TEST(Faena, LoCortoNoSeMuestraYLoQueFallaSaleAqui) {
  Mesa mesa;
  EnPantalla<CajaProgreso> persona([](CajaProgreso&) {});
  std::thread::id hilo;
  HazFaena(nullptr, mesa.textos, 1272, [&](MarchaFaena&) { hilo = std::this_thread::get_id(); });
  EXPECT_NE(hilo, std::this_thread::get_id());
  EXPECT_THROW(
      HazFaena(nullptr, mesa.textos, 1272, [](MarchaFaena&) { throw std::runtime_error("disco"); }),
      std::runtime_error);
  QTest::qWait(20);
  EXPECT_EQ(persona.veces, 0);
}

// A program that is left, and a window that is closed, end the work and wait for it.
TEST(Faena, AlSalirDelProgramaSeCancela) {
  Mesa mesa;
  for (const bool cierra : {true, false}) {
    EnPantalla<CajaProgreso> persona([&](CajaProgreso& caja) {
      if (cierra) {
        caja.close();
      } else {
        QApplication::exit();
      }
    });
    bool oido = false;
    HazFaena(nullptr, mesa.textos, 1272, [&](MarchaFaena& marcha) {
      Aguarda([&] { return !marcha.Sigue(); });
      oido = true;
    });
    EXPECT_TRUE(oido);
  }
  // The loops of the tests to come do not hear of it.
  QTimer::singleShot(0, [] { QApplication::exit(); });
  QApplication::exec();
}

TEST(Faena, LoQueYaNoTieneVueltaNoSeCancela) {
  Mesa mesa;
  std::atomic<bool> pulsada = false;
  EnPantalla<CajaProgreso> persona([&](CajaProgreso& caja) {
    caja.reject();
    pulsada = true;
  });
  HazFaena(nullptr, mesa.textos, 1272, [&](MarchaFaena& marcha) {
    marcha.SinVuelta();
    Aguarda([&] { return pulsada.load(); });
    EXPECT_TRUE(marcha.Sigue());
  });
}

// ---------------------------------------------------------------------------------------------

// From the capture, over a copy of the sample Obra, to the summary screen.
struct Despacho {
  explicit Despacho(int registro = 0, const std::string& texto = {}) {
    qputenv("XDG_STATE_HOME", QByteArray::fromStdString((carpeta / "estado").string()));
    std::filesystem::copy_file(ZORBIN_FUENTES "muestras/acequia.zrb", carpeta / "acequia.zrb");
    if (registro != 0) {
      FicheroRegistros f(carpeta / "acequia.zrb", FicheroRegistros::Modo::LecturaEscritura);
      f.EscribeRegistro(registro, texto);
      f.Vacia();
    }
    EXPECT_TRUE(AbreObra(b.c, carpeta / "acequia.zrb"));
  }
  Carpeta carpeta;
  Banco b;
  Mesa mesa;
  Persona persona;
};

TEST(Calculos, DelTramoAlResumenYAlPapel) {
  Despacho d;
  d.b.Teclea(Ed::edTramo, "7");
  QString texto;
  EnPantalla<frEscribePantalla> lector([&](frEscribePantalla& pantalla) {
    texto = Q(TextoEntero(pantalla));
    Opcion(pantalla, 3).click();
    Pulsa(pantalla, "btImprimeTramo");
  });
  std::vector<int> dichos;
  CalculaElTramo(d.b.c, d.mesa.entorno, nullptr, [&](int id, Veredicto v) {
    dichos.insert(dichos.end(), {id, static_cast<int>(v)});
  });
  EXPECT_EQ(lector.veces, 1);
  EXPECT_EQ(dichos, (std::vector{d.b.c.enMano, static_cast<int>(Veredicto::Cumple)}));
  auto calculo = CalculaEncargo(EncargaTramo(d.b.c).value());
  EXPECT_EQ(S(texto), Resume(calculo));
  std::ostringstream impreso, esperado;
  HojasTexto papel(impreso);
  for (const auto& hoja : d.mesa.papel.hojas) papel.RecibeHoja(hoja);
  HojasTexto otroPapel(esperado);
  EscribeListado(calculo, TipoListado::Lame, otroPapel, Ahora());
  const auto sinFecha = [](std::string t) { return t.erase(t.find("FECHA: "), 26); };
  EXPECT_EQ(sinFecha(impreso.str()), sinFecha(esperado.str()));
  EXPECT_EQ(d.mesa.papel.nombres, std::vector<QString>{"acequia - Tramo 7 - Coef. Lamé"});
  EXPECT_TRUE(d.persona.cajas.empty());
}

TEST(Calculos, LaObraEnteraConUnFalloSeDiceYSeMuestra) {
  Despacho d(14 + 60 + 49, "0,00");
  QString texto;
  bool lame = false;
  EnPantalla<frEscribePantalla> lector([&](frEscribePantalla& pantalla) {
    texto = Q(TextoEntero(pantalla));
    lame = Opcion(pantalla, 3).isEnabled();
    Pulsa(pantalla, "btSalir");
  });
  ImprimeLaObra(d.b.c, d.mesa.entorno, nullptr);
  EXPECT_EQ(lector.veces, 1);
  EXPECT_TRUE(lame);
  ASSERT_EQ(d.persona.cajas.size(), 1U);
  EXPECT_EQ(d.persona.cajas[0].titulo, "Error en ejecución");
  EXPECT_EQ(d.persona.cajas[0].texto,
            "acequia.zrb: Tramo 2, Caso 1, altura 2,00 m, DP 0,400 MPa: División por cero");
  EXPECT_TRUE(texto.contains("** " + d.persona.cajas[0].texto + " **"));
  EXPECT_TRUE(d.b.c.SinTramoEnMano()) << "what was in hand stays so";
}

// Thousands of Casos: the box comes up while they are calculated, its button ends that, and the
// summary says so.
TEST(Calculos, UnaCorridaLargaSeCancelaDesdeSuCaja) {
  Despacho d;
  d.b.Teclea(Ed::edAlt2, "14");
  d.b.Teclea(Ed::edAlt3, "0,01");
  d.b.Teclea(Ed::edPrs3, "0,01");
  d.b.Teclea(Ed::edTramo, "1");
  // Long enough for a box on any machine: whoever gives up waits for no more than its patience.
  for (int veces = 0; veces < 4; ++veces) {
    std::vector<int> todos;
    for (const auto& renglon : RenglonesTramos(d.b.c)) todos.push_back(renglon.id);
    ASSERT_TRUE(DuplicaTramos(d.b.c, todos));
  }
  EnPantalla<CajaProgreso> persona([](CajaProgreso& c) { Pulsa(c, "btCancelar"); });
  QString texto;
  EnPantalla<frEscribePantalla> lector([&](frEscribePantalla& pantalla) {
    auto& largo = Texto(pantalla).Texto();
    EXPECT_TRUE(largo.EsperaTodo([] { return true; }));
    texto = Q(largo.Bloque(largo.Bloques() - 1));
    EXPECT_FALSE(pantalla.findChild<QPushButton*>("btPdf")->isEnabled());
    Pulsa(pantalla, "btSalir");
  });
  ImprimeLaObra(d.b.c, d.mesa.entorno, nullptr,
                [](int, Veredicto) { ADD_FAILURE() << "nobody knows what a cancelled run is"; });
  EXPECT_EQ(persona.veces, 1);
  EXPECT_EQ(lector.veces, 1);
  EXPECT_TRUE(texto.contains("** Cálculo cancelado"));
  EXPECT_TRUE(d.b.c.EnAltas());
}

TEST(Calculos, UnTramoConFaltasSeDiceYSaleLoDemas) {
  Despacho d(30 + 60, "0 // 0,0");
  EnPantalla<frEscribePantalla> lector(
      [&](frEscribePantalla& pantalla) { Pulsa(pantalla, "btImprimeTramo"); });
  ImprimeLaObra(d.b.c, d.mesa.entorno, nullptr);
  ASSERT_EQ(d.persona.cajas.size(), 1U);
  EXPECT_TRUE(d.persona.Ultima().contains("El Tramo 2 no se calcula: ")) << S(d.persona.Ultima());
  EXPECT_GT(d.mesa.papel.hojas.size(), 3U);
}

TEST(Calculos, LoQueNoEmpiezaNoAbreNada) {
  Despacho d;
  d.b.Teclea(Ed::edAlt1, "0,5");
  EnPantalla<frEscribePantalla> lector([](frEscribePantalla& pantalla) { pantalla.reject(); });
  ImprimeLaObra(d.b.c, d.mesa.entorno, nullptr);
  QTest::qWait(20);
  EXPECT_EQ(lector.veces, 0);
  EXPECT_EQ(d.b.c.faltas.size(), 1U);
}

}  // namespace
}  // namespace zorbin::prueba
