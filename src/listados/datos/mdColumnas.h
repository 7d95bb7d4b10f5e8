// The columns of the table of Casos: what each shows, in which unit, and by what it is sorted.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/resultado.h"
#include "listados/dibujos/mdHoja.h"

namespace zorbin {

inline constexpr std::string_view kPresion = "at->MPa";
inline constexpr std::string_view kTension = "Kp/cm2->MPa";
inline constexpr std::string_view kCarga = "T/M2->kN/M2";
inline constexpr std::string_view kMomento = "mT->mkN";
inline constexpr std::string_view kFuerza = "T->kN";

enum class Columna : std::uint8_t {
  Tramo,
  Descripcion,
  Di,
  Esp,
  Hr,
  DP,
  MDP,
  STP,
  PP,
  Q,
  Rige,
  Veredicto,
  Uso,
  AsInt,
  AsExt,
  Total,
  Camisa,
  Interior,
  Exterior,
  PPObtenida,
  Ajustado,
  // Of the whole Caso
  MayorM,
  MenorM,
  MayorN,
  MenorN,
  Fisuracion,
  Brazo,
  TensionResidual,
  Agotamiento,
  PresionPrimario,
};
inline constexpr int kColumnas = static_cast<int>(Columna::PresionPrimario) + 1;
inline constexpr int kPrimeraEntera = static_cast<int>(Columna::MayorM);
inline constexpr int kEnteras = kColumnas - kPrimeraEntera;

constexpr bool EsEntera(Columna c) {
  return static_cast<int>(c) >= kPrimeraEntera;
}

struct FilaColumna {
  Columna columna;
  const char* clave;            // in the settings
  const char* simbolo;          // its head, null for one of the catalogue
  int titulo;                   // entry of the catalogue
  std::string_view conversion;  // of its values; empty for none
  const char* unidad;           // of a column without conversion; of one with it, what follows
  int decimales;
  bool numero;       // shown as its value; the others have words
  bool alPrincipio;  // shown at first
};

std::span<const FilaColumna> TablaColumnas();
const FilaColumna& De(Columna c);
std::optional<Columna> ColumnaPorClave(std::string_view clave);

/// Title with its unit.
std::string Cabeza(Columna c, const PalabrasDibujo& palabras);
/// Title alone, for a list of columns.
std::string Titulo(Columna c, const PalabrasDibujo& palabras);
/// Unit alone; empty for none.
std::string UnidadDe(Columna c, const PalabrasDibujo& palabras);

/// Value by which a column is sorted, in calculation units; not a number where there is none.
/// @param c  a column of the row
double ValorDe(Columna c, const ResultadoTramo& tramo, const FilaCaso& fila);

/// Values of the columns of the whole Caso.
using ValoresEnteros = std::array<double, kEnteras>;
ValoresEnteros EnterosDe(const ResultadoTramo& tramo, const FilaCaso& fila);

/// A value as its column shows it; empty where there is none.
std::string TextoNumero(Columna c, double valor, const PalabrasDibujo& palabras);
/// What a column of words shows.
std::string TextoPalabra(Columna c, const ResultadoTramo& tramo, const FilaCaso& fila,
                         const PalabrasDibujo& palabras);

}  // namespace zorbin
