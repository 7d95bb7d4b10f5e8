// Names of the catalogue entries of the summary screen and of the box of a long run.
#pragma once

#include <array>

namespace zorbin::txt {

// clang-format off
inline constexpr int ResumenDeCalculo = 378;
inline constexpr std::array<int, 4> TiposDeListado{734, 1075, 1076, 1074};
inline constexpr int ResumenImprimir = 1077;
inline constexpr int ResumenSalir = 1078;
inline constexpr int TipoDeListado = 1260;
inline constexpr int ResumenVistaPrevia = 1251;
inline constexpr int ResumenPdf = 1261;
inline constexpr int ResumenTexto = 1262;
inline constexpr int ResumenCopiar = 1263;
inline constexpr int ResumenBuscar = 1264;

// Search
inline constexpr int RotuloBuscar = 1265;
inline constexpr int BuscarAnterior = 1266;
inline constexpr int BuscarSiguiente = 1267;
inline constexpr int NoSeEncuentra = 1268;      // {1} what was looked for
inline constexpr int SigueDesdeElPrincipio = 1269;
inline constexpr int SigueDesdeElFinal = 1270;
inline constexpr int CerrarBusqueda = 1271;

// A long run
inline constexpr int CalculoEnCurso = 1272;
inline constexpr int AvanceDelTramo = 1273;     // {1} Tramo, {2} Caso, {3} Casos expected
inline constexpr int AvanceDeLaObra = 1274;     // and {4} which Tramo, {5} of how many
inline constexpr int Cancelando = 1275;
inline constexpr int CancelarCalculo = 214;
inline constexpr int NombreDelTramo = 1276;     // {1} Obra, {2} Tramo
inline constexpr int ListadoEnCurso = 1277;
inline constexpr int AvanceDelListado = 1278;   // {1} sheets
// clang-format on

}  // namespace zorbin::txt
