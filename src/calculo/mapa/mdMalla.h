// A Tramo calculated over a grid of fill heights and pressures, beside and beyond those that it
// asks for: what the design map and the charts show.
#pragma once

#include <optional>
#include <vector>

#include "calculo/corrida/mdCalculaTramo.h"

namespace zorbin {

/// Values along the two axes, in ascending order.
struct EjesMalla {
  std::vector<double> alturas;    // [m]
  std::vector<double> presiones;  // DP [at]
};

struct PuntoMalla {
  FilaCaso fila;
  std::optional<double> acero;    // in all, or of the wire; none where nothing was found [cm2/m]
  int hipotesis = 0;              // that governs, 0 where it is not known
  double mayorM = 0, menorM = 0;  // of the three sections, where asked for [m·t/m]
};

struct Malla {
  EjesMalla ejes;
  std::vector<std::optional<CargasAltura>> cargas;  // of each height; none where they failed
  std::vector<std::optional<PuntoMalla>> puntos;    // by heights; none where the calculation failed
  bool entera = false;                              // whoever was asked never said no

  const std::optional<PuntoMalla>& En(std::size_t altura, std::size_t presion) const {
    return puntos[altura * ejes.presiones.size() + presion];
  }
};

/// Asked now and then whether to go on.
using SigueMalla = std::function<bool()>;

/// Calculates each point as a run of that one Caso would, its adjustments by hand among it. A point
/// whose calculation fails stays empty, and the others go on.
/// @param datos        in calculation units
/// @param conMomentos  of the governing hypothesis, which ask for the whole Caso
/// @param sigue        asked on the thread of the caller; the heights are shared among several
Malla CalculaMalla(const DatosTramo& datos, const EjesMalla& ejes, bool conMomentos = false,
                   const SigueMalla& sigue = {});

/// Round about the heights and pressures of the Tramo: half of their range more below and all of it
/// above, or as much of the values where there is no range.
/// @param columnas, filas  number of pressures and of heights, 2 at least
EjesMalla EjesAlrededor(const DatosTramo& datos, int columnas, int filas);

/// Heights and pressures that the Tramo itself goes through.
/// @param cuantas  of each at most; of a longer range some of them, its ends among them
EjesMalla EjesDelTramo(const DatosTramo& datos, std::size_t cuantas);

}  // namespace zorbin
