#include "calculo/protecciones/mdMedios.h"

#include <limits>

#include "base/aritmetica.h"

namespace zorbin {

namespace {

constexpr double kSinTope = std::numeric_limits<double>::infinity();
constexpr double kResistividadBaja = 15.0;  // [Ohm m]
constexpr double kCorrienteAlta = 200.0;    // [mV]

// Bands of an ion in the water: from `desde` to `leve` level 1, to `media` level 2, above 3.
struct BandasAgua {
  Medio medio;
  double desde, leve, media;  // [mg/l]
};

constexpr std::array<BandasAgua, 3> kAguas{{
    {kCO2, 15, 60, 100},
    {kNH4, 15, 30, 60},
    {kMg, 300, 1500, 3000},
}};

struct Requisito {
  double Dosificacion;  // [kg/m3]
  double RelacionAC;    // [-]
};

constexpr Requisito kDebil{350.0, 0.5};
constexpr Requisito kFuerte{400.0, 0.45};

// A band of sulphates: above `sobre` and at most `hasta`.
struct BandaSulfatos {
  double sobre, hasta;  // [mg/l] in water, [mg/kg] in soil
  double dosisTope;     // the requirement acts on a Dosificacion up to this
  Requisito requisito;
  bool SR;  // asks for sulphate-resistant cement
  bool adicional;
  std::int16_t Nivel;
};

constexpr std::array<BandaSulfatos, 4> kSulfatosAgua{{
    {200, 600, 0, kDebil, false, false, 1},
    {600, 3000, 350, kDebil, true, false, 2},
    {3000, 6000, 400, kFuerte, true, false, 3},
    {6000, kSinTope, kSinTope, kFuerte, true, true, 4},
}};

constexpr std::array<BandaSulfatos, 3> kSulfatosSuelo{{
    {2000, 3000, 0, kDebil, false, false, 0},
    {3000, 12000, 350, kDebil, true, false, 0},
    {12000, kSinTope, kSinTope, kFuerte, true, true, 0},
}};

template <std::size_t N>
const BandaSulfatos* BandaDe(const std::array<BandaSulfatos, N>& bandas, double v) {
  for (const auto& banda : bandas) {
    if (v > banda.sobre && v <= banda.hasta) return &banda;
  }
  return nullptr;
}

std::int16_t NivelPH(double pH) {
  if (pH > 6.5) return 0;
  if (pH >= 4.5) return 1;
  return pH >= 4.0 ? 2 : 3;
}

std::int16_t NivelAguas(const MuestraMedios& m) {
  std::int16_t Nivel = NivelPH(m.valor[kPH]);
  for (const auto& b : kAguas) {
    const double v = m.valor[static_cast<std::size_t>(b.medio)];
    if (v < b.desde) continue;
    if (v <= b.leve) {
      if (Nivel == 0) Nivel = 1;
    } else if (v <= b.media) {
      if (Nivel < 3) Nivel = 2;
    } else {
      Nivel = 3;
    }
  }
  return Nivel;
}

void Exige(ResultadoMedios& r, const Requisito& requisito) {
  r.Dosificacion = requisito.Dosificacion;
  r.RelacionAC = requisito.RelacionAC;
}

void Aguas(ResultadoMedios& r) {
  const std::int16_t Nivel = NivelAguas(r.muestra);
  if (Nivel > 0) Exige(r, Nivel == 1 ? kDebil : kFuerte);
  if (Nivel == 3) r.Adicional = txt::RespuestaSi;
}

// The whole band, cement included, depends on the cement content so far.
std::int16_t SulfatosExteriores(ResultadoMedios& r) {
  const auto* b = BandaDe(kSulfatosAgua, r.muestra.valor[kSO4Exterior]);
  if (b == nullptr || r.Dosificacion > b->dosisTope) return 0;
  Exige(r, b->requisito);
  if (b->SR) r.TipoCemento = txt::CementoSR;
  if (b->adicional) r.Adicional = txt::RespuestaSi;
  return b->Nivel;
}

// `Nivel` is that of the exterior sulphates alone. Here every band that acts asks for the
// resistant cement, whatever the cement content.
void SulfatosInteriores(ResultadoMedios& r, std::int16_t Nivel) {
  const auto* b = BandaDe(kSulfatosAgua, r.muestra.valor[kSO4Interior]);
  if (b == nullptr || Nivel > b->Nivel) return;
  if (r.Dosificacion <= b->dosisTope) Exige(r, b->requisito);
  r.TipoCemento = txt::CementoSR;
  if (b->adicional) r.Adicional = txt::RespuestaSi;
}

void SulfatosDelSuelo(ResultadoMedios& r) {
  const auto* b = BandaDe(kSulfatosSuelo, r.muestra.valor[kSO4Suelo]);
  if (b == nullptr || r.Dosificacion > b->dosisTope) return;
  Exige(r, b->requisito);
  if (b->SR) r.TipoCemento = txt::CementoSR;
  if (b->adicional && r.muestra.ciclos) r.Adicional = txt::RespuestaSi;
}

}  // namespace

ResultadoMedios AnalizaMedios(const MuestraMedios& muestra) {
  for (const double v : muestra.valor) Finito(v);
  ResultadoMedios r;
  r.muestra = muestra;
  Aguas(r);
  SulfatosInteriores(r, SulfatosExteriores(r));
  SulfatosDelSuelo(r);
  const double resistividad = muestra.valor[kResistividad];
  r.AislarTuberia = resistividad > 0.0 && resistividad < kResistividadBaja;
  r.HayCorriente = muestra.valor[kCorriente] > 0.0;
  r.ControlarCorriente = muestra.valor[kCorriente] > kCorrienteAlta;
  r.HayMedida = r.Dosificacion > 0.0 || r.AislarTuberia || r.ControlarCorriente;
  return r;
}

}  // namespace zorbin
