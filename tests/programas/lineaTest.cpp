// zorbin-calc as a person calls it.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>

#include "comun/comparaFichero.h"
#include "comun/discoLleno.h"
#include "comun/estadoDeJson.h"
#include "comun/grabadoRoto.h"
#include "persistencia/dpe/mdDpe.h"
#include "persistencia/proyecto/mdProyecto.h"
#include "persistencia/zrb/mdZrb.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;

struct Resultado {
  int codigo;
  std::string salida;
  std::string quejas;
};

class Linea : public testing::Test {
 protected:
  fs::path carpeta = fs::temp_directory_path() / ("zorbin-linea-" + std::to_string(getpid()));
  std::string acequia = ZORBIN_FUENTES "muestras/acequia.zrb";

  void SetUp() override { fs::create_directories(carpeta); }
  void TearDown() override { fs::remove_all(carpeta); }

  static void PonBytes(const fs::path& ruta, const std::string& bytes) {
    std::ofstream(ruta, std::ios::binary) << bytes;
  }

  static std::string Lee(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
  }

  Resultado Llama(const std::string& palabras) const {
    const auto salida = carpeta / "salida", quejas = carpeta / "quejas";
    const std::string orden = "XDG_STATE_HOME=" + (carpeta / "estado").string() +
                              " LC_ALL=C " ZORBIN_CALC " " + palabras + " >" + salida.string() +
                              " 2>" + quejas.string();
    const int estado = std::system(orden.c_str());
    return {WEXITSTATUS(estado), Lee(salida), Lee(quejas)};
  }

  // A copy of the sample in which a record holds another text.
  std::string Copia(int registro, const std::string& texto) const {
    const auto copia = carpeta / "copia.zrb";
    fs::copy_file(acequia, copia, fs::copy_options::overwrite_existing);
    FicheroRegistros f(copia, FicheroRegistros::Modo::LecturaEscritura);
    f.EscribeRegistro(registro, texto);
    f.Vacia();
    return copia.string();
  }
};

TEST_F(Linea, ElResumenDeLaObraDeMuestra) {
  const auto r = Llama("calcula " + acequia + " --separador coma");
  EXPECT_EQ(r.codigo, 0);
  EXPECT_EQ(r.quejas, "");
  EXPECT_EQ(pruebas::Compara("acequia-resumen.txt", r.salida), "");
  EXPECT_TRUE(fs::exists(carpeta / "estado/zorbin/Debugpim_cal.txt"));
  const auto fichero = carpeta / "r.txt";
  EXPECT_EQ(Llama("calcula " + acequia + " --separador coma --salida " + fichero.string()).codigo,
            0);
  EXPECT_EQ(Lee(fichero), r.salida);
}

TEST_F(Linea, DibujaEnCadaFormaYDiceLoQueFalta) {
  const auto f = (carpeta / "d").string();
  const std::string dibuja = "dibuja " + acequia;
  struct Caso {
    std::string palabras, cabeza;
  };
  for (const auto& [palabras, cabeza] : std::vector<Caso>{
           {"--tramo 1 --que seccion --escala 10 --svg ", "<svg "},
           {"--tramo 3 --que zanja --altura 3,2 --presion 0,45 --separador coma --pdf ", "%PDF-"},
           {"--tramo 6 --que anillo --hipotesis 6 --idioma fr --svg ", "<svg "},
           {"--tramo 6 --que grafico --grafico tensiones --tema oscuro --png ", "\x89PNG"},
           {"--tramo 5 --que mapa --svg ", "<svg "},
           {"--tramo 6 --que hoja --pdf ", "%PDF-"},
           {"--tramo 2 --que zanja --dxf ", "999\r\nZORBIN, mm"}}) {
    fs::remove(f);
    const auto r = Llama(dibuja + " " + palabras + f);
    EXPECT_EQ(r.codigo, 0) << palabras;
    EXPECT_EQ(r.quejas, "") << palabras;
    EXPECT_EQ(Lee(f).substr(0, cabeza.size()), cabeza) << palabras;
  }
  for (const auto& [palabras, queja] : std::vector<Caso>{
           {"--tramo 9 --que seccion --svg " + f, "el Tramo 9 no está en"},
           {"--tramo 1 --que seccion", "falta: --svg, --pdf, --png, --dxf"},
           {"--tramo 1 --que seccion --altura 3 --svg " + f, "--altura necesita --presion"},
           {"--tramo 1 --que anillo --hipotesis 6 --svg " + f, "no tiene hipótesis 6; tiene 5"},
           {"--tramo 1 --que grafico --grafico tensiones --svg " + f, "Tramo postesado"},
           {"--tramo 1 --que seccion --svg " + f + " --png " + f, "--svg"},
           {"--tramo 1 --que seccion --escala 0 --svg " + f, "--escala"},
           {"--tramo 1 --que plano --svg " + f, "no sirve para --que"}}) {
    const auto r = Llama(dibuja + " " + palabras);
    EXPECT_EQ(r.codigo, 2) << palabras;
    EXPECT_NE(r.quejas.find(queja), std::string::npos) << r.quejas;
  }
}

TEST_F(Linea, UnaObraSinTramosSeDiceYNoDejaHoja) {
  const auto pdf = carpeta / "vacia.pdf";
  const auto r = Llama("calcula " + Copia(20, "0") + " --listado normal --pdf " + pdf.string());
  EXPECT_EQ(r.codigo, 1);
  EXPECT_NE(r.quejas.find("no tiene ningún Tramo"), std::string::npos) << r.quejas;
  EXPECT_FALSE(fs::exists(pdf));
}

TEST_F(Linea, UnTramoUOtroYEnQueOrden) {
  const auto r = Llama("calcula " + acequia + " --formato json --tramo 5 --tramo 2");
  ASSERT_EQ(r.codigo, 0) << r.quejas;
  const auto j = nlohmann::json::parse(r.salida);
  ASSERT_EQ(j["tramos"].size(), 2u);
  EXPECT_EQ(j["tramos"][0]["posicion"], 5);
  EXPECT_EQ(j["tramos"][1]["NumeroTramo"], 2);
  EXPECT_EQ(Llama("calcula --tramo 1 " + acequia).codigo, 0);
  const auto no = Llama("calcula " + acequia + " --tramo 9");
  EXPECT_EQ(no.codigo, 2);
  EXPECT_NE(no.quejas.find("1, 2, 3, 4, 5, 6, 7"), std::string::npos);
}

TEST_F(Linea, LasPalabrasMalasSeDicenEnUnaLinea) {
  for (const char* palabras :
       {"", "calcular x", "calcula", "calcula a b", "calcula a --formato xml", "calcula a --tramo",
        "calcula a --tramo dos", "calcula a --separador punto_y_coma", "--nada",
        "calcula a --pdf b", "calcula a --texto b", "calcula a --listado lame --formato json",
        "calcula a --listado lame --pdf b --texto c", "calcula a --listado lame --pdf b --salida c",
        "medios --formato json --pdf b", "ajustes", "ajustes a --formato resumen",
        "hidraulica --metodo hazen --caudal 1 --formato json --pdf b"}) {
    const auto r = Llama(palabras);
    EXPECT_EQ(r.codigo, 2) << palabras;
    EXPECT_EQ(std::count(r.quejas.begin(), r.quejas.end(), '\n'), 1) << r.quejas;
    EXPECT_EQ(r.salida, "") << palabras;
  }
  EXPECT_EQ(Llama("--help").codigo, 0);
  EXPECT_NE(Llama("calcula --help").salida.find("--registros"), std::string::npos);
  EXPECT_EQ(Llama("--version").salida.substr(0, 11), "zorbin-calc");
}

TEST_F(Linea, UnFicheroRechazadoNoEscribeNada) {
  const auto fichero = carpeta / "r.json";
  const auto r =
      Llama("calcula " + Copia(114, "x") + " --formato json --salida " + fichero.string());
  EXPECT_EQ(r.codigo, 1);
  EXPECT_NE(r.quejas.find("copia.zrb: registro 114"), std::string::npos) << r.quejas;
  EXPECT_EQ(std::count(r.quejas.begin(), r.quejas.end(), '\n'), 1);
  EXPECT_FALSE(fs::exists(fichero));
  EXPECT_EQ(Llama("calcula /no/hay.zrb").codigo, 1);
}

// Whoever only reads neither waits for the program that has the file nor mends what it left.
TEST_F(Linea, UnGrabadoAMediasSeLeeComoAntesYSeDice) {
  const auto copia = carpeta / "copia.zrb";
  fs::copy_file(acequia, copia);
  const std::string palabras = "calcula " + copia.string() + " --tramo 1 --separador coma";
  const auto sana = Llama(palabras);
  {
    const FicheroRegistros otro(copia, FicheroRegistros::Modo::LecturaEscritura);
    EXPECT_EQ(Llama(palabras).quejas, "");
  }
  pruebas::DejaCabeceraAMedias(copia);
  const std::string rota = Lee(copia);
  const auto r = Llama(palabras);
  EXPECT_EQ(r.codigo, 0);
  EXPECT_EQ(r.salida, sana.salida);
  EXPECT_NE(r.quejas.find("copia.zrb: el último grabado no llegó a terminar"), std::string::npos);
  EXPECT_EQ(Lee(copia), rota);
  EXPECT_TRUE(fs::exists(RutaDiario(copia)));
}

// Strength of the concrete, record 30 of the block; the pressure of the Obra, record 8.
TEST_F(Linea, LasFaltasSeListanYSusTramosNoSeCalculan) {
  EXPECT_EQ(Llama("valida " + acequia).codigo, 0);
  const auto obra = Copia(30 + 60, "0 // 0,0");
  const auto r = Llama("valida " + obra + " --separador coma");
  EXPECT_EQ(r.codigo, 1);
  EXPECT_EQ(r.salida,
            "Tramo 2: edFck = \"\": Resist. del hormigón a compresión: Debe ser 0,001 MPa o más\n");
  EXPECT_EQ(Llama("valida " + obra + " --tramo 1").codigo, 0);

  const auto calcula = Llama("calcula " + obra + " --formato json");
  EXPECT_EQ(calcula.codigo, 1);
  EXPECT_NE(calcula.quejas.find("Tramo 2: edFck"), std::string::npos);
  const auto j = nlohmann::json::parse(calcula.salida);
  ASSERT_EQ(j["tramos"].size(), 6u);
  EXPECT_EQ(j["tramos"][1]["posicion"], 3);
  const auto solo = Llama("calcula " + obra + " --tramo 2");
  EXPECT_EQ(solo.codigo, 1);
  EXPECT_EQ(solo.salida, "");
  EXPECT_EQ(Llama("calcula " + acequia + " --tablas /no/hay").codigo, 1);
  EXPECT_EQ(Llama("calcula " + acequia + " --tablas /no/hay --sin-validar").codigo, 0);
}

// A single height of the Obra may be left blank at its end: the validation completes it.
TEST_F(Linea, UnaAlturaEnBlancoSeCompletaAntesDeCalcular) {
  const auto obra = Copia(14, "0,00");
  const auto casos = [&](const std::string& mas) {
    const auto r = Llama("calcula " + obra + " --tramo 1 --formato json" + mas);
    return nlohmann::json::parse(r.salida)["tramos"][0]["casos"].size();
  };
  EXPECT_GT(casos(""), 0u);
  EXPECT_EQ(casos(" --sin-validar"), 0u);
  // A fill that is none of the five codes is not taken for another.
  EXPECT_EQ(Llama("valida " + Copia(64, "13")).codigo, 1);
}

// What is unusual is calculated all the same, and told.
TEST_F(Linea, LoInusualSeCalculaYSeAvisa) {
  const auto obra = Copia(33 + 60, "2000 // 200,0");
  EXPECT_EQ(Llama("calcula " + obra + " --tramo 2").codigo, 0);
  const auto r = Llama("valida " + obra + " --tramo 2");
  EXPECT_EQ(r.codigo, 0);
  EXPECT_NE(r.quejas.find("200.0 MPa"), std::string::npos) << r.quejas;
}

// Tramo 2 has no friction angle (record 49 of its block): the others are calculated all the same.
TEST_F(Linea, UnFalloAritmeticoAcabaSuTramoYNoLosDemas) {
  const auto r = Llama("calcula " + Copia(14 + 60 + 49, "0,00") + " --formato json");
  EXPECT_EQ(r.codigo, 3);
  EXPECT_NE(r.quejas.find("Tramo 2, Caso 1, altura 2.00 m, DP 0.400 MPa: División por cero"),
            std::string::npos)
      << r.quejas;
  const auto j = nlohmann::json::parse(r.salida);
  ASSERT_EQ(j["tramos"].size(), 7u);
  EXPECT_TRUE(j["tramos"][0]["error"].is_null());
  EXPECT_TRUE(j["tramos"][1]["error"].is_string());
  EXPECT_EQ(j["tramos"][1]["veredicto"], "sincomprobar");
  EXPECT_EQ(j["tramos"][1]["casos"].size(), 0u);
  EXPECT_EQ(j["tramos"][2]["casos"].size(), 4u);
}

TEST_F(Linea, LosAjustesDelFicheroEntranEnLosResultados) {
  const std::string copia = Copia(5, "Obra");
  FicheroRegistros f(RutaDpe(copia), FicheroRegistros::Modo::LecturaEscritura);
  EscribeAjustes(f, {{4, 1, 2, {30, 5, 25}}}, '.');
  const auto j = nlohmann::json::parse(Llama("calcula " + copia + " --formato json").salida);
  const auto& casos = j["tramos"][0]["casos"];
  EXPECT_TRUE(casos[0]["armado"]["HayAjuste"].get<bool>());
  EXPECT_EQ(casos[0]["armado"]["Total"], 60.0);
  EXPECT_EQ(casos[0]["armado"]["ajuste"],
            (nlohmann::json{{"Camisa", 30.0}, {"Espiras", 5.0}, {"Exterior", 25.0}}));
  EXPECT_FALSE(casos[1]["armado"]["HayAjuste"].get<bool>());
}

// An adjustment that falls short, and one that complies but for what nobody chose of it.
TEST_F(Linea, LosCasosQueNoCumplenSeCuentanYSoloEstrictoLosCastiga) {
  struct Fila {
    Ajuste ajuste;
    int estricto;
    std::string queja;
    std::string veredicto;
  };
  const auto filas = std::to_array<Fila>({
      {{5, 0, 5}, 1, "zorbin-calc: Casos que no cumplen: 1 de 9\n", "NO CUMPLE"},
      {{30, 5, 25}, 0, "zorbin-calc: Casos sin comprobar: 1 de 9\n", "SIN COMPROBAR"},
  });
  for (const auto& f : filas) {
    const std::string copia = Copia(5, "Obra");
    {
      FicheroRegistros dpe(RutaDpe(copia), FicheroRegistros::Modo::LecturaEscritura);
      EscribeAjustes(dpe, {{4, 1, 2, f.ajuste}}, '.');
    }
    const auto r = Llama("calcula " + copia + " --tramo 1");
    EXPECT_EQ(r.codigo, 0);
    EXPECT_EQ(r.quejas, f.queja);
    EXPECT_NE(r.salida.substr(0, r.salida.find("\n\n")).find(f.veredicto), std::string::npos);
    for (const char* salida : {"", " --formato json", " --listado tabular"}) {
      EXPECT_EQ(Llama("calcula --estricto " + copia + " --tramo 1" + salida).codigo, f.estricto);
    }
  }
  const auto envolvente = Llama("calcula --envolvente " + acequia + " --tramo 1 --listado tabular");
  EXPECT_NE(envolvente.salida.find("diseño envolvente"), std::string::npos);
}

// The choice of a Tramo, which lies beside the Obra, is that of its run; refused, that is told.
TEST_F(Linea, ElDisenoEnvolventeDeUnTramoNoHayQuePedirlo) {
  const std::string copia = Copia(6, "C");
  const fs::path zrx = RutaZrx(copia);
  const auto descripcion = TramosPedidos(LeeProyecto(copia)).at(1).tramo.DescriTramo;
  pruebas::PonBytes(zrx, TextoDeExtras({{{"2", descripcion, true, {}}}, {}, {}, {}}));
  for (const auto& [tramo, si] : std::map<std::string, bool>{{"1", false}, {"2", true}}) {
    const auto r = Llama("calcula " + copia + " --formato json --tramo " + tramo);
    EXPECT_EQ(r.codigo, 0);
    EXPECT_EQ(r.salida.find("\"Envolvente\":true") != std::string::npos, si) << tramo;
  }
  pruebas::PonBytes(zrx, "{");
  EXPECT_EQ(Llama("calcula " + copia + " --tramo 2").codigo, 1);
}

// Another pressure of the same Caso takes the adjustment; one 0.05 off does not. The records are
// the first and last DP and MDP of the Obra.
TEST_F(Linea, ElAjusteDeUnaPresionValeParaLasQueSonElMismoCaso) {
  for (const auto& [presion, ajustado] :
       {std::pair{"6,04 // 0,604", true}, {"6,05 // 0,605", false}}) {
    const std::string copia = Copia(7, presion);
    FicheroRegistros obra(copia, FicheroRegistros::Modo::LecturaEscritura);
    for (const int r : {8, 11, 12}) obra.EscribeRegistro(r, presion);
    obra.Vacia();
    FicheroRegistros f(RutaDpe(copia), FicheroRegistros::Modo::LecturaEscritura);
    EscribeAjustes(f, {{6, 1, 2, {30, 5, 25}}}, '.');
    const auto r = Llama("calcula " + copia + " --tramo 1 --sin-validar --formato json");
    ASSERT_EQ(r.codigo, 0) << r.quejas;
    const auto caso = nlohmann::json::parse(r.salida)["tramos"][0]["casos"][0];
    EXPECT_EQ(caso["armado"]["HayAjuste"].get<bool>(), ajustado) << presion;
    EXPECT_EQ(caso["armado"]["ajuste"].is_null(), !ajustado);
  }
}

// The adjustments are lost, not the Obra.
TEST_F(Linea, UnFicheroDeAjustesRotoSeDiceYLaObraSeCalcula) {
  const std::string copia = Copia(5, "Obra");
  std::ofstream(RutaDpe(copia)) << "no es un fichero de registros";
  const auto sin = Llama("calcula " + acequia + " --tramo 1 --formato json");
  const auto r = Llama("calcula " + copia + " --tramo 1 --formato json");
  EXPECT_EQ(r.codigo, 1);
  EXPECT_NE(r.quejas.find("copia.dpe: registro 1"), std::string::npos) << r.quejas;
  EXPECT_NE(r.quejas.find("Calculado sin los ajustes"), std::string::npos) << r.quejas;
  EXPECT_EQ(nlohmann::json::parse(r.salida)["tramos"], nlohmann::json::parse(sin.salida)["tramos"]);
  EXPECT_EQ(Llama("valida " + copia).codigo, 1);
  for (const char* listado :
       {"", " --listado normal", " --listado tabular", " --listado pantalla"}) {
    const auto texto = Llama("calcula " + copia + " --tramo 1" + listado).salida;
    EXPECT_NE(texto.find("** Calculado sin los ajustes de armaduras guardados"), std::string::npos)
        << listado;
    // A post-tensioned Tramo has none to miss.
    EXPECT_EQ(Llama("calcula " + copia + " --tramo 7" + listado).salida.find("sin los ajustes"),
              std::string::npos);
  }
}

// Tramos numbered 2 and 3: every output names them so, and the adjustment stored for 2 is that of
// the first one.
TEST_F(Linea, UnTramoSeNombraPorSuNumeroYNoPorSuSitio) {
  const auto ruta = carpeta / "dosYTres.zrb";
  {
    FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
    const ListaTramos lista{"2", "3"};
    const auto textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");
    for (const int posicion : {1, 2}) {
      auto e = pruebas::EstadoDeMuestra(posicion);
      e.obra.Prs2 = e.obra.Prs1, e.obra.PrsM2 = e.obra.PrsM1, e.obra.Prs3 = 0;
      e.obra.Alt2 = e.obra.Alt1, e.obra.Alt3 = 0;
      if (posicion == 1) EscribeObra(f, e, lista, textos, ',');
      EscribeTramo(f, e, lista, posicion, ',');
    }
    FicheroRegistros ajustes(RutaDpe(ruta), FicheroRegistros::Modo::LecturaEscritura);
    EscribeAjustes(ajustes, {{4, 2, 2, {20, 0, 19.5}}}, '.');
  }
  const std::string calcula = "calcula " + ruta.string() + " --separador coma ";
  struct Salida {
    const char* palabras;
    std::vector<const char*> dice;
    const char* calla;
  };
  for (const auto& s : std::vector<Salida>{
           {"--listado normal", {"NUMERO: 1/   2 : Capt", "NUMERO: 1/   3 : "}, "/   1 : "},
           {"--listado pantalla", {"NUMERO: 1/   2 : Capt", "NUMERO: 1/   3 : "}, "/   1 : "},
           {"--listado tabular",
            {"\n       2      1200 ", "\n       3       800 ", "?A   2,00"},
            "\n       1  "},
           {"",
            {"\n  2           1", "\n  3           1", " 1/   2  DP", " 1/   3  DP"},
            " 1/   1 "},
           {"--tramo 3 --listado normal", {"NUMERO: 1/   3 : "}, "AJUSTAD"}}) {
    const auto r = Llama(calcula + s.palabras);
    for (const char* dice : s.dice) {
      EXPECT_NE(r.salida.find(dice), std::string::npos) << s.palabras << dice << r.salida;
    }
    EXPECT_EQ(r.salida.find(s.calla), std::string::npos) << s.palabras << s.calla << r.salida;
  }
  const auto j = nlohmann::json::parse(Llama(calcula + "--formato json").salida)["tramos"];
  for (const int i : {0, 1}) {
    EXPECT_EQ(j[i]["posicion"], i + 1);
    EXPECT_EQ(j[i]["NumeroTramo"], i + 2);
    EXPECT_EQ(j[i]["casos"][0]["ajustado"].get<bool>(), i == 0);
  }
}

TEST_F(Linea, LosAjustesSeListan) {
  const std::string copia = Copia(5, "Obra");
  const auto ninguno = Llama("ajustes " + copia);
  EXPECT_EQ(ninguno.codigo, 0);
  EXPECT_NE(ninguno.salida.find("no hay armaduras ajustadas"), std::string::npos);
  {
    FicheroRegistros f(RutaDpe(copia), FicheroRegistros::Modo::LecturaEscritura);
    EscribeAjustes(
        f, {{6.04, 2, 3, {30, 5, 25}}, {}, {4, 1, 2, {15.5, 0, 14.25}}, {4, 9, 2, {1, 2, 3}}}, '.');
  }
  EXPECT_EQ(Llama("ajustes " + copia + " --separador coma").salida,
            "Tramo  Altura        DP    Camisa  Refuerzo  Exterior     Total\n"
            "          (m)     (MPa)   (cm2/m)   (cm2/m)   (cm2/m)   (cm2/m)\n"
            "    1    2,00     0,400     15,50      0,00     14,25     29,75\n"
            "    2    3,00     0,604     30,00      5,00     25,00     60,00\n"
            "    9    2,00     0,400      1,00      2,00      3,00      6,00"
            "  (ese Tramo no está en la Obra)\n");
  const auto j = nlohmann::json::parse(Llama("ajustes " + copia + " --formato json").salida);
  ASSERT_EQ(j["ajustes"].size(), 3u);
  EXPECT_EQ(j["ajustes"][1]["DP"], 6.04);  // in at, as every result
  EXPECT_EQ(j["ajustes"][1]["entrada"], 1);
  EXPECT_EQ(j["ajustes"][0]["NumeroTramo"], 1);
  EXPECT_FALSE(j["ajustes"][2]["enLaObra"].get<bool>());
  const auto uno = Llama("ajustes " + copia + " --tramo 2 --formato json");
  EXPECT_EQ(nlohmann::json::parse(uno.salida)["ajustes"].size(), 1u);
  EXPECT_EQ(Llama("ajustes " + copia + " --tramo 9").codigo, 2);
  std::ofstream(RutaDpe(copia)) << "roto";
  const auto roto = Llama("ajustes " + copia);
  EXPECT_EQ(roto.codigo, 1);
  EXPECT_EQ(roto.salida, "");
}

TEST_F(Linea, LaSalidaNuncaPisaLaObra) {
  const std::string copia = Copia(5, "Obra");
  const auto antes = Lee(copia);
  for (const char* opcion :
       {" --salida ", " --listado normal --texto ", " --listado normal --pdf "}) {
    EXPECT_EQ(Llama("calcula " + copia + opcion + copia).codigo, 2) << opcion;
  }
  EXPECT_EQ(Lee(copia), antes);
}

// A log that cannot be written is told once, with its name, and changes nothing else.
TEST_F(Linea, UnRegistroQueNoSePuedeEscribirSeDiceYNoParaNada) {
  fs::create_symlink("/dev/full", carpeta / "Debugpim_cal.txt");
  const auto sana = Llama("calcula " + acequia + " --formato json");
  for (const std::string& donde : {carpeta.string(), std::string("/proc/no")}) {
    const auto r = Llama("calcula " + acequia + " --formato json --registros " + donde);
    EXPECT_EQ(r.codigo, 0);
    EXPECT_NE(r.quejas.find(donde + "/Debugpim_cal.txt"), std::string::npos) << r.quejas;
    EXPECT_EQ(std::count(r.quejas.begin(), r.quejas.end(), '\n'), 1) << r.quejas;
    EXPECT_EQ(r.salida, sana.salida);
  }
}

// The sample with a Tramo and its end damaged, and adjustments beside it.
TEST_F(Linea, LoQueSePuedeLeerDeUnaObraDanadaVaAOtra) {
  const std::string rota = Copia(52 + 60, "x");
  {
    FicheroRegistros f(RutaDpe(rota), FicheroRegistros::Modo::LecturaEscritura);
    EscribeAjustes(f, {{4, 1, 2, {30, 5, 25}}}, '.');
  }
  fs::resize_file(rota, 400 * 128);
  const std::string bytes = Lee(rota), nueva = (carpeta / "nueva.zrb").string();
  for (const char* orden : {"calcula ", "valida ", "ajustes "}) {
    const auto r = Llama(orden + rota);
    EXPECT_EQ(r.codigo, 1);
    EXPECT_NE(r.quejas.find("Se pueden leer 5 de sus 7 Tramos"), std::string::npos) << r.quejas;
  }
  const std::string rescata = "rescata --separador coma " + rota + " --salida " + nueva;
  const auto r = Llama(rescata);
  EXPECT_EQ(r.codigo, 1);
  EXPECT_EQ(r.salida, nueva + ": 5 de 7 Tramos\n");
  EXPECT_NE(r.quejas.find("Tramo 2: se deja fuera"), std::string::npos) << r.quejas;
  EXPECT_NE(r.quejas.find("Tramo 7: se deja fuera"), std::string::npos) << r.quejas;
  EXPECT_EQ(Lee(rota), bytes);
  const auto casos = [&](const std::string& obra) {
    const auto palabras = "calcula --formato json --tramo 1 --tramo 5 " + obra;
    auto j = nlohmann::json::parse(Llama(palabras).salida)["tramos"];
    for (auto& t : j) t.erase("posicion");
    return j;
  };
  fs::copy_file(acequia, carpeta / "sana.zrb");
  fs::copy_file(RutaDpe(rota), carpeta / "sana.dpe");
  EXPECT_EQ(casos(nueva), casos((carpeta / "sana.zrb").string()));
  EXPECT_EQ(Llama(rescata).codigo, 1) << "nothing is written over";
  EXPECT_NE(Llama(rescata).quejas.find("ya existe"), std::string::npos);

  PonBytes(rota, "una carta");
  for (const std::string& orden : {"calcula " + rota, rescata + "2"}) {
    const auto carta = Llama(orden);
    EXPECT_EQ(carta.codigo, 1);
    EXPECT_NE(carta.quejas.find("no es una Obra de ZORBIN"), std::string::npos) << carta.quejas;
  }
}

TEST_F(Linea, LasCalculadoras) {
  const auto h =
      Llama("hidraulica --metodo hazen --pendiente 0,001 --rugosidad 120 --formato json");
  ASSERT_EQ(h.codigo, 0) << h.quejas;
  const auto j = nlohmann::json::parse(h.salida);
  EXPECT_EQ(j["metodo"], "hazen");
  EXPECT_EQ(j["dato"], 0.001);
  EXPECT_EQ(j["filas"].size(), 15u);
  EXPECT_TRUE(j["filas"][4]["ReLlena"].is_null());
  EXPECT_NEAR(j["filas"][4]["VLlena"].get<double>(), 1.0204, 1e-4);
  EXPECT_EQ(Llama("hidraulica --metodo darcy --caudal 0").codigo, 2);
  EXPECT_EQ(Llama("hidraulica --metodo darcy --caudal 1 --pendiente 1").codigo, 2);
  EXPECT_EQ(Llama("hidraulica --caudal 1").codigo, 2);
  const auto m = Llama("medios --ph 5 --resistividad 10 --formato json --idioma fr");
  ASSERT_EQ(m.codigo, 0) << m.quejas;
  EXPECT_EQ(nlohmann::json::parse(m.salida)["Dosificacion"], 350.0);
  EXPECT_TRUE(nlohmann::json::parse(m.salida)["HayMedida"].get<bool>());
  EXPECT_EQ(Llama("medios --ph siete").codigo, 2);
}

TEST_F(Linea, UnaSalidaImposibleSeDiceYNoDejaRestos) {
  const auto r = Llama("calcula " + acequia + " --salida /no/hay/r.txt");
  EXPECT_EQ(r.codigo, 4);
  EXPECT_NE(r.quejas.find("/no/hay/r.txt"), std::string::npos);
  const int estado = std::system(ZORBIN_CALC " medios >/dev/full 2>/dev/null");
  EXPECT_EQ(WEXITSTATUS(estado), 4);
  EXPECT_EQ(Llama("calcula " + acequia + " --salida /dev/full").codigo, 4);
  EXPECT_EQ(WEXITSTATUS(std::system(ZORBIN_CALC " --help >/dev/full 2>/dev/null")), 4);
}

// The disk fills in the middle: what was there stays, nothing else is left, and it is told why.
TEST_F(Linea, UnDiscoQueSeLlenaDejaLoQueHabia) {
  fs::create_symlink("/dev/null", carpeta / "Debugpim_cal.txt");
  const auto fichero = carpeta / "r";
  for (const std::string salida : {" --salida ", " --formato json --salida ",
                                   " --listado normal --texto ", " --listado normal --pdf "}) {
    std::ofstream(fichero) << "antes";
    const std::string palabras =
        "calcula " + acequia + " --registros " + carpeta.string() + salida + fichero.string();
    Resultado r;
    {
      const pruebas::DiscoLleno lleno(8192);
      r = Llama(palabras);
    }
    EXPECT_EQ(r.codigo, 4) << salida;
    EXPECT_NE(r.quejas.find(fichero.string() + ": File too large"), std::string::npos) << r.quejas;
    EXPECT_EQ(Lee(fichero), "antes") << salida;
    EXPECT_EQ(std::distance(fs::directory_iterator(carpeta), fs::directory_iterator()), 4);
    EXPECT_EQ(Llama(palabras).codigo, 0);
    EXPECT_GT(fs::file_size(fichero), 8192U);
  }
}

// Names and texts of an Obra command neither the shell, nor a terminal, nor who reads the PDF.
TEST_F(Linea, LosTextosDeUnaObraSalenComoEstanYNoMandan) {
  const std::string nombre = "<img src=\"file:///etc/passwd\"> %1 {1} `touch cae`";
  const std::string obra = "'" + carpeta.string() + "/-rf $(touch cae); <b>%s {1}\x1b[31m.zrb'";
  const std::string copia = Copia(5, nombre + "\x1b]0;m\x07");
  fs::rename(copia, obra.substr(1, obra.size() - 2));
  const std::string calcula = "calcula " + obra + " --tramo 1";
  const auto j = nlohmann::json::parse(Llama(calcula + " --formato json").salida);
  EXPECT_EQ(j["obra"]["NombreObra"], nombre + "\x1b]0;m\x07");
  const auto lista = Llama(calcula + " --listado normal");
  EXPECT_NE(lista.salida.find(nombre), std::string::npos);
  EXPECT_NE(lista.salida.find('\x1b'), std::string::npos);  // a file gets its bytes

  const auto pdf = "'" + carpeta.string() + "/x;touch cae.pdf'";
  ASSERT_EQ(Llama(calcula + " --listado normal --pdf " + pdf).codigo, 0);
  const auto de = [&](const std::string& orden) {
    const auto salida = carpeta / "de";
    EXPECT_EQ(std::system((orden + " >" + salida.string()).c_str()), 0) << orden;
    return Lee(salida);
  };
  EXPECT_NE(de("pdftotext -layout " + pdf + " -").find(nombre), std::string::npos);
  const auto datos = de("pdfinfo " + pdf);
  EXPECT_NE(datos.find(nombre + " ]0;m\n"), std::string::npos) << datos;

  // On a terminal, and in what is told, the codes are shown.
  for (const char* salida : {"", " --texto /dev/stdout", " --salida /dev/tty"}) {
    std::ofstream(carpeta / "orden") << ZORBIN_CALC " " + calcula + " --listado normal" + salida;
    const auto terminal = de("script -qec 'sh " + (carpeta / "orden").string() + "' /dev/null");
    EXPECT_NE(terminal.find(nombre + "\\x1B]0;m\\x07"), std::string::npos) << terminal;
    EXPECT_EQ(terminal.find('\x1b'), std::string::npos);
  }
  const auto r = Llama("calcula " + obra + " --tramo 99");
  EXPECT_NE(r.quejas.find("<b>%s {1}\\x1B[31m.zrb"), std::string::npos) << r.quejas;
  EXPECT_EQ(r.quejas.find('\x1b'), std::string::npos);
  EXPECT_FALSE(fs::exists(carpeta / "cae") || fs::exists("cae"));
}

}  // namespace
}  // namespace zorbin
