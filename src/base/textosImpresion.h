// Names of the catalogue entries of printing.
#pragma once

namespace zorbin::txt {

// clang-format off
// The screen of the printers
inline constexpr int SeleccionarImpresora = 1049;
inline constexpr int ImpresorasDelSistema = 680;
inline constexpr int NumeroDeCopias = 681;
inline constexpr int CopiasNoNumero = 267;
inline constexpr int CopiasNoEntero = 683;
inline constexpr int CopiasMenosDeUna = 684;
inline constexpr int TituloCopias = 685;
inline constexpr int QuiereImprimir = 686;
inline constexpr int QuiereCopias = 687;
inline constexpr int ErrorImpresora = 688;
inline constexpr int DescripcionError = 689;
inline constexpr int SeUsaraImpresora = 690;
inline constexpr int SeImprimiran = 691;
inline constexpr int PorLaImpresora = 692;
inline constexpr int TituloAvisoImpresion = 377;
inline constexpr int BotonCancelarImpresion = 214;
inline constexpr int FicheroPdf = 1240;
inline constexpr int Predeterminada = 1241;     // {1} printer
inline constexpr int ImpresoraQueNoEsta = 1242; // {1} printer
inline constexpr int ImpresoraNoAcepta = 1243;  // {1} printer, {2} why

// Files
inline constexpr int NoSePuedeEscribir = 1244;  // {1} file, {2} why
inline constexpr int SinLetra = 1185;           // {1} families that would do
inline constexpr int DocumentoVacio = 1245;
inline constexpr int GuardarPdf = 1246;
inline constexpr int GuardarTexto = 1247;
inline constexpr int FiltroPdf = 1248;
inline constexpr int FiltroTexto = 1249;
inline constexpr int YaExiste = 1250;           // {1} file

// Preview
inline constexpr int VistaPrevia = 1251;
inline constexpr int AjustarAlAncho = 1252;
inline constexpr int PaginaEntera = 1253;
inline constexpr int PaginaDe = 1254;           // {1} page, {2} count
inline constexpr int Ampliar = 1255;
inline constexpr int Reducir = 1256;
inline constexpr int PaginaAnterior = 1257;
inline constexpr int PaginaSiguiente = 1258;
inline constexpr int BotonImprimir = 1077;
inline constexpr int BotonCerrar = 733;
// clang-format on

}  // namespace zorbin::txt
