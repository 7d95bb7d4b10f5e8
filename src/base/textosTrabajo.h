// Names of the catalogue entries of the work of a run and of its messages.
#pragma once

namespace zorbin::txt {

// clang-format off
inline constexpr int TrabajoCancelado = 1230;   // {1} Tramo, {2} Caso
inline constexpr int TrabajoDetenido = 1231;    // {1} Tramo, {2} why
inline constexpr int SinRegistro = 1232;        // {1} file
inline constexpr int FallosDeMas = 1233;        // {1} how many more
inline constexpr int TramoSinNingunCaso = 1234; // {1} Tramo
inline constexpr int ListadoDetenido = 1235;    // {1} which Tramo was refused, and why
inline constexpr int ErrorEnEjecucion = 1079;
// clang-format on

}  // namespace zorbin::txt
