// Names of the catalogue entries of the order "ajustes".
#pragma once

namespace zorbin::txt {

// clang-format off
inline constexpr int AyudaAjustes = 1318;
inline constexpr int ListaAjustesCabeza = 1319;
inline constexpr int ListaAjustesSI = 1320;
inline constexpr int ListaAjustesMKS = 1321;
inline constexpr int SinArmadurasAjustadas = 1322;  // {1} file of the Obra
inline constexpr int TramoFueraDeLaObra = 1323;
// clang-format on

}  // namespace zorbin::txt
