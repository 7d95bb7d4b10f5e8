#include "calculo/postesado/mdComprueba.h"

#include <algorithm>

#include "calculo/postesado/mdDmen.h"

namespace zorbin {

namespace {

constexpr double kEscalaChapa = 1000.0;          // of the stress of the cylinder
constexpr int kHipotesisHormigon = 6;            // the one whose concrete is checked
constexpr double kFraccionHormigon = 0.6;        // of the strength in compression [-]
constexpr double kCompresionPrueba = -5.0;       // that the factory test leaves [kp/cm2]
constexpr double kSeguridadRevestimiento = 1.5;  // on its tensile strength in the test [-]
constexpr double kNoLimita = 999999.0;           // [at]

}  // namespace

double CompruebaChapa(const Tramo& t, double RatioChapa, const TensionesHipotesis& x) {
  if (t.Tipologia == kPostesadaRevestida) return Finito(Max3(x.TotPE) * RatioChapa * kEscalaChapa);
  Lista<double, kSecciones> v;
  for (int s = 1; s <= kSecciones; ++s) {
    v(s) = Div((x.TotPE(s) - x.TotPI(s)) * t.Reci, t.Esp - t.Rece) + x.TotPI(s);
  }
  return Finito(Max3(v) * RatioChapa * kEscalaChapa);
}

std::int16_t CompruebaHormigon(const TensionesHipotesis& x, int Hipotesis, double Fckn,
                               double Fckr) {
  if (Hipotesis != kHipotesisHormigon) return 0;
  if (Max3(x.TotPI) > kFraccionHormigon * Fckn) return 9;
  if (Max3(x.TotPE) > kFraccionHormigon * Fckn) return 10;
  if (Max3(x.TotRI) > kFraccionHormigon * Fckr) return 11;
  if (Max3(x.TotRE) > kFraccionHormigon * Fckr) return 12;
  return 0;
}

double PresionLimite(double PresTension, double Base, double Limite, double MDP) {
  if (PresTension == 0.0) return kNoLimita;
  return Div((Limite - Base) * MDP, PresTension);
}

double PruebaFabricaNeta(const TensionesHipotesis& x, double Fctr, double MDP) {
  double PP = kPPSinLimite;
  const auto limita = [&PP, MDP](double PresTension, const Lista<double, kSecciones>& Base,
                                 double Limite) {
    for (int s = 1; s <= kSecciones; ++s) {
      PP = std::min(PP, PresionLimite(PresTension, Base(s), Limite, MDP));
    }
  };
  const double limiteRevestimiento = Fctr / kSeguridadRevestimiento;
  limita(x.PrPI, x.SinPI, kCompresionPrueba);
  limita(x.PrPE, x.SinPE, kCompresionPrueba);
  limita(x.PrRI, x.SinRI, limiteRevestimiento);
  limita(x.PrRE, x.SinRE, limiteRevestimiento);
  return PP;
}

}  // namespace zorbin
