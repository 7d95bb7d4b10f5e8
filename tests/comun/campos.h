// The captured fields by their names, for what fills, spoils or compares them one by one.
#pragma once

#include <array>
#include <cstdint>

#include "core/estado_calculo.h"

namespace zorbin::pruebas {

template <class Bloque, class Tipo>
struct Campo {
  const char* nombre;
  Tipo Bloque::*campo;
};

// clang-format off
inline constexpr auto kNumerosObra = std::to_array<Campo<Obra, double>>({
    {"Prs1", &Obra::Prs1}, {"Prs2", &Obra::Prs2}, {"Prs3", &Obra::Prs3}, {"PrsM1", &Obra::PrsM1},
    {"PrsM2", &Obra::PrsM2}, {"Alt1", &Obra::Alt1}, {"Alt2", &Obra::Alt2}, {"Alt3", &Obra::Alt3}});

inline constexpr auto kNumerosTramo = std::to_array<Campo<Tramo, double>>({
    {"Adato", &Tramo::Adato}, {"Coepre1", &Tramo::Coepre1}, {"CamMax", &Tramo::CamMax},
    {"Fck", &Tramo::Fck}, {"Fct", &Tramo::Fct}, {"Fyk", &Tramo::Fyk}, {"Fyd", &Tramo::Fyd},
    {"GamaB", &Tramo::GamaB}, {"Delca", &Tramo::Delca}, {"Es", &Tramo::Es}, {"Ep", &Tramo::Ep},
    {"Fckno", &Tramo::Fckno}, {"Fckn", &Tramo::Fckn}, {"Fckr", &Tramo::Fckr},
    {"SFck", &Tramo::SFck}, {"Sf", &Tramo::Sf}, {"FYKPost", &Tramo::FYKPost},
    {"Rel", &Tramo::Rel}, {"Fic", &Tramo::Fic}, {"Fir", &Tramo::Fir}, {"Epsc", &Tramo::Epsc},
    {"Epsr", &Tramo::Epsr}, {"Di", &Tramo::Di}, {"De", &Tramo::De}, {"Esp", &Tramo::Esp},
    {"Reci", &Tramo::Reci}, {"Rece", &Tramo::Rece}, {"Gc", &Tramo::Gc}, {"B0", &Tramo::B0},
    {"Gr", &Tramo::Gr}, {"Fi", &Tramo::Fi}, {"Hr1", &Tramo::Hr1}, {"QDato", &Tramo::QDato},
    {"Prs1Tram", &Tramo::Prs1Tram}, {"Prs2Tram", &Tramo::Prs2Tram},
    {"Prs3Tram", &Tramo::Prs3Tram}, {"PrsM1Tram", &Tramo::PrsM1Tram},
    {"PrsM2Tram", &Tramo::PrsM2Tram}, {"Hr0Tramo", &Tramo::Hr0Tramo},
    {"Hr0Final", &Tramo::Hr0Final}, {"Hr0Delta", &Tramo::Hr0Delta}});

inline constexpr auto kCodigosTramo = std::to_array<Campo<Tramo, std::int16_t>>({
    {"Tipologia", &Tramo::Tipologia}, {"TipoControl", &Tramo::TipoControl},
    {"TipoCamisa", &Tramo::TipoCamisa}, {"TipoCuna", &Tramo::TipoCuna},
    {"TipoApoyo", &Tramo::TipoApoyo}, {"TipoRelleno", &Tramo::TipoRelleno}, {"IAs", &Tramo::IAs},
    {"IndCar", &Tramo::IndCar}, {"ICar", &Tramo::ICar}});
// clang-format on

/// What a file gives together with the fields of a Tramo.
inline void Deriva(Tramo& t) {
  t.EsArmado = t.Tipologia < kPrimeraPostesada;
  t.SubTipo = t.EsArmado ? 3 : 0;
  t.PostFlag = t.EsArmado ? 0 : 1;
  t.TipoColocacion = t.TipoApoyo < 20 ? 0 : t.TipoApoyo < 30 ? 1 : 2;
}

}  // namespace zorbin::pruebas
