// The cage of a pipe unrolled: its circumference from left to right, a metre of pipe from top to
// bottom, with every spiral at its slope and every longitudinal bar.
#pragma once

#include "calculo/mediciones/mdMediciones.h"
#include "listados/dibujos/mdHoja.h"

namespace zorbin {

/// Layer of the bill with the number that the sheet gives it.
struct CapaMarcada {
  int marca = 0;
  const CapaMedida* capa = nullptr;
};

/// Layers that lie together: sheet and inner spirals, outer spirals, or the wire.
struct Jaula {
  std::string titulo;
  std::vector<CapaMarcada> capas;

  /// Circumference of its axis [mm].
  double Desarrollo() const;
};

/// Length of pipe that is unrolled [mm].
inline constexpr double kLargoDesarrollo = 1000.0;

/// Where the circumference is that long: the largest round scale that fits a place.
double EscalaDesarrollo(double desarrollo, const Marco& sitio);

void PintaDesarrollo(Plano& plano, const Marco& sitio, double escala, const Jaula& jaula,
                     const PalabrasDibujo& palabras);

/// Layer of the drawing, and ink, of an item of the bill.
Capa CapaDe(Partida partida, bool exterior);
Tinta TintaDe(Partida partida);

}  // namespace zorbin
