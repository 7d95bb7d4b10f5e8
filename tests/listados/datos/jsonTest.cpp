#include "listados/datos/mdJson.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

#include "base/mdCarpetas.h"
#include "listados/datos/mdJsonVeredicto.h"
#include "persistencia/proyecto/mdProyecto.h"

namespace zorbin {
namespace {

template <class T>
std::string Escrito(const T& valor) {
  std::ostringstream salida;
  EscritorJson j(salida);
  j.Valor(valor);
  j.Vuelca();
  return salida.str();
}

TEST(EscritorJson, LaFormaDeLosNumeros) {
  const double infinito = std::numeric_limits<double>::infinity();
  for (const auto& [x, texto] : {std::pair{0.0, "0.0"},
                                 {-0.0, "-0.0"},
                                 {15.0, "15.0"},
                                 {-210000.0, "-210000.0"},
                                 {0.1, "0.1"},
                                 {0.1 + 0.2, "0.30000000000000004"},
                                 {123.456, "123.456"},
                                 {0.0001, "0.0001"},
                                 {0.00001, "1e-05"},
                                 {-0.0000125, "-1.25e-05"},
                                 {999999999999999.0, "999999999999999.0"},
                                 {123456789012345.6, "123456789012345.6"},
                                 {1e15, "1e+15"},
                                 {1.25e100, "1.25e+100"},
                                 {5e-324, "5e-324"},
                                 {-infinito, "null"},
                                 {std::nan(""), "null"}}) {
    EXPECT_EQ(Escrito(x), texto);
  }
  EXPECT_EQ(Escrito(std::int16_t{-32768}), "-32768");
}

// Of any bits, and each again after others took its place among those remembered.
TEST(EscritorJson, CadaNumeroVuelveAlMismoDobleConLasMenosCifras) {
  std::mt19937_64 azar(7);
  std::vector<double> numeros;
  while (numeros.size() < 20000) {
    const double x = std::bit_cast<double>(azar());
    if (!std::isfinite(x)) continue;
    numeros.push_back(x);
    numeros.push_back(std::ldexp(static_cast<double>(azar() >> 11), -53) * 1000.0);
    numeros.push_back(numeros[azar() % numeros.size()]);
  }
  std::ostringstream salida;
  EscritorJson j(salida);
  for (const double x : numeros) j.Valor(x);
  j.Vuelca();
  std::istringstream leido(salida.str());
  for (const double x : numeros) {
    std::string texto;
    std::getline(leido, texto, ',');
    ASSERT_EQ(std::strtod(texto.c_str(), nullptr), x) << texto;
    ASSERT_LE(texto.size(), nlohmann::json(x).dump().size()) << texto;
  }
}

TEST(EscritorJson, TextosComoSeanYMasLargosQueElBloque) {
  const std::string largo(200'000, 'x');
  for (const std::string texto : {"", "llano", "a\"b\\c", "\x1b]0;m\x07\r\n", "€ Señor Núñez",
                                  "\x7f", "roto \xff\xe2\x82", largo.c_str()}) {
    EXPECT_EQ(Escrito(texto),
              nlohmann::json(texto).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
  }
}

void ComparaCaso(const nlohmann::json& caso, const ResultadoTramo& tramo, const FilaCaso& fila) {
  const auto x = CasoEntero(tramo, fila);
  EXPECT_EQ(caso["DP"].get<double>(), fila.DP);
  EXPECT_EQ(caso["Q"].get<double>(), tramo.Altura(fila).cargas.Q);
  EXPECT_EQ(caso["Q1m"].get<double>(), tramo.unMetro.Q);
  EXPECT_EQ(caso["Landa"].get<double>(), tramo.Altura(fila).Landa);
  EXPECT_EQ(caso["MHip"][4][2].get<double>(), x.MHip(5, 3));
  EXPECT_EQ(caso["avisos"].size(), x.avisos.size());
  EXPECT_TRUE(caso["TerraplenRige"].is_boolean());
  EXPECT_EQ(caso["veredicto"], "cumple");
  EXPECT_TRUE(caso["motivo"].is_null());
  EXPECT_FALSE(caso["ajustado"].get<bool>());
  EXPECT_EQ(caso["uso"].get<double>(), fila.verificacion.uso);
  ASSERT_EQ(caso["comprobaciones"].size(), x.verificacion.comprobaciones.size());
  if (x.EsArmado()) {
    EXPECT_EQ(caso["armado"]["N"][2][0].get<double>(), x.Armado().esfuerzos.N(3, 1));
    EXPECT_EQ(caso["armado"]["TablaHip"][4][2].get<double>(), x.Armado().TablaHip(5).Total);
    return;
  }
  const auto& r = x.Postesado();
  EXPECT_EQ(caso["postesado"]["NESPDEFI"].get<double>(), r.NESPDEFI);
  EXPECT_EQ(caso["postesado"]["hipotesis"].size(), 6u);
  EXPECT_EQ(caso["postesado"]["hipotesis"][2]["TotAc"][1].get<double>(), r.hipotesis(3).TotAc(2));
  EXPECT_EQ(caso["PP"].get<double>(), r.PP);
  EXPECT_EQ(caso["PPNeta"].get<double>(), fila.PP);
}

// Nothing asks for steel that no limit gives: what has no bound or no place is null.
TEST(Json, ElVeredictoConSusNombres) {
  Verificacion v;
  v.veredicto = Veredicto::NoCumple;
  v.motivo = MotivoVeredicto::FisuracionSobreTope;
  v.uso = kUsoSinLimite;
  v.avisos = kAvisoRetraccion | kAvisoTopePorRedondeo;
  v.comprobaciones = {
      {QueComprueba::PruebaFabrica, 1, 0, CaraPared::Ninguna, 3, 0, kUsoSinLimite},
      {QueComprueba::Fisuracion, 4, 2, CaraPared::Exterior, 3, 2, 1.5},
      {QueComprueba::Alambre, 6, 3, CaraPared::Interior, 0, 0, 0},
      {QueComprueba::FuerzaAlambre, 0, 1, CaraPared::Ninguna, 1, 2, 0.5},
  };
  std::ostringstream salida;
  EscritorJson j(salida);
  j.Abre('{');
  DeVeredicto(j, v, true);
  j.Cierra('}');
  j.Vuelca();
  EXPECT_EQ(nlohmann::json::parse(salida.str()), nlohmann::json::parse(R"({
    "veredicto": "nocumple", "uso": null, "ajustado": true, "motivo": "fisuracionSobreTope",
    "advertencias": ["retraccion", "topePorRedondeo"], "comprobaciones": [
      {"que": "pruebaFabrica", "hipotesis": 1, "seccion": null, "cara": null, "valor": 3.0,
       "limite": 0.0, "uso": null},
      {"que": "fisuracion", "hipotesis": 4, "seccion": "rinones", "cara": "ext", "valor": 3.0,
       "limite": 2.0, "uso": 1.5},
      {"que": "alambre", "hipotesis": 6, "seccion": "solera", "cara": "int", "valor": 0.0,
       "limite": 0.0, "uso": 0.0},
      {"que": "fuerzaAlambre", "hipotesis": null, "seccion": "clave", "cara": null, "valor": 1.0,
       "limite": 2.0, "uso": 0.5}]})"));
  EXPECT_EQ(CodigoDe(Veredicto::SinComprobar), "sincomprobar");
}

// The results of a whole Obra read back from the JSON to the very same doubles.
TEST(Json, LeidoDaLosMismosDobles) {
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  const Proyecto proyecto = LeeProyecto(ZORBIN_FUENTES "muestras/acequia.zrb");
  const auto pedidos = TramosPedidos(proyecto);
  std::map<int, Tramo> capturados;
  for (const auto& p : pedidos) capturados[p.posicion] = p.tramo;
  std::vector<ResultadoTramo> resultados;
  std::ostringstream salida;
  ListadoJson json(salida, "acequia.zrb", capturados, textos, {true, ','});
  json.EmpiezaObra(proyecto.obra);
  for (const auto& p : pedidos) {
    const auto datos = DatosDeCalculo(proyecto.obra, p.tramo);
    resultados.push_back(CalculaTramo(datos, RangoDe(datos)));
    EXPECT_TRUE(json.Tramo(resultados.back(), p.posicion, p.numero, {}));
  }
  json.AcabaObra();

  const auto leido = nlohmann::json::parse(salida.str());
  EXPECT_EQ(leido["obra"]["NombreObra"], proyecto.obra.NombreObra);
  ASSERT_EQ(leido["tramos"].size(), 7u);
  for (std::size_t i = 0; i < resultados.size(); ++i) {
    const auto& tramo = leido["tramos"][i];
    const auto& filas = resultados[i].filas;
    EXPECT_TRUE(tramo["error"].is_null());
    EXPECT_EQ(tramo["Esp"].get<double>(), pedidos[i].tramo.Esp);  // centimetres, as captured
    EXPECT_LE(tramo["TipoCuna"].get<int>(), 2);
    ASSERT_EQ(tramo["casos"].size(), filas.size());
    for (std::size_t k = 0; k < filas.size(); ++k) {
      ComparaCaso(tramo["casos"][k], resultados[i], filas[k]);
    }
  }
}

}  // namespace
}  // namespace zorbin
