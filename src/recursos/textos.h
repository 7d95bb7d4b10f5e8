// Names of the catalogue entries that the code uses; the texts stand in recursos/textos/*.json.
#pragma once

#include <array>

namespace zorbin::txt {

// clang-format off
// Names of the languages and words of the project file
inline constexpr int NombreIdioma1 = 101;  // and the four after it
inline constexpr int Si = 154;
inline constexpr int No = 155;

// Words of the listings
inline constexpr int CalculandoElCaso = 244;
inline constexpr int DP = 257;
inline constexpr int MDP = 258;
inline constexpr int NoExisteEseTramo = 268;

// Project file
inline constexpr int FormatoVersion = 508;
inline constexpr int FormatoIdioma = 522;
inline constexpr int FormatoUnidades = 526;
inline constexpr int FormatoGolpe = 527;
inline constexpr int IdiomaNoReconocido = 528;

// Reinforced design
inline constexpr int EspesorInsuficientePantalla = 558;
inline constexpr int ArmaduraInterior = 559;
inline constexpr int ArmaduraExterior = 560;
inline constexpr int TotalArmadura = 561;
inline constexpr int Cm2PorM = 562;
inline constexpr int FckResumen = 567;
inline constexpr int FydResumen = 568;
inline constexpr int MayorQueLaMaxima = 569;
inline constexpr int PorRetraccionLisas = 570;
inline constexpr int RetraccionPantalla = 571;
inline constexpr int AsAcr = 572;
inline constexpr int Armadura = 573;
inline constexpr int Interior = 574;
inline constexpr int Exterior = 575;
inline constexpr int EnVariasCapas = 576;
inline constexpr int Milimetros = 582;
inline constexpr int FlexionSobreTope = 585;
inline constexpr int NoLlegaNegativos = 586;
inline constexpr int NoLlegaAmbos = 587;
inline constexpr int MomentoTope = 588;

// Post-tensioned design
inline constexpr int EspesorInsuficiente = 800;
inline constexpr int ResistenciaInicial = 801;
inline constexpr int CambiaAlambre = 803;
inline constexpr int ResistenciaHormigon = 804;

// Data block of a Caso. The tables are in the order of their codes.
inline constexpr int HormigonArmado = 613;
inline constexpr int HormigonPostesado = 614;
inline constexpr int ConCamisa = 615;
inline constexpr int CamisaEmbebida = 616;
inline constexpr int CamisaRevestida = 617;
inline constexpr std::array<int, 5> HipotesisResumen{618, 619, 620, 621, 622};
inline constexpr std::array<int, 5> Cargas{623, 624, 625, 626, 627};
inline constexpr std::array<int, 4> Cunas{628, 629, 630, 631};
inline constexpr int ZanjaSinCompactar = 632;
inline constexpr int ZanjaCompactada = 633;
inline constexpr int ZanjaTerraplenadaSinCompactar = 634;
inline constexpr int ZanjaTerraplenadaCompactada = 635;
inline constexpr int Terraplen = 636;
inline constexpr int Tipo = 637;
inline constexpr int DiametroInterior = 638;
inline constexpr int Espesor = 639;
inline constexpr int RecubInterior = 640;
inline constexpr int RecubExterior = 641;
inline constexpr int Cuna = 642;
inline constexpr int Colocacion = 643;
inline constexpr int AlturaDelRelleno = 644;
inline constexpr int PresionInterior = 645;
inline constexpr int CargaConcentrada = 646;
inline constexpr int Hipotesis = 647;
inline constexpr int CabezaSecciones = 648;
inline constexpr int CabezaMN = 649;

// Command line
inline constexpr int Descripcion = 1100;
inline constexpr int CalculaUnaObra = 1101;
inline constexpr int AyudaFichero = 1102;
inline constexpr int AyudaTramo = 1103;
inline constexpr int AyudaFormato = 1104;
inline constexpr int AyudaSalida = 1105;
inline constexpr int AyudaSeparador = 1106;
inline constexpr int AyudaRegistros = 1107;
inline constexpr int AyudaAyuda = 1108;
inline constexpr int AyudaVersion = 1109;
inline constexpr int Uso = 1110;
inline constexpr int Opciones = 1111;
inline constexpr int Datos = 1112;
inline constexpr int Ordenes = 1113;
inline constexpr int Orden = 1114;
inline constexpr int Obligatorio = 1115;
inline constexpr int Varios = 1116;
inline constexpr int FaltaPalabra = 1120;
inline constexpr int PalabraInesperada = 1121;
inline constexpr int ValorNoSirve = 1122;
inline constexpr int NecesitaValor = 1123;
inline constexpr int VeaLaAyuda = 1124;
inline constexpr int SalidaNoSeEscribe = 1125;
inline constexpr int TramoQueNoEsta = 1126;
inline constexpr int IdiomaSinInstalar = 1127;

// Failures of a run
inline constexpr int FalloEnCaso = 1130;
inline constexpr int FalloAntesDelCaso = 1131;
inline constexpr int DivisionPorCero = 1132;
inline constexpr int Desbordamiento = 1133;
inline constexpr int Subindice = 1134;
inline constexpr int SinConvergencia = 1135;
inline constexpr int IncPresionTramo = 1136;
inline constexpr int IncPresionObra = 1137;
inline constexpr int IncAlturaTramo = 1138;
inline constexpr int RegistroNoSeEscribe = 1139;
inline constexpr int TipologiaSinCalculo = 1140;
inline constexpr int IncAlturaObra = 1141;
inline constexpr int TramoSinCasos = 1142;

// Files
inline constexpr int NoSeAbre = 1150;
inline constexpr int LongitudExcesiva = 1151;
inline constexpr int RegistroCortado = 1152;
inline constexpr int NoEsNumero = 1153;
inline constexpr int NoEsEntero = 1154;
inline constexpr int TramoCortado = 1155;
inline constexpr int ByteSinCaracter = 1156;
inline constexpr int CaracterImposible = 1157;
inline constexpr int TextoLargo = 1158;
inline constexpr int CuentaDeTramos = 1159;
inline constexpr int NoSeEscribe = 1160;
inline constexpr int FaltaTipologia = 1162;
// clang-format on

}  // namespace zorbin::txt
