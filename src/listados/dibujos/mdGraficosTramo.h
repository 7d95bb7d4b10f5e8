// Charts of a Tramo: steel, governing moments and loads against the fill height or the pressure,
// and the stresses through the wall of a post-tensioned Caso.
#pragma once

#include "calculo/mapa/mdMalla.h"
#include "listados/dibujos/mdGrafico.h"

namespace zorbin {

enum class QueGrafico : std::uint8_t { Acero, Interior, Exterior, Momentos, Cargas, Tensiones };

/// Along which of the two the chart runs; each value of the other is a line.
enum class EjeDeGrafico : std::uint8_t { Altura, Presion };

/// With its unit.
std::string TituloEje(EjeDeGrafico eje, const PalabrasDibujo& palabras);

/// Most lines of a chart: more are not told apart.
inline constexpr std::size_t kMaxLineas = 6;

/// The grid that such a chart is drawn from: along its axis round about the range of the Tramo, and
/// of the other values those of the Tramo.
EjesMalla EjesDelGrafico(const DatosTramo& datos, EjeDeGrafico eje, int puntos = 60);

/// @param que    any but Tensiones; Momentos needs the moments of the grid
/// @param malla  of EjesDelGrafico, or any other of few lines
LaminaConEjes DibujaGraficoTramo(QueGrafico que, EjeDeGrafico eje, const DatosTramo& datos,
                                 const Malla& malla, const PalabrasDibujo& palabras,
                                 const HojaDibujo& hoja = {});

/// Stress through the wall of a post-tensioned Caso under a hypothesis, one line for each section,
/// and the limits. @return no lines where the verification did not get to the hypothesis
LaminaConEjes DibujaTensiones(const CasoDibujado& caso, int hipotesis,
                              const PalabrasDibujo& palabras, const HojaDibujo& hoja = {});

}  // namespace zorbin
