// A person's work with Obras and Tramos, from the first key to the file and back.
#include <gtest/gtest.h>
#include <unistd.h>

#include <set>

#include "comun/grabadoRoto.h"
#include "comun/sinDerechos.h"
#include "persistencia/dpe/mdDpe.h"
#include "sesion/captura/guion.h"
#include "sesion/captura/mdAjustesTramo.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdFaltas.h"
#include "sesion/captura/mdTipologias.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin::prueba {
namespace {

// Two Tramos of a new Obra, saved under a name that is asked for at the first save.
void ObraDeDosTramos(Banco& b, const std::string& fichero) {
  b.voz.fichero = fichero;
  b.Teclea({{Ed::edObra, "Traida de aguas"},
            {Ed::edPrsM1, "0.5"},  // the other separator
            {Ed::edPrsM2, "0,9"},
            {Ed::edPrs2, "0,8"},
            {Ed::edPrs3, "0,2"}});
  NuevoTramo(b.c);
  b.Teclea({{Ed::edDescriTramo, "Primero"}, {Ed::edDi0, "1,2"}});
  ASSERT_TRUE(AccionGrabaTramo(b.c)) << b.voz.Ultimo();
  NuevoTramo(b.c);
  b.Teclea(Ed::edDescriTramo, "Segundo");
  EligePaginaTipologia(b.c, 1);
  EligeOpcion(b.c, Ed::rdTipoCamisa, 1);
  b.Teclea({{Ed::edFYKPost, "210"}, {Ed::edDi0, "1,0"}, {Ed::edHr0, "2"}});
  ASSERT_TRUE(AccionGrabaTramo(b.c)) << b.voz.Ultimo();
}

// That Obra on the disk, open before a person.
struct Despacho : Banco {
  Despacho() { ObraDeDosTramos(*this, ruta.string()); }
  // An adjusted Caso of each of these Tramos, in the file beside the Obra.
  void Ajusta(std::initializer_list<double> tramos) const {
    std::vector<EntradaAjuste> entradas;
    for (const double t : tramos) entradas.push_back({6.0, t, 2.0, {1, 2, 3}});
    FicheroRegistros f(dpe, FicheroRegistros::Modo::LecturaEscritura);
    EscribeAjustes(f, entradas, ',');
  }
  // Whether the adjusted Caso at a place has been given up.
  bool Anulado(std::size_t lugar) const { return LeeAjustes(dpe)[lugar].Libre(); }

  const Carpeta carpeta;
  const std::filesystem::path ruta = carpeta / "o.zrb";
  const std::filesystem::path dpe = RutaDpe(ruta);
};

TEST(Sesion, UnaObraTecleadaSeReabreEnUnaMaquinaConElOtroSeparador) {
  const Carpeta carpeta;
  Banco b(',');
  ObraDeDosTramos(b, (carpeta / "obra").string());
  EXPECT_TRUE(std::filesystem::exists(carpeta / "obra.zrb"));
  EXPECT_TRUE(b.c.pantalla.Habilitada(Orden::MnImprimir));
  EXPECT_FALSE(b.c.EnCambio());
  EXPECT_EQ(b.c[Ed::edTramo].entradas, (std::vector<std::string>{"1", "2"}));
  EXPECT_TRUE(CierraObra(b.c));

  Banco otra('.');
  ASSERT_TRUE(AbreObra(otra.c, carpeta / "obra.zrb")) << otra.voz.Ultimo();
  EXPECT_EQ(otra.c[Ed::edPrsM2].texto, "0.90");
  EXPECT_EQ(otra.c[Ed::edObra].texto, "Traida de aguas");
  otra.Teclea(Ed::edTramo, "1");
  EXPECT_EQ(otra.c.EstadoCaptura, kModificaciones);
  EXPECT_EQ(otra.c[Ed::edDescriTramo2].texto, "Primero");
  EXPECT_EQ(otra.c[Ed::edDi0].texto, "1.200");
  EXPECT_EQ(otra.c[Ed::edFck].texto, "35.0");
  EXPECT_EQ(otra.c.pantalla.textoCancelar, "Releer");
  EXPECT_TRUE(ValidaTramo(otra.c, true)) << otra.voz.Ultimo();
  otra.Teclea(Ed::edTramo, "2");  // locked while a Tramo is in hand
  EXPECT_EQ(otra.e.tramo.NumeroTramo, 1);
  CancelaCaptura(otra.c);
  otra.Teclea(Ed::edTramo, "2");
  EXPECT_EQ(otra.e.tramo.Tipologia, 2221);
  EXPECT_EQ(otra.c.pantalla.pagina.TabTipologia, 1);
  EXPECT_FALSE(otra.c[Ed::edReci0].habilitado);
  EXPECT_DOUBLE_EQ(otra.e.tramo.Reci, otra.e.tramo.Esp - otra.e.tramo.Rece);
  EXPECT_FALSE(otra.c.pantalla.Habilitada(Orden::btAjustar));
  EXPECT_FALSE(otra.c.EnCambio());
}

TEST(Sesion, LaObraGuardadaSeValidaSinVentana) {
  Despacho b;
  EXPECT_TRUE(ValidaProyecto(LeeProyecto(b.ruta), b.textos, b.tablas, {}).Vale());

  // A Tramo with a fault of its own, and a question that nobody is there to answer.
  b.e.tramo.Gr = 0.0;
  EscribeTramo(*b.c.fichero, b.e, b.c.lista, 2, ',');
  CargaTramo(b.e, *b.c.fichero, 1);
  b.e.tramo.Fyd = 150.0;
  EscribeTramo(*b.c.fichero, b.e, b.c.lista, 1, ',');
  const auto lista = ValidaProyecto(LeeProyecto(b.ruta), b.textos, b.tablas, {});
  ASSERT_EQ(lista.faltas.size(), 1U);
  EXPECT_EQ(lista.faltas[0].posicion, 2);
  EXPECT_EQ(lista.faltas[0].campo, "edGr0");
  EXPECT_EQ(lista.faltas[0].mensaje, "Valor incorrecto");
  EXPECT_EQ(lista.faltas[0].titulo, "Densidad del Terreno");
  EXPECT_TRUE(lista.Vale(1));
  EXPECT_FALSE(lista.Vale(2));
  ASSERT_EQ(lista.preguntas.size(), 1U);
  EXPECT_EQ(lista.preguntas[0].numero, "1");
  EXPECT_NE(lista.preguntas[0].texto.find("140,000 MPa"), std::string::npos);
}

TEST(Sesion, ElNumeroNuevoSigueAlUltimoYNoALaCuenta) {
  Banco b;
  NuevoTramo(b.c);
  EXPECT_EQ(b.c[Ed::edTramo].texto, "1");
  CancelaCaptura(b.c);
  EXPECT_EQ(b.c.EstadoCaptura, kSinTramo);
  EXPECT_EQ(b.c[Ed::edTramo].texto, "");
  b.c[Ed::edTramo].entradas = {"1", "2", "5"};
  NuevoTramo(b.c);
  EXPECT_EQ(b.c[Ed::edTramo].texto, "6");
  EXPECT_TRUE(b.c[Ed::edTramo].bloqueado);
  EXPECT_FALSE(b.c.pantalla.Habilitada(Orden::btNuevoTramo));
  EXPECT_FALSE(b.c[Ed::rdSistemaUnidades].habilitado);
  EXPECT_NE(b.c.pantalla.titulo.find("(Alta de Tramo)"), std::string::npos);
}

TEST(Sesion, CancelarSinTramoNoHaceNadaYConNoDejaTodoComoEstaba) {
  Banco b;
  CancelaCaptura(b.c);
  EXPECT_TRUE(b.voz.preguntas.empty());
  NuevoTramo(b.c);
  b.voz.responde = false;
  CancelaCaptura(b.c);
  EXPECT_EQ(b.c.EstadoCaptura, kAltas);
}

TEST(Sesion, UnNumeroDesconocidoDevuelveElAnterior) {
  Despacho b;
  b.Olvida();
  b.Teclea(Ed::edTramo, "7");
  EXPECT_EQ(b.voz.Ultimo(), "No existe ese Tramo");
  EXPECT_EQ(b.c[Ed::edTramo].texto, "2");
  EXPECT_EQ(b.e.tramo.NumeroTramo, 2);
  EXPECT_EQ(b.c.EstadoCaptura, kSinTramo);

  b.Teclea(Ed::edTramo, "1");
  CancelaCaptura(b.c);
  b.Teclea(Ed::edGr0, "1,9");
  b.voz.responde = false;  // unsaved edits: stay
  b.Teclea(Ed::edTramo, "2");
  EXPECT_EQ(b.c[Ed::edTramo].texto, "1");
  EXPECT_EQ(b.c[Ed::edGr0].texto, "1,90");
  b.voz.responde = true;  // reread
  CancelaCaptura(b.c);
  EXPECT_EQ(b.c[Ed::edGr0].texto, "1,80");
  EXPECT_EQ(b.c.EstadoCaptura, kModificaciones);

  b.Olvida();
  b.voz.responde = false;
  b.Teclea(Ed::edTramo, "0");
  EXPECT_EQ(b.e.tramo.NumeroTramo, 0);
  EXPECT_EQ(b.c.EstadoCaptura, kModificaciones);
  CancelaCaptura(b.c);  // rereads nothing, and says nothing
  EXPECT_EQ(b.c.EstadoCaptura, kSinTramo);
  EXPECT_TRUE(b.voz.mensajes.empty());
}

TEST(Sesion, UnTextoQueElFicheroNoPuedeGuardarSeRechazaAntesDelPrimerByte) {
  Despacho b;
  const std::string antes = pruebas::Bytes(b.ruta);
  for (const std::string& malo : {std::string(127, 'x'), std::string("\u03a9")}) {
    NuevoTramo(b.c);  // the data on the screen, kept or not, make the new one
    b.Teclea(Ed::edDi0, "1,2");
    Cambia(b.c, Ed::edDescriTramo, malo);
    b.Olvida();
    EXPECT_FALSE(AccionGrabaTramo(b.c));
    EXPECT_NE(b.voz.Ultimo().find("DescriTramo"), std::string::npos) << b.voz.Ultimo();
    EXPECT_EQ(b.c.lista.size(), 2U);
    EXPECT_EQ(b.c.EstadoCaptura, kAltas);
    EXPECT_TRUE(b.c.EnCambio());
    CancelaCaptura(b.c);
  }
  EXPECT_EQ(pruebas::Bytes(b.ruta), antes);
}

TEST(Sesion, SinNombreDeFicheroElTramoNuevoNoQuedaEnLaLista) {
  ConTramo b;
  b.voz.fichero = std::nullopt;
  EXPECT_FALSE(AccionGrabaTramo(b.c));
  EXPECT_EQ(b.voz.Ultimo(), "No ha salvado ningun Fichero");
  b.voz.fichero = "";
  EXPECT_FALSE(AccionGrabaTramo(b.c));
  EXPECT_EQ(b.voz.Ultimo(), "No ha seleccionado un nombre");
  EXPECT_TRUE(b.c.lista.empty());
  EXPECT_TRUE(b.c.EnAltas());
  EXPECT_FALSE(PreparaCalculo(b.c, false));
  EXPECT_EQ(b.voz.Ultimo(), "Debe primero salvar la obra");
}

TEST(Sesion, ConCambiosNoSeCierra) {
  Banco b;
  b.Teclea(Ed::edObra, "x");
  EXPECT_FALSE(CierraObra(b.c));
  EXPECT_NE(b.voz.Ultimo().find("Salve primero el Tramo Actual"), std::string::npos);
  EXPECT_FALSE(CierraFormulario(b.c));
  EXPECT_EQ(b.voz.Ultimo(), "No puede cerrar el Formulario\nHa cambiado datos");
}

TEST(Sesion, UnCambioDelTramoAnulaSusAjustesYNoLosDeOtro) {
  Despacho b;
  b.Ajusta({1, 2, 1});
  b.Teclea(Ed::edTramo, "1");
  EXPECT_TRUE(ValidaTramo(b.c, true));  // neither loading nor validating is a change
  EXPECT_FALSE(b.Anulado(0));
  b.Teclea(Ed::edGr0, "1,9");
  EXPECT_TRUE(b.Anulado(0));
  EXPECT_TRUE(b.Anulado(2));
  EXPECT_FALSE(b.Anulado(1));
}

// While another program holds the file the wipe waits: it is told once, and again on saving.
TEST(Sesion, LosAjustesQueNoSePuedenAnularSeDicenYSeReintentan) {
  Despacho b;
  b.Ajusta({1});
  b.Teclea(Ed::edTramo, "1");
  b.Olvida();
  {
    const FicheroDpe otro(b.dpe, ',');
    b.Teclea(Ed::edGr0, "1,97");
    EXPECT_EQ(b.voz.mensajes.size(), 1u);
    EXPECT_NE(b.voz.Ultimo().find("otro programa"), std::string::npos) << b.voz.Ultimo();
    EXPECT_TRUE(AccionGrabaTramo(b.c));
    EXPECT_EQ(b.voz.mensajes.size(), 2u);
    EXPECT_FALSE(b.Anulado(0));
  }
  EXPECT_TRUE(AccionGrabaTramo(b.c));
  EXPECT_EQ(b.voz.mensajes.size(), 2u);
  EXPECT_TRUE(b.Anulado(0));
}

// Another laying, and a dimension that moves the width, change the data of the Tramo too.
TEST(Sesion, LoQueCambiaSinTeclearseAnulaLosAjustes) {
  for (const bool colocacion : {true, false}) {
    Despacho b;
    b.Ajusta({1});
    b.Teclea(Ed::edTramo, "1");
    EXPECT_FALSE(b.Anulado(0));
    if (colocacion) {
      EligeColocacion(b.c, 2);
    } else {
      b.Teclea(Ed::edDi0, "1,4");
    }
    EXPECT_TRUE(b.Anulado(0)) << colocacion;
  }
}

// A refused diameter that is then accepted carries its width with it.
TEST(Sesion, UnDiametroNoComercialAceptadoALaSegunda) {
  ConTramo b;
  b.Teclea(Ed::edDi0, "2,345");
  const double ancho = b.e.tramo.B0;
  b.voz.responde = false;
  Sale(b.c, Ed::edDi0);
  EXPECT_DOUBLE_EQ(b.e.tramo.Di, 2.345);
  EXPECT_DOUBLE_EQ(b.e.tramo.B0, b.e.tramo.De * 1.4 + 0.68);
  EXPECT_GT(b.e.tramo.B0, ancho);
}

// Whatever keeps a new Tramo from being written, the file opens again with those it had.
TEST(Sesion, UnTramoQueNoSeGuardaNoDejaRastroEnElFichero) {
  Despacho b;
  NuevoTramo(b.c);
  b.Teclea(Ed::edDi0, "1,2");
  b.Pon(Ed::edPrs3Tram, "abc");  // nobody reads it where the pressure has no range
  EXPECT_FALSE(AccionGrabaTramo(b.c));
  EXPECT_EQ(b.voz.foco, Ed::edPrs3Tram);
  Banco otra;
  ASSERT_TRUE(AbreObra(otra.c, b.ruta));
  EXPECT_EQ(otra.c.lista.size(), 2u);
}

TEST(Sesion, UnaObraQueSoloSeLeeSeAbreYNoPierdeLoTecleado) {
  const Carpeta carpeta;
  const auto ruta = carpeta / "ajena.zrb";
  {
    Banco b;
    ObraDeDosTramos(b, ruta.string());
  }
  std::filesystem::permissions(ruta, std::filesystem::perms::owner_read |
                                         std::filesystem::perms::group_read |
                                         std::filesystem::perms::others_read);
  const pruebas::SinDerechos sinDerechos;
  Banco b;
  ASSERT_TRUE(AbreObra(b.c, ruta)) << b.voz.Ultimo();
  EXPECT_EQ(b.c.lista.size(), 2u);
  b.Teclea({{Ed::edTramo, "1"}, {Ed::edDescriTramo, "Otro"}});
  EXPECT_FALSE(AccionGrabaTramo(b.c));
  EXPECT_NE(b.voz.Ultimo().find("ajena.zrb: está abierto sólo para lectura"), std::string::npos)
      << b.voz.Ultimo();
  EXPECT_TRUE(b.c.EnCambio());
  EXPECT_EQ(b.c[Ed::edDescriTramo].texto, "Otro");
}

TEST(Sesion, LaObraQueOtroTieneSeAbreParaLeerSiSeQuiere) {
  Despacho b;
  const auto& ruta = b.ruta;
  b.Ajusta({1});
  const std::string antes = pruebas::Bytes(ruta);
  Banco otra;
  otra.voz.responde = false;
  EXPECT_FALSE(AbreObra(otra.c, ruta));
  ASSERT_EQ(otra.voz.preguntas.size(), 1u);
  EXPECT_NE(otra.voz.preguntas[0].texto.find("lo tiene abierto"), std::string::npos);
  EXPECT_NE(otra.voz.preguntas[0].texto.find(std::to_string(::getpid())), std::string::npos);
  EXPECT_FALSE(otra.c.ObraCargada);
  EXPECT_FALSE(otra.c.fichero);

  otra.voz.responde = true;
  ASSERT_TRUE(AbreObra(otra.c, ruta)) << otra.voz.Ultimo();
  EXPECT_TRUE(otra.c.SoloLectura());
  ASSERT_EQ(otra.voz.anuncios.size(), 1u);
  EXPECT_NE(otra.voz.anuncios[0].find("sólo para lectura"), std::string::npos);
  otra.Teclea({{Ed::edTramo, "1"}, {Ed::edGr0, "1,9"}});
  EXPECT_TRUE(ValidaTramo(otra.c, true)) << otra.voz.Ultimo();
  EXPECT_FALSE(AccionGrabaTramo(otra.c));
  EXPECT_NE(otra.voz.Ultimo().find("o.zrb: está abierto sólo para lectura"), std::string::npos);
  EXPECT_FALSE(AccionGrabaObra(otra.c));
  EXPECT_FALSE(GrabaTramo(otra.c));
  EXPECT_TRUE(PreparaCalculo(otra.c, false)) << otra.voz.Ultimo();
  EXPECT_FALSE(PreparaCalculo(otra.c, true));  // adjusting writes beside the Obra
  EXPECT_FALSE(b.Anulado(0));                  // those are the other program's too
  EXPECT_EQ(pruebas::Bytes(ruta), antes);
  otra.voz.responde = false;
  EXPECT_FALSE(CierraFormulario(otra.c));
  EXPECT_FALSE(CierraObra(otra.c));
  otra.voz.responde = true;
  EXPECT_TRUE(CierraObra(otra.c));
  EXPECT_NE(otra.voz.preguntas.back().texto.find("se perderá"), std::string::npos);

  EXPECT_TRUE(AccionGrabaObra(b.c));  // the one that has it goes on
  EXPECT_TRUE(CierraObra(b.c));
  ASSERT_TRUE(AbreObra(otra.c, ruta));
  EXPECT_FALSE(otra.c.SoloLectura());
}

TEST(Sesion, UnGrabadoQueSeRompioSeDeshaceAlAbrirYSeAnunciaEnSuIdioma) {
  Despacho b;
  const auto& ruta = b.ruta;
  ASSERT_TRUE(CierraObra(b.c));
  const std::string antes = pruebas::Bytes(ruta);
  std::set<std::string> distintos;
  for (std::int16_t idioma = 1; idioma <= 5; ++idioma) {
    pruebas::DejaCabeceraAMedias(ruta);
    ASSERT_NE(pruebas::Bytes(ruta), antes);
    b.textos.PonIdioma(idioma);
    b.Olvida();
    ASSERT_TRUE(AbreObra(b.c, ruta)) << b.voz.Ultimo();
    EXPECT_EQ(b.c[Ed::edObra].texto, "Traida de aguas");
    ASSERT_EQ(b.voz.anuncios.size(), 1u);
    EXPECT_NE(b.voz.anuncios[0].find(ruta.string()), std::string::npos);
    EXPECT_TRUE(b.voz.mensajes.empty());
    distintos.insert(b.voz.anuncios[0]);
    EXPECT_EQ(pruebas::Bytes(ruta), antes);
    EXPECT_TRUE(CierraObra(b.c));
  }
  EXPECT_EQ(distintos.size(), 5u);
}

// Tramos 5 and 4: the new one is 5 again, and takes a block of its own.
TEST(Sesion, UnNumeroRepetidoNoPisaElTramoDeOtro) {
  Despacho b;
  ASSERT_TRUE(CierraObra(b.c));
  {
    FicheroRegistros f(b.ruta, FicheroRegistros::Modo::LecturaEscritura);
    f.EscribeRegistro(21, "5");
    f.EscribeRegistro(81, "4");
    f.Vacia();
  }
  Banco otra;
  ASSERT_TRUE(AbreObra(otra.c, b.ruta));
  otra.voz.fichero = (b.ruta).string();
  NuevoTramo(otra.c);
  otra.Teclea({{Ed::edDescriTramo, "Tercero"}, {Ed::edDi0, "1,2"}});
  ASSERT_TRUE(AccionGrabaTramo(otra.c)) << otra.voz.Ultimo();
  Banco vuelta;
  ASSERT_TRUE(AbreObra(vuelta.c, b.ruta)) << vuelta.voz.Ultimo();
  EXPECT_EQ(vuelta.c.lista.size(), 3u);
  LeeTramo(vuelta.c, 1);
  EXPECT_EQ(vuelta.e.tramo.DescriTramo, "Primero");
}

TEST(Sesion, OtroSistemaDeUnidades) {
  Banco b;
  b.Teclea(Ed::edPrsM1, "0,5");
  EligeOpcion(b.c, Ed::rdSistemaUnidades, 1);
  EXPECT_EQ(b.e.obra.SisUnid, "MKS");
  EXPECT_EQ(b.c[Ed::edPrsM1].texto, "5,00");
  EXPECT_NE(b.c[Ed::edFck].etiqueta.find("(350) (Kp/cm2)"), std::string::npos);
  EXPECT_NE(b.c.pantalla.titulo.find("MKS"), std::string::npos);
  Cambia(b.c, Ed::edPrs1, "x");
  b.c[Ed::edPrs1].texto = "x";
  EligeOpcion(b.c, Ed::rdSistemaUnidades, 0);
  EXPECT_EQ(b.e.obra.SisUnid, "MKS");  // a text that is no number is never a 0
  EXPECT_EQ(b.voz.Ultimo(), "Seleccione un valor númerico ");
  EXPECT_EQ(b.c[Ed::edPrsM1].texto, "5,00");
  b.Pon(Ed::edPrs1, "");
  NuevoTramo(b.c);  // with a Tramo in hand the option is off
  EligeOpcion(b.c, Ed::rdSistemaUnidades, 0);
  EXPECT_EQ(b.e.obra.SisUnid, "MKS");
}

TEST(Sesion, OtroIdiomaConservaLoTecleadoYLaPosicionDeLasListas) {
  ConTramo b;
  const std::string di = b.c[Ed::edDi0].texto;
  const int relleno = PosicionEnLista(b.c, Ed::edTipoRelleno0);
  OlvidaCambios(b.c);
  b.Escoge(Ed::edIdioma, 2);
  EXPECT_EQ(b.e.obra.Idioma, 2);
  EXPECT_FALSE(b.c.EnCambio());
  EXPECT_EQ(b.c[Ed::edDi0].texto, di);
  EXPECT_EQ(PosicionEnLista(b.c, Ed::edTipoRelleno0), relleno);
  EXPECT_EQ(b.c[Ed::edTipoRelleno0].texto, b.textos.LoadRes(5128));
  EXPECT_TRUE(ValidaTramo(b.c, true)) << b.voz.Ultimo();
}

}  // namespace
}  // namespace zorbin::prueba
