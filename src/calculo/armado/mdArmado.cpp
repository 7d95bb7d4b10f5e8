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

void AnotaEsfuerzos(const TerminosAnillo& x, const PresionesCaso& p, double R, const Esfuerzos& e,
                    int s, Rastro& rastro) {
  const auto M = [&](int i) { return x.MHip(i, s); };
  const auto N = [&](int i) { return x.NHip(i, s); };
  const auto anota = [&](int h, Formula formula, std::initializer_list<double> v, double r) {
    const EnLugar lugar(&rastro, {Apartado::Hipotesis, static_cast<std::int8_t>(h),
                                  static_cast<std::int8_t>(s), CaraPared::Ninguna});
    rastro.Anota(formula, v, r);
  };
  anota(1, Formula::NHip1, {p.PP, R}, e.N(1, s));
  anota(2, Formula::MHip2, {M(3), M(1), M(4)}, e.M(2, s));
  anota(2, Formula::NHip2, {N(3), N(1), N(4)}, e.N(2, s));
  anota(3, Formula::MHip3, {M(2), M(1), M(8)}, e.M(3, s));
  anota(3, Formula::NHip3, {N(2), N(1), N(8), p.STP, R}, e.N(3, s));
  anota(4, Formula::MHip4, {M(2), M(1), M(3), M(4)}, e.M(4, s));
  anota(4, Formula::NHip4, {N(2), N(1), N(3), N(4), p.DP, R}, e.N(4, s));
  anota(5, Formula::MHip5, {M(2), M(1), M(11), M(9), M(10)}, e.M(5, s));
  anota(5, Formula::NHip5, {N(2), N(1), N(11), N(9), N(10), p.MDP, R}, e.N(5, s));
}

// What the Caso ends with: the areas of its steel, or of its hand adjustment.
void AnotaArmadura(const ResultadoArmado& r, Rastro& rastro) {
  const EnLugar lugar(&rastro, Apartado::Armadura);
  const auto dos = [&](double camisa, double espiras, double exterior) {
    rastro.Anota(Formula::InteriorFinal, {camisa, espiras}, r.AsInt);
    rastro.Anota(Formula::ExteriorFinal, {exterior}, r.AsExt);
  };
  if (r.ajuste) {
    dos(r.ajuste->Camisa, r.ajuste->Espiras, r.ajuste->Exterior);
  } else {
    dos(r.AreaCamisa, r.AreaEspiras, r.AreaExterior);
  }
  rastro.Anota(Formula::TotalFinal, {r.AsInt, r.AsExt}, r.Total);
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
         const std::optional<Ajuste>& ajuste, Marcha& marcha, Rastro* rastro)
      : t_(t), p_(presiones), marcha_(marcha), rastro_(rastro), R_(t.Di / 2.0) {
    r_.ajuste = ajuste;
    if (ajuste) r_.AreaExterior = ajuste->Exterior;
    r_.BRAZO = BrazoEntreCapas(t);
    AnotaInicio(marcha.registro, t, R_);
    if (rastro) {
      const EnLugar lugar(rastro, Apartado::Hipotesis);
      rastro->Anota(Formula::Radio, {t.Di}, R_);
    }
    r_.esfuerzos = EsfuerzosArmado(terminos, presiones, R_, rastro);
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
    if (rastro_) AnotaArmadura(r_, *rastro_);
    return r_;
  }

 private:
  const Tramo& t_;
  const PresionesCaso& p_;
  Marcha& marcha_;
  Rastro* rastro_;
  const double R_;  // [m]
  ResultadoArmado r_;

  // A hypothesis all in compression finds no stress allowed: that of an earlier one stands.
  void Busca(int h, FaseAviso fase) {
    // The governing hypothesis is searched twice: the second time is what the Caso rests on.
    Rastro* rastro = fase == FaseAviso::Final ? rastro_ : nullptr;
    const auto x = ArmTubo(t_, r_.esfuerzos, h, fase, r_.ajuste, marcha_, rastro);
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
      const EnLugar lugar(rastro_, {Apartado::PruebaFabrica, kHipPPNeta});
      const auto as = ArmPPNeta(t_, p_.PP, rastro_);
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
    if (rastro_) AnotaRige(Max);
  }

  void AnotaRige(double Max) {
    const auto& T = r_.TablaHip;
    for (int h = 1; h <= kHipotesisArmado; ++h) {
      const EnLugar lugar(rastro_, {Apartado::Rige, static_cast<std::int8_t>(h)});
      rastro_->Anota(Formula::TotalHip, {T(h).AsInt, T(h).AsExt}, T(h).Total);
    }
    const EnLugar lugar(rastro_, {Apartado::Rige, static_cast<std::int8_t>(r_.HipotesisRige)});
    rastro_->Anota(Formula::Rige, {T(1).Total, T(2).Total, T(3).Total, T(4).Total, T(5).Total},
                   Max);
  }

  // The factory test governs: steel for its areas, and the steel ratio of what is provided.
  void RigePPNeta() {
    const FilaHip& fila = r_.TablaHip(kHipPPNeta);
    static_cast<AceroArmado&>(r_) =
        DisponePPNeta(t_, {fila.AsInt, fila.AsExt}, r_.ajuste, marcha_.avisos, rastro_);
    PonAreas(r_);
    if (r_.CAMISA <= 0) return;
    const double ASCR = Div(r_.Total, t_.Esp * 100.0 * 100.0);
    const EnLugar lugar(rastro_, {Apartado::Retraccion, kHipPPNeta});
    const auto limite = LimiteLisas(t_.Fck, rastro_);
    if (rastro_) {
      rastro_->Anota(Formula::CuantiaTotal, {r_.AsInt, r_.AsExt, t_.Esp}, ASCR);
      rastro_->Anota(
          ASCR > limite.ASC ? Formula::RetraccionPruebaPasa : Formula::RetraccionPruebaCumple,
          {ASCR, limite.ASC});
    }
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

Esfuerzos EsfuerzosArmado(const TerminosAnillo& terminos, const PresionesCaso& presiones, double R,
                          Rastro* rastro) {
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
  for (int s = 1; rastro && s <= kSecciones; ++s) {
    AnotaEsfuerzos(terminos, presiones, R, x, s, *rastro);
  }
  return x;
}

ResultadoArmado DisenoArmado(const Tramo& t, const TerminosAnillo& terminos,
                             const PresionesCaso& presiones, const std::optional<Ajuste>& ajuste,
                             Marcha& marcha, Rastro* rastro) {
  return Diseno(t, terminos, presiones, ajuste, marcha, rastro).Calcula();
}

}  // namespace zorbin
