// Arrays that count from 1, as the method does, and refuse an index outside them.
#pragma once

#include <array>
#include <cstddef>

#include "base/aritmetica.h"

namespace zorbin {

/// N values, (1) to (N).
template <class T, int N>
struct Lista {
  std::array<T, static_cast<std::size_t>(N)> v{};

  constexpr T& operator()(int i) { return v[Indice(i)]; }
  constexpr const T& operator()(int i) const { return v[Indice(i)]; }

 private:
  static constexpr std::size_t Indice(int i) {
    if (i < 1 || i > N) throw ErrorEjecucion(CausaError::Subindice);
    return static_cast<std::size_t>(i - 1);
  }
};

/// N rows of M values, (1, 1) to (N, M).
template <class T, int N, int M>
struct Tabla {
  Lista<Lista<T, M>, N> filas;

  constexpr T& operator()(int i, int j) { return filas(i)(j); }
  constexpr const T& operator()(int i, int j) const { return filas(i)(j); }
};

/// Control sections of the ring.
enum Seccion : int { CLAVE = 1, RINONES = 2, SOLERA = 3 };
inline constexpr int kSecciones = 3;

}  // namespace zorbin
