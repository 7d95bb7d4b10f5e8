// Analysis of the waters and soils around a pipe: from it the cement content, the water/cement
// ratio, the cement and the protection that the concrete needs. The thresholds are the whole of
// the method.
#pragma once

#include <array>
#include <cstdint>

#include "base/textos.h"

namespace zorbin {

inline constexpr int kMedios = 9;

/// Places of the nine values.
enum Medio : int {
  kPH = 0,
  kCO2 = 1,
  kNH4 = 2,
  kMg = 3,
  kSO4Exterior = 4,
  kSO4Suelo = 5,
  kResistividad = 6,
  kCorriente = 7,
  kSO4Interior = 8,
};

struct CampoMedio {
  int etiqueta;    // entry of its label
  int unidad;      // entry of its unit, 0 for none
  int marco;       // entry of its frame's caption
  double defecto;  // in its unit
};

/// The fields in the order of their places.
inline constexpr std::array<CampoMedio, kMedios> kCamposMedios{{
    {txt::MedioPH, 0, txt::MarcoAguas, 7.0},
    {txt::MedioCO2, txt::MgPorLitro, txt::MarcoAguas, 0.0},
    {txt::MedioNH4, txt::MgPorLitro, txt::MarcoAguas, 0.0},
    {txt::MedioMg, txt::MgPorLitro, txt::MarcoAguas, 0.0},
    {txt::MedioSO4Exterior, txt::MgPorLitro, txt::MarcoAguas, 0.0},
    {txt::MedioSO4Suelo, txt::MgPorKg, txt::MarcoTerrenos, 0.0},
    {txt::MedioResistividad, txt::OhmioPorM, txt::MarcoResistividad, 0.0},
    {txt::MedioCorriente, txt::Milivoltios, txt::MarcoCorrientes, 0.0},
    {txt::MedioSO4Interior, txt::MgPorLitro, txt::MarcoAguas, 0.0},
}};

struct MuestraMedios {
  std::array<double, kMedios> valor{};  // in the units of kCamposMedios
  bool ciclos = false;                  // cycles of wetting and drying, or half-buried pipe
};

struct ResultadoMedios {
  MuestraMedios muestra;
  double Dosificacion = 0;           // cement content [kg/m3]; 0 without requirement
  double RelacionAC = 0;             // water/cement ratio [-]
  int TipoCemento = txt::Normal;     // entry: normal, or resistant to sulphates
  int Adicional = txt::RespuestaNo;  // entry: whether additional protection is needed
  bool AislarTuberia = false;        // resistivity above 0 and below 15
  bool HayCorriente = false;         // stray current above 0
  bool ControlarCorriente = false;   // stray current above 200
  bool HayMedida = false;            // any measure at all
};

/// @throws ErrorEjecucion Desbordamiento for a value that is infinite or no number
ResultadoMedios AnalizaMedios(const MuestraMedios& muestra);

}  // namespace zorbin
