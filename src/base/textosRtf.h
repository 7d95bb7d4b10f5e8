// Names of the catalogue entries of the documents.
#pragma once

namespace zorbin::txt {

// clang-format off
inline constexpr int DocumentoNoSeAbre = 1150;  // {1} file, {2} cause
inline constexpr int NoEsRtf = 1400;            // {1} file
inline constexpr int RtfDemasiado = 1401;       // {1} file, {2} MiB at most

// Names of the documents
inline constexpr int DocDerechoDeUso = 409;
inline constexpr int DocAguasPuras = 410;
inline constexpr int DocAvisoRecubrimientos = 411;
inline constexpr int DocVisorPdf = 430;
inline constexpr int DocMemoria = 431;
// clang-format on

}  // namespace zorbin::txt
