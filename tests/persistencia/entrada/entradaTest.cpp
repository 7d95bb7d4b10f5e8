// Files from outside: cells of texts and workbooks, what their heads mean, and JSON.
#include <gtest/gtest.h>
#include <zip.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "comun/carpeta.h"
#include "comun/comparaFichero.h"
#include "persistencia/entrada/mdCsv.h"
#include "persistencia/entrada/mdJsonObra.h"
#include "persistencia/entrada/mdTablaEntrada.h"
#include "persistencia/entrada/mdXlsx.h"

namespace zorbin {
namespace {

using pruebas::Bytes;
using pruebas::Carpeta;

struct Entradas : testing::Test {
  Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");

  Entrada DeCsv(const std::string& csv) const { return LeeTablas({LeeCsv(csv)}, textos); }
  Entrada DeJson(const std::string& json) const {
    std::istringstream datos(json);
    return LeeJsonObra(datos);
  }
  // What is refused, "cell datum value: what is allowed", and what is thrown.
  template <class Lee>
  std::string Rechazo(const Lee& lee) const {
    try {
      const Entrada e = lee();
      std::string todo;
      for (const auto& r : e.rechazos) {
        todo += r.celda + " " + r.dato + " " + r.valor + ": " + textos.Compone(r.causa);
      }
      return todo;
    } catch (const ErrorEntrada& error) {
      return textos.Compone(error.mensaje());
    }
  }
};

template <class T>
T Valor(const TramoLeido& t, std::string_view nombre) {
  const auto* d = t.Busca(nombre);
  return d == nullptr ? T{} : std::get<T>(d->valor);
}

TEST_F(Entradas, UnaCeldaDeTextoVuelveComoSalio) {
  for (const std::string texto : {"llano", "con;punto", "con,coma", "\"comillas\"", "=1+1", "+34",
                                  "-x", "@a", "'suelto", "dos\nlineas", "á"}) {
    for (const char separador : {';', ','}) {
      std::string linea = separador == ';' ? "a;b\r\n" : "a,b\r\n";
      AnadeCelda(linea, texto, separador);
      linea += separador;
      EXPECT_EQ(linea.find(separador == ';' ? "\r\n=" : "\r\n+"), std::string::npos);
      const auto cuadro = LeeCsv(linea + "z\r\n");
      ASSERT_EQ(cuadro.filas.size(), 2U) << texto;
      EXPECT_EQ(cuadro.filas[1][0].texto, texto);
      EXPECT_EQ(cuadro.filas[1][1].texto, "z");
    }
  }
}

TEST_F(Entradas, LasCabecerasSonNombresORotulosDeCualquierIdioma) {
  for (const std::string cabeza :
       {"Espesor (cm.)", "espesor", "Esp", "ESP (cm)", "Wall thickness", "Épaisseur (cm)"}) {
    const auto e = DeCsv("Tramo;Di (m);" + cabeza + "\n1;1,2;12,5\n");
    ASSERT_EQ(e.tramos.size(), 1U) << cabeza;
    if (e.tramos[0].Busca("Esp") == nullptr) continue;
    EXPECT_EQ(Valor<double>(e.tramos[0], "Esp"), 12.5) << cabeza;
  }
  EXPECT_NE(DeCsv("Tramo;Di;Espesor\n1;1;2\n").tramos[0].Busca("Esp"), nullptr);
  // A label of several data is the name of none of them.
  const auto e = DeCsv("Tramo;Di;Inicial\n1;1,2;3\n");
  ASSERT_EQ(e.avisos.size(), 1U);
  EXPECT_NE(textos.Compone(e.avisos[0]).find("C1"), std::string::npos);
}

TEST_F(Entradas, LasUnidadesDeLaCabezaOLasDeLaFilaDeEncima) {
  const auto e = DeCsv("titulo;;;\n;mm;at;kp/cm²\nTramo;Di;Prs1Tram;Fck (MPa)\n3;1200;4;35\n");
  ASSERT_EQ(e.tramos.size(), 1U);
  EXPECT_EQ(e.tramos[0].numero, "3");
  EXPECT_DOUBLE_EQ(Valor<double>(e.tramos[0], "Di"), 1.2);
  Tramo t;
  for (const auto& d : e.tramos[0].datos) Aplica(t, d, true);
  EXPECT_DOUBLE_EQ(t.Prs1Tram, 0.4);
  EXPECT_DOUBLE_EQ(t.Fck, 35.0);
  for (const auto& d : e.tramos[0].datos) Aplica(t, d, false);
  EXPECT_DOUBLE_EQ(t.Fck, 350.0);
}

TEST_F(Entradas, LoQueNoValeDiceSuCeldaYLoQueSeEspera) {
  const std::string enorme(kMaxTextoCelda + 1, 'x');
  std::string ancha = "NumeroTramo;Di";
  for (std::size_t i = 0; i < kMaxColumnasEntrada; ++i) ancha += ";x";
  for (const auto& [csv, dice] : std::vector<std::pair<std::string, std::string>>{
           {"Tramo;Di\n1;ancho\n", "B2 Di ancho: se espera un número de 0 a 1000000000"},
           {"Tramo;Di\n1;-2\n", "B2 Di -2: se espera"},
           {"Tramo;Di;Tipologia\n1;2;1211\n", "C2 Tipologia 1211: se espera uno de estos: 1210"},
           {"Tramo;Di;Icontes0\n1;2;quizá\n", "C2 Icontes0 quizá: se espera verdadero"},
           {"Tramo;Di\n1;2\n1;3\n", "A3 NumeroTramo 1: ese número"},
           {"Tramo;Di\n0,5;2\n", "A2 NumeroTramo 0,5: se espera un número de 1 a 32767"},
           {"Tramo;Di (kg);Esp\n1;2;3\n", "B1: «kg» no es una unidad de Di"},
           {"Tramo;Di;Di\n1;2;3\n", "C1: está dos veces"},
           {"a;b\n1;2\n", "No hay ninguna fila de cabeceras"},
           {"Tramo;Di\n1;\"2\n", "B2: abre unas comillas"},
           {"Tramo;Di\n1;" + enorme, "B2: su texto"},
           {ancha, "hay más de 1000 columnas"}}) {
    const auto hallado = Rechazo([&, &texto = csv] { return DeCsv(texto); });
    EXPECT_NE(hallado.find(dice), std::string::npos) << csv.substr(0, 60) << " -> " << hallado;
  }
}

TEST_F(Entradas, LibrosDeVariosEscritores) {
  for (const std::string nombre : {"python", "oficina", "absoluto"}) {
    const auto e = LeeTablas(
        LeeXlsx(Bytes(ZORBIN_DATOS_PRUEBA "entrada/" + nombre + ".xlsx"), &textos), textos);
    EXPECT_TRUE(e.rechazos.empty()) << nombre;
    ASSERT_EQ(e.tramos.size(), 2U) << nombre;
    const auto& [a, b] = std::tie(e.tramos[0], e.tramos[1]);
    EXPECT_EQ(a.numero + b.numero, "12") << nombre;
    EXPECT_EQ(Valor<std::string>(b, "DescriTramo"), "=Ramal") << nombre;
    EXPECT_DOUBLE_EQ(Valor<double>(a, "Di"), 1.2) << nombre;
    EXPECT_EQ(Valor<std::int16_t>(a, "TipoCuna"), 1) << nombre;
    // The result that the spreadsheet kept of a formula; one that was never calculated has none.
    EXPECT_EQ(Valor<double>(b, "Fck"), nombre == "python" ? 0.0 : 35.0) << nombre;
    EXPECT_EQ(SistemaDe(e), true) << nombre;
  }
}

// A workbook with one sheet.
std::string Libro(const std::string& hoja, const std::string& libro = {}) {
  zip_error_t error;
  auto* fuente = zip_source_buffer_create(nullptr, 0, 0, &error);
  zip_source_keep(fuente);
  auto* zip = zip_open_from_source(fuente, ZIP_CREATE, &error);
  const auto pon = [&](const char* parte, const std::string& texto) {
    auto* s = zip_source_buffer(zip, texto.data(), texto.size(), 0);
    zip_file_add(zip, parte, s, ZIP_FL_OVERWRITE);
  };
  const std::string libroPuesto =
      libro.empty()
          ? "<workbook xmlns:r='x'><sheets><sheet name='a' r:id='r1'/></sheets></workbook>"
          : libro;
  const std::string relaciones =
      "<Relationships><Relationship Id='r1' Type='x/worksheet' Target='worksheets/sheet1.xml'/>"
      "</Relationships>";
  pon("xl/workbook.xml", libroPuesto);
  pon("xl/_rels/workbook.xml.rels", relaciones);
  pon("xl/worksheets/sheet1.xml", hoja);
  zip_close(zip);
  zip_source_open(fuente);
  zip_source_seek(fuente, 0, SEEK_END);
  std::string bytes(static_cast<std::size_t>(zip_source_tell(fuente)), '\0');
  zip_source_seek(fuente, 0, SEEK_SET);
  zip_source_read(fuente, bytes.data(), bytes.size());
  zip_source_close(fuente);
  zip_source_free(fuente);
  return bytes;
}

TEST_F(Entradas, LibrosHostiles) {
  const std::string abre = "<worksheet><sheetData><row r='1'>";
  const std::string cierra = "</row></sheetData></worksheet>";
  const std::string bomba(kMaxParteXlsx + 1, ' ');
  for (const auto& [hoja, dice] : std::vector<std::pair<std::string, std::string>>{
           {abre + "<c r='BCDEF7'><v>1</v></c>" + cierra, "BCDEF7: hay más de 1000 columnas"},
           {abre + "<c r='A999999999'><v>1</v></c>" + cierra, "A999999999: hay más de 20000 filas"},
           {"<!DOCTYPE x [<!ENTITY a 'aa'>]>" + abre + "<c><v>&a;</v></c>" + cierra,
            "no se entiende"},
           {abre + "<c t='s'><v>5</v></c>" + cierra, "no se entiende"},
           {abre, "no se entiende"},
           {abre + bomba, "pasa de 64 MiB"}}) {
    const auto hallado =
        Rechazo([&, &texto = hoja] { return LeeTablas(LeeXlsx(Libro(texto), &textos), textos); });
    EXPECT_NE(hallado.find(dice), std::string::npos) << hoja.substr(0, 80) << " -> " << hallado;
  }
  EXPECT_NE(
      Rechazo([&] { return LeeTablas(LeeXlsx("PK no", &textos), textos); }).find("no es un libro"),
      0U);
}

TEST_F(Entradas, JsonDiceTramoClaveValorYLoQueSeEspera) {
  const std::string tramo = "{\"tramos\":[{\"NumeroTramo\":4,";
  for (const auto& [json, dice] : std::vector<std::pair<std::string, std::string>>{
           {tramo + "\"Di\":\"1,2\"}]}", "tramos[0].Di Di 1,2: se espera un número"},
           {tramo + "\"Di\":[1]}]}", "tramos[0].Di Di"},
           {tramo + "\"Di\":1,\"Di\":2}]}", "Di 2: está dos veces"},
           {tramo + "\"Icontes0\":1.5}]}", "se espera verdadero"},
           {tramo + "\"DescriTramo\":\"Ω\"}]}", "Windows-1252"},
           {tramo + "\"ICar\":9}]}", "se espera uno de estos: 0, 1, 2, 3, 4"},
           {"{\"obra\":{\"SisUnid\":\"XX\"}}",
            "obra.SisUnid SisUnid XX: se espera uno de estos: SI, MKS"},
           {"{\"obra\":[]}", "«obra»"},
           {"{\"tramos\":{}}", "«tramos»"},
           {"[]", "«[»"},
           {"{}", "ningún dato"},
           {"{\"tramos\":[{\"Di\":1e999}]}", "No es JSON"},
           {"{\"tramos\":", "No es JSON: se rompe en el byte 11"}}) {
    const auto hallado = Rechazo([&, &texto = json] { return DeJson(texto); });
    EXPECT_NE(hallado.find(dice), std::string::npos) << json << " -> " << hallado;
  }
  const auto e =
      DeJson(tramo + "\"Inventada\":{\"Di\":3},\"casos\":[{\"Di\":[{}]}],\"Di\":null}]}");
  EXPECT_TRUE(e.rechazos.empty());
  ASSERT_EQ(e.avisos.size(), 1U);
  EXPECT_EQ(textos.Compone(e.avisos[0]),
            "Tramo 4: «Inventada» no es la clave de ningún dato; se pasa por alto");
  EXPECT_TRUE(e.tramos[0].datos.empty());
}

// Run with ZORBIN_ESQUEMA=1 to write it anew.
TEST(EsquemaJson, EsElDeLaTablaDeDatos) {
  const std::string ruta = ZORBIN_FUENTES "docs/obra.schema.json";
  if (std::getenv("ZORBIN_ESQUEMA") != nullptr) std::ofstream(ruta) << EsquemaJsonObra();
  EXPECT_EQ(Bytes(ruta), EsquemaJsonObra());
}

}  // namespace
}  // namespace zorbin
