// The wall of the pipe with the reinforcement chosen, as a drawing to scale takes it.
#pragma once

#include "sesion/ajustes/mdAjuste.h"

namespace zorbin {

/// Bars of one layer. None, and more than bars can give: a count of 0.
struct CapaDeBarras {
  int cuenta = 0;         // [1/m]
  double diametro = 0;    // [mm]
  double separacion = 0;  // between axes [cm]
};

/// Distances in cm. The covers reach to the axis of the steel, as the lever arm takes them: the
/// sheet and the inner bars lie at `Reci` from the inner face, the outer bars at `Rece` from the
/// outer one.
struct ParedDeTubo {
  double Di = 0;      // [m]
  double Esp = 0;     // [cm]
  double Reci = 0;    // in force [cm]
  double Rece = 0;    // in force [cm]
  double CAMISA = 0;  // thickness of the sheet [mm]
  CapaDeBarras espiras;
  CapaDeBarras exteriores;
  bool delDiseno = false;  // the bars are those of the design; otherwise, those that give the areas
  double BRAZO() const { return Esp - Reci - Rece; }
};

/// The wall with what is chosen on the screen. Where only areas are known the bars are those that
/// the design would take for them.
ParedDeTubo ParedElegida(const Ajustes& a);

}  // namespace zorbin
