// Printed pages of a hydraulic calculation.
#pragma once

#include "base/mdCatalogo.h"
#include "calculo/hidraulica/mdHidraulica.h"
#include "listados/papel/mdFormato.h"
#include "listados/papel/mdPapel.h"

namespace zorbin {

/// Prints a block for the full section and, where the operation has it, one for the partial
/// section. Rows without a friction factor come first, as notices.
void PapelHidraulico(const ResultadoHidraulico& r, const Catalogo& catalogo,
                     const EstiloNumeros& estilo, Papel& papel);

}  // namespace zorbin
