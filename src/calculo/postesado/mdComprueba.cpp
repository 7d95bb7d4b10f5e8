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
  if (t.Tipologia == kRevestida) return Finito(Max3(x.TotPE) * RatioChapa * kEscalaChapa);
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

double PruebaFabricaNeta(const TensionesHipotesis& x, double Fctr, double MDP, Rastro* rastro) {
  double PP = kPPSinLimite;
  UltimaVuelta menor(rastro);
  const auto anota = [&](PuntoPared punto, int s, double PresTension, double Base, double P) {
    menor.Empieza();
    const EnLugar lugar(rastro, Apartado::PruebaNeta, s);
    rastro->lugar.punto = punto;
    if (punto == PuntoPared::PI || punto == PuntoPared::PE) {
      rastro->Anota(Formula::PPNucleo, {Base, MDP, PresTension}, P);
    } else {
      rastro->Anota(Formula::PPRevestimiento, {Fctr, Base, MDP, PresTension}, P);
    }
  };
  const auto limita = [&](PuntoPared punto, double PresTension,
                          const Lista<double, kSecciones>& Base, double Limite) {
    for (int s = 1; s <= kSecciones; ++s) {
      const double P = PresionLimite(PresTension, Base(s), Limite, MDP);
      if (rastro && P < PP && PresTension != 0.0) anota(punto, s, PresTension, Base(s), P);
      PP = std::min(PP, P);
    }
  };
  const double limiteRevestimiento = Fctr / kSeguridadRevestimiento;
  limita(PuntoPared::PI, x.PrPI, x.SinPI, kCompresionPrueba);
  limita(PuntoPared::PE, x.PrPE, x.SinPE, kCompresionPrueba);
  limita(PuntoPared::RI, x.PrRI, x.SinRI, limiteRevestimiento);
  limita(PuntoPared::RE, x.PrRE, x.SinRE, limiteRevestimiento);
  return PP;
}

}  // namespace zorbin
