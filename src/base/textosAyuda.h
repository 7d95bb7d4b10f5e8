// Names of the catalogue entries of the help, the warnings and the about box.
#pragma once

namespace zorbin::txt {

// clang-format off
inline constexpr int TituloAviso = 377;
inline constexpr int NoExisteFichero = 391;
inline constexpr int ErrorNumero = 392;
inline constexpr int AlAbrir = 393;
inline constexpr int FiguraTitulo = 408;
inline constexpr int FicheroMemoria = 432;
inline constexpr int NombreManual = 433;
inline constexpr int LectorMalInstalado = 530;
inline constexpr int LectorNoArranca = 531;

// Warning box
inline constexpr int DocumentoDerecho = 409;
inline constexpr int DocumentoLector = 430;
inline constexpr int DocumentoMemoria = 431;
inline constexpr int TituloAdvertencia = 693;
inline constexpr int MostrarAlIniciar = 694;
inline constexpr int FaltaDerecho1 = 695;
inline constexpr int FaltaDerecho2 = 696;
inline constexpr int FaltaDerecho3 = 697;
inline constexpr int FaltaArchivo = 698;
inline constexpr int FaltaLector = 699;
inline constexpr int FaltaMemoria = 700;

// About box
inline constexpr int AcercaDe = 701;
inline constexpr int Version = 702;
inline constexpr int FormatoFichero = 703;
inline constexpr int QueHace = 704;
inline constexpr int AceptarAcerca = 705;
inline constexpr int Norma = 1440;
inline constexpr int NormaTexto = 1441;
inline constexpr int Herramientas = 1442;
inline constexpr int CarpetaDatos = 1443;

// Help viewer
inline constexpr int PestanaContenido = 1064;
inline constexpr int TituloAyuda = 1420;
inline constexpr int PestanaIndice = 1421;
inline constexpr int PestanaBuscar = 1422;
inline constexpr int Atras = 1423;
inline constexpr int Adelante = 1424;
inline constexpr int Ampliar = 1425;
inline constexpr int Reducir = 1426;
inline constexpr int TamanoNormal = 1427;
inline constexpr int PalabraDelIndice = 1428;
inline constexpr int PalabrasQueBusca = 1429;
inline constexpr int SinHallazgos = 1430;
inline constexpr int CuentaHallazgos = 1431;  // {1} how many
inline constexpr int ReinstaleManual = 1432;
inline constexpr int ManualIlegible = 1433;  // {1} the file
// clang-format on

}  // namespace zorbin::txt
