#include "calculo/postesado/mdHipotesis.h"

#include <array>

#include "calculo/postesado/mdDmen.h"

namespace zorbin {

namespace {

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

}  // namespace

EsfuerzosPostesado EsfuerzosHipotesis(const TerminosAnillo& terminos) {
  EsfuerzosPostesado x;
  for (int h = 1; h <= kHipotesisPostesado; ++h) {
    for (int s = 1; s <= kSecciones; ++s) {
      x.TablaMom(h, s) = SumaTerminos(terminos.MHip, h, s);
      x.TablaAxil(h, s) = SumaTerminos(terminos.NHip, h, s);
    }
  }
  return x;
}

Lista<double, kHipotesisPostesado> PresionesHipotesis(const PresionesCaso& p) {
  return {{p.DP, p.MDP + kSobrepresion, p.DP, p.MDP, p.STP, 0.0}};
}

Lista<double, kHipotesisPostesado> LimitesPrimario(double Fctn) {
  return {{kCompresion, Fctn, 0.0, kCompresion, kCompresion, kCompresion}};
}

LimitesPresion PresionesLimite(double LimPrimario, double Fctr, const PerdidasPostesado& p,
                               const OvalizacionPostesada& o, const PorPresion& K) {
  LimitesPresion l;
  l.LimPI = Div(LimPrimario - o.OvPImax - p.SigPI, K.KPI);
  l.LimPE = Div(LimPrimario - o.OvPEmax - p.SigPE, K.KPE);
  l.LimRI = Div(Fctr - o.OvRImax - p.SigRI, K.KRI);
  l.LimRE = Div(Fctr - o.OvREmax - p.SigRE, K.KRE);
  l.PresLimite = Min4(l.LimPI, l.LimPE, l.LimRI, l.LimRE);
  Lista<double, 4> caras{{l.LimPI, l.LimPE, l.LimRI, l.LimRE}};
  l.CaraMenor = OrdenaConIndice(caras)(1);
  return l;
}

TensionesHipotesis Tensiones(double P, const PerdidasPostesado& p, const OvalizacionPostesada& o,
                             const PorPresion& K) {
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
  return t;
}

}  // namespace zorbin
