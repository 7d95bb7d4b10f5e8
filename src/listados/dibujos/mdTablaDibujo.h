// Tables, lists of data and paragraphs on a sheet.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "listados/dibujos/mdHoja.h"

namespace zorbin {

struct ColumnaTabla {
  std::string titulo;
  double ancho = 0;  // [mm]
  AnclaX ancla = AnclaX::Derecha;
};

struct FilaTabla {
  std::vector<std::string> celdas;
  bool negrita = false;
};

/// A head, a line for each row and a frame. What does not fit its column is cut with an ellipsis.
/// @return under it [mm]
double PintaTabla(Plano& plano, Xy sitio, const std::vector<ColumnaTabla>& columnas,
                  const std::vector<FilaTabla>& filas);

using DatoFicha = std::pair<std::string, std::string>;  // what it is, and its value

/// A title over a rule, and under it data with their values at the right.
/// @return under it [mm]
double PintaFicha(Plano& plano, Xy sitio, double ancho, const std::string& titulo,
                  const std::vector<DatoFicha>& datos);

/// In as many lines as it needs. @return under it [mm]
double PintaParrafo(Plano& plano, Xy sitio, double ancho, const std::string& texto);

/// Lines of a text no wider than `ancho` [mm], broken at its blanks.
std::vector<std::string> EnLineas(const std::string& texto, double ancho, double alto);

/// Number in a circle, with a line to what it names.
void PintaMarca(Plano& plano, Xy sitio, int numero, Xy cosa);

}  // namespace zorbin
