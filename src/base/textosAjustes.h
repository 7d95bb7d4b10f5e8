// Names of the catalogue entries of the adjustment of reinforcements.
#pragma once

namespace zorbin::txt {

// clang-format off
// The screen
inline constexpr int AjTitulo = 381;
inline constexpr int AjRotulo = 900;
inline constexpr int AjResultado = 901;
inline constexpr int AjValorMedio = 902;
inline constexpr int AjDirecta = 903;
inline constexpr int AjCamisa = 904;
inline constexpr int AjRefuerzo = 905;
inline constexpr int AjExterior = 906;
inline constexpr int AjTotal = 907;
inline constexpr int AjNecesaria = 908;
inline constexpr int AjDispuesta = 909;
inline constexpr int AjClave = 910;  // and the two sections after it
inline constexpr int AjDP = 913;
inline constexpr int AjMPa = 914;
inline constexpr int AjAt = 915;
inline constexpr int AjRecInterior = 916;
inline constexpr int AjRecExterior = 917;
inline constexpr int AjRecubrimientos = 918;
inline constexpr int AjLineaExterior = 575;
inline constexpr int AjLineaInterior = 574;
inline constexpr int AjLineaTotal = 937;
inline constexpr int AjDocumentoAviso = 411;
inline constexpr int AjAvisoCaldera = 1080;
inline constexpr int AjAltura = 1316;
inline constexpr int AjFalta = 1317;  // {1} needed, {2} provided

// Buttons
inline constexpr int BtAceptarDirecta = 919;
inline constexpr int BtRechazarDirecta = 920;
inline constexpr int BtSubirMedio = 921;
inline constexpr int BtBajarMedio = 922;
inline constexpr int BtRecubrimientosOrigen = 923;
inline constexpr int BtAceptarAjuste = 924;
inline constexpr int BtGuardarAjuste = 925;
inline constexpr int BtSalirAjuste = 1078;
inline constexpr int BtCambiarRecubrimientos = 1309;
inline constexpr int BtAceptarRecubrimientos = 1310;
inline constexpr int BtAnularRecubrimientos = 1311;
inline constexpr int BtAnteriorAltura = 1312;
inline constexpr int BtSiguienteAltura = 1313;
inline constexpr int BtAnteriorPresion = 1314;
inline constexpr int BtSiguientePresion = 1315;

// Messages
inline constexpr int AjInteriorCero = 926;
inline constexpr int AjExteriorCero = 927;
inline constexpr int AjEtCamisa = 928;
inline constexpr int AjEtRefuerzo = 929;
inline constexpr int AjPrimeraFila = 930;
inline constexpr int AjElegidaPrimera = 931;
inline constexpr int AjUltimaFila = 932;
inline constexpr int AjElegidaUltima = 933;
inline constexpr int AjSinAlturas = 934;
inline constexpr int AjSinPresiones = 935;
inline constexpr int AjErrorEnEjecucion = 1079;
inline constexpr int AjSinCerrojos = 1306;     // {1} file
inline constexpr int AjSinRegistro = 1307;     // {1} file
inline constexpr int AjSinBrazo = 1308;        // {1} sum of the covers, {2} thickness
// clang-format on

}  // namespace zorbin::txt
