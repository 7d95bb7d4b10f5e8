// All that a run knows of a Caso, in groups of named values; and two of them side by side.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "listados/dibujos/mdHoja.h"

namespace zorbin {

struct FilaDetalle {
  std::string nombre;
  std::string valor;  // with its unit
};
struct GrupoDetalle {
  std::string titulo;
  std::vector<FilaDetalle> filas;
};
using Detalle = std::vector<GrupoDetalle>;

Detalle DetalleDe(const CasoDibujado& caso, const PalabrasDibujo& palabras);

/// A value of two Casos; empty where one of them has none of that name.
struct FilaComparada {
  std::string grupo, nombre, a, b;

  bool Difiere() const { return a != b; }
};
/// Groups and names in the order of the first, those of the second alone after them.
std::vector<FilaComparada> Compara(const Detalle& a, const Detalle& b);

// ---- Checks

/// Columns of the matrix: inner and outer face of crown, haunches and invert, and what is of none.
inline constexpr int kColumnasMatriz = 2 * kSecciones + 1;

struct CeldaMatriz {
  std::optional<double> uso;  // the greatest of its checks; none where there is no check [-]
  std::vector<std::string> comprobaciones;  // in words, as the checks come
};
struct FilaMatriz {
  int hipotesis = 0;  // 0: checks of none
  std::array<CeldaMatriz, kColumnasMatriz> celdas;
};

/// The checks of a Caso by hypothesis, section and face. Rows without checks are left out.
std::vector<FilaMatriz> MatrizDe(const CasoDibujado& caso, const PalabrasDibujo& palabras);

/// Head of a column of the matrix.
std::string CabezaMatriz(int columna, const PalabrasDibujo& palabras);

/// A use as it is shown; an infinite one too.
std::string TextoUso(double uso, const PalabrasDibujo& palabras);

}  // namespace zorbin
