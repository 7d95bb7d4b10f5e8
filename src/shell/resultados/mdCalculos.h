// The entries of the menu that calculate: from the data of the capture to the summary screen.
#pragma once

#include <functional>

#include "core/verificacion.h"
#include "sesion/captura/mdCaptura.h"
#include "shell/piezas/mdEntorno.h"

class QWidget;

namespace zorbin {

/// Told of each Tramo that was calculated whole, by its id in the capture.
using AlVerificar = std::function<void(int id, Veredicto veredicto)>;

/// mnCalculaTramo: validates and runs the Tramo in hand, tells what failed, and shows the summary,
/// from which it may be printed.
void CalculaElTramo(Captura& c, const Entorno& entorno, QWidget* padre,
                    const AlVerificar& alVerificar = {});

/// MnImprimir: the same for all the Tramos of the file. The screen of the capture is left with the
/// last Tramo taken, and has to be drawn again.
void ImprimeLaObra(Captura& c, const Entorno& entorno, QWidget* padre,
                   const AlVerificar& alVerificar = {});

}  // namespace zorbin
