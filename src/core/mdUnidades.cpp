#include "core/mdUnidades.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zorbin {

namespace {

constexpr double kCm = 0.01;              // the last digit of a height [m]
constexpr int kMasPasos = 32767;          // of a range: a run has no more Casos
constexpr double kMargenEnganche = 1e-6;  // for the digits that the additions of a run lose [m]

double IncrementoQueLlega(double ancho, double paso) {
  for (int n = static_cast<int>(std::ceil(ancho / paso)); n <= kMasPasos; ++n) {
    const double incremento = std::round(ancho / n / kCm) * kCm;
    if (incremento < kCm / 2) return 0.0;
    if (std::fabs(n * incremento - ancho) < kEngancheAltura - kMargenEnganche) return incremento;
  }
  return 0.0;
}

// What a conversion does under SI (value, unit, change of decimals) and under MKS. With
// `soloSiHay` the decimals change only when there is one to begin with.
struct Conversion {
  std::string_view nombre;
  double multiplica;
  double divide;
  std::string_view unidadSI;
  int decimalesSI;
  bool soloSiHay;
  std::string_view unidadMKS;
  int decimalesMKS;
};

// clang-format off
constexpr std::array<Conversion, 9> kConversiones{{
    {"",                 1.0,           1.0,            "",       0, false, "",         0},
    {"at->MPa",          1.0,           kFactorTension, "MPa",    2, false, "at",       1},
    {"Kp/cm2->MPa",      1.0,           kFactorTension, "MPa",    1, false, "kp/cm2",   0},
    {"T/M2->MPa",        1.0,           kFactorCarga,   "MPa",    1, false, "T/M2",     0},
    {"T/M2->kN/M2",      kFactorFuerza, 1.0,            "kN/M2", -1, true,  "T/M2",     0},
    {"T->kN",            kFactorFuerza, 1.0,            "kN",    -1, true,  "t",        0},
    {"mT->mkN",          kFactorFuerza, 1.0,            "m.kN",  -1, true,  "m.t",      0},
    {"kp/cm->N/cm",      kFactorFuerza, 1.0,            "N/cm",  -1, true,  "kp/cm",    0},
    {"kp.cm/cm->N.m/cm", 1.0,           kFactorFuerza,  "N.m/cm", 1, true,  "kp.cm/cm", 0},
}};
// clang-format on

}  // namespace

Alturas AlturasDe(const Obra& o, const Tramo& t) {
  if (t.Hr0Tramo > 0 || t.Hr0Final > 0) return {t.Hr0Tramo, t.Hr0Final, t.Hr0Delta, true};
  return {o.Alt1, o.Alt2, o.Alt3, false};
}

std::optional<double> AlturaSiguiente(double h, double paso, double ultima) {
  if (paso == 0.0 || h == ultima) return std::nullopt;
  const double siguiente = h + paso;
  return std::fabs(ultima - siguiente) < kEngancheAltura ? ultima : siguiente;
}

std::optional<double> AlturaAnterior(double h, double paso, double primera) {
  if (!(paso > 0.0)) return std::nullopt;
  const double margen = std::min(kEngancheAltura, paso / 2.0);
  const double pasos = std::ceil((h - primera - margen) / paso) - 1.0;
  if (pasos < 0.0) return std::nullopt;
  return primera + pasos * paso;
}

std::optional<AlturaFuera> AlturaFueraDe(double primera, double ultima, double paso) {
  if (!(paso > 0.0) || !(ultima > primera) || (ultima - primera) / paso > kMasPasos) {
    return std::nullopt;
  }
  double alcanzada = primera;
  for (auto h = AlturaSiguiente(primera, paso, ultima); h && *h <= ultima;
       h = AlturaSiguiente(*h, paso, ultima)) {
    alcanzada = *h;
  }
  if (alcanzada == ultima) return std::nullopt;
  return AlturaFuera{ultima, alcanzada, IncrementoQueLlega(ultima - primera, paso)};
}

double Convierte(double valor, std::string_view conversion, bool si, std::string& unidad,
                 int& decimales) {
  const auto c = std::find_if(kConversiones.begin(), kConversiones.end(),
                              [&](const Conversion& x) { return x.nombre == conversion; });
  if (c == kConversiones.end()) return -999999999.0;
  unidad = si ? c->unidadSI : c->unidadMKS;
  if (!(c->soloSiHay && decimales <= 0)) decimales += si ? c->decimalesSI : c->decimalesMKS;
  return si ? valor * c->multiplica / c->divide : valor;
}

}  // namespace zorbin
