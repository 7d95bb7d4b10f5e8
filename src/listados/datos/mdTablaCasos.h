// Tables of Casos for a spreadsheet, written row by row: nothing of them is held in memory.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "listados/datos/mdNumeroTabla.h"
#include "listados/obra/mdListado.h"

namespace zorbin {

/// What a table of an Obra says besides its Casos.
struct ObraDeTabla {
  Obra obra;
  std::vector<Columna> columnas;
};

/// A Tramo of the table.
struct TramoDeTabla {
  const ResultadoTramo& resultado;
  const Tramo& capturado;  // in the units of the Obra's system
  std::string numero;      // its text in the list
};

class TablaCasos {
 public:
  virtual ~TablaCasos() = default;
  /// @param enteras  values of the columns of the whole Caso; null where none of them is asked for
  virtual void Caso(const ResultadoTramo& tramo, const FilaCaso& fila,
                    const ValoresEnteros* enteras) = 0;
  /// A line about a Tramo, where the table has room for it.
  virtual void Tramo(const TramoDeTabla&) {}
  /// The file has its name when this returns. @throws ErrorSalida
  virtual void Termina() = 0;
};

/// Text separated by ";" with a decimal comma or by "," with a decimal point, as `estilo` has it,
/// in UTF-8 with its mark; heads with their units in one line. A text that a spreadsheet would run
/// as a formula (it begins with = + - @) has an apostrophe before it.
/// @param escribe  is handed blocks of whole lines
std::unique_ptr<TablaCasos> TablaCsv(const std::vector<Columna>& columnas,
                                     const PalabrasDibujo& palabras,
                                     std::function<void(std::string_view)> escribe);
/// The same into a file. @throws ErrorSalida
std::unique_ptr<TablaCasos> TablaCsv(const std::vector<Columna>& columnas,
                                     const PalabrasDibujo& palabras,
                                     const std::filesystem::path& fichero);

/// A workbook with a sheet of Casos, one of Tramos and one of the Obra: units above the heads, a
/// filter on them, both frozen, numbers as numbers, verdicts in colour. Casos that one sheet does
/// not hold go on in another. What it writes meanwhile lies beside the file, or where there is room
/// for it.
/// @param porHoja  rows of a sheet
/// @throws ErrorSalida, here and from each call
inline constexpr std::uint32_t kFilasDeHoja = 1'048'576;
std::unique_ptr<TablaCasos> TablaXlsx(const ObraDeTabla& obra, const PalabrasDibujo& palabras,
                                      const std::filesystem::path& fichero,
                                      std::uint32_t porHoja = kFilasDeHoja);

/// By the extension of the file: .csv or .xlsx. Null for another.
std::unique_ptr<TablaCasos> TablaPorNombre(const ObraDeTabla& obra, const PalabrasDibujo& palabras,
                                           const std::filesystem::path& fichero);
bool EsNombreDeTabla(const std::filesystem::path& fichero);

/// Writes the Tramos that a calculation hands it into a table.
class ListadoTabla : public Listado {
 public:
  /// @param capturados  Tramos by position; they outlive the listing
  ListadoTabla(TablaCasos& tabla, const std::vector<Columna>& columnas,
               const std::map<int, zorbin::Tramo>& capturados);
  bool Tramo(const ResultadoTramo& resultado, int posicion, const std::string& numero,
             const SigueListado& sigue) override;

 private:
  TablaCasos& tabla_;
  const std::map<int, zorbin::Tramo>& capturados_;
  bool enteras_;
};

/// Columns of the names of a list separated by commas, "todas" for all of them, an empty one for
/// those of the screen at first. @return none, with the name that is no column in `mala`
std::optional<std::vector<Columna>> ColumnasDeLista(std::string_view lista, std::string& mala);
/// Those names, separated by commas.
std::string NombresDeColumnas();

}  // namespace zorbin
