#include "calculo/cargas/mdOval.h"

namespace zorbin {

namespace {

// Columns: bedding group 1, 2, 3, each with CLAVE, RIÑONES, SOLERA. Names: M moment, N axial
// force; p own weight, f fluid, t spandrels, l lateral, v vertical; A and C multiply De/Dm.
using TablaCuna = Lista<double, 9>;
// clang-format off
constexpr TablaCuna KMp{  {{  0.03151, -0.03662,  0.04169,  0.02681, -0.03149,  0.01564,  0.01551, -0.01777, -0.01143 }}};
constexpr TablaCuna KNp{  {{  0.04542, -0.25000, -0.25252,  0.02567, -0.25000, -0.31482, -0.02427, -0.25000, -0.39647 }}};
constexpr TablaCuna KNf{  {{  0.20458,  0.06830,  0.22493,  0.18483,  0.06830,  0.16263,  0.13488,  0.06830,  0.08098 }}};
constexpr TablaCuna KMtA{ {{ -0.02934,  0.06323, -0.03836, -0.02934,  0.06323, -0.03836, -0.02934,  0.06323, -0.03836 }}};
constexpr TablaCuna KMtB{ {{  0.06453, -0.11759,  0.09671,  0.05983, -0.11247,  0.07066,  0.04853, -0.09874,  0.04359 }}};
constexpr TablaCuna KNtA{ {{  0.20316,  0.00000, -0.20316,  0.20316,  0.00000, -0.20316,  0.20316,  0.00000, -0.20316 }}};
constexpr TablaCuna KNtB{ {{ -0.13573, -0.50000, -0.07137, -0.15548, -0.50000, -0.13367, -0.20543, -0.50000, -0.21532 }}};
constexpr TablaCuna KMlA{ {{  0.05369, -0.05255,  0.02870,  0.05369, -0.05255,  0.02870,  0.04707, -0.04347,  0.02224 }}};
constexpr TablaCuna KMlB{ {{ -0.11490,  0.11364, -0.08459, -0.11490,  0.11364, -0.08459, -0.10496,  0.10056, -0.06892 }}};
constexpr TablaCuna KMlC{ {{  0.01275, -0.02214,  0.00978,  0.01275, -0.02214,  0.00978,  0.00743, -0.01486,  0.00453 }}};
constexpr TablaCuna KMlD{ {{ -0.03764,  0.05213, -0.04024, -0.03764,  0.05213, -0.04024, -0.02967,  0.04167, -0.02762 }}};
constexpr TablaCuna KNlA{ {{ -0.03751,  0.00000,  0.03751, -0.03751,  0.00000,  0.03751, -0.06892,  0.00000,  0.06892 }}};
constexpr TablaCuna KNlB{ {{ -0.45709,  0.00000, -0.39646, -0.45709,  0.00000, -0.39646, -0.41104,  0.00000, -0.33896 }}};
constexpr TablaCuna KNlC{ {{  0.02812,  0.00000, -0.02812,  0.02812,  0.00000, -0.02812,  0.00290,  0.00000, -0.00290 }}};
constexpr TablaCuna KNlD{ {{ -0.17954,  0.00000, -0.18470, -0.17954,  0.00000, -0.18470, -0.14267,  0.00000, -0.13858 }}};
constexpr TablaCuna KMvA{ {{ -0.04069,  0.03125, -0.02179, -0.04069,  0.03125, -0.02179, -0.04069,  0.03125, -0.02179 }}};
constexpr TablaCuna KMvB{ {{  0.10727, -0.09912,  0.09092,  0.10257, -0.09399,  0.06487,  0.09127, -0.08027,  0.03780 }}};
constexpr TablaCuna KNvA{ {{  0.10610,  0.00000, -0.10610,  0.10610,  0.00000, -0.10610,  0.10610,  0.00000, -0.10610 }}};
constexpr TablaCuna KNvB{ {{ -0.08720, -0.50000, -0.11990, -0.10695, -0.50000, -0.18220, -0.15690, -0.50000, -0.26385 }}};
// clang-format on

constexpr double kFactorMenorDe90 = 1.25;

double MomentoLateral(const ResultantesOval& r, double De, int col, double h) {
  return ((KMlA(col) * r.w + KMlB(col)) * h + (KMlC(col) * r.w + KMlD(col)) * De) * r.Wl * r.Dm;
}

double AxilLateral(const ResultantesOval& r, double De, int col, double h) {
  return ((KNlA(col) * r.w + KNlB(col)) * h + (KNlC(col) * r.w + KNlD(col)) * De) * r.Wl;
}

void AnotaResultantes(const DatosOval& d, const ResultantesOval& r, Rastro& rastro) {
  rastro.Anota(Formula::Dm, {d.Di, d.De}, r.Dm);
  rastro.Anota(Formula::W, {d.De, r.Dm}, r.w);
  rastro.Anota(Formula::Wp, {d.De, d.Di, d.GAMAB}, r.Wp);
  rastro.Anota(Formula::Wf, {d.Di}, r.Wf);
  rastro.Anota(Formula::Wt, {d.De, d.GAMAT}, r.Wt);
  rastro.Anota(Formula::Wq, {d.Q, d.QMovil, d.De}, r.Wq);
  rastro.Anota(Formula::Wm, {d.QMovil, d.De}, r.Wm);
  rastro.Anota(Formula::Wl, {d.LANDA, d.GAMAT, d.De}, r.Wl);
  rastro.Anota(Formula::H1, {d.QH, d.GAMAT}, r.h1);
  rastro.Anota(Formula::H0, {r.h1, d.QMovil, d.GAMAT}, r.h0);
}

// The terms of a section, with the coefficients of its column.
void AnotaTerminos(const TerminosOval& t, const ResultantesOval& r, double De, int col, int s,
                   Rastro& rastro) {
  const double w = r.w;
  const double Dm = r.Dm;
  rastro.Anota(Formula::MPropio, {r.Wp, KMp(col), Dm}, t.propio.M(s));
  rastro.Anota(Formula::NPropio, {r.Wp, KNp(col)}, t.propio.N(s));
  rastro.Anota(Formula::MFluido, {r.Wf, KMp(col), Dm}, t.fluido.M(s));
  rastro.Anota(Formula::NFluido, {r.Wf, KNf(col)}, t.fluido.N(s));
  rastro.Anota(Formula::MTimpanos, {KMtA(col), w, KMtB(col), r.Wt, Dm}, t.timpanos.M(s));
  rastro.Anota(Formula::NTimpanos, {KNtA(col), w, KNtB(col), r.Wt}, t.timpanos.N(s));
  rastro.Anota(Formula::MVertical, {KMvA(col), w, KMvB(col), r.Wq, Dm}, t.vertical.M(s));
  rastro.Anota(Formula::NVertical, {KNvA(col), w, KNvB(col), r.Wq}, t.vertical.N(s));
  rastro.Anota(Formula::MMovil, {KMvA(col), w, KMvB(col), r.Wm, Dm}, t.movil.M(s));
  rastro.Anota(Formula::NMovil, {KNvA(col), w, KNvB(col), r.Wm}, t.movil.N(s));
  const auto lateral = [&](Formula M, Formula N, double h, const EsfuerzoSecciones& e) {
    rastro.Anota(M, {KMlA(col), w, KMlB(col), h, KMlC(col), KMlD(col), De, r.Wl, Dm}, e.M(s));
    rastro.Anota(N, {KNlA(col), w, KNlB(col), h, KNlC(col), KNlD(col), De, r.Wl}, e.N(s));
  };
  lateral(Formula::MLateral, Formula::NLateral, r.h1, t.lateral);
  lateral(Formula::MLateralFijo, Formula::NLateralFijo, r.h0, t.lateralFijo);
}

// One of the sums of `Oval`.
void AnotaSuma(const TerminosOval& t, int TIGEN, int s, double M, double N, Rastro& rastro) {
  const auto& [p, f, ti, v, m, l1, l0, factor] = t;
  switch (TIGEN) {
    case 1:
      rastro.Anota(Formula::MComb1, {p.M(s), factor}, M);
      rastro.Anota(Formula::NComb1, {p.N(s), factor}, N);
      break;
    case 2:
      rastro.Anota(Formula::MComb2, {f.M(s), factor}, M);
      rastro.Anota(Formula::NComb2, {f.N(s), factor}, N);
      break;
    case 3:
      rastro.Anota(Formula::MComb3, {l1.M(s), ti.M(s), v.M(s), factor}, M);
      rastro.Anota(Formula::NComb3, {l1.N(s), ti.N(s), v.N(s), factor}, N);
      break;
    case 4:
      rastro.Anota(Formula::MComb4, {m.M(s), factor}, M);
      rastro.Anota(Formula::NComb4, {m.N(s), factor}, N);
      break;
    case 7:
      rastro.Anota(Formula::MComb7, {f.M(s), p.M(s), ti.M(s), l1.M(s), v.M(s), m.M(s), factor}, M);
      rastro.Anota(Formula::NComb7, {p.N(s), f.N(s), ti.N(s), l1.N(s), v.N(s), m.N(s), factor}, N);
      break;
    case 8:
      rastro.Anota(Formula::MComb8, {l0.M(s), ti.M(s), v.M(s), factor}, M);
      rastro.Anota(Formula::NComb8, {l0.N(s), ti.N(s), v.N(s), factor}, N);
      break;
    case 9:
      rastro.Anota(Formula::MComb9, {ti.M(s), factor}, M);
      rastro.Anota(Formula::NComb9, {ti.N(s), factor}, N);
      break;
    case 10:
      rastro.Anota(Formula::MComb10, {l0.M(s), factor}, M);
      rastro.Anota(Formula::NComb10, {l0.N(s), factor}, N);
      break;
    case 11:
      rastro.Anota(Formula::MComb11, {v.M(s), factor}, M);
      rastro.Anota(Formula::NComb11, {v.N(s), factor}, N);
      break;
    default:  // no hypothesis adds it up
      break;
  }
}

void ExigeFinitos(const EsfuerzoSecciones& e) {
  for (int s = 1; s <= kSecciones; ++s) {
    Finito(e.M(s));
    Finito(e.N(s));
  }
}

}  // namespace

ResultantesOval ResultantesDe(const DatosOval& d, Rastro* rastro) {
  ResultantesOval r;
  r.Dm = (d.Di + d.De) / 2.0;
  r.w = Div(d.De, r.Dm);
  r.Wp = (d.De * d.De - d.Di * d.Di) * d.GAMAB * kPi / 4.0;
  r.Wf = d.Di * d.Di * kPi / 4.0;
  r.Wt = (d.De * d.De / 2.0 - d.De * d.De * kPi / 8.0) * d.GAMAT;
  r.Wq = (d.Q - d.QMovil) * d.De;
  r.Wm = d.QMovil * d.De;
  r.Wl = d.LANDA * d.GAMAT * d.De;
  r.h1 = Div(d.QH, d.GAMAT);
  r.h0 = r.h1 - Div(d.QMovil, d.GAMAT);
  if (rastro) AnotaResultantes(d, r, *rastro);
  return r;
}

TerminosOval CalculaTerminos(const DatosOval& d, Rastro* rastro) {
  const ResultantesOval r = ResultantesDe(d, rastro);
  const bool menor = d.ICUNA == kCunaMenorDe90;
  const int grupo = menor ? 1 : d.ICUNA;
  TerminosOval t;
  t.factor = menor ? kFactorMenorDe90 : 1.0;
  for (int s = 1; s <= kSecciones; ++s) {
    const int col = (grupo - 1) * kSecciones + s;
    t.propio.M(s) = r.Wp * KMp(col) * r.Dm;
    t.propio.N(s) = r.Wp * KNp(col);
    // There is no table of its own for the moment of the fluid: that of the weight serves.
    t.fluido.M(s) = r.Wf * KMp(col) * r.Dm;
    t.fluido.N(s) = r.Wf * KNf(col);
    t.timpanos.M(s) = (KMtA(col) * r.w + KMtB(col)) * r.Wt * r.Dm;
    t.timpanos.N(s) = (KNtA(col) * r.w + KNtB(col)) * r.Wt;
    t.vertical.M(s) = (KMvA(col) * r.w + KMvB(col)) * r.Wq * r.Dm;
    t.vertical.N(s) = (KNvA(col) * r.w + KNvB(col)) * r.Wq;
    t.movil.M(s) = (KMvA(col) * r.w + KMvB(col)) * r.Wm * r.Dm;
    t.movil.N(s) = (KNvA(col) * r.w + KNvB(col)) * r.Wm;
    t.lateral.M(s) = MomentoLateral(r, d.De, col, r.h1);
    t.lateral.N(s) = AxilLateral(r, d.De, col, r.h1);
    t.lateralFijo.M(s) = MomentoLateral(r, d.De, col, r.h0);
    t.lateralFijo.N(s) = AxilLateral(r, d.De, col, r.h0);
    if (rastro) {
      const bool unMetro = rastro->lugar.apartado == Apartado::ResultantesUnMetro;
      const EnLugar lugar(rastro, unMetro ? Apartado::TerminosUnMetro : Apartado::Terminos, s);
      AnotaTerminos(t, r, d.De, col, s, *rastro);
    }
  }
  for (const auto* e :
       {&t.propio, &t.fluido, &t.timpanos, &t.vertical, &t.movil, &t.lateral, &t.lateralFijo}) {
    ExigeFinitos(*e);
  }
  return t;
}

void Oval(const TerminosOval& t, int TIGEN, Lista<double, kSecciones>& M,
          Lista<double, kSecciones>& N, Rastro* rastro) {
  const auto& [p, f, ti, v, m, l1, l0, factor] = t;
  for (int s = 1; s <= kSecciones; ++s) {
    double& Ms = M(s);
    double& Ns = N(s);
    // clang-format off
    switch (TIGEN) {
      case 1: Ms = p.M(s); Ns = p.N(s); break;
      case 2: Ms = f.M(s); Ns = f.N(s); break;
      // The thrust with the moving load beside the earth without it: what moves adds its own.
      case 3: Ms = l1.M(s) + ti.M(s) + v.M(s); Ns = l1.N(s) + ti.N(s) + v.N(s); break;
      case 4: Ms = m.M(s); Ns = m.N(s); break;
      case 5: Ms = l1.M(s); Ns = l1.N(s); break;
      case 6:
      case 7:
        Ms = f.M(s) + p.M(s) + ti.M(s) + l1.M(s) + v.M(s);
        Ns = p.N(s) + f.N(s) + ti.N(s) + l1.N(s) + v.N(s);
        if (TIGEN == 7) {
          Ms = Ms + m.M(s);
          Ns = Ns + m.N(s);
        }
        break;
      case 8: Ms = l0.M(s) + ti.M(s) + v.M(s); Ns = l0.N(s) + ti.N(s) + v.N(s); break;
      case 9: Ms = ti.M(s); Ns = ti.N(s); break;
      case 10: Ms = l0.M(s); Ns = l0.N(s); break;
      case 11: Ms = v.M(s); Ns = v.N(s); break;
      case 12: Ms = 0; Ns = 0; break;
      default: break;
    }
    // clang-format on
    Ms = Finito(Ms * factor);
    Ns = Finito(Ns * factor);
    if (rastro) {
      const EnLugar lugar(rastro, Apartado::Combinaciones, s);
      AnotaSuma(t, TIGEN, s, Ms, Ns, *rastro);
    }
  }
}

}  // namespace zorbin
