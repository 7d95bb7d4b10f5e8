// Axes, lines and legend of a chart.
#pragma once

#include <string>
#include <vector>

#include "listados/dibujos/mdHoja.h"

namespace zorbin {

struct EjeGrafico {
  std::string titulo;  // with its unit
  double desde = 0, hasta = 1;
  bool alReves = false;  // grows downwards, or to the left
};

struct SerieGrafico {
  std::string nombre;
  std::vector<Xy> puntos;  // values of the axes; one that is not finite breaks the line
  Tinta tinta = Tinta::Serie1;
  Patron patron = Patron::Continuo;
};

/// Where the values of two axes lie on a sheet, and which values a place of it has.
struct EjesEnLamina {
  Marco marco;  // [mm]
  EjeGrafico x, y;

  Xy P(double vx, double vy) const;
  Xy Valores(Xy p) const;
  bool Contiene(Xy p) const;
};

struct LaminaConEjes {
  Lamina lamina;
  EjesEnLamina ejes;
};

/// The values of a place of the sheet, with the titles of their axes.
std::string ValoresEn(const EjesEnLamina& ejes, Xy sitio, const PalabrasDibujo& palabras);

/// Round values (1, 2 or 5 times a power of ten apart) between two, some `cuantas` of them.
std::vector<double> Marcas(double desde, double hasta, int cuantas);

/// Decimals that tell such values apart.
int DecimalesDe(const std::vector<double>& marcas);

/// Widened to its next round values.
EjeGrafico EjeRedondo(std::string titulo, double minimo, double maximo);

/// Paper that the figures and titles of two axes take at the left of and below the plot [mm].
inline constexpr double kMargenEjeY = 17.0;
inline constexpr double kMargenEjeX = 12.0;

/// Grid, ticks and titles round `ejes.marco`.
void PintaEjes(Plano& plano, const EjesEnLamina& ejes, const PalabrasDibujo& palabras,
               bool rejilla = true);

void PintaSeries(Plano& plano, const EjesEnLamina& ejes, const std::vector<SerieGrafico>& series);

/// One entry under another. @param sitio  of its first line
void PintaLeyendaSeries(Plano& plano, Xy sitio, const std::vector<SerieGrafico>& series);

/// Width of the legend [mm].
double AnchoLeyenda(const std::vector<SerieGrafico>& series);

/// A whole chart.
LaminaConEjes DibujaGrafico(const std::string& titulo, const std::string& subtitulo,
                            const EjeGrafico& x, const EjeGrafico& y,
                            const std::vector<SerieGrafico>& series, const PalabrasDibujo& palabras,
                            const HojaDibujo& hoja);

}  // namespace zorbin
