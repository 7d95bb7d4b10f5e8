// Order and extremes of short lists.
#pragma once

#include <algorithm>

#include "base/tablas.h"

namespace zorbin {

/// Largest of three; a tie keeps the earlier.
inline double Max3(double a, double b, double c) {
  return std::max({a, b, c});
}
inline double Max3(const Lista<double, 3>& v) {
  return Max3(v(1), v(2), v(3));
}

/// Smallest of four; a tie keeps the earlier.
inline double Min4(double a, double b, double c, double d) {
  return std::min({a, b, c, d});
}

/// Sorts `v` upwards by selection, moving each smallest into place; of two equal values the one
/// that started later goes first.
/// @return the starting position of each value in its new order
template <int N>
Lista<int, N> OrdenaConIndice(Lista<double, N>& v) {
  Lista<int, N> posicion;
  for (int i = 1; i <= N; ++i) posicion(i) = i;
  for (int i = 1; i < N; ++i) {
    int menor = i;
    for (int j = i + 1; j <= N; ++j) {
      if (v(j) <= v(menor)) menor = j;
    }
    std::rotate(v.v.begin() + (i - 1), v.v.begin() + (menor - 1), v.v.begin() + menor);
    std::rotate(posicion.v.begin() + (i - 1), posicion.v.begin() + (menor - 1),
                posicion.v.begin() + menor);
  }
  return posicion;
}

}  // namespace zorbin
