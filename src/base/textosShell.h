// Names of the catalogue entries of the main window and of the capture screen.
#pragma once

namespace zorbin::txt {

// clang-format off
// Pages of the capture screen
inline constexpr int PagObra = 134;  // and the two after it
inline constexpr int PagArmado = 137;
inline constexpr int PagPostesado = 138;
inline constexpr int PagModulos = 139;
inline constexpr int PagResistencias = 142;
inline constexpr int PagTensiones = 143;
inline constexpr int PagCoeficientes = 144;
inline constexpr int PagDimensiones = 145;
inline constexpr int PagRelleno = 146;
inline constexpr int PagCargas = 147;
inline constexpr int GrPresion = 166;
inline constexpr int GrArmaduraExterior = 201;
inline constexpr int GrPruebaPrimario = 204;
inline constexpr int GrCargasConcentradas = 215;
inline constexpr int GrFigura = 216;
inline constexpr int ColTramo = 168;
inline constexpr int ColDescripcion = 169;
inline constexpr int ColDi = 225;
inline constexpr int GrAlturasTramo = 233;

// Buttons
inline constexpr int BtCancelar = 214;
inline constexpr int BtGrabarObra = 217;
inline constexpr int BtCerrarObra = 218;
inline constexpr int BtImprimir = 222;
inline constexpr int BtNuevoTramo = 223;
inline constexpr int BtGrabar = 224;
inline constexpr int BtCalcular = 234;
inline constexpr int BtAjustar = 236;

// Menus, in their order
inline constexpr int MenuObras = 1046;
inline constexpr int MenuAbrir = 1047;
inline constexpr int MenuNueva = 1048;
inline constexpr int MenuImpresora = 1049;
inline constexpr int MenuImprimir = 1050;
inline constexpr int MenuGrabaObra = 1051;
inline constexpr int MenuCerrar = 1052;
inline constexpr int MenuSalir = 1053;
inline constexpr int MenuTramos = 1054;
inline constexpr int MenuNuevoTramo = 1055;
inline constexpr int MenuCancelar = 1056;
inline constexpr int MenuGrabaTramo = 1057;
inline constexpr int MenuCalcula = 1058;
inline constexpr int MenuAjustar = 1059;
inline constexpr int MenuOtras = 1060;
inline constexpr int MenuHidraulico = 1061;
inline constexpr int MenuMedidas = 1062;
inline constexpr int MenuAyuda = 1063;
inline constexpr int MenuContenido = 1064;
inline constexpr int MenuIndice = 1065;
inline constexpr int MenuAcercaDe = 1066;
inline constexpr int MenuAdvertencia = 1067;
inline constexpr int MenuMemoria = 1068;

// Opening
inline constexpr int NingunFichero = 402;
inline constexpr int PictoAnagrama = 408;
inline constexpr int NombreMemoria = 432;
inline constexpr int NombreAyuda = 433;
inline constexpr int TituloAbrir = 529;

// Own
inline constexpr int MenuRecientes = 1280;
inline constexpr int BarraHerramientas = 1281;
inline constexpr int SinObra = 1282;
inline constexpr int ObraSinFichero = 1283;
inline constexpr int SinGuardar = 1284;
inline constexpr int SueltaObra = 1285;
inline constexpr int NoEsObra = 1286;        // {1} file
inline constexpr int CampoRequerido = 1287;
inline constexpr int CampoBloqueado = 1288;
inline constexpr int IdiomaSinElegir = 1289;
inline constexpr int SinTablas = 1292;
inline constexpr int AjustesSinGuardar = 1471;  // {1} file
inline constexpr int VerEnGrande = 1293;
inline constexpr int CierraCaptura = 1294;
inline constexpr int SinTramo = 1295;
inline constexpr int ColTipologia = 1297;
inline constexpr int ColColocacion = 1298;
inline constexpr int ElegirTramo = 1299;
// clang-format on

}  // namespace zorbin::txt
