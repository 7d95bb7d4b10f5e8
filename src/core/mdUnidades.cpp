#include "core/mdUnidades.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zorbin {

namespace {

// The captured increment is one of MDP; the loop steps DP.
void CalculaIncDP(EstadoCalculo& e) {
  const double incMDP = e.tramo.TieneDPPropia() ? e.tramo.Prs3Tram : e.obra.Prs3;
  const double inc = incMDP / e.corrida.PendienteMDP;
  e.corrida.IncDPIndefinido = !std::isfinite(inc);
  e.corrida.IncDP = e.corrida.IncDPIndefinido || inc == 0.0 ? 0.0 : inc;
}

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

void EligeAlturas(EstadoCalculo& e) {
  auto& c = e.corrida;
  if (e.tramo.Hr0Tramo <= 0 && e.tramo.Hr0Final <= 0) {
    c.Hr = c.Hr0Actual = e.obra.Alt1;
    c.Hr0FinalActual = e.obra.Alt2;
    e.tramo.Hr0Delta = e.obra.Alt3;
  } else {
    c.Hr = c.Hr0Actual = e.tramo.Hr0Tramo;
    c.Hr0FinalActual = e.tramo.Hr0Final;
  }
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

void EligePresiones(EstadoCalculo& e) {
  auto& c = e.corrida;
  const auto& t = e.tramo;
  const bool propias = t.Prs1Tram > 0 || t.Prs2Tram > 0 || t.PrsM1Tram > 0 || t.PrsM2Tram > 0;
  c.DPIni = propias ? t.Prs1Tram : e.obra.Prs1;
  c.DPFin = propias ? t.Prs2Tram : e.obra.Prs2;
  c.MDPIni = propias ? t.PrsM1Tram : e.obra.PrsM1;
  c.MDPFin = propias ? t.PrsM2Tram : e.obra.PrsM2;
  const double rango = c.DPFin - c.DPIni;
  const double pendiente = rango > 0 ? (c.MDPFin - c.MDPIni) / rango : 1.0;
  c.PendienteMDP = std::isfinite(pendiente) ? pendiente : 0.0;
}

EnUnidadesDeCalculo::EnUnidadesDeCalculo(EstadoCalculo& e) : e_(e), obra_(e.obra), tramo_(e.tramo) {
  e.corrida.ParaCalculoActivo = true;
  e.tramo = TramoEnCalculo(tramo_, obra_.EsSI());
  e.obra = ObraEnCalculo(obra_);
  EligePresiones(e);
  CalculaIncDP(e);
}

EnUnidadesDeCalculo::~EnUnidadesDeCalculo() {
  e_.corrida.ParaCalculoActivo = false;
  if (!obra_.EsSI()) return;
  RecuperaUnidades(e_.obra, obra_);
  RecuperaUnidades(e_.tramo, tramo_);
  e_.tramo.Fct = FctEnSistema(tramo_.Fck, true);
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
