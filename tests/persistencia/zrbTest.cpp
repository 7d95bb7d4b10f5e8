#include "persistencia/zrb/mdZrb.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>

#include "base/mdAnsi.h"
#include "base/mdCarpetas.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "comun/campos.h"
#include "comun/carpeta.h"
#include "comun/estadoDeJson.h"
#include "core/mdUnidades.h"
#include "persistencia/proyecto/mdProyecto.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;
using pruebas::EnMks;
using pruebas::EstadoDeMuestra;

class Zrb : public testing::Test {
 protected:
  const pruebas::Carpeta carpeta;
  fs::path ruta = carpeta / "obra.zrb";
  Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");

  void Escribe(const std::vector<EstadoCalculo>& tramos, const ListaTramos& lista, char separador) {
    FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
    Transaccion juntos(f);
    EscribeObra(f, tramos.at(0), lista, textos, separador);
    for (std::size_t i = 0; i < tramos.size(); ++i) {
      EscribeTramo(f, tramos[i], lista, static_cast<int>(i) + 1, separador);
    }
    juntos.Confirma();
  }

  // Overwrites a record with raw bytes: a length and what follows it.
  void Estropea(int registro, const std::string& bytes) {
    std::fstream f(ruta, std::ios::in | std::ios::out | std::ios::binary);
    f.seekp((registro - 1) * kBytesRegistro);
    f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }

  static std::string Registro(const std::string& texto) {
    std::string r(kBytesRegistro, '\x7f');  // what follows a text has no meaning
    r[0] = static_cast<char>(texto.size());
    r[1] = 0;
    return r.replace(2, texto.size(), texto);
  }

  // The refusal of the file, as "entry number|data".
  std::string Rechazo() {
    try {
      LeeProyecto(ruta);
    } catch (const ErrorFichero& error) {
      EXPECT_EQ(textos.Compone(error.mensaje()).find("Falta Recurso"), std::string::npos);
      const auto& m = error.mensaje();
      std::string r = std::to_string(m.otro != 0 ? m.otro : m.texto);
      if (m.otro != 0) return r;
      for (std::size_t i = 1; i < m.datos.size(); ++i) r += "|" + m.datos[i];
      return r;
    }
    return "";
  }
};

TEST_F(Zrb, IdaYVueltaEnLosDosSistemasYConLosDosSeparadores) {
  for (const bool mks : {false, true}) {
    for (const char separador : {',', '.'}) {
      std::vector<EstadoCalculo> tramos;
      ListaTramos lista;
      for (int i = 1; i <= 5; ++i) {
        tramos.push_back(mks ? EnMks(EstadoDeMuestra(i)) : EstadoDeMuestra(i));
        lista.push_back(std::to_string(i * 3));
      }
      tramos[0].obra.Cliente = "Señor Núñez – «Aguas» 50 €";
      Escribe(tramos, lista, separador);
      const Proyecto obra = LeeProyecto(ruta);
      EstadoCalculo e;
      e.obra = obra.obra;
      EXPECT_EQ(obra.lista, lista);
      EXPECT_EQ(e.obra.Cliente, tramos[0].obra.Cliente);
      EXPECT_EQ(e.obra.NombreObra, tramos[0].obra.NombreObra);
      EXPECT_EQ(e.obra.SisUnid, mks ? "MKS" : "SI");
      EXPECT_TRUE(e.obra.GolpeCalculado);
      EXPECT_NEAR(e.obra.PrsM2, tramos[0].obra.PrsM2, 1e-9);
      EXPECT_NEAR(e.obra.Alt2, tramos[0].obra.Alt2, 1e-9);
      for (int i = 1; i <= 5; ++i) {
        CargaTramo(e, obra.fichero, i);
        const auto& a = e.tramo;
        const auto& b = tramos[static_cast<std::size_t>(i - 1)].tramo;
        EXPECT_EQ(a.DescriTramo, b.DescriTramo);
        for (const auto& c : pruebas::kCodigosTramo) EXPECT_EQ(a.*c.campo, b.*c.campo) << c.nombre;
        EXPECT_EQ(a.TipoColocacion, b.TipoApoyo / 10 - 1);
        EXPECT_EQ(a.Icontes0, b.Icontes0);
        EXPECT_TRUE(a.EsArmado);
        for (const auto& c : pruebas::kNumerosTramo) {
          // A Tramo without heights of its own keeps the increment of the Obra.
          if (c.campo == &Tramo::Hr0Delta && b.Hr0Tramo == 0) continue;
          EXPECT_NEAR(a.*c.campo, b.*c.campo, 1e-9) << i << c.nombre;
        }
      }
      fs::remove(ruta);
    }
  }
}

// The bytes of the format: 128 to a record, the length first, "MKS // SI" in pairs.
TEST_F(Zrb, LosRegistrosSonLosDelFormato) {
  Escribe({EstadoDeMuestra(1)}, {"7"}, ',');
  const FicheroRegistros f(ruta, FicheroRegistros::Modo::Lectura);
  for (const auto& [registro, texto] : {std::pair{1, "Version: 2009-Mar.02"},
                                        {2, "IDIOMA : 1 Español"},
                                        {3, "SisUnid: SI                           "},
                                        {4, "GAriete: Si"},
                                        {7, "4,00 // 0,40"},
                                        {9, "1,20"},
                                        {10, "1,20 // 0,12"},
                                        {13, "2,00"},
                                        {19, "0"},
                                        {20, "1"},
                                        {21, "7"},
                                        {23, "1210"},
                                        {24, "0"},
                                        {29, "4,0"},
                                        {30, "350 // 35,0"},
                                        {31, "22 // 4,8"},
                                        {52, "1,200"},
                                        {58, "1"},
                                        {59, "11"},
                                        {67, "0,000 // 0,000"},
                                        {80, "0"}}) {
    EXPECT_EQ(f.LeeRegistro(registro), texto) << registro;
  }
  EXPECT_EQ(fs::file_size(ruta), 80u * 128u);
  EXPECT_EQ(f.LeeRegistro(81), "");
}

TEST_F(Zrb, UnFicheroDanadoSeRechazaNombrandoElRegistro) {
  struct Dano {
    const char* nombre;
    std::function<void()> estropea;
    std::string rechazo;
  };
  const auto largo = [](int n) {
    return std::string{static_cast<char>(n & 0xff), static_cast<char>(n >> 8)};
  };
  const std::vector<Dano> danos{
      {"otra version", [&] { Estropea(1, Registro("Version: 2008")); }, "508"},
      {"sin idioma", [&] { Estropea(2, Registro("LENGUA : 1")); }, "522"},
      {"sin sistema", [&] { Estropea(3, Registro("")); }, "526"},
      {"sin golpe", [&] { Estropea(4, Registro("GARIETE: Si")); }, "527"},
      {"longitud 127", [&] { Estropea(8, largo(127)); }, "1151|8|127"},
      {"longitud 65535", [&] { Estropea(30, largo(65535)); }, "1151|30|65535"},
      {"presion con letra", [&] { Estropea(7, Registro("4,0O // 0,40")); }, "1153|7|Prs1|4,0O"},
      {"presion con dos comas", [&] { Estropea(7, Registro("4,0 // 1.000,4")); },
       "1153|7|Prs1|1.000,4"},
      {"altura", [&] { Estropea(13, Registro("dos")); }, "1153|13|Alt1|dos"},
      {"diametro infinito", [&] { Estropea(52, Registro("inf")); }, "1153|52|Di|inf"},
      {"diametro descomunal", [&] { Estropea(52, Registro(std::string(30, '9'))); }, "3400|52|Di"},
      {"presion cuya otra unidad no cabe", [&] { Estropea(7, Registro("4,0 // 1000000000000")); },
       "3400|7|Prs1"},
      {"tipologia", [&] { Estropea(23, Registro("70000")); }, "1154|23|Tipologia|70000"},
      {"tipologia vacia", [&] { Estropea(23, Registro("")); }, "1162|23"},
      {"sin tipologia", [&] { Estropea(23, Registro("0")); }, "1162|23"},
      {"cuenta", [&] { Estropea(20, Registro("546")); }, "1159|546"},
      {"cuenta con letra", [&] { Estropea(20, Registro("x")); }, "1159|x"},
      {"numero de Tramo", [&] { Estropea(21, Registro("uno")); }, "1154|21|NumeroTramo|uno"},
      {"byte sin caracter", [&] { Estropea(5, Registro("a\x81")); }, "1156|5"},
      {"fichero vacio", [&] { fs::resize_file(ruta, 0); }, "1840"},
      {"una carta", [&] { pruebas::PonBytes(ruta, std::string(500, 'a')); }, "1840"},
      {"sin un solo rotulo",
       [&] {
         for (int r = 1; r <= 4; ++r) Estropea(r, Registro("x"));
       },
       "1840"},
      {"cortado en la cabecera", [&] { fs::resize_file(ruta, 4 * 128 + 5); }, "1152|5|60|5"},
      {"cortado en un texto", [&] { fs::resize_file(ruta, 77 * 128 + 6); }, "1152|78|10|6"},
      {"cortado en un Tramo", [&] { fs::resize_file(ruta, 40 * 128); }, "1155|40|1|80"},
      {"cortado entre Tramos", [&] { Estropea(20, Registro("2")); }, "1155|80|2|140"}};
  for (const auto& d : danos) {
    Escribe({EstadoDeMuestra(1)}, {"1"}, ',');
    EXPECT_EQ(Rechazo(), "") << d.nombre;
    d.estropea();
    EXPECT_EQ(Rechazo(), d.rechazo) << d.nombre;
    fs::remove(ruta);
    fs::remove(carpeta / "obra.dpe");
  }
  EXPECT_EQ(Rechazo().substr(0, 4), "1150");  // no file at all
  fs::create_directory(ruta);
  EXPECT_EQ(Rechazo().substr(0, 4), "1150");
}

// The adjustments are lost, and it is said; not the Obra.
// A terminal obeys control characters: none of a datum that is cited comes so far.
TEST_F(Zrb, LosCaracteresDeControlQueSeCitanSeVen) {
  Escribe({EstadoDeMuestra(1)}, {"1"}, ',');
  Estropea(52, Registro("1,2\x1b]0;x\a"));
  try {
    LeeProyecto(ruta);
    FAIL();
  } catch (const ErrorFichero& error) {
    const std::string queja = textos.Compone(error.mensaje());
    EXPECT_NE(queja.find("«1,2\\x1B]0;x\\x07»"), std::string::npos) << queja;
  }
}

// What is whole is read, the rest is named: by the Tramo, or 0 for the header.
TEST_F(Zrb, LoQueSePuedeLeerDeUnaObraDanadaSeLee) {
  struct Fila {
    const char* nombre;
    std::function<void()> estropea;
    std::vector<int> quedan;
    std::vector<int> danos;
  };
  const std::vector<Fila> filas{
      {"entera", [] {}, {1, 2, 3}, {}},
      {"un dato de un Tramo", [&] { Estropea(52 + 60, Registro("x")); }, {1, 3}, {2}},
      {"un numero de Tramo", [&] { Estropea(21, Registro("uno")); }, {2, 3}, {1}},
      {"una longitud", [&] { Estropea(30 + 120, "\xff\xff"); }, {1, 2}, {3}},
      {"la cabecera",
       [&] {
         Estropea(1, Registro("?"));
         Estropea(7, Registro("x"));
       },
       {1, 2, 3},
       {0, 0}},
      {"la cuenta", [&] { Estropea(20, Registro("x")); }, {1, 2, 3}, {0}},
      {"el final", [&] { fs::resize_file(ruta, 170 * 128); }, {1, 2}, {3}},
      {"el final y la cuenta",
       [&] {
         Estropea(20, Registro("x"));
         fs::resize_file(ruta, 170 * 128);
       },
       {1, 2},
       {0}},
      {"un blanco tras un dano",
       [&] {
         Estropea(52, Registro("x"));
         Estropea(49 + 74, Registro(""));
       },
       {3},
       {1, 2}},
  };
  for (const auto& f : filas) {
    SCOPED_TRACE(f.nombre);
    fs::remove(ruta);
    Escribe({EstadoDeMuestra(1), EstadoDeMuestra(2), EstadoDeMuestra(3)}, {"1", "2", "3"}, ',');
    const auto sana = TramosPedidos(LeeProyecto(ruta));
    f.estropea();
    const std::string bytes = pruebas::Bytes(ruta);
    const auto proyecto = RescataProyecto(ruta);
    EXPECT_EQ(PosicionesDe(proyecto.lista), f.quedan);
    std::vector<int> danos;
    for (const auto& d : proyecto.danos) danos.push_back(d.posicion);
    EXPECT_EQ(danos, f.danos);
    for (const auto& t : TramosPedidos(proyecto)) {
      EXPECT_EQ(t.tramo.DescriTramo,
                sana[static_cast<std::size_t>(t.posicion - 1)].tramo.DescriTramo);
      EXPECT_EQ(t.tramo.Di, sana[static_cast<std::size_t>(t.posicion - 1)].tramo.Di);
    }
    EXPECT_EQ(pruebas::Bytes(ruta), bytes);
  }
  pruebas::PonBytes(ruta, "una carta");
  EXPECT_THROW(RescataProyecto(ruta), ErrorFichero);
}

TEST_F(Zrb, UnFicheroDeAjustesDanadoNoSeLlevaLaObra) {
  Escribe({EstadoDeMuestra(1)}, {"1"}, ',');
  for (const auto& [contenido, aviso] :
       {std::pair{Registro("9") + Registro(std::string(126, '9')), 1301},
        {Registro("9") + Registro("x") + std::string(6 * 128, '\0'), 1153},
        {Registro("nueve"), 1302}}) {
    pruebas::PonBytes(carpeta / "obra.dpe", contenido);
    const auto obra = LeeProyecto(ruta);
    ASSERT_EQ(obra.avisos.size(), 1u);
    EXPECT_EQ(obra.avisos[0].texto, aviso);
    EXPECT_TRUE(obra.SinAjustes);
    EXPECT_EQ(obra.lista.size(), 1u);
  }
}

TEST_F(Zrb, UnRechazoDejaElEstadoYNombraFicheroYVersion) {
  Escribe({EstadoDeMuestra(1)}, {"1"}, ',');
  EstadoCalculo e;
  e.obra.Cliente = "anterior";
  const FicheroRegistros sana(ruta, FicheroRegistros::Modo::Lectura);
  CargaObra(e, sana);
  CargaTramo(e, sana, 1);
  Estropea(13, Registro("dos"));
  Estropea(52, Registro("dos"));
  const FicheroRegistros rota(ruta, FicheroRegistros::Modo::Lectura);
  e.obra.Cliente = "anterior";
  EXPECT_THROW(CargaObra(e, rota), ErrorFichero);
  EXPECT_EQ(e.obra.Cliente, "anterior");
  e.tramo.DescriTramo = "anterior";
  EXPECT_THROW(CargaTramo(e, rota, 1), ErrorFichero);
  EXPECT_EQ(e.tramo.DescriTramo, "anterior");
  Estropea(1, Registro("?"));
  try {
    CargaObra(e, FicheroRegistros(ruta, FicheroRegistros::Modo::Lectura));
  } catch (const ErrorFichero& error) {
    EXPECT_EQ(textos.Compone(error.mensaje()),
              ruta.string() +
                  ": Version: 2009-Mar.02 Registro inicial: El fichero .ZRB no está "
                  "grabado con el formato de la versión actual.");
  }
}

// An Obra that is saved in any language opens with the surge it was saved with.
TEST_F(Zrb, ElGolpeSeEntiendeEnLosCincoIdiomas) {
  for (std::int16_t idioma = 1; idioma <= kIdiomas; ++idioma) {
    for (const bool calculado : {true, false}) {
      auto e = EstadoDeMuestra(1);
      e.obra.Idioma = textos.PonIdioma(idioma);
      e.obra.GolpeCalculado = calculado;
      Escribe({e}, {"1"}, ',');
      const auto proyecto = LeeProyecto(ruta);
      EXPECT_EQ(proyecto.obra.GolpeCalculado, calculado) << idioma;
      EXPECT_TRUE(proyecto.avisos.empty()) << idioma;
    }
  }
}

TEST_F(Zrb, LoQueElFormatoDejaEnBlancoSeLee) {
  Escribe({EstadoDeMuestra(1), EstadoDeMuestra(2)}, {"1", "2"}, ',');
  Estropea(2, Registro("IDIOMA : 9 Gallego"));
  Estropea(4, Registro("GAriete: Ja"));  // nobody's caption: estimated, and told
  Estropea(7, Registro("4.00"));         // no SI half: derived
  Estropea(8, Registro("6,00 // "));     // an empty half is 0
  Estropea(82, Registro(""));            // the description is blank, not that of Tramo 1
  Estropea(114, Registro(""));           // De of Tramo 2: that of the Tramo read before it
  fs::resize_file(ruta, fs::file_size(ruta) + 1000);
  const auto proyecto = LeeProyecto(ruta);
  ASSERT_EQ(proyecto.avisos.size(), 2u);
  EXPECT_EQ(proyecto.avisos[0].texto, txt::IdiomaNoReconocido);
  EXPECT_EQ(proyecto.avisos[1].datos, (std::vector<std::string>{ruta.string(), "Ja"}));
  EXPECT_EQ(proyecto.obra.Idioma, 1);
  EXPECT_FALSE(proyecto.obra.GolpeCalculado);
  EXPECT_DOUBLE_EQ(proyecto.obra.Prs1, 0.4);
  EXPECT_EQ(proyecto.obra.Prs2, 0);
  const auto todos = TramosPedidos(proyecto);
  ASSERT_EQ(todos.size(), 2u);
  EXPECT_GT(todos[0].tramo.De, 0);
  EXPECT_EQ(todos[1].tramo.DescriTramo, "");
  EXPECT_EQ(todos[1].tramo.De, todos[0].tramo.De);
  EXPECT_EQ(TramosPedidos(proyecto, {2})[0].tramo.De, 0);  // none was read before
}

TEST_F(Zrb, LaListaLlegaHastaLaCuentaYConservaLosHuecos) {
  Escribe({EstadoDeMuestra(1), EstadoDeMuestra(2), EstadoDeMuestra(3)}, {"1", "2", "5"}, ',');
  Estropea(20, Registro("2"));
  EXPECT_EQ(LeeProyecto(ruta).lista, (ListaTramos{"1", "2"}));
  Estropea(20, Registro("3"));
  Estropea(81, Registro("  "));
  const auto proyecto = LeeProyecto(ruta);
  const auto& lista = proyecto.lista;
  EXPECT_EQ(lista, (ListaTramos{"1", "", "5"}));
  EXPECT_EQ(PosicionDe(lista, 5), 3);
  EXPECT_EQ(PosicionDe(lista, 2), 0);
  const auto todos = TramosPedidos(proyecto);
  ASSERT_EQ(todos.size(), 2u);
  EXPECT_EQ(todos[1].tramo.NumeroTramo, 5);  // not its place: adjustments go by the number
  EXPECT_EQ(TramosPedidos(proyecto, {3})[0].tramo.NumeroTramo, 5);
}

TEST_F(Zrb, NadaSeEscribeSiUnCampoNoCabe) {
  Escribe({EstadoDeMuestra(1)}, {"1"}, ',');
  const std::string antes = pruebas::Bytes(ruta);
  const auto rechazo = [this](const EstadoCalculo& e) -> std::string {
    try {
      Escribe({e}, {"1"}, ',');
    } catch (const ErrorFichero& error) {
      return std::to_string(error.mensaje().texto) + "|" + error.mensaje().datos.at(1) + "|" +
             error.mensaje().datos.at(2);
    }
    return "";
  };
  auto e = EstadoDeMuestra(1);
  e.obra.Cliente = "漢";
  EXPECT_EQ(rechazo(e), "1157|Cliente|漢");
  e = EstadoDeMuestra(1);
  e.obra.NombreObra = std::string(127, 'a');
  EXPECT_EQ(rechazo(e), "1158|NombreObra|127");
  e = EstadoDeMuestra(1);
  e.tramo.DescriTramo = "Ł";
  EXPECT_EQ(rechazo(e), "1157|DescriTramo|Ł");
  EXPECT_EQ(pruebas::Bytes(ruta), antes);
  e = EstadoDeMuestra(1);
  std::string justo;
  for (int i = 0; i < 126; ++i) justo += "ñ";  // 126 bytes in the file
  e.obra.NombreObra = justo;
  EXPECT_EQ(rechazo(e), "");
}

TEST_F(Zrb, CaracteresDeLaPaginaDeCodigos) {
  std::string todos;
  for (int b = 1; b < 256; ++b) {
    if (b != 0x81 && b != 0x8d && b != 0x8f && b != 0x90 && b != 0x9d)
      todos += static_cast<char>(b);
  }
  EXPECT_EQ(AAnsi(*DeAnsi(todos)).bytes, todos);
  EXPECT_EQ(*DeAnsi("\x80\xf1"), "€ñ");
  EXPECT_FALSE(DeAnsi("\x9d"));
  EXPECT_FALSE(AAnsi("a\xff").sobra.empty());  // broken UTF-8
  EXPECT_FALSE(AAnsi("\xe2\x82").sobra.empty());
  // A letter has one way to be written, and half a pair is no character.
  for (const char* malo :
       {"\xe0\x81\x81", "\xf0\x80\x81\x81", "\xed\xa0\x80", "\xf4\x90\x80\x80"}) {
    EXPECT_EQ(AAnsi(malo).sobra, std::string(malo, 1)) << malo;
  }
}

TEST_F(Zrb, Los545TramosSeCarganYCalculan) {
  std::vector<EstadoCalculo> tramos(545, EstadoDeMuestra(4));
  ListaTramos lista;
  for (int i = 1; i <= 545; ++i) lista.push_back(std::to_string(i));
  Escribe(tramos, lista, '.');
  EXPECT_EQ(fs::file_size(ruta), (544u * 60u + 80u) * 128u);
  const auto proyecto = LeeProyecto(ruta);
  std::size_t casos = 0;
  int fallos = 0;
  const auto pedidos = TramosPedidos(proyecto);
  for (const auto& p : pedidos) {
    const auto datos = DatosDeCalculo(proyecto.obra, p.tramo);
    const auto resultado = CalculaTramo(datos, RangoDe(datos));
    casos += resultado.filas.size();
    fallos += resultado.fallo.has_value();
  }
  EXPECT_EQ(pedidos.size(), 545u);
  EXPECT_EQ(casos, 545u * 3u);
  EXPECT_EQ(fallos, 0);
}

}  // namespace
}  // namespace zorbin
