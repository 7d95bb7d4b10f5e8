// Paper: what reaches a printer or a file, and what is said when it does not.
#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <array>
#include <cstdio>
#include <sstream>
#include <thread>

#include "comun/estadoDeJson.h"
#include "comun/listado.h"
#include "shell/enPantalla.h"
#include "shell/entornoPrueba.h"
#include "shell/impresion/frImpresoras.h"
#include "shell/impresion/frVistaPrevia.h"
#include "shell/impresion/mdGuardar.h"
#include "shell/impresion/mdImpresora.h"

namespace zorbin::prueba {
namespace {

std::string Salida(const std::string& orden) {
  std::string salida;
  FILE* f = popen((orden + " 2>/dev/null").c_str(), "r");
  std::array<char, 4096> bloque;
  for (std::size_t n; (n = fread(bloque.data(), 1, bloque.size(), f)) > 0;) {
    salida.append(bloque.data(), n);
  }
  pclose(f);
  return salida;
}

QByteArray Contenido(const QString& ruta) {
  QFile f(ruta);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// What a printer was given.
struct Hecho {
  QString fichero;  // a copy of the document
  int copias = 0;
  QString trabajo;
};

struct Imprenta {
  Mesa mesa;
  QStringList nombres{"Laser", "Plotter"};
  QString predeterminada = "Plotter";
  Hecho hecho{mesa.carpeta.filePath("papel.pdf"), 0, {}};
  QPageSize papel{QPageSize::A4};
  Impresora impresora{
      mesa.textos,
      mesa.preferencias,
      {[this] { return nombres; }, [this] { return predeterminada; },
       [this](const QString&) { return papel; }, [this](const TrabajoImpresion& t) { Recibe(t); }}};

  void Recibe(const TrabajoImpresion& t) {
    QFile::remove(hecho.fichero);
    QFile::copy(Q(t.fichero), hecho.fichero);
    hecho.copias = t.copias;
    hecho.trabajo = Q(t.titulo);
  }

  QString Fichero(const char* nombre) const { return mesa.carpeta.filePath(nombre); }
};

Documento De(std::vector<Hoja> hojas) {
  return [hojas = std::move(hojas)](DestinoHojas& destino) {
    for (const auto& h : hojas) destino.RecibeHoja(h);
  };
}

std::vector<Hoja> Listado(const std::string& clase) {
  std::vector<EstadoCalculo> tramos;
  for (const int n : {1, 6}) {
    tramos.push_back(pruebas::EstadoDeMuestra(n));
    tramos.back().tramo.NumeroTramo = static_cast<std::int16_t>(n);
  }
  return pruebas::HojasDe(tramos, clase);
}

std::string Palabras(const std::string& texto) {
  std::istringstream f(texto);
  std::string salida;
  for (std::string palabra; f >> palabra;) salida += palabra + '\n';
  return salida;
}

std::string PalabrasDe(const std::vector<Hoja>& hojas) {
  std::string texto;
  for (const auto& hoja : hojas) {
    for (const auto& linea : hoja.textos) texto += linea.texto + '\n';
  }
  return Palabras(texto);
}

// Pages and size of the PDF, as "3 595 x 842".
std::string Medidas(const QString& pdf) {
  const auto informe = Salida("pdfinfo '" + S(pdf) + "'");
  const auto dato = [&](const std::string& rotulo) {
    const auto i = informe.find(rotulo);
    if (i == std::string::npos) return std::string{"?"};
    const auto desde = informe.find_first_not_of(' ', i + rotulo.size());
    return informe.substr(desde, informe.find('\n', desde) - desde);
  };
  return dato("Pages:") + " " + dato("Page size:");
}

TEST(Papel, UnTabularSaleApaisadoYElSiguienteVertical) {
  Imprenta i;
  i.mesa.preferencias.PonImpresora("Laser");
  i.mesa.preferencias.PonCopias(3);
  struct Caso {
    const char* clase;
    const char* tamano;
  };
  for (const auto& [clase, tamano] :
       {Caso{"tabular", "842 x 595 pts (A4)"}, Caso{"normal", "595 x 842 pts (A4)"}}) {
    const auto hojas = Listado(clase);
    ASSERT_TRUE(i.impresora.Imprime(nullptr, "acequia - Normal", De(hojas)));
    EXPECT_EQ(Medidas(i.hecho.fichero), std::to_string(hojas.size()) + " " + tamano);
    const auto texto = Salida("pdftotext -layout '" + S(i.hecho.fichero) + "' -");
    EXPECT_EQ(Palabras(texto), PalabrasDe(hojas)) << clase;
  }
  EXPECT_EQ(i.hecho.copias, 3);
  EXPECT_EQ(i.hecho.trabajo, "acequia - Normal");
}

TEST(Papel, EnUnaSolaTiradaCadaHojaLlevaSuOrientacion) {
  Imprenta i;
  auto hojas = Listado("tabular");
  hojas.resize(1);
  hojas.push_back(Listado("normal").front());
  hojas.push_back(hojas.front());
  ASSERT_TRUE(i.impresora.Imprime(nullptr, "dos", De(hojas)));
  const auto informe = Salida("pdfinfo -l 3 '" + S(i.hecho.fichero) + "'");
  EXPECT_NE(informe.find("Page    1 size:  842 x 595"), std::string::npos) << informe;
  EXPECT_NE(informe.find("Page    2 size:  595 x 842"), std::string::npos);
  EXPECT_NE(informe.find("Page    3 size:  842 x 595"), std::string::npos);
}

// On a smaller paper the sheet shrinks whole: its last line is still there.
TEST(Papel, EnUnPapelMenorNoSePierdeNingunaLinea) {
  Imprenta imprenta;
  imprenta.papel = QPageSize(QPageSize::A5);
  const auto hojas = Listado("normal");
  ASSERT_TRUE(imprenta.impresora.Imprime(nullptr, "a5", De({hojas.front()})));
  const auto cajas = Salida("pdftotext -bbox '" + S(imprenta.hecho.fichero) + "' -");
  double derecha = 0, abajo = 0;
  for (auto i = cajas.find("<word"); i != std::string::npos; i = cajas.find("<word", i + 1)) {
    derecha = std::max(derecha, std::stod(cajas.substr(cajas.find("xMax=\"", i) + 6)));
    abajo = std::max(abajo, std::stod(cajas.substr(cajas.find("yMax=\"", i) + 6)));
  }
  EXPECT_LT(derecha, 420);
  EXPECT_LT(abajo, 595);
  EXPECT_GT(derecha, 300);  // it fills the paper
}

TEST(Papel, UnaImpresoraQueYaNoEstaSeDiceYNoImprime) {
  Imprenta i;
  Persona persona;
  i.mesa.preferencias.PonImpresora("Matricial");
  bool pedido = false;
  EXPECT_FALSE(i.impresora.Imprime(nullptr, "x", [&](DestinoHojas&) { pedido = true; }));
  EXPECT_FALSE(pedido);  // nobody calculates for nothing
  ASSERT_EQ(persona.cajas.size(), 1U);
  EXPECT_NE(persona.Ultima().indexOf("Matricial"), -1);
  EXPECT_FALSE(QFile::exists(i.hecho.fichero));
}

TEST(Papel, SinHojasOCanceladoNoSaleNada) {
  Imprenta i;
  Persona persona;
  persona.fichero = i.Fichero("nada.pdf");
  const auto cancela = [](DestinoHojas& destino) {
    destino.RecibeHoja(Hoja{});
    throw DocumentoCancelado{};
  };
  for (const bool pdf : {false, true}) {
    i.mesa.preferencias.PonImpresora(pdf ? kImpresoraPdf : QString("Laser"));
    EXPECT_FALSE(i.impresora.Imprime(nullptr, "nada", De({})));
    EXPECT_EQ(persona.Ultima(), i.mesa.Tx(1245));
    EXPECT_FALSE(i.impresora.Imprime(nullptr, "nada", cancela));
  }
  i.impresora.VistaPrevia(nullptr, "nada", De({}));
  i.impresora.VistaPrevia(nullptr, "nada", cancela);
  EXPECT_EQ(persona.cajas.size(), 3U);
  EXPECT_FALSE(QFile::exists(i.hecho.fichero));
  EXPECT_FALSE(QFile::exists(i.Fichero("nada.pdf")));
}

TEST(Papel, SinImpresorasEsUnPdfConNombrePropuesto) {
  Imprenta i;
  i.nombres.clear();
  i.predeterminada.clear();
  EXPECT_EQ(i.impresora.EnUso(), kImpresoraPdf);
  i.mesa.preferencias.PonUltimaCarpeta(i.mesa.carpeta.path());
  Persona persona;
  persona.ficheros = QStringList{i.Fichero("obra"), i.Fichero("obra.pdf")};
  const auto hojas = Listado("pantalla");
  ASSERT_TRUE(i.impresora.Imprime(nullptr, "acequia/1 - Normal", De(hojas)));
  EXPECT_EQ(persona.propuestos, QStringList{i.Fichero("acequia 1 - Normal.pdf")});
  EXPECT_EQ(Medidas(i.Fichero("obra.pdf")), std::to_string(hojas.size()) + " 595 x 842 pts (A4)");
  EXPECT_TRUE(persona.cajas.empty());
  // The same name again: it is asked about, and No leads back to the dialog, which is given up.
  const auto antes = Contenido(i.Fichero("obra.pdf"));
  persona.respuestas = {false};
  EXPECT_FALSE(i.impresora.Imprime(nullptr, "otro", De(Listado("tabular"))));
  ASSERT_EQ(persona.cajas.size(), 1U);
  EXPECT_NE(persona.Ultima().indexOf("obra.pdf ya existe"), -1) << S(persona.Ultima());
  EXPECT_EQ(Contenido(i.Fichero("obra.pdf")), antes);
}

TEST(Papel, UnFicheroQueNoSeEscribeSeDiceYElAnteriorQueda) {
  Imprenta i;
  Persona persona;
  QFile viejo(i.Fichero("viejo.pdf"));
  ASSERT_TRUE(viejo.open(QIODevice::WriteOnly));
  viejo.write("antes");
  viejo.close();
  persona.ficheros = QStringList{i.Fichero("no/hay.pdf"), i.Fichero("viejo.pdf")};
  auto& m = i.mesa;
  EXPECT_FALSE(GuardaPdf(nullptr, m.textos, m.preferencias, "x", De(Listado("pantalla"))));
  ASSERT_EQ(persona.cajas.size(), 1U);
  EXPECT_NE(persona.Ultima().indexOf(i.Fichero("no/hay.pdf")), -1) << S(persona.Ultima());
  const auto falla = [](DestinoHojas& destino) {
    destino.RecibeHoja(Hoja{});
    throw ErrorPintor("disco lleno");
  };
  EXPECT_FALSE(GuardaPdf(nullptr, m.textos, m.preferencias, "x", falla));
  EXPECT_NE(persona.Ultima().indexOf("disco lleno"), -1);
  EXPECT_EQ(Contenido(i.Fichero("viejo.pdf")), "antes");
}

// Whatever is made of a document, the window is free meanwhile.
TEST(Papel, ElDocumentoYLaEntregaVanEnOtroHilo) {
  Imprenta i;
  Persona persona;
  std::vector<std::thread::id> hilos;
  const auto anota = [&hilos] { hilos.push_back(std::this_thread::get_id()); };
  auto impresoras = i.impresora.DelSistema();
  impresoras.entrega = [anota](const TrabajoImpresion&) { anota(); };
  Impresora impresora(i.mesa.textos, i.mesa.preferencias, impresoras);
  const Documento documento = [anota](DestinoHojas& hojas) {
    anota();
    hojas.RecibeHoja(Hoja{});
  };
  EXPECT_TRUE(impresora.Imprime(nullptr, "x", documento));
  i.mesa.preferencias.PonImpresora(kImpresoraPdf);
  persona.fichero = i.Fichero("x.pdf");
  EXPECT_TRUE(impresora.Imprime(nullptr, "x", documento));
  EnPantalla<frVistaPrevia> lector([](frVistaPrevia& vista) { vista.reject(); });
  impresora.VistaPrevia(nullptr, "x", documento);
  EXPECT_EQ(hilos.size(), 4U);
  EXPECT_EQ(std::count(hilos.begin(), hilos.end(), std::this_thread::get_id()), 0);
}

// ---------------------------------------------------------------------------------------------

struct PantallaImpresoras : Imprenta {
  frImpresoras pantalla{mesa.textos, mesa.preferencias, impresora};
  QListWidget* lista = pantalla.findChild<QListWidget*>("Impresoras");
  QLineEdit* tbCopias = pantalla.findChild<QLineEdit*>("tbCopias");
  Persona persona;

  void Elige(const QString& nombre) {
    for (int fila = 0; fila < lista->count(); ++fila) {
      if (lista->item(fila)->text().startsWith(nombre)) lista->setCurrentRow(fila);
    }
  }
};

TEST(Impresoras, LaListaMarcaLaPredeterminadaYAcabaEnElPdf) {
  PantallaImpresoras p;
  ASSERT_EQ(p.lista->count(), 3);
  EXPECT_EQ(p.lista->item(1)->text(), "Plotter (predeterminada)");
  EXPECT_EQ(p.lista->item(2)->text(), "Fichero PDF…");
  EXPECT_EQ(p.lista->currentRow(), 1);
  EXPECT_EQ(p.tbCopias->text(), "1");
  p.lista->setCurrentRow(2);
  EXPECT_FALSE(p.tbCopias->isEnabled());
  p.lista->setCurrentRow(0);
  EXPECT_TRUE(p.tbCopias->isEnabled());
}

TEST(Impresoras, LasCopiasSeComprueban) {
  struct Caso {
    const char* texto;
    const char* mensaje;
  };
  for (const auto& [texto, mensaje] :
       {Caso{"", "Seleccione un valor númerico"}, Caso{"  ", "Seleccione un valor númerico"},
        Caso{"dos", "Seleccione un valor númerico"}, Caso{"1,5", "Seleccione un valor entero"},
        Caso{"99999", "Seleccione un valor entero"}, Caso{"0", "Seleccione un valor mayor que 0"},
        Caso{"-3", "Seleccione un valor mayor que 0"}}) {
    PantallaImpresoras p;
    p.pantalla.open();
    p.tbCopias->setText(texto);
    p.pantalla.accept();
    ASSERT_EQ(p.persona.cajas.size(), 1U) << texto;
    EXPECT_EQ(p.persona.cajas[0].texto, mensaje) << texto;
    EXPECT_EQ(p.persona.cajas[0].titulo, "Numero de copias");
    EXPECT_TRUE(p.pantalla.isVisible());
    EXPECT_EQ(p.mesa.preferencias.Impresora(), "");
  }
}

TEST(Impresoras, UnaSolaNoPreguntaYVariasSi) {
  PantallaImpresoras p;
  p.pantalla.open();
  p.Elige("Laser");
  p.tbCopias->setText("4");
  p.persona.respuestas = {false};
  p.pantalla.accept();
  EXPECT_TRUE(p.pantalla.isVisible());
  ASSERT_EQ(p.persona.cajas.size(), 1U);
  EXPECT_EQ(p.persona.cajas[0].texto, "¿ Quiere imprimir 4 copias ?");
  EXPECT_EQ(p.persona.cajas[0].titulo, "AVISO");
  EXPECT_EQ(p.mesa.preferencias.Copias(), 1);
  p.persona.respuestas = {true};
  p.pantalla.accept();
  EXPECT_FALSE(p.pantalla.isVisible());
  EXPECT_EQ(p.persona.Ultima(), "Se imprimiran 4 por la impresora: Laser");
  EXPECT_EQ(p.mesa.preferencias.Impresora(), "Laser");
  EXPECT_EQ(p.mesa.preferencias.Copias(), 4);
  EXPECT_EQ(p.impresora.EnUso(), "Laser");

  frImpresoras otra(p.mesa.textos, p.mesa.preferencias, p.impresora);
  EXPECT_EQ(otra.findChild<QListWidget*>("Impresoras")->currentRow(), 0);
  EXPECT_EQ(otra.findChild<QLineEdit*>("tbCopias")->text(), "4");
  otra.findChild<QLineEdit*>("tbCopias")->setText("1");
  otra.open();
  otra.accept();
  EXPECT_EQ(p.persona.Ultima(), "Se usará la impresora: Laser");
  EXPECT_EQ(p.persona.cajas.size(), 4U);
}

TEST(Impresoras, UnaQueDesapareceDaSuErrorYLaPantallaSigue) {
  PantallaImpresoras p;
  p.pantalla.open();
  p.Elige("Laser");
  p.nombres = QStringList{"Plotter"};
  p.pantalla.accept();
  EXPECT_TRUE(p.persona.Ultima().startsWith("error: 482\nDescripción: ")) << S(p.persona.Ultima());
  EXPECT_TRUE(p.pantalla.isVisible());
  EXPECT_EQ(p.lista->count(), 2);
  EXPECT_EQ(p.mesa.preferencias.Impresora(), "");
}

// ---------------------------------------------------------------------------------------------

TEST(VistaPrevia, MuestraLasHojasYLasImprimeTalComoEstan) {
  Mesa mesa;
  const auto hojas = Listado("normal");
  frVistaPrevia vista(mesa.textos, mesa.preferencias, mesa.papel, "acequia", hojas, nullptr);
  vista.resize(800, 700);
  vista.open();
  auto* paginas = vista.findChild<VistaHojas*>();
  auto* rotulo = vista.findChild<QLabel*>("pagina");
  const QString ultima = QString::number(hojas.size());
  EXPECT_EQ(rotulo->text(), "Página 1 de " + ultima);
  QTest::keyClick(paginas, Qt::Key_PageDown);
  EXPECT_EQ(rotulo->text(), "Página 2 de " + ultima);
  QTest::keyClick(paginas, Qt::Key_End);
  EXPECT_EQ(rotulo->text(), "Página " + ultima + " de " + ultima);

  // Ink where there is a line, white where there is none, whatever the theme.
  QPalette oscura;
  oscura.setColor(QPalette::Base, Qt::black);
  oscura.setColor(QPalette::Text, Qt::white);
  vista.setPalette(oscura);
  QTest::keyClick(paginas, Qt::Key_Home);
  const QImage imagen = paginas->viewport()->grab().toImage();
  int tinta = 0, papel = 0;
  for (int y = 0; y < imagen.height(); ++y) {
    for (int x = 0; x < imagen.width(); ++x) {
      const int gris = qGray(imagen.pixel(x, y));
      tinta += gris < 90 ? 1 : 0;
      papel += gris > 240 ? 1 : 0;
    }
  }
  EXPECT_GT(papel, imagen.width() * imagen.height() / 2);
  EXPECT_GT(tinta, 2000);
  EXPECT_LT(tinta, papel / 8);

  vista.findChild<QPushButton*>("btImprimir")->click();
  EXPECT_FALSE(vista.isVisible());
  EXPECT_EQ(PalabrasDe(mesa.papel.hojas), PalabrasDe(hojas));
}

}  // namespace
}  // namespace zorbin::prueba
