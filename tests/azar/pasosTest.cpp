// The steps of Casos of random Tramos, as a checker would follow them: every formula gives what its
// run got, and every printed formula what is printed beside it.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <iostream>

#include "azar/generador.h"
#include "azar/oraculo.h"
#include "calculo/ajustes/mdLineas.h"
#include "calculo/armado/mdArmado.h"
#include "calculo/armado/mdArmtub.h"
#include "calculo/armado/mdCamisa.h"
#include "calculo/armado/mdFisuracion.h"
#include "calculo/armado/mdFlecom.h"
#include "calculo/armado/mdRetraccion.h"
#include "calculo/cargas/mdMarston.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "calculo/pasos/mdPasos.h"
#include "calculo/postesado/mdAlambre.h"
#include "calculo/rastro/mdEscritura.h"
#include "comun/estadoDeJson.h"

namespace zorbin::pruebas {
namespace {

constexpr double kTolerancia = 1e-12;
constexpr int kParte = 10;  // of the Tramos of the other tests

void Cambia(std::string& t, std::string_view de, std::string_view a) {
  for (std::size_t i = 0; (i = t.find(de, i)) != std::string::npos; i += a.size()) {
    t.replace(i, de.size(), a);
  }
}

// A printed line as an expression. Bars open behind a sign and close behind a figure.
std::string Expresada(std::string t) {
  const std::array<std::pair<const char*, const char*>, 12> kSignos{{{";", "@"},
                                                                     {",", "."},
                                                                     {"@", ","},
                                                                     {"·", "*"},
                                                                     {"−", "-"},
                                                                     {"≤", "<="},
                                                                     {"≥", ">="},
                                                                     {"π", "pi"},
                                                                     {"√", "sqrt"},
                                                                     {"°", ""},
                                                                     {"tan(", "tang("},
                                                                     {"e^(", "exp("}}};
  for (const auto& [de, a] : kSignos) Cambia(t, de, a);
  std::string x;
  char antes = '(';
  for (const char c : t) {
    if (c == '|') {
      x += std::strchr("+-*/(<>= ,", antes) != nullptr ? "abs(" : ")";
    } else {
      x += c;
    }
    antes = x.back();
  }
  return x;
}

double UltimaCifra(const std::string& llano) {
  std::string mantisa = llano;
  double escala = 1.0;
  if (const auto potencia = mantisa.find("·10^"); potencia != std::string::npos) {
    escala = std::pow(10.0, std::stod(mantisa.substr(potencia + 5)));
    mantisa.resize(potencia);
  }
  const auto coma = mantisa.find(',');
  if (coma == std::string::npos) return escala;
  return escala * std::pow(10.0, -static_cast<double>(mantisa.size() - coma - 1));
}

class Comprobador {
 public:
  std::array<int, kFormulas> vistas{};
  int porIntervalo = 0, pasos = 0;

  void Comprueba(const Paso& paso) {
    ++pasos;
    ++vistas[static_cast<std::size_t>(paso.formula)];
    const auto& info = InfoDe(paso.formula);
    SCOPED_TRACE(std::string(info.expresion) + ", sección " + std::to_string(paso.lugar.seccion));
    const auto e = LeeExpresion(info.expresion);
    ASSERT_EQ(paso.valores.size(), e.simbolos.size());
    Valores(paso, e);
    for (const bool si : {false, true}) Escrito(paso, e, si);
  }

 private:
  static void Valores(const Paso& paso, const Expresion& e) {
    const auto x = Evalua(e.derecha, paso.valores);
    if (e.EsRelacion()) {
      EXPECT_TRUE(SeCumple(e.relacion, Evalua(e.izquierda, paso.valores).valor, x.valor));
    } else {
      EXPECT_LE(std::fabs(x.valor - paso.resultado),
                kTolerancia * std::max(x.cota, std::fabs(x.valor)))
          << x.valor << " " << paso.resultado;
    }
  }

  void Escrito(const Paso& paso, const Expresion& e, bool si) {
    const auto x = EscribePaso(paso, si, ',');
    SCOPED_TRACE(TextoLlano(x));
    if (x.porIntervalo) {
      ++porIntervalo;
      EnElIntervalo(paso, x, si);
      return;
    }
    const auto impresa = Expresada((e.EsRelacion() ? "" : "r = ") + x.cifras.llano);
    Expresion leida;
    ASSERT_NO_THROW(leida = LeeExpresion(impresa)) << impresa;
    ASSERT_TRUE(leida.simbolos.empty());
    const double derecha = Evalua(leida.derecha, {}).valor;
    if (e.EsRelacion()) {
      EXPECT_TRUE(SeCumple(leida.relacion, Evalua(leida.izquierda, {}).valor, derecha)) << impresa;
      return;
    }
    const std::string r = Expresada("r = " + x.resultado.llano);
    const double resultado = Evalua(LeeExpresion(r).derecha, {}).valor;
    EXPECT_LE(std::fabs(derecha - resultado), UltimaCifra(x.resultado.llano) * (1.0 + 1e-9))
        << impresa << " " << derecha;
  }

  static void EnElIntervalo(const Paso& paso, const PasoEscrito& x, bool si) {
    const auto& e = EnUnidades(paso.formula, si);
    std::vector<Intervalo> datos;
    for (const auto& d : x.datos) {
      datos.push_back({d.cifra.valor - d.cifra.margen, d.cifra.valor + d.cifra.margen});
    }
    const auto derecha = Acota(e.derecha, datos);
    if (e.EsRelacion()) {
      const auto izquierda = Acota(e.izquierda, datos);
      EXPECT_TRUE(SeCumple(e.relacion, izquierda.menor, derecha.mayor) ||
                  SeCumple(e.relacion, izquierda.mayor, derecha.menor));
      return;
    }
    EXPECT_LE(derecha.menor, x.resultado.valor + x.resultado.margen);
    EXPECT_GE(derecha.mayor, x.resultado.valor - x.resultado.margen);
  }
};

// A Tramo of the generator, some of them enveloping or with data that no capture gives.
DatosTramo TramoAlAzar(int i) {
  EstadoCalculo e = EstadoAlAzar(Clase::Plausible, i);
  e.tramo.Envolvente = e.tramo.EsArmado && i % 3 == 0;
  if (i % 2 == 0) e.tramo.Icontes1 = !e.tramo.EsArmado, e.tramo.Coepre1 = 1.0;
  if (i % 7 == 2 && !e.tramo.EsArmado) e.tramo.PostFlag = 2;
  return EnCalculo(e);
}

void SinRastroEsIgual(const ResultadoTramo& x, const FilaCaso& fila, const ResultadoCaso& con) {
  const auto a = RealesDe(x, fila, con);
  const auto b = RealesDe(x, fila, CasoEntero(x, fila));
  ASSERT_EQ(a.size(), b.size());
  for (std::size_t k = 0; k < a.size(); ++k) {
    EXPECT_EQ(std::memcmp(&a[k].valor, &b[k].valor, sizeof(double)), 0) << a[k].nombre;
  }
}

Tramo Pared(double Esp) {
  Tramo t;
  t.Di = 2.0, t.De = 2.0 + 2.0 * Esp, t.Esp = Esp, t.Reci = t.Rece = 0.015;
  t.TipoCamisa = 1, t.CamMax = 6.0, t.TipoControl = 2;
  t.Fck = 350.0, t.Fct = 22.0, t.Fyk = 5000.0, t.Fyd = 1300.0, t.GamaB = 1.5;
  return t;
}

// A wall that the factory test fills with steel.
void PruebaQueNoCabe(Rastro& r) {
  TerminosAnillo x;
  for (int i = 1; i <= kTerminosOval; ++i) {
    for (int s = 1; s <= kSecciones; ++s) x.MHip(i, s) = 0.001, x.NHip(i, s) = 0.1;
  }
  Marcha marcha;
  DisenoArmado(Pared(0.05), x, {1.0, 1.0, 1.0, 60.0}, {}, marcha, &r);
}

// Composite tension, and flexure of more than the outer maximum.
void TopeExterior(Rastro& r) {
  Tramo t = Pared(0.13);
  t.Icontes0 = true, t.Adato = 5.0;
  Esfuerzos x;
  for (int s = 1; s <= kSecciones; ++s) {
    x.M(2, s) = s == RINONES ? -0.2 : 0.2, x.N(2, s) = 20.0;
    x.M(3, s) = s == RINONES ? -3.0 : 3.0, x.N(3, s) = -5.0;
  }
  Marcha marcha;
  for (const int h : {2, 3}) ArmTubo(t, x, h, FaseAviso::Final, {}, marcha, &r);
}

// What no plausible pipe of the generator comes to.
void Rarezas(Rastro& r) {
  for (const double H : {0.5, 0.95, 1.2, 2.0}) {
    for (const auto ICar : std::initializer_list<std::int16_t>{1, 2, 3, 4})
      PresionMovil(ICar, H, &r);
  }
  for (const double Hr1 : {0.2, 0.9, 1.7, 3.0}) {
    for (const double H : {0.4, 6.0}) CoefZanjaTerraplenada(0.3, 0.6, Hr1, 1.0, H, &r);
  }
  CoefTerraplen(0.35, 1.0, 0.5, 1.0, 0.3, &r);
  for (const double Fck : {340.0, 390.0, 450.0, 550.0, 650.0}) LimiteLisas(Fck, &r);
  for (const auto camisa : std::initializer_list<std::int16_t>{0, 1, 2}) {
    for (const double As : {0.5, 10.0606, 12.0, 20.0, 75.3})
      ReparteArmadura(As, camisa, 3.0, false, 0.0, &r);
  }
  const DatosSeccion s{350.0, 5000.0, 1400.0, 1.5, 1.0, 1.0, 0.15, 0.1};
  for (const double M : {3.0, 30.0}) FlexoCompuesta(s, M, -4.0, 0.15, 0.025, &r);
  Lineas_1050(0.0, 0.0, 1e4, 10.0, 1e4, 1400.0, 12.0, 230.0, &r);
  PrimerAlambre(1e4, 17000.0, kEmbebida, &r);
  PruebaQueNoCabe(r);
  TopeExterior(r);
  const ParedFisuracion p{15.0, 2.5, 2.5, 22.0, 1.7};
  const auto h = Homogeneiza(p, 10.0, 10.0, &r);
  for (const double N : {-1.0, 1.0, 4.0, 40.0}) TensionDeFisuracion(p, h, 1.0, N, &r);
}

TEST(Pasos, DicenLoQueLaCorridaCalculo) {
  Comprobador c;
  for (int i = Desde(); i < Desde() + std::max(20, Cuantos() / kParte); ++i) {
    auto datos = TramoAlAzar(i);
    const auto rango = RangoDe(datos);
    if (i % 5 == 0) {
      datos.ajustes.push_back({rango.PrimeraDP,
                               static_cast<double>(datos.tramo.NumeroTramo),
                               rango.Hr0,
                               {15.0, 5.0, 8.0}});
    }
    const auto x = CalculaTramo(datos, rango);
    if (x.filas.empty()) continue;
    for (const auto* fila : {&x.filas.front(), &x.filas.back()}) {
      SCOPED_TRACE("plausible " + std::to_string(i) + " Hr " + std::to_string(fila->Hr) + " DP " +
                   std::to_string(fila->DP));
      Rastro rastro;
      SinRastroEsIgual(x, *fila, CasoEntero(x, *fila, &rastro));
      for (const auto& paso : rastro.pasos()) c.Comprueba(paso);
      if (testing::Test::HasFailure()) return;
    }
  }
  Rastro raros;
  Rarezas(raros);
  for (const auto& paso : raros.pasos()) c.Comprueba(paso);
  std::cout << c.pasos << " pasos, " << c.porIntervalo << " por el intervalo\n";
  for (std::size_t k = 0; k < c.vistas.size(); ++k) {
    EXPECT_GT(c.vistas[k], 0) << InfoDe(static_cast<Formula>(k)).expresion;
  }
}

}  // namespace
}  // namespace zorbin::pruebas
