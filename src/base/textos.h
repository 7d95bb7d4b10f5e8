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

// Page heads and words of the Tramo heading
inline constexpr int ControlIntenso = 113;
inline constexpr int ControlNormal = 114;
inline constexpr int CunaGranular = 117;
inline constexpr int CunaHormigon = 118;
inline constexpr std::array<int, 5> TiposDeCarga{121, 122, 123, 124, 125};
inline constexpr int RocasMachacadas = 126;
inline constexpr int RocasConGravas = 127;
inline constexpr int ArenaArcillosa = 128;
inline constexpr int ArcillasOrdinarias = 129;
inline constexpr int ArcillasPlasticas = 130;
inline constexpr int RocaNoAsentable = 131;
inline constexpr int SueloOrdinario = 132;
inline constexpr int SueloAsentable = 133;
inline constexpr int CasoNumero = 245;
inline constexpr int Pag = 246;
inline constexpr int PagTabular = 247;
inline constexpr int Cliente = 248;
inline constexpr int FechaRotulo = 249;
inline constexpr int TablaCarga = 250;
inline constexpr int TablaImpacto = 251;
inline constexpr int TablaCabeza1 = 252;
inline constexpr int TablaCabeza2 = 253;
inline constexpr int TablaRayas = 254;
inline constexpr int TablaUnidadesSI = 255;
inline constexpr int TablaUnidadesMKS = 256;
inline constexpr int HR = 259;
inline constexpr int CaracteristicasMateriales = 327;
inline constexpr int HormigonCompresion = 328;
inline constexpr int HormigonTraccion = 329;
inline constexpr int AceroCaracteristica = 330;
inline constexpr int AceroCalculo = 331;
inline constexpr int CoeficienteMinoracion = 332;
inline constexpr int NivelDeControl = 333;
inline constexpr int TipoDeTubo = 334;
inline constexpr int EspesorMaximoCamisa = 335;
inline constexpr int CaracteristicasTubo = 336;
inline constexpr int CabDiametroInterior = 337;
inline constexpr int CabEspesor = 338;
inline constexpr int CabRecubInterior = 339;
inline constexpr int CabRecubExterior = 340;
inline constexpr int DatosRelleno = 341;
inline constexpr int CabTipoDeCuna = 342;
inline constexpr int CabTipoDeColocacion = 343;
inline constexpr int DatosRellenoContinuacion = 344;
inline constexpr int DensidadRelleno = 345;
inline constexpr int AnguloRozamiento = 346;
inline constexpr int AnchoZanjaCorto = 347;
inline constexpr int CabTipoDeRelleno = 348;
inline constexpr int DistanciaGeneratriz1 = 349;
inline constexpr int DistanciaGeneratriz2 = 350;
inline constexpr int RazonDeAsentamiento = 351;
inline constexpr int DatosHipotesis = 352;
inline constexpr int CargaVerticalAdoptada = 353;
inline constexpr int EsHormigonArmado = 354;
inline constexpr int EsHormigonPostesado = 355;
inline constexpr int SinCamisa = 356;
inline constexpr int EsConCamisa = 357;
inline constexpr int EsEmbebida = 358;
inline constexpr int DensidadTubo = 359;
inline constexpr int EsRevestida = 360;
inline constexpr int MenorDe90 = 363;
inline constexpr int ColocacionZanjaSin = 364;
inline constexpr int ColocacionZanjaCon = 365;
inline constexpr int ColocacionTerraplenadaSin = 366;
inline constexpr int ColocacionTerraplenadaCon = 367;
inline constexpr int ColocacionTerraplen = 368;
inline constexpr std::array<int, 3> TitulosTabular{373, 374, 375};
inline constexpr int GolpeDeAriete = 1069;
inline constexpr int Calculado = 1070;
inline constexpr int Estimado = 1071;
inline constexpr int AnchoZanjaLargo = 1072;

// Pictures
inline constexpr std::array<int, 3> FigurasCuna{405, 406, 407};
inline constexpr std::array<int, 3> FigurasColocacionGranular{412, 413, 414};
inline constexpr std::array<int, 3> FigurasColocacionHormigon{415, 416, 417};
inline constexpr int FiguraTubo2211 = 418;
inline constexpr int FiguraTubo2221 = 419;
inline constexpr int FiguraTubo2110 = 420;

// Ovalisation and design pages
inline constexpr std::array<int, 5> HipotesisDiseno{541, 542, 543, 544, 545};
inline constexpr int DisenoCabeza = 546;
inline constexpr int DisenoSecciones = 547;
inline constexpr int DisenoDP = 548;
inline constexpr int DisenoMDP = 549;
inline constexpr int DisenoSTP = 550;
inline constexpr int DisenoPP = 551;
inline constexpr int DisenoMN = 552;
inline constexpr std::array<int, 4> ArmaduraCabeza{553, 554, 555, 556};
inline constexpr int EspesorInsuficientePapel = 557;
inline constexpr int Fisuracion = 563;
inline constexpr int TensionMaxima = 564;
inline constexpr int TensionAdmisible = 565;
inline constexpr int KpPorCm2 = 566;
inline constexpr int SinFisuracion = 577;
inline constexpr int FisInterior = 578;
inline constexpr int FisExterior = 579;
inline constexpr int FisEspiras = 580;
inline constexpr int FisTotal = 581;
inline constexpr int PorMetro = 583;
inline constexpr int Cm2 = 584;
inline constexpr std::array<int, 12> HipotesisOval{589, 590, 591, 592, 593, 594,
                                                   595, 596, 597, 598, 599, 600};
inline constexpr int OvalCabeza = 601;
inline constexpr int OvalUnidadesSI = 602;
inline constexpr int OvalUnidadesMKS = 603;
inline constexpr int HipotesisRotulo = 604;
inline constexpr int SeccionSI = 605;
inline constexpr int SeccionMKS = 606;
inline constexpr std::array<int, 3> Secciones{607, 608, 609};
inline constexpr int OvalGranular = 610;
inline constexpr int OvalHormigon = 611;
inline constexpr int OvalMenorDe = 612;

// Listings "Pantalla" and "Tabular"
inline constexpr int PantallaSecciones = 650;
inline constexpr int PantallaMN = 651;
inline constexpr int PantallaUnidadesSI = 652;
inline constexpr int PantallaUnidadesMKS = 653;
inline constexpr std::array<int, 3> ResumenTabular{654, 655, 656};
inline constexpr int ResumenTabularSI = 657;
inline constexpr int ResumenTabularMKS = 658;
inline constexpr int ResumenTabularRaya = 659;

// Post-tensioned listings
inline constexpr int Embebida = 361;
inline constexpr int Revestida = 362;
inline constexpr std::array<int, 6> HipotesisPostesado{794, 795, 796, 797, 798, 799};
inline constexpr int RadioInterior = 805;
inline constexpr int EspesorPrimario = 806;
inline constexpr int RecubCamisa = 807;
inline constexpr int EspesorCamisa = 808;
inline constexpr int ModuloCamisa = 809;
inline constexpr int EspesorRevestimiento = 810;
inline constexpr int FckZunchar = 811;
inline constexpr int FckFinal = 812;
inline constexpr int FctFinal = 813;
inline constexpr int FckRevestimiento = 814;
inline constexpr int FctRevestimiento = 815;
inline constexpr int FluenciaPrimario = 816;
inline constexpr int FluenciaRevestimiento = 817;
inline constexpr int RetraccionPrimario = 818;
inline constexpr int RetraccionRevestimiento = 819;
inline constexpr int RoturaAcero = 820;
inline constexpr int ModuloAcero = 821;
inline constexpr int RelajacionFinal = 822;
inline constexpr int TensionTesado = 823;
inline constexpr std::array<int, 4> Equivalencia{824, 825, 826, 827};
inline constexpr std::array<int, 5> LameTubo{828, 829, 830, 831, 832};
inline constexpr std::array<int, 2> LameAlambre{833, 834};
inline constexpr std::array<int, 2> LameRelacion{835, 836};
inline constexpr std::array<int, 2> LameConjunto{837, 838};
inline constexpr std::array<int, 6> Geometria{839, 840, 841, 842, 843, 844};
inline constexpr std::array<int, 2> RadioRevestido{845, 846};
inline constexpr int CaracteristicasPostesado = 849;
inline constexpr std::array<int, 5> LugaresTension{850, 851, 852, 853, 854};
inline constexpr int PresionNetaPrueba = 855;
inline constexpr int DiametroAlambre = 856;
inline constexpr int EspirasPorMetro = 857;
inline constexpr int HipotesisDeCalculo = 858;
inline constexpr int Perdidas = 859;
inline constexpr int Acortamiento = 860;
inline constexpr int Relajacion = 861;
inline constexpr int FluenciaYRetraccion = 862;
inline constexpr int Tensiones = 863;
inline constexpr int Residual = 864;
inline constexpr int TensionesIniciales = 865;
inline constexpr int CaraInterior = 866;
inline constexpr int CaraExterior = 867;
inline constexpr int LimiteZunchado = 868;
inline constexpr int TensionesFinales = 869;
inline constexpr int EsfuerzosOvalizacion = 870;
inline constexpr int SeccionesAnchas = 871;
inline constexpr int TensionesEspaciado = 872;
inline constexpr int PresionYOvalizacion = 873;
inline constexpr int SeccionesEstrechas = 874;
inline constexpr int Totales = 875;
inline constexpr int CoeficientesEquivalencia = 876;
inline constexpr int CoeficientesLame = 877;
inline constexpr int CaracteristicasGeometricas = 878;
inline constexpr int ResumenUnidadesSI = 879;
inline constexpr int ResumenUnidadesMKS = 880;
inline constexpr int ResumenDiametro = 881;
inline constexpr int ResumenEspiras = 882;
inline constexpr std::array<int, 2> DatosTabular{883, 884};
inline constexpr int DatosTabularSI = 885;
inline constexpr int DatosTabularMKS = 886;
inline constexpr std::array<int, 2> CabeceraPostesado{887, 888};
inline constexpr int CabeceraPostesadoSI = 889;
inline constexpr int CabeceraPostesadoMKS = 890;
inline constexpr int CabeceraPostesadoRaya = 893;

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
inline constexpr int AyudaListado = 1117;
inline constexpr int AyudaPdf = 1118;
inline constexpr int AyudaTexto = 1119;
inline constexpr int FaltaPalabra = 1120;
inline constexpr int PalabraInesperada = 1121;
inline constexpr int ValorNoSirve = 1122;
inline constexpr int NecesitaValor = 1123;
inline constexpr int VeaLaAyuda = 1124;
inline constexpr int SalidaNoSeEscribe = 1125;
inline constexpr int TramoQueNoEsta = 1126;
inline constexpr int IdiomaSinInstalar = 1127;
inline constexpr int AyudaIdioma = 1128;
inline constexpr int PalabraFichero = 1179;
inline constexpr int PalabraCarpeta = 1180;
inline constexpr int PalabraFecha = 1181;
inline constexpr int SalidaSobreLaObra = 1182;
inline constexpr int NoVanJuntas = 1183;
inline constexpr int NecesitaOtra = 1184;
inline constexpr int FaltaFuente = 1185;
inline constexpr int ValidaUnaObra = 1186;
inline constexpr int AyudaTablas = 1187;
inline constexpr int AyudaSinValidar = 1188;
inline constexpr int FaltaDeLaObra = 1189;
inline constexpr int FaltaDelTramo = 1190;
inline constexpr int PreguntaDelTramo = 1191;
inline constexpr int ObraSinFaltas = 1192;
inline constexpr int AyudaFecha = 1129;

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
inline constexpr int IncAlturaObra = 1141;
inline constexpr int TramoSinCasos = 1142;
inline constexpr int DemasiadosCasos = 1460;
inline constexpr int DemasiadasVueltas = 1461;
inline constexpr int Calculando = 1143;
inline constexpr int ListadoEscrito = 1144;

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
inline constexpr int OtroFormato = 1163;

// Calculators on the command line
inline constexpr int CalculoHidraulicoOrden = 1170;
inline constexpr int AnalisisOrden = 1171;
inline constexpr int AyudaMetodo = 1172;
inline constexpr int AyudaPendiente = 1173;
inline constexpr int AyudaCaudal = 1174;
inline constexpr int AyudaRugosidadOrden = 1175;
inline constexpr int AyudaFormatoCalculadora = 1176;
inline constexpr int AyudaIdiomaCalculadora = 1177;
inline constexpr int UnoDeEstos = 1178;
inline constexpr int FalloInesperado = 1470;  // {1} cause
// clang-format on

}  // namespace zorbin::txt
