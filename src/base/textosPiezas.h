// Names of the catalogue entries that the boxes and fields of every screen share.
#pragma once

namespace zorbin::txt {

// clang-format off
inline constexpr int BotonAceptar = 682;
inline constexpr int BotonNo = 736;
inline constexpr int BotonSi = 737;
inline constexpr int PegadoSinNumero = 1200;  // {1} what was pasted
inline constexpr int CierraEjecucion = 1291;   // {1} cause
inline constexpr int SinMemoria = 1472;
// clang-format on

}  // namespace zorbin::txt
