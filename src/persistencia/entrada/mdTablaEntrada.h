// Sheets with a row for each Tramo: what their heads mean, and the values under them.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "persistencia/entrada/mdDatosLeidos.h"

namespace zorbin {

/// A column of a table of Tramos.
struct ColumnaLeida {
  enum class Que { Nada, Numero, Dato } que = Que::Nada;
  const Dato<Tramo>* dato = nullptr;
  std::optional<bool> enSI;  // unit of its values; none: that of the Obra
  double factor = 1.0;       // to the unit of the datum
};

/// The names that a head may have: those of the data and, with a catalogue, their labels in every
/// language. A label that two data share is the name of neither.
class NombresDeDatos {
 public:
  explicit NombresDeDatos(const Catalogo* textos = nullptr);

  /// Understands a head, "Fck (MPa)". @param unidad  of the row above; empty for none
  /// @return Nada for a name of no datum; no column, with what is wrong, for a unit that is none
  std::optional<ColumnaLeida> Columna(std::string_view cabeza, std::string_view unidad,
                                      std::size_t fila, std::size_t columna, Mensaje& falta) const;

 private:
  std::map<std::string, const Dato<Tramo>*> nombres_;  // null: of two data
  std::map<std::string, bool> deNumero_;

  void Pon(std::string_view nombre, const Dato<Tramo>* dato);
};

/// Tramos of the sheets of a file, each in a row under heads that are found among the first rows:
/// of the sheet that has most of them. A sheet of the names of the data of the Obra in its first
/// column, their values in the second and their units in the third, says those.
/// @throws ErrorEntrada where no sheet has heads, or one of them a unit that is none
Entrada LeeTablas(const std::vector<Cuadro>& hojas, const Catalogo& textos);

}  // namespace zorbin
