// The hydraulic calculator and the analysis of aggressive media on random data: numbers given to
// the formulas, and texts typed into the fields.
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "azar/generador.h"
#include "azar/oraculo.h"
#include "listados/calculadoras/mdHidraulicaListado.h"
#include "listados/calculadoras/mdHidraulicaPapel.h"
#include "listados/calculadoras/mdMediosListado.h"
#include "listados/calculadoras/mdMediosPapel.h"
#include "listados/papel/mdHojasTexto.h"
#include "sesion/calculadoras/mdEntradaHidraulica.h"
#include "sesion/calculadoras/mdEntradaMedios.h"

namespace zorbin::pruebas {
namespace {

constexpr std::array kMetodos{MetodoHidraulico::PrandtlColebrook, MetodoHidraulico::DarcyWeissbach,
                              MetodoHidraulico::HazenWilliams};
constexpr EstiloNumeros kEstilo{true, ','};
constexpr std::array kTipos{DatoHidraulico::Pendiente, DatoHidraulico::Caudal};

// Any positive double now and then, from the smallest to the largest.
double NumeroDe(Azar& azar, Clase clase, double desde, double hasta) {
  const bool malo = clase == Clase::Disparatado || (clase == Clase::Estropeado && azar.Toca(0.5));
  if (!malo) return azar.Real(desde, hasta);
  if (azar.Toca(0.3)) return azar.Magnitud(-12, 12);
  return azar.Toca(0.5) ? NumeroImposible(azar) : azar.Magnitud(-300, 308);
}

// What is shown and what is printed.
template <class Resultado, class Pinta>
void MiraTextos(const Resultado& r, const std::string& texto, Pinta pinta) {
  EXPECT_EQ(Basura(texto, false), "");
  std::ostringstream salida;
  HojasTexto hojas(salida);
  Papel papel(hojas, Orientacion::Vertical);
  pinta(r, Textos(), kEstilo, papel);
  papel.FinDocumento();
  EXPECT_EQ(Basura(salida.str(), false), "");
}

// Whatever the data, numbers; of data within reason, none that is negative, and velocities.
void Mira(const ResultadoHidraulico& r, bool razonable) {
  for (const auto& f : r.filas) {
    EXPECT_TRUE(std::isfinite(f.VLlena) && (!razonable || f.VLlena > 0));
    for (const auto& x : {f.QLlena, f.VParcial, f.QParcial, f.ReLlena, f.Cwh}) {
      EXPECT_TRUE(!x || (std::isfinite(*x) && (!razonable || *x > 0)));
    }
    for (const auto& x : {f.JLlena, f.JParcial}) {
      EXPECT_TRUE(!x || (std::isfinite(*x) && (!razonable || *x >= 0)));  // may underflow
    }
  }
  MiraTextos(r, TextoHidraulico(r, Textos(), kEstilo), PapelHidraulico);
}

void Mira(const ResultadoMedios& r) {
  EXPECT_TRUE(std::isfinite(r.Dosificacion) && std::isfinite(r.RelacionAC));
  MiraTextos(r, TextoMedios(r, Textos(), kEstilo), PapelMedios);
}

template <class F>
void PorClase(F f) {
  for (const Clase clase : kClases) {
    for (int i = Desde(); i < Desde() + Cuantos() && !testing::Test::HasFailure(); ++i) {
      SCOPED_TRACE(std::string(NombreDe(clase)) + " " + std::to_string(i));
      const Vigilante vigilante("calculadoras, " + std::string(NombreDe(clase)) + " " +
                                std::to_string(i));
      Azar azar(static_cast<std::uint64_t>(i) * 3 + static_cast<std::uint64_t>(clase));
      f(azar, clase);
    }
  }
}

TEST(AzarCalculadoras, Hidraulica) {
  Cuenta cuenta;
  PorClase([&](Azar& azar, Clase clase) {
    const auto metodo = azar.Uno(kMetodos);
    const auto tipo = azar.Uno(kTipos);
    const bool caudal = tipo == DatoHidraulico::Caudal;
    const bool hazen = metodo == MetodoHidraulico::HazenWilliams;
    const double dato = NumeroDe(azar, clase, caudal ? 0.05 : 0.0005, caudal ? 10.0 : 0.05);
    const double rugosidad = NumeroDe(azar, clase, hazen ? 100 : 0.01, hazen ? 150 : 2);
    const auto razonable = [](double x) { return x >= 1e-12 && x <= 1e12; };
    try {
      Mira(CalculaHidraulica(metodo, tipo, dato, rugosidad),
           razonable(dato) && razonable(rugosidad));
      cuenta.Suma("calculados");
    } catch (const ErrorHidraulico&) {
      cuenta.Suma("dato fuera de la formula");
    } catch (const ErrorEjecucion& error) {
      cuenta.Suma(error.causa() == CausaError::DivisionPorCero ? "division por cero"
                                                               : "desbordamiento");
    }
  });
  cuenta.Imprime("hidraulica");
}

TEST(AzarCalculadoras, HidraulicaTecleada) {
  Cuenta cuenta;
  PorClase([&](Azar& azar, Clase clase) {
    auto e = CargaCalculoHidraulico(azar.Toca(0.5) ? ',' : '.');
    CambiaMetodo(e, azar.Uno(kMetodos));
    CambiaTipoDato(e, azar.Uno(kTipos));
    for (const auto campo : {CampoHidraulico::DatoOrigen, CampoHidraulico::Rugosidad}) {
      if (clase == Clase::Plausible && campo == CampoHidraulico::Rugosidad) continue;
      Entra(e, campo);
      Cambia(e, campo, clase == Clase::Plausible ? std::string("0,01") : TextoImposible(azar));
      if (azar.Toca(0.5)) Sale(e, campo);
    }
    const auto aviso = Calcula(e);
    cuenta.Suma(aviso ? "rechazados" : "calculados");
    if (aviso) {
      EXPECT_FALSE(TextoAviso(*aviso, Textos()).empty());
    } else {
      ASSERT_TRUE(e.resultado);
      Mira(*e.resultado, true);
    }
  });
  cuenta.Imprime("hidraulica tecleada");
}

TEST(AzarCalculadoras, Medios) {
  Cuenta cuenta;
  PorClase([&](Azar& azar, Clase clase) {
    MuestraMedios muestra;
    muestra.ciclos = azar.Toca(0.5);
    for (double& valor : muestra.valor) valor = NumeroDe(azar, clase, 0, 14);
    Mira(AnalizaMedios(muestra));
    cuenta.Suma("analizados");
    auto e = CargaProtecciones(',');
    for (int m = 0; m < kMedios; ++m) {
      const auto medio = static_cast<Medio>(m);
      Entra(e, medio);
      if (azar.Toca(0.5)) Cambia(e, medio, TextoImposible(azar));
      if (azar.Toca(0.5)) Sale(e, medio);
    }
    const auto aviso = Analiza(e);
    cuenta.Suma(aviso ? "tecleados y rechazados" : "tecleados y analizados");
    if (!aviso) Mira(*e.resultado);
  });
  cuenta.Imprime("medios agresivos");
}

}  // namespace
}  // namespace zorbin::pruebas
