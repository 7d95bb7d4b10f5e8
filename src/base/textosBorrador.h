// Names of the catalogue entries about work that is typed and not yet saved.
#pragma once

namespace zorbin::txt {

// clang-format off
inline constexpr int BorradorSinGuardar = 1490;   // {1} file, {2} cause
inline constexpr int BorradorSinBorrar = 1491;    // {1} file, {2} cause
inline constexpr int BorradorIlegible = 1492;     // {1} file
inline constexpr int BorradorYaTomado = 1493;
inline constexpr int TituloRecuperar = 1494;
inline constexpr int RecuperarEntrada = 1495;     // {1} when
inline constexpr int RecuperarObra = 1496;        // {1} file
inline constexpr int RecuperarObraNueva = 1497;
inline constexpr int RecuperarTramo = 1498;       // {1} number, {2} description
inline constexpr int RecuperarTramoNuevo = 1499;  // {1} number, {2} description
inline constexpr int RecuperarSinTramo = 1500;
inline constexpr int FicheroCambiado = 1501;
inline constexpr int FicheroIlegible = 1502;      // {1} cause
inline constexpr int ColDato = 1503;
inline constexpr int ColEnFichero = 1504;
inline constexpr int ColTecleado = 1505;
inline constexpr int BtRecuperar = 1506;
inline constexpr int BtDescartar = 1507;
inline constexpr int BtMasTarde = 1508;
inline constexpr int ConfirmaDescartar = 1509;
inline constexpr int BorradorQueda = 1510;        // {1} file of the Obra
inline constexpr int SinDiferencias = 1511;
inline constexpr int Recuperado = 1512;
inline constexpr int MarcaSoloLectura = 1513;
inline constexpr int DeOtroEquipo = 1514;         // {1} host
// clang-format on

}  // namespace zorbin::txt
