// Design map: which hypothesis governs at each height and pressure, by colour and hatch, lines of
// equal steel, what does not comply, the range of the Tramo and the Caso in hand.
#pragma once

#include "calculo/mapa/mdMalla.h"
#include "listados/dibujos/mdGrafico.h"

namespace zorbin {

/// Points of the map along pressures and heights.
inline constexpr int kColumnasMapa = 60;
inline constexpr int kFilasMapa = 40;

/// The grid of the map of a Tramo.
Malla CalculaMapa(const DatosTramo& datos, const SigueMalla& sigue = {});

/// @param malla  of evenly spaced heights and pressures, two at least of each
/// @param caso   in hand, where there is one
LaminaConEjes DibujaMapa(const Malla& malla, const DatosTramo& datos, const FilaCaso* caso,
                         const PalabrasDibujo& palabras, const HojaDibujo& hoja = {});

/// Place of the grid nearest to a place of the map; none outside it.
struct PuntoDelMapa {
  std::size_t altura, presion;
};
std::optional<PuntoDelMapa> PuntoEn(const LaminaConEjes& mapa, const Malla& malla,
                                    const PalabrasDibujo& palabras, Xy sitio);

/// Lines along which the values of a grid, by rows, are `nivel`: marching squares, in columns and
/// rows of the grid. A cell with a value that is not finite has none.
std::vector<std::vector<Xy>> LineasDeNivel(const std::vector<double>& valores, std::size_t columnas,
                                           double nivel);

}  // namespace zorbin
