// Names of the catalogue entries that only the window of the adjustments shows.
#pragma once

namespace zorbin::txt {

// clang-format off
inline constexpr int AjCm2PorM = 1370;
inline constexpr int AjPistaPresion = 1371;        // {1} in full [at]
inline constexpr int AjPistaAltura = 1372;         // {1} in full [m]
inline constexpr int AjPared = 1373;
inline constexpr int AjParedRige = 1374;           // {1} section
inline constexpr int AjCaraTraccionada = 1375;
inline constexpr int AjDibujoCamisa = 1376;        // {1} thickness [mm]
inline constexpr int AjDibujoEspiras = 1377;       // {1} count [1/m], {2} diameter [mm]
inline constexpr int AjDibujoExteriores = 1378;    // as AjDibujoEspiras
inline constexpr int AjSinEspiras = 1379;
inline constexpr int AjBarrasSupuestas = 1380;
inline constexpr int AjMedidasPared = 1381;        // {1} thickness, {2} and {3} covers [cm]
inline constexpr int AjRige = 1382;
inline constexpr int AjSePerdera = 1383;
inline constexpr int AjAcepteORechace = 1384;
inline constexpr int AjComprobacion = 1385;
inline constexpr int PistaAceptarAjuste = 1386;
inline constexpr int PistaSalirAjuste = 1387;
inline constexpr int PistaRecubrimientos = 1388;
inline constexpr int AjFilaTanteo = 1389;          // {1} number of the row
inline constexpr int PistaGuardarAjuste = 1390;
inline constexpr int PistaArmaduraDirecta = 1391;
inline constexpr int AjDemasiadaArea = 1392;
inline constexpr int AjCambiosSinGrabar = 1284;
inline constexpr int AjFicheroNoEncontrado = 698;
// clang-format on

}  // namespace zorbin::txt
