// Printed page of an analysis of aggressive media.
#pragma once

#include <string_view>

#include "listados/calculadoras/mdMediosListado.h"
#include "listados/papel/mdPapel.h"

namespace zorbin {

inline constexpr int kAnchoPartido = 65;  // longest printed line before it is split [columns]

/// Where a long line is split: the number of characters before the last blank among its first 65.
/// -1 for a text that needs no split or has no blank there.
int BuscaBlanco(std::string_view Texto);

/// Prints the analysis.
void PapelMedios(const ResultadoMedios& r, const Catalogo& catalogo, const EstiloNumeros& estilo,
                 Papel& papel);

}  // namespace zorbin
