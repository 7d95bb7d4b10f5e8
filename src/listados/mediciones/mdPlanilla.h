// A table of words and numbers that leaves the program as text, CSV or a sheet of a workbook, and
// that a report sets on its pages.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zorbin {

struct CeldaPlanilla {
  std::string texto;
  std::optional<double> numero;  // in place of the text
  int decimales = 0;

  static CeldaPlanilla Palabra(std::string texto) { return {std::move(texto), {}, 0}; }
  static CeldaPlanilla Numero(double valor, int decimales) { return {{}, valor, decimales}; }
};

struct ColumnaPlanilla {
  std::string titulo;
  std::string unidad;  // empty for none
  bool numeros = false;
};

struct FilaPlanilla {
  std::vector<CeldaPlanilla> celdas;
  bool total = false;  // stands out from the others
};

struct Planilla {
  std::string titulo;
  std::vector<ColumnaPlanilla> columnas;
  std::vector<FilaPlanilla> filas;
  std::vector<std::string> notas;
};

/// @return the cell as it is written
std::string Mostrada(const CeldaPlanilla& celda, char separador);

/// Columns in line, titles and units above, notes below.
std::string TextoDePlanilla(const Planilla& p, char separador);

/// All of them one below the other, in UTF-8 with its mark. A text that a spreadsheet would run as
/// a formula has an apostrophe before it.
/// @param separador  decimal; with a comma the columns are separated by ";", with a point by ","
std::string CsvDePlanillas(const std::vector<Planilla>& planillas, char separador);

/// A sheet for each. @throws ErrorSalida
void EscribeXlsx(const std::filesystem::path& fichero, const std::vector<Planilla>& planillas);

}  // namespace zorbin
