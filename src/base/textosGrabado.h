// Names of the catalogue entries about saving, and about files that others have open.
#pragma once

namespace zorbin::txt {

// clang-format off
inline constexpr int ErrorDeLectura = 1161;     // {1} file, {2} cause

// A save that did not come to its end
inline constexpr int LoAMediasDeshecho = 1340;  // {1} file
inline constexpr int LeidoComoAntes = 1341;     // {1} file
inline constexpr int DiarioAjeno = 1342;        // {1} file, {2} journal, {3} its new name
inline constexpr int DiarioAjenoLeido = 1343;   // {1} file, {2} journal
inline constexpr int DiarioIlegible = 1344;     // {1} file, {2} journal, {3} cause
inline constexpr int DiarioMasNuevo = 1345;     // {1} file, {2} journal
inline constexpr int NoSeDeshace = 1346;        // {1} file, {2} cause, {3} journal
inline constexpr int DiarioNoSeQuita = 1347;    // {1} file, {2} journal, {3} cause

// Saving
inline constexpr int SinDiario = 1348;          // {1} file, {2} journal, {3} cause
inline constexpr int NadaGrabado = 1349;        // {1} file, {2} cause
inline constexpr int GrabadoEnDuda = 1350;      // {1} file, {2} cause, {3} cause, {4} journal
inline constexpr int CambiadoPorOtro = 1351;    // {1} file
inline constexpr int YaNoEsta = 1352;           // {1} file
inline constexpr int NombreYaTomado = 1353;     // {1} file
inline constexpr int SoloLecturaNoGraba = 1354; // {1} file
inline constexpr int NombreEnDuda = 1366;       // {1} file, {2} cause

// Who has a file open
inline constexpr int OcupadoPor = 1355;         // {1} file, {2} person, {3} host, {4} process, {5} since
inline constexpr int OcupadoPorAlguien = 1356;  // {1} file
inline constexpr int SinPermiso = 1357;         // {1} file, {2} cause
inline constexpr int AbrirParaLeer = 1358;
inline constexpr int AbiertoParaLeer = 1359;    // {1} file
inline constexpr int SinCerrojos = 1360;        // {1} file
inline constexpr int SinCerrojosYMarca = 1361;  // {1} file, {2} person, {3} host, {4} process, {5} since
inline constexpr int CarpetaCerrada = 1362;     // {1} file, {2} folder
inline constexpr int EscribiendoOtro = 1363;    // {1} file
inline constexpr int CerrarSinGrabar = 1364;
inline constexpr int NoEsCorriente = 1365;      // {1} file
// clang-format on

}  // namespace zorbin::txt
