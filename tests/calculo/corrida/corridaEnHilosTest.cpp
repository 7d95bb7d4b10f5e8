// Several Tramos on several threads: same results, in order, however many.
#include <gtest/gtest.h>

#include "calculo/corrida/mdCalculaObra.h"
#include "comun/estadoDeJson.h"
#include "comun/listado.h"

namespace zorbin {
namespace {

constexpr std::size_t kTramos = 60;

struct Pasada {
  std::string registro;
  std::vector<ResultadoTramo> resultados;
};

DatosTramo DatosDe(std::size_t i) {
  // Short and long runs mixed, so that they end out of order.
  return pruebas::EnCalculo(pruebas::EstadoDeMuestra(static_cast<int>(i % 7) + 1));
}

Pasada Corre(int hilos) {
  Pasada p;
  Registro registro([&](std::string_view bloque) { p.registro += bloque; });
  TareaObra tarea;
  tarea.cuantos = kTramos;
  tarea.datos = DatosDe;
  tarea.registro = &registro;
  tarea.toma = [&](std::size_t i, ResultadoTramo&& r) {
    EXPECT_EQ(i, p.resultados.size());
    p.resultados.push_back(std::move(r));
    return true;
  };
  EXPECT_TRUE(CalculaObra(tarea, hilos));
  registro.Vuelca();
  return p;
}

TEST(CalculaObra, DaLoMismoConCualquierNumeroDeHilos) {
  const auto uno = Corre(1);
  ASSERT_EQ(uno.resultados.size(), kTramos);
  ASSERT_FALSE(uno.registro.empty());
  for (const int hilos : {2, 3, 8, 200}) {
    const auto otra = Corre(hilos);
    EXPECT_EQ(otra.registro, uno.registro) << hilos;
    ASSERT_EQ(otra.resultados.size(), kTramos) << hilos;
    for (std::size_t i = 0; i < kTramos; ++i) {
      const auto& a = uno.resultados[i].filas;
      const auto& b = otra.resultados[i].filas;
      ASSERT_EQ(a.size(), b.size());
      for (std::size_t n = 0; n < a.size(); ++n) {
        EXPECT_EQ(a[n].Total, b[n].Total) << hilos << ": " << i << ", " << n;
        EXPECT_EQ(a[n].PPObtenida, b[n].PPObtenida);
      }
    }
  }
}

TEST(CalculaObra, QuienSeHartaLoParaTodoYUnErrorSaleALaCara) {
  for (const int hilos : {1, 2, 8}) {
    std::vector<bool> cancelados;
    TareaObra tarea;
    tarea.cuantos = kTramos;
    tarea.datos = DatosDe;
    tarea.toma = [&](std::size_t, ResultadoTramo&& r) {
      cancelados.push_back(r.cancelado);
      return true;
    };
    tarea.sigue = [](std::size_t i, const AvanceCorrida& a) { return i < 3 || a.caso < 2; };
    EXPECT_FALSE(CalculaObra(tarea, hilos)) << hilos;
    // The fourth is cut, or was done before its turn came and is not handed on.
    if (cancelados.size() > 3) {
      EXPECT_TRUE(cancelados.back()) << hilos;
      cancelados.pop_back();
    }
    EXPECT_EQ(cancelados, std::vector<bool>(3, false)) << hilos;
    int tomados = 0;
    tarea.sigue = {};
    tarea.datos = [](std::size_t i) -> DatosTramo {
      if (i == 5) throw std::runtime_error("no hay datos");
      return DatosDe(i);
    };
    tarea.toma = [&](std::size_t, ResultadoTramo&&) { return ++tomados > 0; };
    EXPECT_THROW(CalculaObra(tarea, hilos), std::runtime_error) << hilos;
    EXPECT_EQ(tomados, 5) << hilos;
    tarea.toma = [&](std::size_t i, ResultadoTramo&&) { return i < 2; };
    EXPECT_TRUE(CalculaObra(tarea, hilos)) << hilos;
  }
}

}  // namespace
}  // namespace zorbin
