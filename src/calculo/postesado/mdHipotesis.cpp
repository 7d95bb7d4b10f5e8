#include "calculo/postesado/mdHipotesis.h"

#include <array>

#include "calculo/postesado/mdDmen.h"

namespace zorbin {

namespace {

constexpr double kMomento = 1000.0;    // m·t/m to kp·cm/cm
constexpr double kAxil = 10.0;         // t/m to kp/cm
constexpr double kSobrepresion = 1.0;  // over MDP in hypothesis 2 [at]
constexpr double kCompresion = -5.0;   // that must stay in the core [kp/cm2]

// Load terms by their position among those of the ovalisation.
constexpr int kPropio = 1;
constexpr int kFluido = 2;
constexpr int kTodo = 7;  // own weight, water, earth and moving load, the lateral thrust with it
constexpr int kUnMetro = 8;
constexpr int kTimpanos = 9;
constexpr int kLateralFijo = 10;
constexpr int kVertical = 11;
constexpr int kNinguno = 0;

constexpr std::array<std::array<int, 5>, kHipotesisPostesado> kTerminos{{
    {kPropio, kFluido, kVertical, kTimpanos, kLateralFijo},
    {kPropio, kFluido, kVertical, kTimpanos, kLateralFijo},
    {kTodo},
    {kPropio, kFluido},
    {kPropio, kFluido, kUnMetro},
    {kTodo},
}};

double SumaTerminos(const TerminosCaso& terminos, int h, int s) {
  double suma = 0;
  for (const int termino : kTerminos[static_cast<std::size_t>(h - 1)]) {
    if (termino != kNinguno) suma = suma + terminos(termino, s);
  }
  return suma;
}

void AnotaEsfuerzo(const TerminosCaso& x, int h, int s, const std::array<Formula, 4>& formulas,
                   double resultado, Rastro& rastro) {
  const auto [fijas, todas, sinTierras, unMetro] = formulas;
  const auto v = [&](int i) { return x(i, s); };
  const EnLugar lugar(
      &rastro, {Apartado::Hipotesis, static_cast<std::int8_t>(h), static_cast<std::int8_t>(s)});
  switch (h) {
    case 1:
    case 2:
      return rastro.Anota(fijas, {v(1), v(2), v(11), v(9), v(10)}, resultado);
    case 4:
      return rastro.Anota(sinTierras, {v(1), v(2)}, resultado);
    case 5:
      return rastro.Anota(unMetro, {v(1), v(2), v(8)}, resultado);
    default:
      return rastro.Anota(todas, {v(7)}, resultado);
  }
}

void AnotaEsfuerzos(const TerminosAnillo& x, const EsfuerzosPostesado& e, int h, int s,
                    Rastro& rastro) {
  using enum Formula;
  AnotaEsfuerzo(x.MHip, h, s, {MPost12, MPost36, MPost4, MPost5}, e.TablaMom(h, s) * kMomento,
                rastro);
  AnotaEsfuerzo(x.NHip, h, s, {NPost12, NPost36, NPost4, NPost5}, e.TablaAxil(h, s) * kAxil,
                rastro);
}

void AnotaPunto(PuntoPared punto, double K, double P, double pr, double sigma,
                const Lista<double, kSecciones>& ov, const Lista<double, kSecciones>& sin,
                const Lista<double, kSecciones>& total, Rastro& rastro) {
  const EnLugar lugar(&rastro, Apartado::Tensiones);
  rastro.lugar.punto = punto;
  rastro.Anota(Formula::TensionPresion, {K, P}, pr);
  for (int s = 1; s <= kSecciones; ++s) {
    rastro.lugar.seccion = static_cast<std::int8_t>(s);
    rastro.Anota(Formula::TensionSin, {sigma, ov(s)}, sin(s));
    rastro.Anota(Formula::TensionTotal, {pr, sin(s)}, total(s));
  }
}

}  // namespace

EsfuerzosPostesado EsfuerzosHipotesis(const TerminosAnillo& terminos, Rastro* rastro) {
  EsfuerzosPostesado x;
  for (int h = 1; h <= kHipotesisPostesado; ++h) {
    for (int s = 1; s <= kSecciones; ++s) {
      x.TablaMom(h, s) = SumaTerminos(terminos.MHip, h, s);
      x.TablaAxil(h, s) = SumaTerminos(terminos.NHip, h, s);
      if (rastro) AnotaEsfuerzos(terminos, x, h, s, *rastro);
    }
  }
  return x;
}

Lista<double, kHipotesisPostesado> PresionesHipotesis(const PresionesCaso& p, Rastro* rastro) {
  if (rastro) {
    const EnLugar lugar(rastro, {Apartado::Hipotesis, 2});
    rastro->Anota(Formula::PresionSobre, {p.MDP}, p.MDP + kSobrepresion);
  }
  return {{p.DP, p.MDP + kSobrepresion, p.DP, p.MDP, p.STP, 0.0}};
}

Lista<double, kHipotesisPostesado> LimitesPrimario(double Fctn) {
  return {{kCompresion, Fctn, 0.0, kCompresion, kCompresion, kCompresion}};
}

LimitesPresion PresionesLimite(double LimPrimario, double Fctr, const PerdidasPostesado& p,
                               const OvalizacionPostesada& o, const PorPresion& K, Rastro* rastro) {
  LimitesPresion l;
  l.LimPI = Div(LimPrimario - o.OvPImax - p.SigPI, K.KPI);
  l.LimPE = Div(LimPrimario - o.OvPEmax - p.SigPE, K.KPE);
  l.LimRI = Div(Fctr - o.OvRImax - p.SigRI, K.KRI);
  l.LimRE = Div(Fctr - o.OvREmax - p.SigRE, K.KRE);
  l.PresLimite = Min4(l.LimPI, l.LimPE, l.LimRI, l.LimRE);
  Lista<double, 4> caras{{l.LimPI, l.LimPE, l.LimRI, l.LimRE}};
  l.CaraMenor = OrdenaConIndice(caras)(1);
  if (rastro) {
    const EnLugar lugar(rastro, Apartado::Limites);
    rastro->Anota(Formula::LimPI, {LimPrimario, o.OvPImax, p.SigPI, K.KPI}, l.LimPI);
    rastro->Anota(Formula::LimPE, {LimPrimario, o.OvPEmax, p.SigPE, K.KPE}, l.LimPE);
    rastro->Anota(Formula::LimRI, {Fctr, o.OvRImax, p.SigRI, K.KRI}, l.LimRI);
    rastro->Anota(Formula::LimRE, {Fctr, o.OvREmax, p.SigRE, K.KRE}, l.LimRE);
    rastro->Anota(Formula::PresLimite, {l.LimPI, l.LimPE, l.LimRI, l.LimRE}, l.PresLimite);
  }
  return l;
}

TensionesHipotesis Tensiones(double P, const PerdidasPostesado& p, const OvalizacionPostesada& o,
                             const PorPresion& K, Rastro* rastro) {
  TensionesHipotesis t;
  t.PrPI = K.KPI * P;
  t.PrPE = K.KPE * P;
  t.PrRI = K.KRI * P;
  t.PrRE = K.KRE * P;
  t.PrAc = K.KAc * P;
  for (int s = 1; s <= kSecciones; ++s) {
    t.SinPI(s) = p.SigPI + o.OvPI(s);
    t.SinPE(s) = p.SigPE + o.OvPE(s);
    t.SinRI(s) = p.SigRI + o.OvRI(s);
    t.SinRE(s) = p.SigRE + o.OvRE(s);
    t.SinAc(s) = p.SigRes + o.OvAc(s);
    t.TotPI(s) = Finito(t.PrPI + t.SinPI(s));
    t.TotPE(s) = Finito(t.PrPE + t.SinPE(s));
    t.TotRI(s) = Finito(t.PrRI + t.SinRI(s));
    t.TotRE(s) = Finito(t.PrRE + t.SinRE(s));
    t.TotAc(s) = Finito(t.PrAc + t.SinAc(s));
  }
  if (rastro) {
    AnotaPunto(PuntoPared::PI, K.KPI, P, t.PrPI, p.SigPI, o.OvPI, t.SinPI, t.TotPI, *rastro);
    AnotaPunto(PuntoPared::PE, K.KPE, P, t.PrPE, p.SigPE, o.OvPE, t.SinPE, t.TotPE, *rastro);
    AnotaPunto(PuntoPared::RI, K.KRI, P, t.PrRI, p.SigRI, o.OvRI, t.SinRI, t.TotRI, *rastro);
    AnotaPunto(PuntoPared::RE, K.KRE, P, t.PrRE, p.SigRE, o.OvRE, t.SinRE, t.TotRE, *rastro);
    AnotaPunto(PuntoPared::Ac, K.KAc, P, t.PrAc, p.SigRes, o.OvAc, t.SinAc, t.TotAc, *rastro);
  }
  return t;
}

}  // namespace zorbin
