// Names of the catalogue entries of the manufacturers' tables.
#pragma once

namespace zorbin::txt {

// clang-format off
inline constexpr int NoExisteElFichero = 391;
inline constexpr int AlAbrirElFichero = 393;
inline constexpr int ErrorDeFormato = 394;
inline constexpr int TablaQueFalta = 1164;
inline constexpr int TablaNoSeAbre = 1165;
inline constexpr int TablaMalFormada = 1166;
inline constexpr int DemasiadasDimensiones = 1167;
inline constexpr int DemasiadasArmaduras = 1168;
inline constexpr int TablaDemasiado = 1450;  // {1} file, {2} KiB at most
// clang-format on

}  // namespace zorbin::txt
