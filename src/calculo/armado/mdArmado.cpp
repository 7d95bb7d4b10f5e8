#include "calculo/armado/mdArmado.h"

#include "calculo/armado/mdArmtub.h"
#include "calculo/armado/mdCamisa.h"
#include "calculo/armado/mdRetraccion.h"

namespace zorbin {

namespace {

// Pressure of each hypothesis [at].
Lista<double, kHipotesisArmado> Presiones(const PresionesCaso& p) {
  return {{p.PP, 0.0, p.STP, p.DP, p.MDP}};
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

// Areas of the Caso: those of its steel, or those of its hand adjustment.
void PonAreas(ResultadoArmado& r) {
  const auto as = r.ajuste ? AreasDelAjuste(*r.ajuste) : AreasDelAcero(r);
  r.AsInt = as.AsInt;
  r.AsExt = as.AsExt;
  r.Total = as.AsInt + as.AsExt;
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

// One Caso.
class Diseno {
 public:
  Diseno(const Tramo& t, const TerminosAnillo& terminos, const PresionesCaso& presiones,
         const std::optional<Ajuste>& ajuste, Marcha& marcha)
      : t_(t), p_(presiones), marcha_(marcha), R_(t.Di / 2.0) {
    r_.ajuste = ajuste;
    if (ajuste) r_.AreaExterior = ajuste->Exterior;
    r_.BRAZO = BrazoEntreCapas(t);
    AnotaInicio(marcha.registro, t, R_);
    r_.esfuerzos = EsfuerzosArmado(terminos, presiones, R_);
  }

  ResultadoArmado Calcula() {
    RecorreHipotesis();
    AnotaAcero(marcha_.registro, t_, r_);
    if (r_.HipotesisRige == kHipPPNeta) {
      RigePPNeta();
    } else {
      Busca(r_.HipotesisRige, FaseAviso::Final);
    }
    EsfuerzosQueRigen();
    AnotaAcero(marcha_.registro, t_, r_);
    if (r_.IESP > 0) {
      r_.ErrorPostesado = 1;
      return r_;
    }
    AreasFinales(r_);
    ExigeFinitas(r_);
    return r_;
  }

 private:
  const Tramo& t_;
  const PresionesCaso& p_;
  Marcha& marcha_;
  const double R_;  // [m]
  ResultadoArmado r_;

  // A hypothesis all in compression finds no stress allowed: that of an earlier one stands.
  void Busca(int h, FaseAviso fase) {
    const auto x = ArmTubo(t_, r_.esfuerzos, h, fase, r_.ajuste, marcha_);
    static_cast<AceroArmado&>(r_) = x;
    r_.sinFisuracion = x.sinFisuracion;
    r_.TensionMax = x.TensionMax;
    if (x.TensionAdm) r_.TensionAdm = *x.TensionAdm;
    r_.TensionAdmMin = x.TensionAdmMin;
    r_.ErrorPostesado = x.ErrorPostesado;
    if (x.MomentoTope) r_.MomentoTope = true;
  }

  FilaHip DisenaHipotesis(int h) {
    if (h == kHipPPNeta) {
      const auto as = ArmPPNeta(t_, p_.PP);
      return {as.AsInt, as.AsExt, as.AsInt + as.AsExt};
    }
    Busca(h, FaseAviso::Busqueda);
    const auto as = AreasDelAcero(r_);
    return {as.AsInt, as.AsExt, as.AsInt + as.AsExt, r_.IESP, r_.NESPIN, r_.NEXPEX, r_.CAMISA};
  }

  // The hypothesis with the largest total; on a tie the later one.
  void RecorreHipotesis() {
    double Max = 0;
    for (int h = 1; h <= kHipotesisArmado; ++h) {
      r_.TablaHip(h) = DisenaHipotesis(h);
      if (Max <= r_.TablaHip(h).Total) {
        Max = r_.TablaHip(h).Total;
        r_.HipotesisRige = I16(h);
      }
    }
  }

  // The factory test governs: steel for its areas, and the steel ratio of what is provided.
  void RigePPNeta() {
    const FilaHip& fila = r_.TablaHip(kHipPPNeta);
    static_cast<AceroArmado&>(r_) =
        DisponePPNeta(t_, {fila.AsInt, fila.AsExt}, r_.ajuste, marcha_.avisos);
    PonAreas(r_);
    if (r_.CAMISA <= 0) return;
    const double ASCR = Div(r_.Total, t_.Esp * 100.0 * 100.0);
    const auto limite = LimiteLisas(t_.Fck);
    if (ASCR > limite.ASC) {
      marcha_.avisos.push_back(
          {ClaseAviso::RetraccionLisas, kHipPPNeta, FaseAviso::Final, ASCR, true});
    } else if (marcha_.registro != nullptr) {
      *marcha_.registro << limite.paso;
      marcha_.registro->FinLinea();
    }
  }

  void EsfuerzosQueRigen() {
    const int h = r_.HipotesisRige;
    const double presion = TerminoPresion(Presiones(p_)(h), R_);
    for (int s = 1; s <= kSecciones; ++s) {
      r_.MRige(s) = r_.esfuerzos.M(h, s);
      r_.NRige(s) = r_.esfuerzos.N(h, s) - presion;
    }
  }
};

}  // namespace

Esfuerzos EsfuerzosArmado(const TerminosAnillo& terminos, const PresionesCaso& presiones,
                          double R) {
  const auto p = Presiones(presiones);
  Esfuerzos x;
  for (int s = 1; s <= kSecciones; ++s) {
    const auto M = [&](int i) { return terminos.MHip(i, s); };
    const auto N = [&](int i) { return terminos.NHip(i, s); };
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

ResultadoArmado DisenoArmado(const Tramo& t, const TerminosAnillo& terminos,
                             const PresionesCaso& presiones, const std::optional<Ajuste>& ajuste,
                             Marcha& marcha) {
  return Diseno(t, terminos, presiones, ajuste, marcha).Calcula();
}

}  // namespace zorbin
