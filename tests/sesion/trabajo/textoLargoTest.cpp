// A text made in blocks: its lines, however it is cut, and a first block that changes on the way.
#include "sesion/trabajo/mdTextoLargo.h"

#include <gtest/gtest.h>

#include <atomic>
#include <sstream>

#include "comun/textoEntero.h"
#include "sesion/captura/guion.h"

namespace zorbin::prueba {
namespace {

std::vector<std::string> Lineas(const std::string& texto) {
  std::vector<std::string> lineas(1);
  for (const char c : texto) {
    if (c == '\n') {
      lineas.emplace_back();
    } else {
      lineas.back() += c;
    }
  }
  return lineas;
}

const auto kSiempre = [] { return true; };

void EsEste(TextoLargo& largo, const std::string& texto) {
  const auto lineas = Lineas(texto);
  ASSERT_TRUE(largo.EsperaTodo(kSiempre));
  ASSERT_EQ(largo.LaCuenta().lineas, static_cast<int>(lineas.size()));
  const int ultima = static_cast<int>(lineas.size()) - 1;
  std::vector<std::string> leidas;
  for (int n = 0; n <= ultima; ++n) leidas.push_back(largo.Linea(n));
  EXPECT_EQ(leidas, lineas);
  for (const auto& [desde, hasta] : {std::pair{0, ultima}, {ultima / 3, ultima / 2}}) {
    leidas.clear();
    largo.Recorre(desde, hasta, [&](std::string_view linea) {
      leidas.emplace_back(linea);
      return true;
    });
    EXPECT_EQ(leidas, std::vector(lineas.begin() + desde, lineas.begin() + hasta + 1));
  }
}

TEST(TextoLargo, SusLineasSonLasDelTextoComoQuieraQueSeCorte) {
  std::string largo;
  for (int i = 0; i < 400; ++i) largo += std::string(static_cast<std::size_t>(i % 7), 'x') + "\n";
  for (const std::string& texto : {largo, largo + "sin fin", std::string("\n"), std::string("x"),
                                   std::string("RIÑONES\n\n  señal\n")}) {
    for (const int corte : {1, 3, 1000}) {
      TextoLargo t(std::make_unique<TextoTroceado>(texto, corte));
      EsEste(t, texto);
    }
  }
  TextoLargo t(std::make_unique<TextoTroceado>("RIÑONES\nab\n"));
  ASSERT_TRUE(t.EsperaTodo(kSiempre));
  EXPECT_EQ(t.LaCuenta().ancho, 7);
}

TEST(TextoLargo, LoQueFallaAlContarSeDiceAQuienPregunta) {
  struct Mala : TextoTroceado {
    Mala() : TextoTroceado("a\nb\nc\n", 1) {}
    std::string Bloque(std::size_t i) override {
      if (i == 2) throw std::runtime_error("roto");
      return TextoTroceado::Bloque(i);
    }
  };
  const TextoLargo t(std::make_unique<Mala>());
  EXPECT_THROW(t.EsperaTodo(kSiempre), std::runtime_error);
  EXPECT_THROW(t.EsperaBloque(3, kSiempre), std::runtime_error);
  EXPECT_THROW(t.LaCuenta(), std::runtime_error);
}

// Pressures of a Caso that are no number: the text ends its Tramo there and says so at its top, the
// calculation is cut too, and what had been counted before moves along.
TEST(TextoLargo, UnCasoQueNoSePuedeEscribirCortaSuTramo) {
  Banco b;
  ASSERT_TRUE(AbreObra(b.c, ZORBIN_FUENTES "muestras/acequia.zrb"));
  Carpeta carpeta;
  for (const std::size_t fila : {0U, 3U}) {
    auto calculo = CalculaEncargo(EncargaParaVer(b.c), {}, carpeta / "log");
    const auto sano = Lineas(Resume(calculo));
    calculo.tramos.at(1).filas.at(fila).MDP = std::nan("");
    TextoLargo largo(std::make_unique<ResumenPorBloques>(calculo));
    ASSERT_TRUE(largo.EsperaTodo(kSiempre));
    EXPECT_EQ(calculo.tramos[1].filas.size(), fila);
    ASSERT_EQ(calculo.Fallos().size(), 1U);
    std::string texto;
    for (std::size_t i = 0; i < largo.Bloques(); ++i) texto += largo.Bloque(i);
    EsEste(largo, texto);
    const auto nota = texto.find("\n** " + calculo.Fallos()[0] + " **\n\n");
    EXPECT_LT(nota, texto.find("1/   3  "));
    // One line more than before in the first block: the cause under its Tramo.
    int distintas = 0;
    while (largo.Linea(distintas) == sano[static_cast<std::size_t>(distintas)]) ++distintas;
    EXPECT_EQ(largo.Linea(distintas + 1).substr(0, 9), std::string(9, ' ')) << texto.substr(0, 900);
    EXPECT_EQ(largo.LaCuenta().delPrimero, static_cast<int>(Lineas(largo.Bloque(0)).size()) - 1);
  }
}

}  // namespace
}  // namespace zorbin::prueba
