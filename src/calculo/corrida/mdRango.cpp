#include "calculo/corrida/mdRango.h"

#include <algorithm>
#include <cmath>
#include <limits>

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

// The values of a loop, one after another, up to one more than a run may have.
template <class Siguiente>
int CuentaValores(double primero, double ultimo, const Siguiente& siguiente) {
  int n = 0;
  for (std::optional<double> x = primero; x && *x <= ultimo && n <= kMaxCasosCorrida;
       x = siguiente(*x)) {
    ++n;
  }
  return n;
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

PresionesCaso PresionesDe(double DP, const Rango& r, double Di, bool golpeCalculado,
                          Rastro* rastro) {
  const double MDP = Finito((DP - r.DPIni) * r.PendienteMDP + r.MDPIni);
  const PresionesCaso p{DP, MDP, PruebaSistema(MDP, golpeCalculado), PruebaFabricaExigida(MDP, Di)};
  if (rastro) {
    const bool estrecho = Di * 1000.0 <= kDiamCorte;
    rastro->Anota(Formula::MDP, {DP, r.DPIni, r.PendienteMDP, r.MDPIni}, MDP);
    rastro->Anota(golpeCalculado ? Formula::STPCalculado : Formula::STPEstimado, {MDP}, p.STP);
    rastro->Anota(estrecho ? Formula::PPEstrecho : Formula::PPAncho, {MDP}, p.PP);
  }
  return p;
}

CuentaRango CuentaDe(const Rango& r) {
  if (r.UnSoloCaso) return {1, 1};
  return {CuentaValores(r.Hr0, r.Hr0Final,
                        [&r](double h) { return AlturaSiguiente(h, r.Hr0Delta, r.Hr0Final); }),
          CuentaValores(r.PrimeraDP, std::numeric_limits<double>::infinity(),
                        [&r](double DP) { return PresionSiguiente(DP, r); })};
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
  if (cuenta.Casos() <= kMaxCasosCorrida) return;
  throw ErrorEjecucion(CausaError::DemasiadosCasos,
                       cuenta.MasAlturas() ? NombreIncAltura(r) : NombreIncPresion(r));
}

}  // namespace zorbin
