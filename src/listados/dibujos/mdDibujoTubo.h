// The pipe: its cross section on its bed with the reinforcement, and a cut along its wall where
// every bar stands, all to scale.
#pragma once

#include "listados/dibujos/mdHoja.h"

namespace zorbin {

/// Section of the pipe and of its wall. The given scale is that of the cross section.
Lamina DibujaSeccion(const CasoDibujado& caso, const PalabrasDibujo& palabras,
                     const HojaDibujo& hoja = {});

/// The cross section, or the wall, alone: for a panel that has its own words.
Lamina DibujaTransversal(const CasoDibujado& caso, const PalabrasDibujo& palabras,
                         const HojaDibujo& hoja = {});
Lamina DibujaPared(const CasoDibujado& caso, const PalabrasDibujo& palabras,
                   const HojaDibujo& hoja = {});

/// Section of the pipe and of its wall from its data alone, without the steel that a run finds.
/// Data that make no pipe leave an empty frame.
/// @param t  in calculation units
Lamina DibujaTubo(const Tramo& t, const PalabrasDibujo& palabras, const HojaDibujo& hoja = {});

/// Whether its diameters, thickness and covers can be drawn.
bool HayTubo(const Tramo& t);

/// Steel of a wall, as it is drawn [mm], measured from the inner face.
struct CapaAcero {
  double distancia = 0;  // of its axis
  double grueso = 0;     // diameter, or thickness of a sheet
  double porMetro = 0;   // bars, 0 for a sheet
  Tinta tinta = Tinta::Barra;
  Capa capa = Capa::Interior;
};

/// Layers of concrete and steel of a wall [mm].
struct ParedDibujada {
  double espesor = 0;
  double nucleo = 0;  // thickness of the core of a post-tensioned pipe, 0 without
  double Reci = 0, Rece = 0;
  std::vector<CapaAcero> acero;
};

ParedDibujada ParedDe(const CasoDibujado& caso);
/// What the data fix of it: the layers of concrete and the sheet of a post-tensioned pipe.
ParedDibujada ParedSinDisenar(const Tramo& t);

/// Half of the angle of the bed [rad], and whether it is of concrete.
struct CunaDibujada {
  double semiangulo = 0;
  bool hormigon = false;
};
CunaDibujada CunaDe(const Tramo& t);

/// Thickness drawn under a pipe of that external diameter [mm]; no datum gives it.
double Lecho(double De);
/// Half of the width drawn for a bed [mm].
double SemiCuna(double De);

/// Bed and pipe with its centre at the origin of the view. @param semiZanja  half of the width that
/// a granular bed fills [mm]
void PintaCuna(Plano& plano, const Vista& vista, const Tramo& t, double semiZanja);
void PintaTubo(Plano& plano, const Vista& vista, const Tramo& t, const ParedDibujada& pared);

}  // namespace zorbin
