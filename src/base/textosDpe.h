// Names of the catalogue entries of the file of adjusted Casos.
#pragma once

namespace zorbin::txt {

// clang-format off
inline constexpr int DpeOcupado = 1300;    // {1} file
inline constexpr int DpeCortado = 1301;    // {1} file, {2} entries told, {3} last record
inline constexpr int DpeSinCuenta = 1302;  // {1} file, {2} what record 1 holds
inline constexpr int DpeLleno = 1303;      // {1} file, {2} entries that fit
inline constexpr int AjustesSinBorrar = 1304;  // {1} cause
inline constexpr int AjustesSinLeer = 1305;
// clang-format on

}  // namespace zorbin::txt
