// A person's work with Obras and Tramos, from the first key to the file and back.
#include <gtest/gtest.h>
#include <unistd.h>

#include <functional>
#include <set>

#include "base/textos.h"
#include "comun/grabadoRoto.h"
#include "comun/sinDerechos.h"
#include "persistencia/dpe/mdDpe.h"
#include "sesion/captura/guion.h"
#include "sesion/captura/mdComprueba.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdFaltas.h"

namespace zorbin::prueba {
namespace {

using enum Ed;

// Two Tramos of a new Obra, saved under a name that is asked for at the first save.
void ObraDeDosTramos(Banco& b, const std::string& fichero) {
  b.voz.fichero = fichero;
  b.Teclea({{edObra, "Traida de aguas"},
            {edPrsM1, "0.5"},  // the other separator
            {edPrsM2, "0,9"},
            {edPrs2, "0,8"},
            {edPrs3, "0,2"}});
  NuevoTramo(b.c);
  b.Teclea({{edDescriTramo, "Primero"}, {edDi0, "1,2"}});
  NuevoTramo(b.c);
  b.Teclea(edDescriTramo, "Segundo");
  EligeOpcion(b.c, rdTipologia, 1);
  EligeOpcion(b.c, rdTipoCamisa, 1);
  b.Teclea({{edFYKPost, "210"}, {edDi0, "1,0"}, {edHr0, "2"}});
  ASSERT_TRUE(Graba(b.c)) << b.Porque();
}

// That Obra on the disk, open before a person.
struct Despacho : Banco {
  Despacho() {
    ObraDeDosTramos(*this, ruta.string());
    Olvida();
  }
  // Adjusted Casos of its Tramos, in the file beside the Obra.
  void Ajusta(std::initializer_list<double> tramos) {
    std::vector<EntradaAjuste> entradas;
    for (const double t : tramos) entradas.push_back({6.0, t, 2.0, {1, 2, 3}});
    {
      FicheroRegistros f(dpe, FicheroRegistros::Modo::LecturaEscritura);
      EscribeAjustes(f, entradas, ',');
    }
    ASSERT_TRUE(AbreObra(c, ruta));
    OlvidaPasos();
    Olvida();
  }
  // How many Casos of a Tramo are adjusted in the file.
  long Ajustados(double tramo) const {
    return std::ranges::count(LeeAjustes(dpe), tramo, &EntradaAjuste::Tramo);
  }

  const Carpeta carpeta;
  const std::filesystem::path ruta = carpeta / "o.zrb";
  const std::filesystem::path dpe = RutaDpe(ruta);
};

TEST(Sesion, UnaObraTecleadaSeReabreEnUnaMaquinaConElOtroSeparador) {
  const Carpeta carpeta;
  Banco b(',');
  ObraDeDosTramos(b, (carpeta / "obra").string());
  EXPECT_TRUE(std::filesystem::exists(carpeta / "obra.zrb"));
  EXPECT_EQ(b.voz.ficherosPedidos, 1);  // the one box of it all
  EXPECT_TRUE(b.voz.mensajes.empty() && b.voz.preguntas.empty());
  EXPECT_FALSE(b.c.EnCambio());
  EXPECT_EQ(b.c[edTramo].entradas, (std::vector<std::string>{"1", "2"}));
  EXPECT_EQ(b.c[edDescriTramo].texto, "Segundo");  // one stays where one was
  EXPECT_TRUE(CierraObra(b.c));

  Banco otra('.');
  ASSERT_TRUE(AbreObra(otra.c, carpeta / "obra.zrb")) << otra.voz.Ultimo();
  EXPECT_EQ(otra.c[edPrsM2].texto, "0.90");
  EXPECT_EQ(otra.c[edObra].texto, "Traida de aguas");
  otra.Teclea(edTramo, "1");
  EXPECT_TRUE(otra.c.EnModificaciones());
  EXPECT_EQ(otra.c[edDescriTramo2].texto, "Primero");
  EXPECT_EQ(otra.c[edDi0].texto, "1.200");
  EXPECT_EQ(otra.c[edFck].texto, "35.0");
  EXPECT_EQ(otra.c.pantalla.textoCancelar, "Releer");
  otra.Teclea(edTramo, "2");
  EXPECT_EQ(otra.e.tramo.Tipologia, 2221);
  EXPECT_EQ(otra.c.pantalla.pagina.TabTipologia, 1);
  EXPECT_FALSE(otra.c[edReci0].habilitado);
  EXPECT_DOUBLE_EQ(otra.e.tramo.Reci, otra.e.tramo.Esp - otra.e.tramo.Rece);
  EXPECT_FALSE(otra.c.pantalla.Habilitada(Orden::btAjustar));
  EXPECT_TRUE(Comprueba(otra.c, IdsDe(otra.c.version)).Vale());
  EXPECT_FALSE(otra.c.EnCambio());
}

TEST(Sesion, LaObraGuardadaSeValidaSinVentana) {
  Despacho b;
  EXPECT_TRUE(ValidaProyecto(LeeProyecto(b.ruta), b.textos, b.tablas, {}).Vale());

  // A Tramo with a fault of its own, and one with a notice.
  EstadoCalculo e{b.e.obra, b.c.version.tramos[1]->datos};
  e.tramo.Gr = 0.0;
  EscribeTramo(*b.c.fichero, e, ListaDe(b.c.version), 2, ',');
  e.tramo = b.c.version.tramos[0]->datos;
  e.tramo.Fyd = 150.0;
  EscribeTramo(*b.c.fichero, e, ListaDe(b.c.version), 1, ',');
  const auto lista = ValidaProyecto(LeeProyecto(b.ruta), b.textos, b.tablas, {});
  ASSERT_EQ(lista.faltas.size(), 1U);
  EXPECT_EQ(lista.faltas[0].posicion, 2);
  EXPECT_EQ(lista.faltas[0].campo, "edGr0");
  EXPECT_EQ(lista.faltas[0].mensaje, "Debe ser 0,001 t/m3 o más");
  EXPECT_EQ(lista.faltas[0].titulo, "Densidad del Terreno");
  EXPECT_TRUE(lista.Vale(1));
  EXPECT_FALSE(lista.Vale(2));
  EXPECT_TRUE(std::ranges::any_of(lista.avisos, [](const AvisoDeObra& a) {
    return a.numero == "1" && a.campo == "edFyd" && a.texto.find("150,0 MPa") != std::string::npos;
  }));
}

// Choosing a Tramo is no datum: it asks nothing, loses nothing, and is not saved.
TEST(Sesion, DeUnTramoAOtroSinPreguntas) {
  Despacho b;
  b.Teclea(edTramo, "7");
  EXPECT_EQ(b.Porque(), "No existe ese Tramo");
  EXPECT_EQ(b.e.tramo.NumeroTramo, 2);
  EXPECT_FALSE(b.c.EnCambio());

  b.Teclea({{edTramo, "1"}, {edGr0, "1,9"}, {edFyk, "2.100.0"}});
  b.Teclea(edTramo, "2");
  EXPECT_EQ(b.c[edFyk].falta, "");
  EXPECT_TRUE(RenglonesTramos(b.c)[0].sinGrabar && RenglonesTramos(b.c)[0].conFaltas);
  EXPECT_FALSE(RenglonesTramos(b.c)[1].sinGrabar || RenglonesTramos(b.c)[1].conFaltas);
  b.Teclea(edTramo, "1");
  EXPECT_EQ(b.c[edGr0].texto, "1,90");
  EXPECT_EQ(b.c[edFyk].texto, "2.100.0");  // what was refused is there still, with its reason
  EXPECT_NE(b.c[edFyk].falta, "");
  EXPECT_EQ(b.e.tramo.Fyk, 210.0);
  b.Teclea(edTramo, "");
  EXPECT_EQ(b.c[edTramo].texto, "1");

  Relee(b.c);
  EXPECT_EQ(b.c[edGr0].texto, "1,80");
  EXPECT_FALSE(b.c.EnCambio());
  b.Teclea(edTramo, "0");  // a new one, until it is given up
  EXPECT_TRUE(b.c.EnAltas());
  EXPECT_TRUE(b.c.EnCambio());
  EXPECT_EQ(b.c.pantalla.textoCancelar, "Cancelar");
  Relee(b.c);
  EXPECT_FALSE(b.c.EnCambio());
  EXPECT_TRUE(b.voz.mensajes.empty() && b.voz.preguntas.empty());
}

// Reread under another system of units, or when its number has gone to another Tramo.
TEST(Sesion, ReleerVuelveALoDelFicheroComoEstanLasCosas) {
  Despacho b;
  b.Teclea({{edTramo, "1"}, {edFck, "40"}});
  EligeOpcion(b.c, rdSistemaUnidades, 1);
  EXPECT_EQ(RenumeraTramo(b.c, b.Id(1), "5"), "");
  EXPECT_EQ(RenumeraTramo(b.c, b.Id(2), "1"), "");
  Relee(b.c);
  EXPECT_DOUBLE_EQ(b.e.tramo.Fck, 350.0);
  EXPECT_EQ(b.c[edTramo].texto, "5");
  EXPECT_EQ(b.c.pantalla.textoCancelar, "Releer");
}

TEST(Sesion, LosNumerosDeLosTramos) {
  Banco b;
  NuevoTramo(b.c);
  NuevoTramo(b.c);
  for (const auto& [texto, vale] : {std::pair{"2", false},
                                    {"0", false},
                                    {"x", false},
                                    {"1,5", false},
                                    {"32768", false},
                                    {"-1", false},
                                    {"5", true}}) {
    EXPECT_EQ(RenumeraTramo(b.c, b.Id(1), texto).empty(), vale) << texto;
  }
  NuevoTramo(b.c);
  EXPECT_EQ(ListaDe(b.c.version), (ListaTramos{"5", "2", "6"}));  // after the last, not the count
  EXPECT_EQ(RenumeraTramo(b.c, b.Id(6), "32767"), "");
  EXPECT_FALSE(NuevoTramo(b.c));
  EXPECT_FALSE(DuplicaTramos(b.c, {b.Id(2)}));
  EXPECT_EQ(PegaTramos(b.c, CopiaTramos(b.c, {b.Id(2)})).faltas.size(), 1u);
  EXPECT_EQ(b.c.version.tramos.size(), 3u);
  RenumeraTodos(b.c);
  EXPECT_EQ(ListaDe(b.c.version), (ListaTramos{"1", "2", "3"}));
  EXPECT_EQ(b.e.tramo.NumeroTramo, 3);
}

// A save is refused whole, tells all that is wrong, and leads to the first of it.
TEST(Sesion, LasFaltasDeUnGrabadoSeListanYLlevanASuCampo) {
  Despacho b;
  const std::string antes = pruebas::Bytes(b.ruta);
  b.Teclea({{edAlt1, "0,5"}, {edTramo, "1"}, {edFck, "abc"}, {edGc0, "-1"}, {edTramo, "2"}});
  CambiaPagina(b.c, 2);
  EXPECT_FALSE(Graba(b.c));
  ASSERT_EQ(b.c.faltas.size(), 3u);
  EXPECT_EQ(b.c.faltas[0].campo, edAlt1);
  EXPECT_EQ(b.voz.foco, edAlt1);
  EXPECT_EQ(b.c.pantalla.pagina.TabPrincipal, 0);
  EXPECT_EQ(b.c.faltas[1].tramo, b.Id(1));
  LlevaALaFalta(b.c, Falta(b.c.faltas[1]));
  EXPECT_EQ(b.c[edTramo].texto, "1");
  EXPECT_EQ(b.voz.foco, edFck);
  EXPECT_EQ(b.c[edFck].texto, "abc");
  EXPECT_EQ(pruebas::Bytes(b.ruta), antes);
  EXPECT_TRUE(b.voz.mensajes.empty() && b.voz.preguntas.empty());
  b.Teclea({{edAlt1, "3"}, {edFck, "35"}, {edGc0, "2,5"}});
  EXPECT_TRUE(Graba(b.c)) << b.Porque();
  EXPECT_FALSE(b.c.EnCambio());
}

// What kept a text out was another datum: once that is right, it is taken with the save.
TEST(Sesion, LoRechazadoPorOtroDatoEntraCuandoEseSeCorrige) {
  Despacho b;
  b.Teclea({{edAlt1, "4"}, {edAlt2, "3,5", SalidaCampo::Queda}, {edAlt1, "3"}, {edAlt3, "0,5"}});
  EXPECT_FALSE(Graba(b.c));  // a range needs its increment
  EXPECT_EQ(b.c.faltas.at(0).campo, edAlt3);
  b.Teclea({{edAlt2, "3,5 "}, {edAlt3, "0,5"}});
  EXPECT_TRUE(Graba(b.c)) << b.Porque();
  EXPECT_EQ(b.e.obra.Alt2, 3.5);

  b.Teclea({{edAlt1, "4"}, {edAlt2, "3,8", SalidaCampo::Queda}});
  EXPECT_FALSE(Graba(b.c));  // nor does a refused text get into the file by its side
  EXPECT_EQ(b.c.faltas.at(0).campo, edAlt2);
  EXPECT_EQ(b.c[edAlt2].texto, "3,8");
  EXPECT_EQ(b.e.obra.Alt2, 3.5);
}

TEST(Sesion, UnTextoQueElFicheroNoPuedeGuardarSeRechazaAntesDelPrimerByte) {
  Despacho b;
  const std::string antes = pruebas::Bytes(b.ruta);
  b.voz.responde = false;
  for (const std::string& malo : {std::string(127, 'x'), std::string("\u03a9")}) {
    NuevoTramo(b.c);
    b.Teclea(edDi0, "1,2");
    b.Teclea(edDescriTramo, malo);
    b.Olvida();
    EXPECT_FALSE(Graba(b.c));
    EXPECT_TRUE(b.voz.preguntas.empty());  // another file would not take it either
    ASSERT_FALSE(b.c.faltas.empty());
    EXPECT_EQ(b.c.faltas.front().campo, edDescriTramo);
    EXPECT_TRUE(b.c.EnAltas() && b.c.EnCambio());
    EXPECT_EQ(b.c[edDescriTramo].texto, malo);
    Relee(b.c);
  }
  EXPECT_EQ(pruebas::Bytes(b.ruta), antes);
}

TEST(Sesion, SinNombreDeFicheroNadaSeGrabaNiSePierde) {
  ConTramo b;
  for (const auto& nombre : {std::optional<std::string>{}, std::optional<std::string>{" "}}) {
    b.voz.fichero = nombre;
    EXPECT_FALSE(Graba(b.c));
    EXPECT_TRUE(b.c.EnAltas() && b.c.EnCambio());
  }
}

// What is asked before an Obra goes, and what becomes of it.
TEST(Sesion, ConAlgoSinGrabarSePreguntaAntesDeIrse) {
  struct Fila {
    Respuesta respuesta;
    const char* altura;
    bool seVa;
    bool grabado;
  };
  for (const auto& f : {Fila{Respuesta::Cancelar, "4", false, false},
                        {Respuesta::Descartar, "4", true, false},
                        {Respuesta::Grabar, "4", true, true},
                        {Respuesta::Grabar, "0,1", false, false}}) {
    ConMuestra b;
    const std::string antes = pruebas::Bytes(b.ruta);
    EXPECT_TRUE(PuedeIrse(b.c));
    EXPECT_TRUE(b.voz.preguntas.empty());
    Cambia(b.c, edObra, "x");  // still being typed
    EXPECT_TRUE(b.c.EnCambio());
    Sale(b.c, edObra);
    b.Teclea(edAlt1, f.altura);
    b.voz.alIrse = f.respuesta;
    EXPECT_EQ(CierraObra(b.c), f.seVa);
    EXPECT_EQ(b.voz.preguntas.size(), 1u);
    EXPECT_EQ(b.c.ObraCargada, !f.seVa);
    EXPECT_EQ(pruebas::Bytes(b.ruta) != antes, f.grabado);
  }
}

// Saving a Tramo writes its block: the others stay to the last byte.
TEST(Sesion, LosTramosSinTocarQuedanComoEstabanEnElFichero) {
  constexpr std::size_t kBloque = 60 * kBytesRegistro;
  constexpr std::size_t kPrimero = 20 * kBytesRegistro;
  ConMuestra b;
  // Texts that this program would write otherwise: they are another's, and mean the same.
  b.c.fichero->EscribeRegistro(30, "350.000 // 35.0000");
  b.c.fichero->EscribeRegistro(63 + 120, "30.0");
  b.c.fichero->Vacia();
  b.Abre();
  const std::string antes = pruebas::Bytes(b.ruta);
  b.Toma(2);
  b.Teclea(edGr0, "1,95");
  b.Toma(3);
  ASSERT_TRUE(Graba(b.c)) << b.Porque() << b.voz.Ultimo();
  const std::string ahora = pruebas::Bytes(b.ruta);
  ASSERT_EQ(ahora.size(), antes.size());
  EXPECT_TRUE(ahora.substr(0, kPrimero) == antes.substr(0, kPrimero));
  for (std::size_t i = 0; i < 7; ++i) {
    const auto bloque = [&](const std::string& s) {
      return s.substr(kPrimero + i * kBloque, kBloque);
    };
    EXPECT_EQ(bloque(ahora) == bloque(antes), i != 1) << i + 1;
  }
}

// What the file says of a Tramo beside its block, or leaves blank in it, stays too.
TEST(Sesion, LoQueDependeDeOtroTramoNoCambiaConEl) {
  ConMuestra b;
  b.c.fichero->EscribeRegistro(61 + 60, "");  // a width as that of the Tramo before
  b.c.fichero->Vacia();
  b.Abre();
  b.Toma(3);
  CambiaMarca(b.c, edEnvolvente, true);
  ASSERT_TRUE(Graba(b.c)) << b.Porque();
  const double ancho = b.c.version.tramos[1]->datos.B0;
  EXPECT_EQ(ancho, b.c.version.tramos[0]->datos.B0);
  b.Toma(1);
  b.Teclea(edB0, "3,3");
  ASSERT_TRUE(Graba(b.c)) << b.Porque();
  b.Abre();
  EXPECT_EQ(b.c.version.tramos[0]->datos.B0, 3.3);
  EXPECT_EQ(b.c.version.tramos[1]->datos.B0, ancho);
  EXPECT_TRUE(b.c.version.tramos[2]->datos.Envolvente);
}

// What a Caso is calculated from makes them void, with the save and after a question.
TEST(Ajustes, SoloLosAnulaGrabarUnDatoDelCalculo) {
  struct Fila {
    const char* nombre;
    std::function<void(Banco&)> cambia;
    bool el1, el2;  // those of which Tramo are void
  };
  const Fila filas[] = {
      {"a datum", [](Banco& b) { b.Teclea(edGr0, "1,9"); }, true, false},
      {"a laying", [](Banco& b) { EligeOpcion(b.c, rdTipoColocacion, 2), b.Teclea(edHr1, "1"); },
       true, false},
      {"the surge of all", [](Banco& b) { EligeOpcion(b.c, rdGolpeAriete, 1); }, true, true},
      {"a pressure of all", [](Banco& b) { b.Teclea(edPrsM1, "0,6"); }, true, true},
      {"heights, which choose Casos", [](Banco& b) { b.Teclea(edHr0, "2"); }, false, false},
      {"a description", [](Banco& b) { b.Teclea(edDescriTramo, "otra"); }, false, false},
      {"units", [](Banco& b) { EligeOpcion(b.c, rdSistemaUnidades, 1); }, false, false},
      {"there and back",
       [](Banco& b) {
         b.Teclea({{edGr0, "1,9"}, {edGr0, "1,8"}});
       },
       false, false},
  };
  for (const auto& f : filas) {
    SCOPED_TRACE(f.nombre);
    Despacho b;
    b.Ajusta({1, 2, 1});
    b.Teclea(edTramo, "1");
    f.cambia(b);
    EXPECT_EQ(b.Ajustados(1), 2);
    EXPECT_TRUE(b.voz.preguntas.empty());
    b.voz.responde = false;
    const bool sePregunta = f.el1 || f.el2;
    EXPECT_EQ(Graba(b.c), !sePregunta) << b.Porque();
    EXPECT_EQ(b.voz.preguntas.size(), sePregunta ? 1u : 0u);
    EXPECT_EQ(b.Ajustados(1) + b.Ajustados(2), 3);
    b.voz.responde = true;
    EXPECT_TRUE(Graba(b.c)) << b.Porque();
    EXPECT_EQ(b.Ajustados(1), f.el1 ? 0 : 2);
    EXPECT_EQ(b.Ajustados(2), f.el2 ? 0 : 1);
    EXPECT_FALSE(b.c.EnCambio());
    if (!sePregunta) continue;
    while (b.Deshace()) {  // what was made void comes back with the data that it stood for
    }
    EXPECT_TRUE(Graba(b.c)) << b.Porque();
    EXPECT_EQ(b.Ajustados(1) + b.Ajustados(2), 3);
  }
}

// They go with their Tramo, whatever number and place it gets.
TEST(Ajustes, SiguenASuTramo) {
  Despacho b;
  b.Ajusta({1, 2, 1});
  const int uno = b.Id(1);
  EXPECT_EQ(RenumeraTramo(b.c, uno, "8"), "");
  EXPECT_TRUE(MueveTramos(b.c, {uno}, 1));
  DuplicaTramos(b.c, {uno});
  ASSERT_TRUE(Graba(b.c)) << b.Porque();
  EXPECT_EQ(ListaDe(b.c.version), (ListaTramos{"2", "8", "9"}));
  EXPECT_EQ(b.Ajustados(1), 0);
  EXPECT_EQ(b.Ajustados(2), 1);
  EXPECT_EQ(b.Ajustados(8), 2);
  EXPECT_EQ(b.Ajustados(9), 2);
  BorraTramos(b.c, {uno});
  ASSERT_TRUE(Graba(b.c));
  EXPECT_EQ(b.Ajustados(8), 0);
  EXPECT_TRUE(b.voz.preguntas.empty());
}

// While another program holds their file nothing is saved, and nothing is lost.
TEST(Ajustes, ConSuFicheroEnOtrasManosNadaSeGraba) {
  Despacho b;
  b.Ajusta({1});
  b.Teclea({{edTramo, "1"}, {edGr0, "1,97"}});
  const std::string antes = pruebas::Bytes(b.ruta);
  {
    const FicheroDpe otro(b.dpe, ',');
    b.voz.fichero = std::nullopt;
    EXPECT_FALSE(Graba(b.c));
    EXPECT_EQ(pruebas::Bytes(b.ruta), antes);
    EXPECT_EQ(b.Ajustados(1), 1);
    EXPECT_TRUE(b.c.EnCambio());
    EXPECT_EQ(b.c.version.tramos[0]->ajustes.size(), 1u);
  }
  EXPECT_TRUE(Graba(b.c)) << b.Porque();
  EXPECT_EQ(b.Ajustados(1), 0);
}

// Whatever keeps the file from being written, what was done goes on in another one.
TEST(Sesion, LoQueNoSePuedeEscribirSeGrabaConOtroNombre) {
  struct Fila {
    const char* nombre;
    std::function<void(const std::filesystem::path&, std::optional<Banco>&)> estropea;
    std::size_t tramos;
  };
  const Fila filas[] = {
      {"read-only",
       [](const auto& ruta, auto&) {
         using enum std::filesystem::perms;
         std::filesystem::permissions(ruta, owner_read | group_read | others_read);
       },
       7},
      {"another program has it",
       [](const auto& ruta, auto& otro) { otro.emplace(), AbreObra(otro->c, ruta); }, 7},
      {"damaged",
       [](const auto& ruta, auto&) {
         FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
         f.EscribeRegistro(30 + 60, "doce");
         f.Vacia();
       },
       6},
      {"cut",
       [](const auto& ruta, auto&) {
         std::filesystem::resize_file(ruta, (20 + 6 * 60 + 5) * kBytesRegistro);
       },
       6},
  };
  for (const auto& f : filas) {
    SCOPED_TRACE(f.nombre);
    const Carpeta carpeta;
    const auto ruta = carpeta / "ajena.zrb";
    std::filesystem::copy_file(ZORBIN_FUENTES "muestras/acequia.zrb", ruta);
    std::optional<Banco> otro;
    f.estropea(ruta, otro);
    const std::string antes = pruebas::Bytes(ruta);
    Banco b;
    {
      const pruebas::SinDerechos sinDerechos;
      ASSERT_TRUE(AbreObra(b.c, ruta)) << b.voz.Ultimo();
    }
    EXPECT_TRUE(b.c.SoloLectura());
    EXPECT_TRUE(b.voz.preguntas.empty());
    // What cannot be had is told once, by its place; the rest is whole.
    EXPECT_EQ(b.voz.mensajes.size(), f.tramos < 7 ? 1u : 0u);
    EXPECT_EQ(std::ranges::count_if(b.c.version.tramos, [](auto& t) { return t->dano.empty(); }),
              static_cast<long>(f.tramos));
    b.OlvidaPasos();
    b.Teclea({{edTramo, "1"}, {edGr0, "1,9"}});
    b.voz.fichero = std::nullopt;
    EXPECT_FALSE(Graba(b.c));
    EXPECT_EQ(b.voz.ficherosPedidos, 1);
    EXPECT_TRUE(b.c.EnCambio());
    b.voz.fichero = (carpeta / "mia.zrb").string();
    ASSERT_TRUE(Graba(b.c)) << b.Porque() << b.voz.Ultimo();
    EXPECT_FALSE(b.c.SoloLectura() || b.c.EnCambio());
    EXPECT_EQ(pruebas::Bytes(ruta), antes);
    // And it goes on there, also from a version of before.
    while (b.Deshace()) {
    }
    ASSERT_TRUE(Graba(b.c)) << b.Porque() << b.voz.Ultimo();
    EXPECT_EQ(b.voz.ficherosPedidos, 2);
    ASSERT_TRUE(CierraObra(b.c));
    ASSERT_TRUE(AbreObra(b.c, carpeta / "mia.zrb")) << b.voz.Ultimo();
    EXPECT_EQ(b.c.version.tramos.size(), f.tramos);
    EXPECT_EQ(b.c.version.tramos[0]->datos.Gr, 1.8);
  }
}

TEST(Sesion, LaObraDeOtroProgramaDiceDeQuienEs) {
  Despacho b;
  Banco otra;
  ASSERT_TRUE(AbreObra(otra.c, b.ruta));
  ASSERT_EQ(otra.voz.anuncios.size(), 1u);
  EXPECT_NE(otra.voz.anuncios[0].find(std::to_string(::getpid())), std::string::npos);
  EXPECT_NE(otra.voz.anuncios[0].find("sólo para lectura"), std::string::npos);
  EXPECT_TRUE(CierraObra(b.c));
  ASSERT_TRUE(AbreObra(otra.c, b.ruta));
  EXPECT_FALSE(otra.c.SoloLectura());
}

TEST(Sesion, LoQueNoEsUnaObraSeDiceYNoDejaNinguna) {
  const Carpeta carpeta;
  for (const std::string& contenido :
       {std::string{}, std::string("%PDF-1.4 x"), std::string(9000, 'x')}) {
    ConTramo b;
    pruebas::PonBytes(carpeta / "x.zrb", contenido);
    EXPECT_FALSE(AbreObra(b.c, carpeta / "x.zrb"));
    EXPECT_EQ(b.voz.mensajes.size(), 1u);
    EXPECT_FALSE(b.c.ObraCargada || b.c.fichero || b.c.EnCambio());
    EXPECT_EQ(pruebas::Bytes(carpeta / "x.zrb"), contenido);
  }
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
    EXPECT_EQ(b.c[edObra].texto, "Traida de aguas");
    ASSERT_EQ(b.voz.anuncios.size(), 1u);
    EXPECT_NE(b.voz.anuncios[0].find(ruta.string()), std::string::npos);
    EXPECT_TRUE(b.voz.mensajes.empty());
    distintos.insert(b.voz.anuncios[0]);
    EXPECT_EQ(pruebas::Bytes(ruta), antes);
    EXPECT_TRUE(CierraObra(b.c));
  }
  EXPECT_EQ(distintos.size(), 5u);
}

// Tramos 5 and 4: the new one is 6, and takes a block of its own.
TEST(Sesion, UnNumeroRepetidoNoPisaElTramoDeOtro) {
  Despacho b;
  ASSERT_TRUE(CierraObra(b.c));
  {
    FicheroRegistros f(b.ruta, FicheroRegistros::Modo::LecturaEscritura);
    f.EscribeRegistro(21, "5");
    f.EscribeRegistro(81, "4");
    f.Vacia();
  }
  ASSERT_TRUE(AbreObra(b.c, b.ruta));
  NuevoTramo(b.c);
  b.Teclea({{edDescriTramo, "Tercero"}, {edDi0, "1,2"}});
  ASSERT_TRUE(Graba(b.c)) << b.Porque();
  ASSERT_TRUE(AbreObra(b.c, b.ruta)) << b.voz.Ultimo();
  EXPECT_EQ(ListaDe(b.c.version), (ListaTramos{"5", "4", "6"}));
  EXPECT_EQ(b.c.version.tramos[0]->datos.DescriTramo, "Primero");
}

TEST(Sesion, OtroSistemaDeUnidadesParaTodosLosTramos) {
  ConMuestra b;
  b.Toma(6);
  b.Teclea(edSFck, "mil");
  const auto antes = VersionActual(b.c);
  EligeOpcion(b.c, rdSistemaUnidades, 1);
  EXPECT_EQ(b.e.obra.SisUnid, "MKS");
  EXPECT_NE(b.c[edFck].etiqueta.find("(350) (Kp/cm2)"), std::string::npos);
  EXPECT_NE(b.c.pantalla.titulo.find("MKS"), std::string::npos);
  EXPECT_EQ(b.c[edSFck].texto, "mil");  // what is refused waits
  for (std::size_t i = 0; i < antes.tramos.size(); ++i) {
    const auto& si = antes.tramos[i]->datos;
    const auto& mks = b.c.version.tramos[i]->datos;
    EXPECT_NEAR(mks.Fckn, 10 * si.Fckn, 1e-9);
    EXPECT_NEAR(mks.Fck, 10 * si.Fck, 1e-9);
    EXPECT_EQ(mks.Di, si.Di);
    EXPECT_FALSE(CalculaDistinto(antes.obra, si, b.e.obra, mks));
  }
}

// The language of the screen is one thing, that of the paper is a datum.
TEST(Sesion, OtroIdiomaConservaLoTecleadoYLaPosicionDeLasListas) {
  ConMuestra b;
  b.Toma(1);
  b.Teclea(edGr0, "x");
  const auto antes = VersionActual(b.c);
  const int relleno = PosicionEnLista(b.c, edTipoRelleno0);
  CambiaIdioma(b.c, 2);
  EXPECT_TRUE(VersionActual(b.c) == antes);
  EXPECT_EQ(b.c[edGr0].texto, "x");
  EXPECT_EQ(PosicionEnLista(b.c, edTipoRelleno0), relleno);
  b.Escoge(edIdioma, 3);
  EXPECT_EQ(b.e.obra.Idioma, 3);
  EXPECT_EQ(b.textos.IdiomaOffset(), kPasoIdioma);
  EXPECT_TRUE(b.c.EnCambio());
}

}  // namespace
}  // namespace zorbin::prueba
