#include "sesion/captura/mdBorrador.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <functional>
#include <sstream>

#include "base/textos.h"
#include "sesion/captura/guion.h"
#include "sesion/captura/mdCajon.h"
#include "sesion/captura/mdEtiquetas.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;
using prueba::Banco;
using prueba::Carpeta;
using prueba::ConTramo;
using pruebas::Bytes;
using pruebas::PonBytes;

std::string Muestra(const Carpeta& carpeta, const std::string& nombre = "o.zrb") {
  const auto ruta = carpeta / nombre;
  fs::copy_file(ZORBIN_FUENTES "muestras/acequia.zrb", ruta);
  return ruta.string();
}

void Toma(Banco& b, int numero) {
  b.Teclea(Ed::edTramo, std::to_string(numero));
}

// Everything that a person sees or that a rule looks at.
std::string Retrato(const Captura& c) {
  auto b = TomaBorrador(c);
  b.cuando.clear();
  b.autor = {};
  std::ostringstream texto;
  texto << TextoDeBorrador(b) << c.pantalla.titulo << c.pantalla.textoCancelar
        << c.textos.IdiomaOffset();
  for (const bool orden : c.pantalla.habilitadas) texto << orden;
  for (const auto& fila : TablaCampos()) {
    const auto& control = c[fila.id];
    const int tipologia = fila.pagina.TabTipologia;
    if (tipologia >= 0 && tipologia != c.pantalla.pagina.TabTipologia) continue;
    texto << '\n'
          << control.texto << '|' << control.falta << '|' << control.etiqueta << '|'
          << control.grupo << '|';
    for (const auto& entrada : control.entradas) texto << entrada << ',';
  }
  return texto.str();
}

// The lines that differ, for a failure that can be read.
std::string Diferencias(const std::string& a, const std::string& b) {
  std::istringstream x(a), y(b);
  std::string texto, s, t;
  while (std::getline(x, s) && std::getline(y, t)) {
    if (s != t) texto += s + " <> " + t + "\n";
  }
  return texto + (a.size() == b.size() || !texto.empty() ? "" : "another length");
}

// ---- Sessions that break off

struct Escena {
  const char* nombre;
  bool conFichero;
  std::function<void(Banco&)> teclea;
};

const Escena kEscenas[] = {
    {"a field in hand, half typed", true,
     [](Banco& b) {
       Toma(b, 1);
       b.Teclea(Ed::edFck, "40");
       Entra(b.c, Ed::edHr0);
       Cambia(b.c, Ed::edHr0, "1,");
     }},
    {"a refused text", true,
     [](Banco& b) {
       Toma(b, 2);
       b.Teclea(Ed::edFyk, "0");
     }},
    {"another laying, a tick, a given load", true,
     [](Banco& b) {
       Toma(b, 1);
       EligeOpcion(b.c, Ed::rdTipoColocacion, 1);
       CambiaMarca(b.c, Ed::edIcontes0, true);
       b.Teclea(Ed::edQDato0, "0,15");
     }},
    {"a new Tramo", true,
     [](Banco& b) {
       NuevoTramo(b.c);
       b.Teclea({{Ed::edDescriTramo, "Cruce <b>bajo</b> \"vía\""}, {Ed::edDi0, "1,2"}});
     }},
    {"another typology", true,
     [](Banco& b) {
       NuevoTramo(b.c);
       EligeOpcion(b.c, Ed::rdTipologia, 1);
       EligeOpcion(b.c, Ed::rdTipoCamisa, 1);
       b.Teclea(Ed::edSFck, "1650");
     }},
    {"Tramos changed, new, copied, deleted, renumbered, in another order", true,
     [](Banco& b) {
       Toma(b, 2);
       b.Teclea({{Ed::edGr0, "1,95"}, {Ed::edFyk, "dos"}});
       DuplicaTramos(b.c, {b.Id(3), b.Id(6)});
       BorraTramos(b.c, {b.Id(4), b.Id(5)});
       RenumeraTramo(b.c, b.Id(1), "40");
       MueveTramos(b.c, {b.Id(40)}, 1);
       NuevoTramo(b.c);
       b.Teclea(Ed::edDi0, "1,1");
       Toma(b, 2);
     }},
    {"the Obra alone, another language and system", true,
     [](Banco& b) {
       EligeOpcion(b.c, Ed::rdSistemaUnidades, 1);
       b.Teclea(Ed::edCliente, "Comunidad");
       b.Escoge(Ed::edIdioma, 5);
     }},
    {"an Obra without file", false,
     [](Banco& b) {
       b.Teclea({{Ed::edObra, "Nueva"}, {Ed::edPrsM1, "0,5"}});
       NuevoTramo(b.c);
       b.Teclea(Ed::edDi0, "1,2");
     }},
};

TEST(Borrador, DejaLaCapturaComoEstabaYGrabaLoMismo) {
  int grabadas = 0;
  for (const auto& escena : kEscenas) {
    SCOPED_TRACE(escena.nombre);
    Carpeta carpeta;
    const std::string ruta = escena.conFichero ? Muestra(carpeta) : std::string{};
    Banco cortada;
    if (escena.conFichero) AbreObra(cortada.c, ruta);
    escena.teclea(cortada);
    ASSERT_TRUE(HayTrabajoSinGuardar(cortada.c));
    const auto leido = LeeBorrador(TextoDeBorrador(TomaBorrador(cortada.c)));
    ASSERT_TRUE(leido.has_value());
    EXPECT_EQ(leido->fichero, ruta);
    const std::string retrato = Retrato(cortada.c);
    cortada.c.fichero.reset();  // the program that broke off has no lock

    Banco otra;
    if (escena.conFichero) AbreObra(otra.c, ruta);
    PonBorrador(otra.c, *leido);
    EXPECT_EQ(Diferencias(retrato, Retrato(otra.c)), "");

    EXPECT_TRUE(otra.Deshace());  // one step, which goes away whole
    EXPECT_FALSE(otra.c.EnCambio());
    EXPECT_TRUE(otra.Rehace());

    // What is saved is the same, to the last byte.
    if (escena.conFichero) {
      otra.c.fichero.reset();
      const std::string antes = Bytes(ruta);
      std::string grabado[2];
      int i = 0;
      for (auto* banco : {&cortada, &otra}) {
        banco->c.fichero.emplace(ruta, FicheroRegistros::Modo::LecturaEscritura);
        Graba(banco->c);
        banco->c.fichero.reset();
        grabado[i++] = Bytes(ruta) + banco->Porque();
        PonBytes(ruta, antes);
      }
      EXPECT_TRUE(grabado[0] == grabado[1]) << otra.Porque();
      if (grabado[0].substr(0, antes.size()) != antes) ++grabadas;
    }
  }
  EXPECT_GE(grabadas, 3) << "the others are refused, by both alike";
}

// What the file got or lost meanwhile, in the units of the draft.
TEST(Borrador, LoQueCambioMientrasTantoNoSePisa) {
  Carpeta carpeta;
  const auto ruta = Muestra(carpeta);
  Banco cortada;
  AbreObra(cortada.c, ruta);
  Toma(cortada, 2);
  cortada.Teclea(Ed::edGr0, "1,95");
  BorraTramos(cortada.c, {cortada.Id(4)});
  NuevoTramo(cortada.c);  // 8
  cortada.Teclea({{Ed::edDescriTramo, "mío"}, {Ed::edDi0, "1,2"}});
  EligeOpcion(cortada.c, Ed::rdSistemaUnidades, 1);
  const auto borrador = TomaBorrador(cortada.c);
  cortada.c.fichero.reset();
  {
    Banco entretanto;  // saves an 8 of its own, the 2 in another place, and no 3
    AbreObra(entretanto.c, ruta);
    NuevoTramo(entretanto.c);
    entretanto.Teclea({{Ed::edDescriTramo, "suyo"}, {Ed::edDi0, "1"}, {Ed::edFck, "40"}});
    MueveTramos(entretanto.c, {entretanto.Id(2)}, -1);
    BorraTramos(entretanto.c, {entretanto.Id(3)});
    ASSERT_TRUE(Graba(entretanto.c)) << entretanto.Porque();
  }
  const auto v = ComparaVersiones(borrador, cortada.textos, cortada.tablas, ',');
  EXPECT_TRUE(v.cambiado);
  Banco otra;
  AbreObra(otra.c, ruta);
  PonBorrador(otra.c, borrador);
  EXPECT_EQ(ListaDe(otra.c.version), (ListaTramos{"1", "2", "3", "5", "6", "7", "9", "8"}));
  EXPECT_EQ(otra.c[Ed::edTramo].texto, "9");
  EXPECT_EQ(otra.e.tramo.DescriTramo, "mío");
  EXPECT_TRUE(otra.c.EnAltas());
  const auto tramo = [&](int n) { return Busca(otra.c.version, otra.Id(n)); };
  EXPECT_EQ(tramo(8)->datos.DescriTramo, "suyo");
  EXPECT_DOUBLE_EQ(tramo(8)->datos.Fck, 400);
  EXPECT_EQ(tramo(2)->datos.Gr, 1.95);
  EXPECT_NE(Busca(otra.c.guardada, otra.Id(2)), nullptr);
  EXPECT_EQ(Busca(otra.c.guardada, otra.Id(3)), nullptr);  // gone from the file: a new one
  ASSERT_TRUE(Graba(otra.c)) << otra.Porque();
}

TEST(Borrador, LasDosVersionesSeVenDatoADato) {
  Carpeta carpeta;
  const auto ruta = Muestra(carpeta);
  Banco cortada;
  AbreObra(cortada.c, ruta);
  Toma(cortada, 1);
  const std::string antes = cortada.c[Ed::edFck].texto;
  Entra(cortada.c, Ed::edFck);
  Cambia(cortada.c, Ed::edFck, "x4");
  EligeOpcion(cortada.c, Ed::rdTipoColocacion, 2);
  const auto b = TomaBorrador(cortada.c);
  auto v = ComparaVersiones(b, cortada.textos, cortada.tablas, ',');
  EXPECT_FALSE(v.cambiado);
  const auto renglon = [&](const std::string& tecleado) {
    for (const auto& r : v.renglones) {
      if (r.tecleado == tecleado) return r.dato + "|" + r.enFichero;
    }
    return std::string("none");
  };
  const auto delante = cortada.textos.Compone(txt::DatoDelTramo, {"1"});
  EXPECT_EQ(renglon("x4"), delante + NombreDeCampo(cortada.c, Ed::edFck) + "|" + antes);
  EXPECT_NE(renglon(Texto(cortada.c, txt::OpcionTerraplen)), "none");
  EXPECT_LE(v.renglones.size(), 6U);
  EXPECT_EQ(cortada.textos.IdiomaOffset(), 0);

  // The words are those of the language in force, whatever the language of the Obra.
  cortada.textos.PonIdioma(5);
  v = ComparaVersiones(b, cortada.textos, cortada.tablas, ',');
  EXPECT_NE(renglon(cortada.textos.Texto(txt::OpcionTerraplen)), "none");
  EXPECT_EQ(cortada.textos.IdiomaOffset(), 4 * kPasoIdioma);

  fs::resize_file(ruta, 100);
  v = ComparaVersiones(b, cortada.textos, cortada.tablas, ',');
  EXPECT_NE(v.causa.find(ruta), std::string::npos) << v.causa;
  EXPECT_GT(v.renglones.size(), 20U);
}

TEST(Borrador, UnTextoDanadoNoEsBorrador) {
  ConTramo b;
  auto borrador = TomaBorrador(b.c);
  borrador.fichero = "/tmp/con espacios, 100% \xff y \xc3\xb1.zrb";
  const std::string texto = TextoDeBorrador(borrador);
  ASSERT_TRUE(LeeBorrador(texto).has_value());
  EXPECT_EQ(LeeBorrador(texto)->fichero, borrador.fichero);
  for (std::size_t n = 0; n + 2 < texto.size(); n += 7) {
    EXPECT_FALSE(LeeBorrador(texto.substr(0, n)).has_value()) << n;
  }
  const auto con = [&](const std::string& de, const std::string& a) {
    std::string otro = texto;
    const auto i = otro.find(de);
    EXPECT_NE(i, std::string::npos) << de;
    return otro.replace(i, de.size(), a);
  };
  EXPECT_FALSE(LeeBorrador(con("\"version\": 2", "\"version\": 1")));
  EXPECT_FALSE(LeeBorrador(con("\"TipoColocacion\": 0", "\"TipoColocacion\": 3")));
  EXPECT_FALSE(LeeBorrador(con("\"TipoColocacion\": 0", "\"TipoColocacion\": 99999")));
  EXPECT_FALSE(LeeBorrador(con("\"edDi0\": 1.2", "\"edDi0\": 1.2e300")));
  EXPECT_FALSE(LeeBorrador(con("\"edDi0\": 1.2", "\"edDi0\": \"1.2\"")));
  EXPECT_FALSE(LeeBorrador(con("\"enMano\": 0", "\"enMano\": 1")));
  EXPECT_FALSE(LeeBorrador(con("\"numero\": \"1\"", "\"numero\": \"2\"")));
  EXPECT_FALSE(LeeBorrador(con("\"posicion\": 0", "\"posicion\": -1")));
  EXPECT_FALSE(LeeBorrador(con("\"TabPostesados\": 0", "\"TabPostesados\": 4")));
}

// ---- Files

// A draft as a program leaves it that was killed.
fs::path DejaBorrador(const fs::path& carpeta, const std::string& cuando, int n) {
  ConTramo b;
  auto borrador = TomaBorrador(b.c);
  borrador.autor.arranque += static_cast<unsigned>(n);
  borrador.cuando = cuando;
  fs::create_directories(carpeta);
  const auto ruta = carpeta / ("borrador-1-" + std::to_string(n) + ".json");
  PonBytes(ruta, TextoDeBorrador(borrador));
  return ruta;
}

TEST(Cajon, GuardaParaSuDuenoYOfreceLoDeLosMuertos) {
  Carpeta carpeta;
  const auto donde = carpeta / "estado";
  const Cajon cajon(donde);
  EXPECT_TRUE(cajon.Busca().borradores.empty());
  cajon.Borra();

  const auto vieja = DejaBorrador(donde, "30/11/2026 08:00", 1);
  const auto nueva = DejaBorrador(donde, "01/12/2026 07:00", 2);
  PonBytes(donde / "borrador-9-9.json", "{\"version\": 1");
  ConTramo b;
  cajon.Guarda(TextoDeBorrador(TomaBorrador(b.c)));
  struct stat datos {};
  ASSERT_EQ(::stat(cajon.ruta().c_str(), &datos), 0);
  EXPECT_EQ(datos.st_mode & 0777, 0600U);

  // Another program, while this one lives: what is this one's is not offered.
  const auto hijo = ::fork();
  if (hijo == 0) {
    const auto h = Cajon(donde).Busca();
    const bool bien = h.borradores.size() == 2 && h.borradores[0].ruta == nueva &&
                      h.borradores[1].ruta == vieja && h.ilegibles.size() == 1;
    ::_exit(bien ? 0 : 1);
  }
  int estado = 0;
  ::waitpid(hijo, &estado, 0);
  EXPECT_EQ(estado, 0);
  EXPECT_TRUE(fs::exists(donde / "borrador-9-9.json.ilegible"));
  EXPECT_TRUE(cajon.Busca().ilegibles.empty()) << "told once";

  // One takes it, the other does not; given back, it is offered again.
  EXPECT_TRUE(cajon.Toma(nueva));
  EXPECT_FALSE(Cajon(donde).Toma(nueva));
  cajon.Devuelve(nueva);
  EXPECT_EQ(cajon.Busca().borradores.size(), 2U);
  cajon.Borra();
  EXPECT_FALSE(fs::exists(cajon.ruta()));
}

TEST(Cajon, LoQueElDiscoNiegaSeDiceYQuedaLoDeAntes) {
  Carpeta carpeta;
  PonBytes(carpeta / "fichero", "x");
  const auto causa = [](const Cajon& cajon) {
    try {
      cajon.Guarda("x");
    } catch (const ErrorFichero& error) {
      return error.mensaje().datos.at(0);
    }
    return std::string("written");
  };
  EXPECT_NE(causa(Cajon(carpeta / "fichero")).find("fichero"), std::string::npos);
  const Cajon cajon(carpeta / "estado");
  cajon.Guarda("antes");
  fs::create_directory(cajon.ruta().string() + "-nuevo");
  EXPECT_NE(causa(cajon).find("-nuevo"), std::string::npos);
  EXPECT_EQ(Bytes(cajon.ruta()), "antes");
}

}  // namespace
}  // namespace zorbin
