// Names of the catalogue entries of the hydraulic calculator.
#pragma once

namespace zorbin::txt {

// clang-format off
// Messages that every numeric field may give
inline constexpr int SeleccioneValorNumerico = 267;
inline constexpr int ValorPorDebajoDelMinimo = 287;

// Screen
inline constexpr int PantallaHidraulica = 754;
inline constexpr int MarcoMetodo = 755;
inline constexpr int MarcoTipoDato = 756;
inline constexpr int MarcoValorDato = 757;
inline constexpr int OpcionPendiente = 758;
inline constexpr int OpcionCaudal = 759;
inline constexpr int PrandtlColebrook = 760;
inline constexpr int DarcyWeissbach = 761;
inline constexpr int HazenWilliams = 762;
inline constexpr int BotonCalcular = 763;
inline constexpr int BotonImprimirCalculadora = 732;
inline constexpr int BotonCerrarCalculadora = 733;
inline constexpr int RugosidadArenaKa = 764;
inline constexpr int RugosidadAbsolutaKs = 765;
inline constexpr int CoeficienteCwh = 766;
inline constexpr int ReglaCwh = 767;
inline constexpr int AyudaHazen = 768;
inline constexpr int AyudaRugosidad = 769;
inline constexpr int AyudaRugosidadDoble = 770;
inline constexpr int PendienteMPorM = 771;
inline constexpr int CaudalM3PorSeg = 772;
inline constexpr int DatoSinTipo = 669;
inline constexpr int MarcoRugosidad = 1210;
inline constexpr int MarcoResultado = 1211;

// Both calculators; {1} the caption of the button that calculates
inline constexpr int EscribaLosDatos = 1212;
inline constexpr int DatosCambiados = 1213;

// Tips
inline constexpr int PistaPrandtl = 1214;
inline constexpr int PistaDarcy = 1215;
inline constexpr int PistaHazen = 1216;
inline constexpr int PistaPendiente = 1217;
inline constexpr int PistaCaudal = 1218;
inline constexpr int PistaDato = 1219;
inline constexpr int PistaRugosidad = 1220;
inline constexpr int PistaCwh = 1221;
inline constexpr int PistaCalcular = 1222;
inline constexpr int PistaImprimirTabla = 1223;

// Refusals
inline constexpr int TituloError = 670;
inline constexpr int DebeCapturarUnValor = 773;
inline constexpr int ElValorDe = 774;
inline constexpr int DebeSerMayorQueCero = 775;
inline constexpr int DemasiadoGrande = 666;
inline constexpr int DemasiadoPequeno = 667;
inline constexpr int ErrorEnEjecucion = 1079;
inline constexpr int CalculoDesbordado = 1133;
inline constexpr int CalculoDivididoPorCero = 1132;

// Listing
inline constexpr int ErrorFriccionDarcy = 776;
inline constexpr int FormulaPrandtl = 777;
inline constexpr int FormulaHazen = 778;
inline constexpr int FormulaDarcy = 779;
inline constexpr int ViscosidadCinematica = 780;
inline constexpr int M2PorSg = 781;
inline constexpr int RugosidadKs = 782;
inline constexpr int RugosidadKa = 783;
inline constexpr int RugosidadMm = 784;
inline constexpr int LineaPendiente = 785;
inline constexpr int MPorM = 786;
inline constexpr int LineaCaudal = 787;
inline constexpr int M3PorSg = 788;
inline constexpr int SeccionLlena = 789;
inline constexpr int SeccionParcial = 790;
inline constexpr int LaminaLibre = 791;
inline constexpr int LineaCwh = 792;
inline constexpr int RegimenCritico = 793;
inline constexpr int ColumnaDiametro = 660;
inline constexpr int ColumnaVelocidad = 661;
inline constexpr int ColumnaCaudal = 662;
inline constexpr int ColumnaPendiente = 663;
inline constexpr int ColumnaReynolds = 664;
inline constexpr int MPorKm = 665;
inline constexpr int ViscosidadSinValor = 668;
// clang-format on

}  // namespace zorbin::txt
