// What the screens of results show, without them: over the sample Obra.
#include <gtest/gtest.h>

#include <cmath>
#include <future>

#include "calculo/corrida/mdCalculaTramo.h"
#include "comun/estadoDeJson.h"
#include "listados/obra/mdVeredictoCaso.h"
#include "sesion/captura/guion.h"
#include "sesion/resultados/mdCasos.h"
#include "sesion/resultados/mdDetalle.h"
#include "sesion/resultados/mdDiseno.h"
#include "sesion/resultados/mdUltimaFaena.h"

namespace zorbin::prueba {
namespace {

namespace fs = std::filesystem;

constexpr int kTramos = 7;

// The Casos of the sample Obra, and words for them.
struct Muestra : testing::Test {
  Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");
  PalabrasDibujo w{textos, {true, ','}};
  CasosObra casos = Todos();

  static CasosObra Todos() {
    std::vector<ResultadoTramo> tramos;
    for (int i = 1; i <= kTramos; ++i) {
      const auto datos = pruebas::EnCalculo(pruebas::EstadoDeMuestra(i));
      tramos.push_back(CalculaTramo(datos, RangoDe(datos)));
      tramos.back().datos.tramo.NumeroTramo = static_cast<std::int16_t>(i);
    }
    return CasosObra(std::move(tramos));
  }
};

using Casos = Muestra;

TEST(UltimaFaena, DeLoPedidoMientrasTrabajaSoloSeHaceLoUltimo) {
  std::promise<void> empezada, puede;
  std::vector<int> hechas;
  bool dejada = false;
  {
    UltimaFaena faena;
    faena.Pide([&](const UltimaFaena::Sigue& sigue) {
      empezada.set_value();
      puede.get_future().wait();
      dejada = !sigue();
    });
    empezada.get_future().wait();
    for (int i = 1; i <= 3; ++i) {
      faena.Pide([&hechas, i](const UltimaFaena::Sigue& sigue) {
        if (sigue()) hechas.push_back(i);
      });
    }
    puede.set_value();
    faena.Espera();
    EXPECT_EQ(hechas, std::vector{3});
    faena.Pide([&](const UltimaFaena::Sigue& sigue) {
      while (sigue()) std::this_thread::yield();
    });
  }  // ends although its work goes on for as long as it may
  EXPECT_TRUE(dejada);
}

TEST_F(Casos, SeOrdenanPorCualquierColumna) {
  casos.PonEnteras(casos.CalculaEnteras({}));
  for (const auto& columna : TablaColumnas()) {
    for (const bool alReves : {false, true}) {
      VistaCasos v;
      v.orden = columna.columna;
      v.alReves = alReves;
      const auto orden = Ordena(casos, v, w).value();
      ASSERT_EQ(orden.size(), casos.Cuantos());
      for (std::size_t i = 1; i < orden.size(); ++i) {
        const double antes = casos.Valor(orden[i - 1], columna.columna);
        const double luego = casos.Valor(orden[i], columna.columna);
        if (std::isnan(luego)) continue;
        ASSERT_FALSE(std::isnan(antes)) << columna.clave << ": the empty ones go last";
        ASSERT_TRUE(alReves ? luego <= antes : antes <= luego) << columna.clave;
        if (antes == luego) {
          ASSERT_LT(orden[i - 1], orden[i]) << columna.clave;
        }
      }
    }
  }
  EXPECT_FALSE(Ordena(casos, {}, w, [] { return false; }).has_value());
}

TEST_F(Casos, CadaFiltroDejaLosSuyos) {
  const auto cuantos = [&](const std::function<void(VistaCasos&)>& pon) {
    VistaCasos v;
    v.columnas = {Columna::Tramo, Columna::Rige, Columna::Veredicto};
    pon(v);
    return Ordena(casos, v, w).value().size();
  };
  EXPECT_EQ(cuantos([](auto& v) { v.tramo = 2; }), casos.Tramos()[2].filas.size());
  EXPECT_EQ(cuantos([](auto& v) { v.soloPeores = true; }), std::size_t{kTramos});
  std::size_t suma = 0;
  for (const auto x : {Veredicto::Cumple, Veredicto::NoCumple, Veredicto::SinComprobar}) {
    suma += cuantos([x](auto& v) { v.veredicto = x; });
  }
  EXPECT_EQ(suma, casos.Cuantos());
  const auto conMoviles = cuantos([](auto& v) { v.texto = "móviles"; });
  EXPECT_GT(conMoviles, 0u);
  EXPECT_LT(conMoviles, casos.Cuantos());
  EXPECT_EQ(cuantos([](auto& v) { v.texto = "MÓVILES"; }), conMoviles);
  EXPECT_EQ(cuantos([](auto& v) { v.texto = "no está"; }), 0u);
  EXPECT_LE(cuantos([](auto& v) { v.hipotesis = 4; }), conMoviles + 20);
  for (std::size_t t = 0; t < kTramos; ++t) {
    const auto* peor = CuentaDeVeredictos(casos.Tramos()[t]).peor;
    EXPECT_EQ(&casos.Fila(casos.Peor(t).value()), peor);
  }
}

TEST_F(Casos, ElTextoLlevaElSignoDecimalYSusUnidades) {
  const std::vector<Columna> columnas{Columna::Tramo, Columna::Hr, Columna::MDP, Columna::AsInt,
                                      Columna::MayorM};
  const auto texto = TextoTabulado(casos, {8}, columnas, w);
  EXPECT_EQ(texto.substr(0, texto.find('\n')), "Tramo\tHr m\tMDP MPa\tA int cm²/m\tM máx m·kN/m");
  EXPECT_EQ(texto.substr(texto.find('\n') + 1), "1\t4,00\t0,72\t28,02\t\n")
      << "a column that was not calculated is empty";
  casos.PonEnteras(casos.CalculaEnteras({}));
  const PalabrasDibujo punto(textos, {false, '.'});
  const auto mks = TextoTabulado(casos, {8}, {Columna::Hr, Columna::MDP, Columna::MayorM}, punto);
  EXPECT_EQ(mks.substr(0, mks.find('\n')), "Hr m\tMDP at\tM máx m·t/m");
  EXPECT_NE(mks.find("4.00\t7.2\t1.2"), std::string::npos) << mks;
  int preguntas = 0;
  EXPECT_EQ(casos.CalculaEnteras([&](double) { return ++preguntas < 1; }), nullptr);
}

// What is found is what can be read, whatever is kept of values that were met before.
TEST_F(Muestra, SeBuscaEnLoQueSeLee) {
  casos.PonEnteras(casos.CalculaEnteras({}));
  VistaCasos v;
  for (const auto& f : TablaColumnas()) v.columnas.push_back(f.columna);
  const auto minusculas = [](std::string texto) {
    for (char& letra : texto) {
      if (letra >= 'A' && letra <= 'Z') letra = static_cast<char>(letra - 'A' + 'a');
    }
    return texto;
  };
  std::size_t hallados = 0;
  for (const char* que : {"4", "4,1", "0,72", "-", "-0,", "mdp", "STP", "Ø", " Ø10", "· ", "✓",
                          "cumple", "ó", "1 ·", "nada de esto"}) {
    v.texto = que;
    std::vector<std::uint32_t> leidos;
    for (std::uint32_t i = 0; i < casos.Cuantos(); ++i) {
      const bool hay = std::ranges::any_of(v.columnas, [&](Columna c) {
        return minusculas(casos.Texto(i, c, w)).find(minusculas(que)) != std::string::npos;
      });
      if (hay) leidos.push_back(i);
    }
    EXPECT_EQ(Ordena(casos, v, w), leidos) << que;
    hallados += leidos.size();
  }
  EXPECT_GT(hallados, casos.Cuantos());
}

TEST_F(Muestra, LaMatrizTieneElUsoDelVeredicto) {
  for (std::size_t i = 0; i < casos.Cuantos(); ++i) {
    const auto caso = CasoConSuTramo(casos.Tramo(i), casos.Fila(i));
    double mayor = 0;
    for (const auto& fila : MatrizDe(caso->Dibujado(), w)) {
      for (const auto& celda : fila.celdas) mayor = std::max(mayor, celda.uso.value_or(0.0));
    }
    EXPECT_DOUBLE_EQ(mayor, casos.Fila(i).verificacion.uso) << i;
  }
}

TEST_F(Muestra, DosCasosSeComparanDatoPorDato) {
  const auto de = [&](std::size_t i) {
    return DetalleDe(CasoConSuTramo(casos.Tramo(i), casos.Fila(i))->Dibujado(), w);
  };
  const auto postesado = casos.Cuantos() - 1;
  for (const auto& f : Compara(de(0), de(0))) EXPECT_FALSE(f.Difiere()) << f.nombre;
  const auto filas = Compara(de(0), de(postesado));
  const auto de1 = [](const Detalle& d) {
    std::size_t n = 0;
    for (const auto& g : d) n += g.filas.size();
    return n;
  };
  std::size_t conA = 0, conB = 0;
  for (const auto& f : filas) {
    conA += f.a.empty() ? 0 : 1;
    conB += f.b.empty() ? 0 : 1;
  }
  EXPECT_EQ(conA, de1(de(0))) << "nothing is lost of either";
  EXPECT_EQ(conB, de1(de(postesado)));
}

// ---------------------------------------------------------------------------------------------

struct DisenoVivo : testing::Test {
  Carpeta carpeta;
  Banco b;
  std::shared_ptr<const Catalogo> textos = std::make_shared<const Catalogo>(b.textos);

  void SetUp() override {
    const auto obra = carpeta.ruta() / "acequia.zrb";
    fs::copy_file(ZORBIN_FUENTES "muestras/acequia.zrb", obra);
    ASSERT_TRUE(AbreObra(b.c, obra)) << b.voz.Ultimo();
    Toma(0);
  }
  void Toma(std::size_t lugar) { PonEnMano(b.c, b.c.version.tramos[lugar]->id); }
  Diseno Calcula(std::optional<SitioCaso> caso = {}) const {
    return CalculaDiseno({VersionActual(b.c), b.c.enMano, textos, &b.tablas, ',', false, caso}, {})
        .value();
  }
};

TEST_F(DisenoVivo, EsElDeLosDatosDeAhoraODicePorQueNo) {
  for (std::size_t i = 0; i < kTramos; ++i) {
    Toma(i);
    const auto d = Calcula();
    ASSERT_NE(d.caso, nullptr) << d.motivo;
    const auto datos = pruebas::EnCalculo(pruebas::EstadoDeMuestra(static_cast<int>(i) + 1));
    const auto r = CalculaTramo(datos, RangoDe(datos));
    const auto cuenta = CuentaDeVeredictos(r);
    EXPECT_DOUBLE_EQ(d.caso->fila.Total, cuenta.peor->Total);
    EXPECT_EQ(d.casos, cuenta.casos);
    EXPECT_EQ(d.veredicto, cuenta.veredicto);
  }
  Toma(0);
  const auto elegido = Calcula(SitioCaso{9.0, 4.0});
  ASSERT_NE(elegido.caso, nullptr);
  EXPECT_TRUE(elegido.elegido);
  EXPECT_DOUBLE_EQ(elegido.caso->fila.Hr, 9.0) << "one that the Tramo does not go through";
  b.c.e.tramo.Esp = 0;
  const auto nada = Calcula();
  EXPECT_EQ(nada.caso, nullptr);
  EXPECT_FALSE(nada.motivo.empty());
}

}  // namespace
}  // namespace zorbin::prueba
