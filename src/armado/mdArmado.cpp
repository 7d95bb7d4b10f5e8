#include "armado/mdArmado.h"

#include "armado/mdArmtub.h"
#include "armado/mdCamisa.h"
#include "armado/mdRetraccion.h"
#include "core/mdAjustes.h"

namespace zorbin {

namespace {

constexpr int kHipPPNeta = 1;

// Pressure of each hypothesis [at].
Lista<double, kHipotesisArmado> Presiones(const Corrida& c) {
  return {{c.PPNeta, 0.0, c.STP, c.DP, c.MDP}};
}

double TerminoPresion(double p, double R) {
  return p * 10.0 * R;
}

// Areas of the steel that stands in the bars and the sheet.
AreasCaras AreasDelAcero(const ResultadoArmado& r) {
  return {AreaBarras(r.FIIN, r.NESPIN) + r.CAMISA * 10.0, AreaBarras(r.FIEX, r.NEXPEX)};
}

AreasCaras AreasDelAjuste(const Ajuste& a) {
  return {a.Camisa + a.Espiras, a.Exterior};
}

void AnotaAcero(Registro* log, const Tramo& t, const ResultadoArmado& r) {
  if (log == nullptr) return;
  *log << "ESP RECI RECE CAMISA" << t.Esp << t.Reci << t.Rece << r.CAMISA;
  log->FinLinea();
  *log << "FIIN NESPIN FIEX NEXPEX " << r.FIIN << int{r.NESPIN} << r.FIEX << int{r.NEXPEX};
  log->FinLinea();
  *log << "NHIPO NSEC IESP CAMMAX" << kHipotesisArmado << kSecciones << int{r.IESP} << t.CamMax;
  log->FinLinea();
}

void AnotaInicio(Registro* log, const Tramo& t, double R) {
  if (log == nullptr) return;
  *log << std::string(60, '=');
  log->FinLinea();
  *log << "ICAMIS RADIO PRES" << int{t.TipoCamisa} << R << 0;
  log->FinLinea();
}

FilaHip DisenaHipotesis(EstadoCalculo& e, int h) {
  auto& r = e.caso.armado;
  AreasCaras as{};
  if (h == kHipPPNeta) {
    as = ArmPPNeta(e);
  } else {
    ArmTubo(e, h, h, FaseAviso::Busqueda);
    as = AreasDelAcero(r);
    r.AreaCamisa = r.CAMISA * 10.0;
    r.AreaEspiras = AreaBarras(r.FIIN, r.NESPIN);
    // An adjusted Caso keeps the adjusted outer area, by which its layers are judged.
    if (!r.HayAjuste()) r.AreaExterior = as.AsExt;
  }
  return {as.AsInt, as.AsExt, as.AsInt + as.AsExt, r.IESP, r.NESPIN, r.NEXPEX, r.CAMISA};
}

// The hypothesis with the largest total; on a tie the later one.
void RecorreHipotesis(EstadoCalculo& e) {
  auto& r = e.caso.armado;
  r.HipotesisRige = 0;
  double Max = 0;
  for (int h = 1; h <= kHipotesisArmado; ++h) {
    r.TablaHip(h) = DisenaHipotesis(e, h);
    if (Max <= r.TablaHip(h).Total) {
      Max = r.TablaHip(h).Total;
      r.HipotesisRige = I16(h);
    }
  }
}

// The factory test governs: its areas, with the bars that the Caso before left.
void RigePPNeta(EstadoCalculo& e) {
  auto& r = e.caso.armado;
  const FilaHip& fila = r.TablaHip(kHipPPNeta);
  r.AsInt = fila.AsInt;
  r.AsExt = fila.AsExt;
  r.IESP = fila.IESP;
  r.NESPIN = fila.NESPIN;
  r.NEXPEX = fila.NEXPEX;
  r.CAMISA = fila.CAMISA;
  if (r.ajuste) {
    r.AsInt = AreasDelAjuste(*r.ajuste).AsInt;
    r.AsExt = r.ajuste->Exterior;
  }
  if (r.CAMISA <= 0) return;
  const double ASCR = Div(r.AsInt + r.AsExt, e.tramo.Esp * 100.0 * 100.0);
  const auto limite = LimiteLisas(e.tramo.Fck);
  if (ASCR > limite.ASC) {
    e.caso.avisos.push_back(
        {ClaseAviso::RetraccionLisas, kHipPPNeta, FaseAviso::Final, ASCR, true});
  } else if (e.corrida.registro != nullptr) {
    *e.corrida.registro << limite.paso;
    e.corrida.registro->FinLinea();
  }
}

void EsfuerzosQueRigen(EstadoCalculo& e, double R) {
  auto& r = e.caso.armado;
  const int h = r.HipotesisRige;
  const double presion = TerminoPresion(Presiones(e.corrida)(h), R);
  for (int s = 1; s <= kSecciones; ++s) {
    r.MRige(s) = r.esfuerzos.M(h, s);
    r.NRige(s) = r.esfuerzos.N(h, s) - presion;
  }
}

void AreasFinales(EstadoCalculo& e) {
  auto& r = e.caso.armado;
  if (r.HipotesisRige > kHipPPNeta) {
    r.AsInt = AreasDelAcero(r).AsInt;
    r.AsExt = AreasDelAcero(r).AsExt;
  }
  r.AreaCamisa = r.CAMISA * 10.0;
  r.AreaEspiras = AreaBarras(r.FIIN, r.NESPIN);
  r.AreaExterior = AreaBarras(r.FIEX, r.NEXPEX);
  if (r.ajuste) {
    r.AsInt = AreasDelAjuste(*r.ajuste).AsInt;
    r.AsExt = r.ajuste->Exterior;
  }
  r.Total = r.AsInt + r.AsExt;
  if (r.HipotesisRige == kHipPPNeta && r.AsExt > kAreaUnaCapa) {
    e.caso.avisos.push_back(
        {ClaseAviso::CapasExterior, kHipPPNeta, FaseAviso::Final, std::nullopt, false});
  }
}

void ExigeFinitas(const ResultadoArmado& r) {
  for (const auto& fila : r.TablaHip.v) Finito(fila.Total);
  for (const double x : {r.AsInt, r.AsExt, r.Total, r.AreaCamisa, r.AreaEspiras, r.AreaExterior}) {
    Finito(x);
  }
}

}  // namespace

Esfuerzos EsfuerzosArmado(const EstadoCalculo& e, double R) {
  const auto p = Presiones(e.corrida);
  Esfuerzos x;
  for (int s = 1; s <= kSecciones; ++s) {
    const auto M = [&](int i) { return e.caso.MHip(i, s); };
    const auto N = [&](int i) { return e.caso.NHip(i, s); };
    x.M(1, s) = 0;
    x.M(2, s) = M(3) + M(1) + M(4);
    x.M(3, s) = M(2) + M(1) + M(8);
    x.M(4, s) = M(2) + M(1) + M(3) + M(4);
    x.M(5, s) = M(2) + M(1) + M(11) + M(9) + M(10);
    x.N(1, s) = TerminoPresion(p(1), R);
    x.N(2, s) = N(3) + N(1) + N(4);
    x.N(3, s) = N(2) + N(1) + N(8) + TerminoPresion(p(3), R);
    x.N(4, s) = N(2) + N(1) + N(3) + N(4) + TerminoPresion(p(4), R);
    x.N(5, s) = N(2) + N(1) + N(11) + N(9) + N(10) + TerminoPresion(p(5), R);
  }
  for (int h = 1; h <= kHipotesisArmado; ++h) {
    for (int s = 1; s <= kSecciones; ++s) {
      Finito(x.M(h, s));
      Finito(x.N(h, s));
    }
  }
  return x;
}

void DisenoArmado(EstadoCalculo& e) {
  auto& r = e.caso.armado;
  const auto& t = e.tramo;
  r.MomentoTope = false;
  r.ErrorPostesado = 0;
  r.ajuste = AjusteDelCaso(e);
  if (r.ajuste) r.AreaExterior = r.ajuste->Exterior;
  // A sheet has no cracking check: nothing of a pipe without one may stand beside it.
  if (t.TipoCamisa > 0) {
    r.TensionMax = r.TensionAdm = r.TensionAdmMin = 0;
    r.sinFisuracion = {};
  }

  const double R = t.Di / 2.0;
  AnotaInicio(e.corrida.registro, t, R);
  r.esfuerzos = EsfuerzosArmado(e, R);
  RecorreHipotesis(e);
  AnotaAcero(e.corrida.registro, t, r);
  if (r.HipotesisRige == kHipPPNeta) {
    RigePPNeta(e);
  } else {
    ArmTubo(e, r.HipotesisRige, r.HipotesisRige, FaseAviso::Final);
  }
  EsfuerzosQueRigen(e, R);
  AnotaAcero(e.corrida.registro, t, r);
  if (r.IESP > 0) {
    r.ErrorPostesado = 1;
    return;
  }
  AreasFinales(e);
  ExigeFinitas(r);
}

}  // namespace zorbin
