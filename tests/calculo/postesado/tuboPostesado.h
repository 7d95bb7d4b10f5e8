// Post-tensioned pipes of the tests, in calculation units, with loads of their own.
#pragma once

#include "core/estado_calculo.h"

namespace zorbin::pruebas {

/// A Caso before its design.
struct Tubo {
  Tramo tramo;
  TerminosAnillo anillo;
  PresionesCaso presiones;
};

/// The pipe of the worked figures: core of 50 to 60 cm radius, coating of 2.5 cm.
inline Tubo TuboDeMuestra() {
  Tubo e;
  auto& t = e.tramo;
  t.Tipologia = 2211;
  t.EsArmado = false;
  t.PostFlag = 1;
  t.SubTipo = 0;
  t.Di = 1.0;
  t.De = 1.25;
  t.Esp = 0.125;
  t.Reci = 0.03;
  t.Rece = 0.025;
  t.Delca = 0.15;
  t.Fckno = 250;
  t.Fckn = 400;
  t.Fckr = 300;
  t.Ep = 2'000'000;
  t.Es = 2'100'000;
  t.SFck = 17'000;
  t.Sf = 11'000;
  t.FYKPost = 2'100;
  t.Rel = 5;
  t.Fic = t.Fir = 2;
  t.Epsc = t.Epsr = 0.0002;
  return e;
}

/// A pipe of 2 m with a core that stands every winding.
inline Tubo TuboFuerte(std::int16_t Tipologia, double DP) {
  Tubo e = TuboDeMuestra();
  auto& t = e.tramo;
  t.Tipologia = Tipologia;
  t.Di = 2.0;
  t.De = 2.6;
  t.Esp = 0.3;
  t.Rece = 0.03;
  t.Reci = Tipologia == 2221 ? t.Esp - t.Rece : 0.04;
  t.Delca = 0.2;
  t.Fckno = t.Fckn = 600;
  t.Fckr = 400;
  const double MDP = 1.1 * DP;
  e.presiones = {DP, MDP, MDP + 1.0, MDP + 2.0};
  return e;
}

/// A thin-walled pipe whose concretes hardly creep and shrink much: steel takes compression from
/// its coating, so more spirals may undo what fewer had passed.
inline Tubo TuboDePocaFluencia() {
  Tubo e = TuboDeMuestra();
  auto& t = e.tramo;
  t.Fckn = 540;
  t.SFck = 14'000;
  t.Rel = 7;
  t.Fic = 0.1;
  return e;
}

/// One load term, one value for each section [m·t/m, t/m].
inline void PonTermino(Tubo& e, int termino, Lista<double, kSecciones> M,
                       Lista<double, kSecciones> N) {
  e.anillo.MHip.filas(termino) = M;
  e.anillo.NHip.filas(termino) = N;
}

/// Earth of moment m at crown and invert and -m at the haunches, 0.3 m of it by 1 m of earth, and
/// `conMovil` times m with the moving load; compression goes with each.
inline void PonTierras(Tubo& e, double m, double conMovil = 1.2) {
  PonTermino(e, 11, {{m, -m, m}}, {{-5 * m, -5 * m, -5 * m}});
  PonTermino(e, 8, {{0.3 * m, -0.3 * m, 0.3 * m}}, {{-1.5 * m, -1.5 * m, -1.5 * m}});
  const double x = conMovil * m;
  PonTermino(e, 7, {{x, -x, x}}, {{-5 * x, -5 * x, -5 * x}});
}

}  // namespace zorbin::pruebas
