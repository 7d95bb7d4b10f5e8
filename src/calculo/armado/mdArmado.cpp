#include "calculo/armado/mdArmado.h"

#include "calculo/armado/mdArmtub.h"
#include "calculo/armado/mdCamisa.h"
#include "calculo/armado/mdRetraccion.h"
#include "core/mdAjustes.h"

namespace zorbin {

namespace {

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
  if (h == kHipPPNeta) {
    const auto as = ArmPPNeta(e);
    return {as.AsInt, as.AsExt, as.AsInt + as.AsExt};
  }
  const auto& r = e.caso.armado;
  ArmTubo(e, h, h, FaseAviso::Busqueda);
  const auto as = AreasDelAcero(r);
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

// Areas of the Caso: those of its steel, or those of its hand adjustment.
void PonAreas(ResultadoArmado& r) {
  const auto as = r.ajuste ? AreasDelAjuste(*r.ajuste) : AreasDelAcero(r);
  r.AsInt = as.AsInt;
  r.AsExt = as.AsExt;
  r.Total = as.AsInt + as.AsExt;
}

// The factory test governs: steel for its areas, and the steel ratio of what is provided.
void RigePPNeta(EstadoCalculo& e) {
  auto& r = e.caso.armado;
  const FilaHip& fila = r.TablaHip(kHipPPNeta);
  DisponePPNeta(e, {fila.AsInt, fila.AsExt});
  PonAreas(r);
  if (r.CAMISA <= 0) return;
  const double ASCR = Div(r.Total, e.tramo.Esp * 100.0 * 100.0);
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

void AreasFinales(ResultadoArmado& r) {
  r.AreaCamisa = r.CAMISA * 10.0;
  r.AreaEspiras = AreaBarras(r.FIIN, r.NESPIN);
  r.AreaExterior = AreaBarras(r.FIEX, r.NEXPEX);
  PonAreas(r);
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
  r = {};
  r.ajuste = AjusteDelCaso(e);
  if (r.ajuste) r.AreaExterior = r.ajuste->Exterior;

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
  AreasFinales(r);
  ExigeFinitas(r);
}

}  // namespace zorbin
