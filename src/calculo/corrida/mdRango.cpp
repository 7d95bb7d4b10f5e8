#include "calculo/corrida/mdRango.h"

#include <algorithm>
#include <cmath>

#include "core/mdUnidades.h"

namespace zorbin {

namespace {

constexpr double kPasePresion = 0.2;   // a step may pass the last pressure by this much [at]
constexpr double kMargenUltima = 0.1;  // rest for which no shorter last step is made [at]
constexpr double kDiamCorte = 1200.0;  // of the two factory test rules [mm]
constexpr double kGolpe = 1.0;         // STP over MDP, surge calculated [at]

double PruebaFabricaExigida(double MDP, double Di) {
  const double suma = Di * 1000.0 <= kDiamCorte ? 2.0 : 1.0;  // [at]
  return std::max(1.2 * MDP, MDP + suma);
}

double PruebaSistema(double MDP, bool golpeCalculado) {
  return golpeCalculado ? MDP + kGolpe : std::min(1.5 * MDP, MDP + 5.0);
}

// Values of a loop from `desde` to `hasta`, but for the rounding of its steps; 0 without a step.
double CuentaPasos(double desde, double hasta, double paso) {
  return paso > 0.0 && hasta >= desde ? Int((hasta - desde) / paso) + 1.0 : 0.0;
}

const char* NombreIncPresion(const Rango& r) {
  return r.PresionesPropias ? "Prs3Tram" : "Prs3";
}
const char* NombreIncAltura(const Rango& r) {
  return r.AlturasPropias ? "Hr0Delta" : "Alt3";
}

void PonPendiente(Rango& r, const Obra& o, const Tramo& t) {
  const bool propias = t.TieneDPPropia() || t.PrsM1Tram > 0 || t.PrsM2Tram > 0;
  r.DPIni = propias ? t.Prs1Tram : o.Prs1;
  r.DPFin = propias ? t.Prs2Tram : o.Prs2;
  r.MDPIni = propias ? t.PrsM1Tram : o.PrsM1;
  r.MDPFin = propias ? t.PrsM2Tram : o.PrsM2;
  const double ancho = r.DPFin - r.DPIni;
  const double pendiente = ancho > 0 ? (r.MDPFin - r.MDPIni) / ancho : 1.0;
  r.PendienteMDP = std::isfinite(pendiente) ? pendiente : 0.0;
}

// The captured increment is one of MDP; the loop steps DP.
void PonBucle(Rango& r, const Obra& o, const Tramo& t) {
  r.PresionesPropias = t.TieneDPPropia();
  r.PrimeraDP = r.PresionesPropias ? t.Prs1Tram : o.Prs1;
  r.UltimaDP = r.PresionesPropias ? t.Prs2Tram : o.Prs2;
  const double paso = (r.PresionesPropias ? t.Prs3Tram : o.Prs3) / r.PendienteMDP;
  r.IncDPIndefinido = !std::isfinite(paso);
  r.IncDP = r.IncDPIndefinido || paso == 0.0 ? 0.0 : paso;
}

}  // namespace

Rango RangoDe(const DatosTramo& datos) {
  Rango r{AlturasDe(datos.obra, datos.tramo)};
  PonPendiente(r, datos.obra, datos.tramo);
  PonBucle(r, datos.obra, datos.tramo);
  return r;
}

Rango RangoDeUnCaso(const DatosTramo& datos, double Hr, double DP) {
  Rango r = RangoDe(datos);
  r.Hr0 = r.Hr0Final = Hr;
  r.PrimeraDP = r.UltimaDP = DP;
  r.IncDP = 0;
  r.IncDPIndefinido = false;
  r.UnSoloCaso = true;
  return r;
}

std::optional<double> PresionSiguiente(double DP, const Rango& r) {
  const double siguiente = Finito(DP + r.IncDP);
  if (r.IncDP == 0.0) return std::nullopt;
  if (r.UltimaDP + kPasePresion >= siguiente) return siguiente;
  if (r.UltimaDP + r.IncDP - kMargenUltima >= siguiente) return r.UltimaDP;
  return std::nullopt;
}

PresionesCaso PresionesDe(double DP, const Rango& r, double Di, bool golpeCalculado) {
  const double MDP = Finito((DP - r.DPIni) * r.PendienteMDP + r.MDPIni);
  return {DP, MDP, PruebaSistema(MDP, golpeCalculado), PruebaFabricaExigida(MDP, Di)};
}

CuentaRango CuentaDe(const Rango& r) {
  if (r.UnSoloCaso) return {1.0, 1.0};
  if (r.Hr0 > r.Hr0Final) return {};
  // The last height may be landed on.
  return {1.0 + CuentaPasos(r.Hr0, r.Hr0Final - kEngancheAltura, r.Hr0Delta),
          std::max(1.0, CuentaPasos(r.PrimeraDP, r.UltimaDP + kPasePresion, r.IncDP))};
}

ErrorEjecucion DemasiadosCasos(const Rango& r, double alturas, double presiones) {
  return ErrorEjecucion(CausaError::DemasiadosCasos,
                        alturas > presiones ? NombreIncAltura(r) : NombreIncPresion(r));
}

void ExigeRango(const Rango& r) {
  if (r.UnSoloCaso) return;
  if (r.IncDPIndefinido || r.IncDP < 0) {
    throw ErrorEjecucion(CausaError::IncrementoPresion, NombreIncPresion(r));
  }
  if (r.Hr0Delta < 0 && r.Hr0 < r.Hr0Final) {
    throw ErrorEjecucion(CausaError::IncrementoAltura, NombreIncAltura(r));
  }
  const auto cuenta = CuentaDe(r);
  if (cuenta.Casos() > 2.0 * kMaxCasosCorrida) {
    throw DemasiadosCasos(r, cuenta.alturas, cuenta.presiones);
  }
}

}  // namespace zorbin
