// Workbooks, as cells.
#pragma once

#include <string_view>
#include <vector>

#include "persistencia/entrada/mdCuadro.h"

namespace zorbin {

inline constexpr std::size_t kMaxParteXlsx = std::size_t{64} << 20;  // bytes of a part, unpacked
inline constexpr std::size_t kMaxHojas = 20;                         // that are read

/// The sheets of a workbook in their order: values, and of a formula the result that it had. Where
/// one is named as that of Tramos in a language of the catalogue, only those and the Obra's are
/// read.
/// @param textos  null: all sheets
/// @throws ErrorEntrada for what is none, or is larger or wider than what may be read, with its
/// cell
std::vector<Cuadro> LeeXlsx(std::string_view bytes, const Catalogo* textos = nullptr);

}  // namespace zorbin
