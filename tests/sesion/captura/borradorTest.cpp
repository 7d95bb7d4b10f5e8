#include "sesion/captura/mdBorrador.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <fstream>
#include <functional>
#include <sstream>

#include "base/textos.h"
#include "sesion/captura/guion.h"
#include "sesion/captura/mdCajon.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdTipologias.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;
using prueba::Banco;
using prueba::Carpeta;

std::string Bytes(const fs::path& ruta) {
  std::ifstream f(ruta, std::ios::binary);
  std::ostringstream texto;
  texto << f.rdbuf();
  return texto.str();
}

void Escribe(const fs::path& ruta, const std::string& texto) {
  std::ofstream(ruta, std::ios::binary) << texto;
}

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
        << c.pantalla.figuraColocacion << c.pantalla.figuraTubo << c.UltimoTramo
        << c.textos.IdiomaOffset();
  for (const bool orden : c.pantalla.habilitadas) texto << orden;
  for (const auto& control : c.pantalla.controles) {
    texto << '\n' << control.texto << '|' << control.etiqueta << '|' << control.grupo << '|';
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
       b.Teclea(Ed::edDescriTramo, "Cruce <b>bajo</b> \"vía\"");
       b.Teclea(Ed::edDi0, "1,2");
     }},
    {"another typology", true,
     [](Banco& b) {
       NuevoTramo(b.c);
       EligePaginaTipologia(b.c, 1);
       EligeOpcion(b.c, Ed::rdTipoCamisa, 1);
       b.Teclea(Ed::edSFck, "1650");
     }},
    {"the Obra alone, another language and system", true,
     [](Banco& b) {
       EligeOpcion(b.c, Ed::rdSistemaUnidades, 1);
       b.Teclea(Ed::edCliente, "Comunidad");
       b.Escoge(Ed::edIdioma, 5);
     }},
    {"an Obra without file", false,
     [](Banco& b) {
       b.Teclea(Ed::edObra, "Nueva");
       b.Teclea(Ed::edPrsM1, "0,5");
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

    // What is saved is the same, to the last byte.
    if (escena.conFichero) {
      otra.c.fichero.reset();
      const std::string antes = Bytes(ruta);
      std::string grabado[2];
      int i = 0;
      for (auto* banco : {&cortada, &otra}) {
        banco->c.fichero.emplace(ruta, FicheroRegistros::Modo::LecturaEscritura);
        banco->voz.Olvida();
        banco->c.SinTramoEnMano() ? AccionGrabaObra(banco->c) : AccionGrabaTramo(banco->c);
        banco->c.fichero.reset();
        grabado[i++] = Bytes(ruta) + banco->voz.Ultimo();
        Escribe(ruta, antes);
      }
      EXPECT_TRUE(grabado[0] == grabado[1]) << otra.voz.Ultimo();
      if (grabado[0].substr(0, antes.size()) != antes) ++grabadas;
    }
  }
  EXPECT_GE(grabadas, 4) << "the others are refused, by both alike";
}

TEST(Borrador, LoQueCambioMientrasTantoNoSePisa) {
  Carpeta carpeta;
  const auto ruta = Muestra(carpeta);
  Banco cortada;
  AbreObra(cortada.c, ruta);
  NuevoTramo(cortada.c);
  cortada.Teclea(Ed::edDi0, "1,2");
  const auto nuevo = TomaBorrador(cortada.c);
  const int numero = nuevo.tramo.NumeroTramo;
  cortada.c.fichero.reset();
  {
    Banco entretanto;  // saves a Tramo under the same number
    AbreObra(entretanto.c, ruta);
    NuevoTramo(entretanto.c);
    entretanto.Teclea(Ed::edDi0, "1");
    ASSERT_TRUE(AccionGrabaTramo(entretanto.c)) << entretanto.voz.Ultimo();
  }
  const auto v = ComparaVersiones(nuevo, cortada.textos, cortada.tablas, ',');
  EXPECT_TRUE(v.cambiado);
  EXPECT_TRUE(v.tramoEsNuevo);
  Banco otra;
  AbreObra(otra.c, ruta);
  PonBorrador(otra.c, nuevo);
  EXPECT_EQ(otra.c.e.tramo.NumeroTramo, numero + 1);
  EXPECT_EQ(otra.c[Ed::edTramo].texto, std::to_string(numero + 1));

  // A Tramo that its file no longer has is a new one.
  auto perdido = nuevo;
  perdido.estado = std::string(kModificaciones);
  perdido.tramo.NumeroTramo = 77;
  PonBorrador(otra.c, perdido);
  EXPECT_TRUE(otra.c.EnAltas());
  EXPECT_EQ(otra.c.e.tramo.NumeroTramo, 77);
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
  EXPECT_FALSE(v.tramoEsNuevo);
  const auto renglon = [&](const std::string& tecleado) {
    for (const auto& r : v.renglones) {
      if (r.tecleado == tecleado) return r.dato + "|" + r.enFichero;
    }
    return std::string("none");
  };
  EXPECT_EQ(renglon("x4"), SinDosPuntos(cortada.c[Ed::edFck].etiqueta) + "|" + antes);
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
  Banco b;
  b.TramoValido();
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
  EXPECT_FALSE(LeeBorrador(con("\"version\": 1", "\"version\": 2")));
  EXPECT_FALSE(LeeBorrador(con("\"TipoColocacion\": 0", "\"TipoColocacion\": 3")));
  EXPECT_FALSE(LeeBorrador(con("\"TipoColocacion\": 0", "\"TipoColocacion\": 99999")));
  EXPECT_FALSE(LeeBorrador(con("\"edDi0\": 1.2", "\"edDi0\": 1.2e300")));
  EXPECT_FALSE(LeeBorrador(con("\"edDi0\": 1.2", "\"edDi0\": \"1.2\"")));
  EXPECT_FALSE(LeeBorrador(con("\"opcion\": 0", "\"opcion\": 7")));
  EXPECT_FALSE(LeeBorrador(con("\"TabPostesados\": 0", "\"TabPostesados\": 4")));
}

// ---- Files

// A draft as a program leaves it that was killed.
fs::path DejaBorrador(const fs::path& carpeta, const std::string& cuando, int n) {
  Banco b;
  b.TramoValido();
  auto borrador = TomaBorrador(b.c);
  borrador.autor.arranque += static_cast<unsigned>(n);
  borrador.cuando = cuando;
  fs::create_directories(carpeta);
  const auto ruta = carpeta / ("borrador-1-" + std::to_string(n) + ".json");
  Escribe(ruta, TextoDeBorrador(borrador));
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
  Escribe(donde / "borrador-9-9.json", "{\"version\": 1");
  Banco b;
  b.TramoValido();
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
  Escribe(carpeta / "fichero", "x");
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
