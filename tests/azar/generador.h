// Tramos by chance, the same on every machine: plausible pipes, pipes of impossible data, and
// plausible ones with one to three impossible data.
#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <string>

#include "comun/campos.h"

namespace zorbin::pruebas {

/// A source of chance. The distributions are its own: those of the library differ between
/// machines, the generator does not.
class Azar {
 public:
  explicit Azar(std::uint64_t semilla) : motor_(semilla) {}

  std::uint64_t Bits() { return motor_(); }
  /// An integer from a to b.
  int Entre(int a, int b);
  /// A number from a to b.
  double Real(double a, double b);
  /// A number from 10^a to 10^b, each power alike.
  double Magnitud(int a, int b);
  bool Toca(double probabilidad) { return Real(0, 1) < probabilidad; }
  template <class T, std::size_t N>
  const T& Uno(const std::array<T, N>& de) {
    return de[static_cast<std::size_t>(Entre(0, static_cast<int>(N) - 1))];
  }

 private:
  std::mt19937_64 motor_;
};

enum class Clase { Plausible, Estropeado, Disparatado };
inline constexpr std::array kClases{Clase::Plausible, Clase::Estropeado, Clase::Disparatado};
const char* NombreDe(Clase clase);

/// The Tramo with an index, with an Obra of its own, in capture units.
EstadoCalculo EstadoAlAzar(Clase clase, int indice);

/// A plausible Tramo as it is typed in a unit system: the same decimal figures in both.
EstadoCalculo PlausibleEn(int indice, bool si);

/// A number that no pipe has, within what a file may hold (1e12), and a code out of any list.
double NumeroImposible(Azar& azar);
std::int16_t CodigoImposible(Azar& azar);
/// What a person's hand may type into a field: keys of a number, and some that are of none.
std::string TextoImposible(Azar& azar);

/// What differs in the captured data of two states, bit by bit; empty for nothing.
std::string Diferencias(const EstadoCalculo& a, const EstadoCalculo& b);

/// The captured data in one line.
std::string Datos(const EstadoCalculo& e);

}  // namespace zorbin::pruebas
