#include "base/mdNumeros.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/aritmetica.h"
#include "base/mdRegistro.h"

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
