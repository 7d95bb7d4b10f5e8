// Printed lines as data: what a calculator puts on paper, in "Courier New", portrait.
#pragma once

#include <string>
#include <vector>

namespace zorbin {

inline constexpr int kTamanoRenglon = 10;   // font size [pt]
inline constexpr int kLineasCabecera = 4;   // blank lines at the head of the first page
inline constexpr int kMargenRenglon = 20;   // left margin of the texts [columns]

struct Renglon {
  int lineasAntes = 0;  // blank lines before it
  int margen = 0;       // [columns]
  std::string texto;
  bool negrita = false;
  int tamano = kTamanoRenglon;
};

/// Collects the lines of a document in order.
class Renglones {
 public:
  void EnBlanco(int lineas) { blancas_ += lineas; }
  void Linea(int margen, std::string texto, bool negrita = false);

  /// The document. Blank lines at its end become a last, empty line.
  std::vector<Renglon> Cierra();

 private:
  std::vector<Renglon> renglones_;
  int blancas_ = 0;
};

}  // namespace zorbin
