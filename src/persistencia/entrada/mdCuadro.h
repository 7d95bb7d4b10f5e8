// A sheet of cells as a file has it, before anyone knows what they mean.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/mdCatalogo.h"

namespace zorbin {

inline constexpr std::size_t kMaxEntrada = std::size_t{32} << 20;  // bytes of a file that is read
inline constexpr std::size_t kMaxFilasEntrada = 20'000;
inline constexpr std::size_t kMaxColumnasEntrada = 1'000;
inline constexpr std::size_t kMaxCeldas = 400'000;
inline constexpr std::size_t kMaxTextoCelda = 32'767;  // bytes

/// What cannot be read of a file, and in which cell where it is known.
class ErrorEntrada : public std::runtime_error {
 public:
  explicit ErrorEntrada(Mensaje mensaje)
      : std::runtime_error("entrada"), mensaje_(std::move(mensaje)) {}
  const Mensaje& mensaje() const { return mensaje_; }

 private:
  Mensaje mensaje_;
};

enum class ClaseCelda { Texto, Numero, Marca, Error };

/// A number of the file is kept as one: no separator plays a part in it.
struct CeldaLeida {
  std::string texto;  // as the file has it
  double numero = 0;  // of a mark, 1 or 0
  ClaseCelda clase = ClaseCelda::Texto;

  bool Vacia() const { return clase == ClaseCelda::Texto && texto.empty(); }
};

struct Cuadro {
  std::string nombre;  // of the sheet; empty for a text
  char decimal = ',';  // of the numbers that are texts
  std::vector<std::vector<CeldaLeida>> filas;

  /// Puts a cell in its place, both from 0. @throws ErrorEntrada where there are too many
  void Pon(std::size_t fila, std::size_t columna, CeldaLeida celda);

 private:
  std::size_t celdas_ = 0;
};

/// What a message shows of a text of the file.
std::string Visto(std::string_view texto);

/// Name of a cell as spreadsheets have it, both from 0: "B3".
std::string NombreCelda(std::size_t fila, std::size_t columna);

}  // namespace zorbin
