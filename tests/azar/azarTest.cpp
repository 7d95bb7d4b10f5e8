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

// The numbers of a real pipe fit in their columns and the lines on the paper.
void CabeEnSusColumnas(const Final& f, const std::string& nombre) {
  constexpr int kColumnasDelPapel = 99;  // size 10 on an upright A4
  EXPECT_LE(f.largo, kColumnasDelPapel) << nombre;
  EXPECT_EQ(f.pegados, "") << nombre;
}

class AzarDe : public testing::TestWithParam<Clase> {
 protected:
  // Runs every Tramo that `prepara` leaves in, and holds it to the oracle.
  template <class Prepara>
  void Recorre(const std::string& titulo, const Catalogo& textos, Prepara prepara) {
    int quejas = 0;
    for (int i = Desde(); i < Desde() + Cuantos() && quejas < kMaxQuejas; ++i) {
      const auto nombre = std::string(NombreDe(GetParam())) + " " + std::to_string(i);
      const Vigilante vigilante(nombre + ", " + titulo);
      reloj_.Mide(nombre, [&] {
        auto e = EstadoAlAzar(GetParam(), i);
        const auto datos = Datos(e);
        if (!prepara(e)) return;
        const auto f = Corre(e, textos, i % 4 == 0 ? Lectura::Todo : Lectura::Resultados);
        Anota(f, nombre);
        if (f.quejas.empty()) return;
        ++quejas;
        ADD_FAILURE() << nombre << ": " << f.quejas << '\n' << datos;
      });
    }
    cuenta_.Imprime(std::string(NombreDe(GetParam())) + ", " + titulo + "; peor " + reloj_.Peor() +
                    ", " + std::to_string(vueltas_) + " vueltas");
  }

  Cuenta cuenta_;
  int fallos_ = 0;  // runs without a result

 private:
  static constexpr int kMaxQuejas = 10;
  Reloj reloj_;
  std::int64_t vueltas_ = 0;

  void Anota(const Final& f, const std::string& nombre) {
    cuenta_.Suma(f);
    if (!f.Exito()) ++fallos_;
    vueltas_ = std::max(vueltas_, f.vueltas);
    if (GetParam() == Clase::Plausible) CabeEnSusColumnas(f, nombre);
  }
};

// The stored numbers as they are.
TEST_P(AzarDe, SinValidar) {
  Recorre("sin validar", Textos(), [](EstadoCalculo&) { return true; });
}

// Through the rules of the capture first, as `calcula` does. A real pipe that they let pass is
// calculated.
TEST_P(AzarDe, ComoCalcula) {
  Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");
  Capturador capturador(textos);
  Recorre("por la captura", textos, [&](EstadoCalculo& e) {
    const auto falta = capturador.Valida(e);
    if (!falta) return true;
    cuenta_.Suma("rechazados por la captura");
    EXPECT_FALSE(falta->mensaje.empty());
    return false;
  });
  if (GetParam() == Clase::Plausible) {
    EXPECT_EQ(fallos_, 0);
  }
}

INSTANTIATE_TEST_SUITE_P(Clases, AzarDe, testing::ValuesIn(kClases),
                         [](const auto& p) { return std::string(NombreDe(p.param)); });

}  // namespace
}  // namespace zorbin::pruebas
