// The table of Casos as files for a spreadsheet.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "base/mdNumeros.h"
#include "comun/carpeta.h"
#include "comun/discoLleno.h"
#include "comun/estadoDeJson.h"
#include "listados/datos/mdPlantilla.h"
#include "listados/datos/mdTablaCasos.h"
#include "persistencia/disco/mdFicheroSalida.h"
#include "persistencia/entrada/mdCsv.h"
#include "persistencia/entrada/mdTablaEntrada.h"
#include "persistencia/entrada/mdXlsx.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;
using pruebas::Bytes;

struct TablaDeCasos : testing::Test {
  pruebas::Carpeta carpeta;
  Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");
  PalabrasDibujo w{textos, {true, ','}};
  std::string mala;
  std::vector<Columna> todas = ColumnasDeLista("todas", mala).value();
  std::map<int, Tramo> capturados;
  std::vector<ResultadoTramo> resultados;

  void SetUp() override {
    for (const int i : {1, 6}) {
      const auto e = pruebas::EstadoDeMuestra(i);
      const auto datos = pruebas::EnCalculo(e);
      capturados[i] = e.tramo;
      resultados.push_back(CalculaTramo(datos, RangoDe(datos)));
      resultados.back().datos.tramo.NumeroTramo = static_cast<std::int16_t>(i);
    }
  }

  void Escribe(TablaCasos& tabla) const {
    ListadoTabla listado(tabla, todas, capturados);
    int i = 0;
    for (const auto& [posicion, tramo] : capturados) {
      listado.Tramo(resultados[static_cast<std::size_t>(i++)], posicion, std::to_string(posicion),
                    {});
    }
    tabla.Termina();
  }

  std::size_t Casos() const { return resultados[0].filas.size() + resultados[1].filas.size(); }
  ObraDeTabla Obra() const { return {pruebas::EstadoDeMuestra(1).obra, todas}; }
};

TEST(NumeroTabla, SonLasCifrasDeLosListados) {
  std::mt19937_64 azar(7);
  std::uniform_real_distribution<double> cifra(-1.0, 1.0);
  for (int i = 0; i < 200'000; ++i) {
    const int decimales = i % 5;
    double x = cifra(azar) * std::pow(10.0, i % 13 - 3);
    if (i % 3 == 0) x = std::round(x * 1e4) / 1e4 + 0.5 * std::pow(10.0, -decimales);  // ties too
    std::string rapido;
    AnadeNumero(rapido, x, decimales, ',');
    ASSERT_EQ(rapido, TextoDecimal(x, decimales, ',')) << x;
  }
}

TEST_F(TablaDeCasos, ElTextoDiceLoQueLaPantalla) {
  for (const char separador : {',', '.'}) {
    const PalabrasDibujo palabras(textos, {separador == ',', separador});
    std::string texto;
    Escribe(*TablaCsv(todas, palabras, [&](std::string_view bytes) { texto += bytes; }));
    EXPECT_TRUE(texto.starts_with(kMarcaUtf8));
    const auto cuadro = LeeCsv(texto);
    ASSERT_EQ(cuadro.filas.size(), Casos() + 1);
    std::size_t fila = 1;
    for (const auto& r : resultados) {
      for (const auto& f : r.filas) {
        const auto enteras = EnterosDe(r, f);
        for (std::size_t i = 0; i < todas.size(); ++i) {
          const auto c = todas[i];
          const auto lugar = static_cast<std::size_t>(static_cast<int>(c) - kPrimeraEntera);
          std::string espera =
              De(c).numero
                  ? TextoNumero(c, EsEntera(c) ? enteras[lugar] : ValorDe(c, r, f), palabras)
                  : TextoPalabra(c, r, f, palabras);
          if (espera == "-") espera.clear();
          const auto& celdas = cuadro.filas[fila];
          EXPECT_EQ(i < celdas.size() ? celdas[i].texto : std::string{}, espera) << De(c).clave;
        }
        ++fila;
      }
    }
  }
}

TEST_F(TablaDeCasos, ElLibroTieneLosNumerosEnterosYSigueEnOtraHoja) {
  const auto fichero = carpeta / "t.xlsx";
  constexpr std::uint32_t kCorta = 12;
  Escribe(*TablaXlsx(Obra(), w, fichero, kCorta));
  const auto enSuHoja = LeeTablas(LeeXlsx(Bytes(fichero), &textos), textos);
  ASSERT_EQ(enSuHoja.tramos.size(), 2U);  // what the sheet of Tramos says can be read back
  EXPECT_TRUE(enSuHoja.rechazos.empty());
  EXPECT_EQ(SistemaDe(enSuHoja), true);
  for (const auto& t : enSuHoja.tramos) {
    Tramo leido = capturados.at(std::stoi(t.numero));
    leido.Di = leido.Fck = 0;
    for (const auto& d : t.datos) Aplica(leido, d, true);
    EXPECT_EQ(leido, capturados.at(std::stoi(t.numero)));
  }
  // The sheets of Casos, which a reader of Tramos leaves alone.
  std::size_t casos = 0, hojas = 0;
  for (const auto& hoja : LeeXlsx(Bytes(fichero))) {
    if (!hoja.nombre.starts_with("Casos")) continue;
    ++hojas;
    EXPECT_LE(hoja.filas.size(), kCorta);
    EXPECT_EQ(hoja.filas[0][4].texto, "m");
    EXPECT_EQ(hoja.filas[1][4].texto, "Hr");
    casos += hoja.filas.size() - 2;
  }
  EXPECT_EQ(casos, Casos());
  EXPECT_EQ(hojas, (Casos() + kCorta - 3) / (kCorta - 2));
  const auto primera = LeeXlsx(Bytes(fichero)).front();
  EXPECT_EQ(primera.filas[2][5].numero, resultados[0].filas[0].DP / 10.0);
  EXPECT_EQ(std::distance(fs::directory_iterator(carpeta.ruta()), fs::directory_iterator{}), 1);
}

TEST_F(TablaDeCasos, UnDiscoLlenoNoDejaNada) {
  for (const std::string nombre : {"t.csv", "t.xlsx"}) {
    const auto fichero = carpeta / nombre;
    pruebas::PonBytes(fichero, "de antes");
    {
      const pruebas::DiscoLleno lleno(1500);
      EXPECT_THROW(Escribe(*TablaPorNombre(Obra(), w, fichero)), ErrorSalida) << nombre;
    }
    EXPECT_EQ(Bytes(fichero), "de antes");
    fs::remove(fichero);
    EXPECT_TRUE(fs::is_empty(carpeta.ruta())) << nombre;
  }
}

TEST_F(TablaDeCasos, LaPlantillaSeLeeEnTodosLosIdiomas) {
  for (std::int16_t idioma = 1; idioma <= kIdiomas; ++idioma) {
    textos.PonIdioma(idioma);
    const auto fichero = carpeta / "p.xlsx";
    EscribePlantilla(fichero, textos, true);
    const auto e = LeeTablas(LeeXlsx(Bytes(fichero), &textos), textos);
    EXPECT_TRUE(e.rechazos.empty() && e.avisos.empty() && e.tramos.empty());
    EXPECT_EQ(SistemaDe(e), true);
  }
}

TEST(ColumnasDeLista, SonClavesSeparadasPorComas) {
  std::string mala;
  EXPECT_EQ(ColumnasDeLista("Hr, uso", mala), (std::vector{Columna::Hr, Columna::Uso}));
  EXPECT_FALSE(ColumnasDeLista("Hr,ninguna", mala));
  EXPECT_EQ(mala, "ninguna");
  EXPECT_EQ(ColumnasDeLista("todas", mala)->size(), static_cast<std::size_t>(kColumnas));
}

}  // namespace
}  // namespace zorbin
