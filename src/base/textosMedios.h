// Names of the catalogue entries of the analysis of aggressive media.
#pragma once

namespace zorbin::txt {

// clang-format off
// Screen
inline constexpr int MedidasDeProteccion = 710;
inline constexpr int AgresividadQuimica = 711;
inline constexpr int MarcoAguas = 712;
inline constexpr int MarcoTerrenos = 713;
inline constexpr int MarcoResistividad = 714;
inline constexpr int MarcoCorrientes = 715;
inline constexpr int MedioPH = 716;
inline constexpr int MedioCO2 = 717;
inline constexpr int MedioNH4 = 718;
inline constexpr int MedioMg = 719;
inline constexpr int MedioSO4Exterior = 720;
inline constexpr int MedioSO4Interior = 721;
inline constexpr int MedioSO4Suelo = 722;
inline constexpr int MedioResistividad = 723;
inline constexpr int MedioCorriente = 724;
inline constexpr int MgPorLitro = 725;
inline constexpr int MgPorKg = 726;
inline constexpr int OhmioPorM = 727;
inline constexpr int Milivoltios = 728;
inline constexpr int AlternaCiclos = 729;
inline constexpr int EjemploAguas = 730;
inline constexpr int BotonVisualizar = 731;
inline constexpr int FicheroAguasPuras = 410;
inline constexpr int FicheroNoEncontrado = 698;

// Tips; {1} a default, a unit
inline constexpr int PistaVisualizar = 1224;
inline constexpr int PistaImprimirAnalisis = 1225;
inline constexpr int PistaPH = 1226;
inline constexpr int PistaContenido = 1227;
inline constexpr int PistaTerreno = 1228;
inline constexpr int PistaCiclos = 1229;

// Values of the result
inline constexpr int CementoNormal = 734;
inline constexpr int CementoSR = 735;
inline constexpr int AdicionalNo = 736;
inline constexpr int AdicionalSi = 737;

// Listing
inline constexpr int AnalisisDeMedios = 738;
inline constexpr int FactoresQueConsiderar = 739;
inline constexpr int TituloMedidas = 740;
inline constexpr int TerrenosYAguas = 741;
inline constexpr int DosificacionDeCemento = 742;
inline constexpr int KgPorM2 = 743;
inline constexpr int RelacionAguaCemento = 744;
inline constexpr int TipoDeCemento = 745;
inline constexpr int NecesidadesAdicionales = 746;
inline constexpr int SuelosBajaResistividad = 747;
inline constexpr int AislarLaTuberia = 748;
inline constexpr int ValoresDeResistividad = 749;
inline constexpr int ExistenciaDeCorrientes = 750;
inline constexpr int DiscontinuidadDeLaJunta = 751;
inline constexpr int EliminarOControlar = 752;
inline constexpr int NingunaProteccion = 753;
// clang-format on

}  // namespace zorbin::txt
