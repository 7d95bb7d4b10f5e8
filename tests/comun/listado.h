// Runs, and listings of them on text pages for golden files.
#pragma once

#include <string>
#include <vector>

#include "calculo/corrida/mdCalculaTramo.h"
#include "core/estado_calculo.h"
#include "listados/papel/mdPapel.h"

namespace zorbin::pruebas {

/// The run of the Tramo of a state, which holds capture units.
ResultadoTramo ResultadoDe(const EstadoCalculo& e, std::vector<EntradaAjuste> ajustes = {});

/// Runs the states one after another, as the Tramos of one document, and prints them.
/// @param clase   "normal", "tabular", "pantalla" or "lame"
/// @param idioma  1 to 5
std::string ListadoDe(const std::vector<EstadoCalculo>& tramos, const std::string& clase,
                      std::int16_t idioma = 1, char separador = ',',
                      const std::vector<EntradaAjuste>& ajustes = {});

/// The same, as the sheets that a painter would take.
std::vector<Hoja> HojasDe(const std::vector<EstadoCalculo>& tramos, const std::string& clase,
                          std::int16_t idioma = 1, char separador = ',');

}  // namespace zorbin::pruebas
