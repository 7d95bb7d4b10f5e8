// Random data against the promise of the arithmetic: finite results or a named failure, in bounded
// time, whatever the data. ZORBIN_AZAR_N says how many of each class (some thousand by default),
// ZORBIN_AZAR_DESDE the first index; to repeat one, ZORBIN_AZAR_DESDE=index ZORBIN_AZAR_N=1.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "azar/generador.h"
#include "azar/oraculo.h"
#include "core/mdUnidades.h"

namespace zorbin::pruebas {
namespace {

const Catalogo& Textos() {
  static const Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");
  return textos;
}

// Longest runs, to see that time is bounded.
class Reloj {
 public:
  template <class F>
  void Mide(const std::string& que, F f) {
    const auto antes = std::chrono::steady_clock::now();
    f();
    const std::chrono::duration<double> d = std::chrono::steady_clock::now() - antes;
    if (d.count() > peor_) peor_ = d.count(), quien_ = que;
  }
  std::string Peor() const { return quien_ + " " + std::to_string(peor_) + " s"; }

 private:
  double peor_ = 0;
  std::string quien_;
};

std::string Nombre(Clase clase, int i) {
  return std::string(NombreDe(clase)) + " " + std::to_string(i);
}

// The numbers of a real pipe fit in their columns and the lines on the paper.
void CabeEnSusColumnas(const Final& f, const std::string& nombre) {
  constexpr int kColumnasDelPapel = 99;  // size 10 on an upright A4
  EXPECT_LE(f.largo, kColumnasDelPapel) << nombre;
  EXPECT_EQ(f.pegados, "") << nombre;
}

class AzarDe : public testing::TestWithParam<Clase> {};

// The stored numbers as they are.
TEST_P(AzarDe, SinValidar) {
  Cuenta cuenta;
  Reloj reloj;
  int quejas = 0;
  std::int64_t vueltas = 0;
  for (int i = Desde(); i < Desde() + Cuantos() && quejas < 10; ++i) {
    const auto nombre = Nombre(GetParam(), i);
    const Vigilante vigilante(nombre);
    reloj.Mide(nombre, [&] {
      auto e = EstadoAlAzar(GetParam(), i);
      const auto datos = Datos(e);
      const auto f = Corre(e, Textos(), i % 4 == 0 ? Lectura::Todo : Lectura::Resultados);
      cuenta.Suma(f);
      vueltas = std::max(vueltas, f.vueltas);
      if (GetParam() == Clase::Plausible) CabeEnSusColumnas(f, nombre);
      if (f.quejas.empty()) return;
      ++quejas;
      ADD_FAILURE() << nombre << ": " << f.quejas << '\n' << datos;
    });
  }
  cuenta.Imprime(std::string(NombreDe(GetParam())) + ", sin validar; peor " + reloj.Peor() + ", " +
                 std::to_string(vueltas) + " vueltas");
}

// Through the rules of the capture first, as `calcula` does.
TEST_P(AzarDe, ComoCalcula) {
  Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");
  Capturador capturador(textos);
  Cuenta cuenta;
  Reloj reloj;
  int quejas = 0;
  std::int64_t vueltas = 0;
  for (int i = Desde(); i < Desde() + Cuantos() && quejas < 10; ++i) {
    const auto nombre = Nombre(GetParam(), i);
    const Vigilante vigilante(nombre + ", validado");
    reloj.Mide(nombre, [&] {
      auto e = EstadoAlAzar(GetParam(), i);
      const auto datos = Datos(e);
      if (const auto falta = capturador.Valida(e)) {
        cuenta.Suma("rechazados por la captura");
        EXPECT_FALSE(falta->mensaje.empty()) << nombre;
        return;
      }
      const auto f = Corre(e, textos, i % 4 == 0 ? Lectura::Todo : Lectura::Resultados);
      cuenta.Suma(f);
      vueltas = std::max(vueltas, f.vueltas);
      if (GetParam() == Clase::Plausible) CabeEnSusColumnas(f, nombre);
      if (f.quejas.empty()) return;
      ++quejas;
      ADD_FAILURE() << nombre << ": " << f.quejas << '\n' << datos;
    });
  }
  cuenta.Imprime(std::string(NombreDe(GetParam())) + ", por la captura; peor " + reloj.Peor() +
                 ", " + std::to_string(vueltas) + " vueltas");
}

INSTANTIATE_TEST_SUITE_P(Clases, AzarDe, testing::ValuesIn(kClases),
                         [](const auto& p) { return std::string(NombreDe(p.param)); });

}  // namespace
}  // namespace zorbin::pruebas
