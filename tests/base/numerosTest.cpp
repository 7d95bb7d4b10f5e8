#include "base/mdNumeros.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/aritmetica.h"
#include "base/mdRegistro.h"
#include "base/textos.h"

namespace zorbin {
namespace {

TEST(Numeros, RedondeanPorSusCifrasDecimales) {
  struct Fila {
    double valor;
    int decimales;
    const char* texto;
  };
  for (const auto& f :
       {Fila{0.125, 2, "0,13"}, Fila{2.675, 2, "2,68"}, Fila{-2.675, 2, "-2,68"},
        Fila{1.005, 2, "1,01"}, Fila{0.5, 0, "1"}, Fila{0.49, 0, "0"}, Fila{-0.4, 0, "0"},
        Fila{-0.0, 2, "0,00"}, Fila{0.0004, 3, "0,000"}, Fila{0.0005, 3, "0,001"},
        Fila{9.995, 2, "10,00"}, Fila{99999.5, 0, "100000"},
        Fila{1e21, 1, "1000000000000000000000,0"}, Fila{1.5e-9, 2, "0,00"},
        Fila{123456.789, 1, "123456,8"}, Fila{0.1 + 0.2, 17, "0,30000000000000004"}}) {
    EXPECT_EQ(TextoDecimal(f.valor, f.decimales, ','), f.texto) << f.valor;
  }
  EXPECT_THROW(TextoDecimal(std::numeric_limits<double>::infinity(), 1, ','), ErrorEjecucion);
  EXPECT_THROW(TextoDecimal(std::numeric_limits<double>::quiet_NaN(), 1, ','), ErrorEjecucion);
}

TEST(Numeros, Mascaras) {
  EXPECT_EQ(FormatoMascara(7.0, "#####0.00", '.'), "7.00");
  EXPECT_EQ(FormatoMascara(-0.001, "#####0.00", '.'), "0.00");
  EXPECT_EQ(FormatoMascara(21.5, "#######0", '.'), "22");
  EXPECT_EQ(FormatoMascara(-3.2, "##00.0", ','), "-03,2");
}

TEST(Numeros, LeeLoQueEscribeUnaPersonaYNadaMas) {
  const std::vector<std::pair<const char*, double>> buenos{
      {"12,5", 12.5}, {"12.5", 12.5}, {" 1 200,5 ", 1200.5}, {"", 0.0},   {"   ", 0.0},
      {"-0", 0.0},    {"+3", 3.0},    {",5", 0.5},           {"5.", 5.0}, {"-.25", -0.25}};
  for (const auto& [texto, valor] : buenos) {
    ASSERT_TRUE(NumeroTexto(texto)) << texto;
    EXPECT_EQ(*NumeroTexto(texto), valor) << texto;
    EXPECT_FALSE(std::signbit(*NumeroTexto(texto)) && valor == 0.0) << texto;
  }
  for (const char* malo : {"a", "1a", "1,2,3", "1.200,5", "1e5", "--1", "+-1", "1-", ".", "-", "+",
                           "inf", "nan", "0x10", "1\t2", "\xC3\xB1"}) {
    EXPECT_FALSE(NumeroTexto(malo)) << malo;
  }
  EXPECT_FALSE(NumeroTexto(std::string(400, '9')));
}

// What people read in two ways is refused with both readings, whichever separator is in force.
TEST(Numeros, LoTecleadoSeLeeDeUnaSolaManera) {
  struct Fila {
    const char* texto;
    char separador;
    double valor;
  };
  for (const auto& f :
       {Fila{"1.5", ',', 1.5}, Fila{"1,5", '.', 1.5}, Fila{"0.144", ',', 0.144},
        Fila{"0,144", '.', 0.144}, Fila{"-.500", ',', -0.5}, Fila{"1,200", ',', 1.2},
        Fila{"210.000", '.', 210}, Fila{"1.2000", ',', 1.2}, Fila{"1234.567", ',', 1234.567},
        Fila{"210\u202F000", ',', 210000}, Fila{" 12 345,5\t", '.', 12345.5}, Fila{"", ',', 0}}) {
    EXPECT_EQ(NumeroTecleado(f.texto, f.separador).valor, f.valor) << f.texto;
  }
  struct Mala {
    const char* texto;
    char separador;
    int falta;
    std::vector<std::string> lecturas;
  };
  for (const auto& m :
       std::vector<Mala>{{"1.200", ',', txt::NumeroAmbiguo, {"1.200", "1,200", "1200"}},
                         {"210.000", ',', txt::NumeroAmbiguo, {"210.000", "210,000", "210000"}},
                         {"-1,200", '.', txt::NumeroAmbiguo, {"-1,200", "-1.200", "-1200"}},
                         {"1.234,5", ',', txt::NumeroConDosSeparadores, {"1.234,5"}},
                         {"1,234,567", '.', txt::NumeroConDosSeparadores, {"1,234,567"}},
                         {"1/2", ',', txt::NoEsValorNumerico, {}},
                         {"abc", ',', txt::NoEsValorNumerico, {}}}) {
    const auto leido = NumeroTecleado(m.texto, m.separador);
    EXPECT_FALSE(leido.valor) << m.texto;
    EXPECT_EQ(leido.falta.texto, m.falta) << m.texto;
    EXPECT_EQ(leido.falta.datos, m.lecturas) << m.texto;
  }
}

TEST(Aritmetica, PareDondeElMetodoPara) {
  EXPECT_EQ(I16(2.5), 2);
  EXPECT_EQ(I16(3.5), 4);
  EXPECT_EQ(I16(-2.5), -2);
  EXPECT_EQ(I16(32767.4), 32767);
  EXPECT_THROW(I16(32767.6), ErrorEjecucion);
  EXPECT_THROW(I16(std::numeric_limits<double>::quiet_NaN()), ErrorEjecucion);
  EXPECT_THROW(Suma16(32767, 1), ErrorEjecucion);
  EXPECT_THROW(Div(1.0, 0.0), ErrorEjecucion);
  EXPECT_THROW(Div(0.0, 0.0), ErrorEjecucion);
  EXPECT_THROW(Div(1e300, 1e-300), ErrorEjecucion);
}

TEST(Registro, VuelcaEnBloquesSinPerderNada) {
  std::string todo;
  int veces = 0;
  Registro r([&](std::string_view bloque) {
    todo += bloque;
    ++veces;
  });
  for (int i = 0; i < 10000; ++i) {
    r << "abc" << 0.1 << i;
    r.FinLinea();
  }
  r.Vuelca();
  EXPECT_EQ(std::count(todo.begin(), todo.end(), '\n'), 10000);
  EXPECT_EQ(todo.substr(0, 18), "abc 0.1 0\nabc 0.1 ");
  EXPECT_LT(veces, 10);
}

}  // namespace
}  // namespace zorbin
