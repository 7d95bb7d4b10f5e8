// A reinforced Caso whose forces a test sets: every section pulls a little, so that only what the
// test changes can fail.
#pragma once

#include "calculo/veredicto/mdVerificaArmado.h"

namespace zorbin::pruebas {

inline Tramo TramoConCamisa() {
  Tramo t;
  t.Di = 1.0, t.Esp = 0.12, t.Reci = 0.03, t.Rece = 0.025;
  t.Fck = 350, t.Fct = 25, t.Fyk = 2600, t.Fyd = 1300, t.GamaB = 1.5;
  t.TipoCamisa = 1, t.CamMax = 1.5, t.TipoControl = 2, t.SubTipo = 3;
  return t;
}

inline Tramo TramoSinCamisa() {
  Tramo t = TramoConCamisa();
  t.TipoCamisa = 0;
  t.CamMax = 0;
  return t;
}

inline Tramo ConTope(Tramo t, double tope) {
  t.Icontes0 = true;
  t.Adato = tope;
  return t;
}

/// Inner 20.03 cm2/m (a sheet of 1.5 mm and 10 bars of 8), outer 10.05 (20 of 8).
inline ResultadoArmado CasoHolgado() {
  ResultadoArmado r;
  for (int h = 1; h <= kHipotesisArmado; ++h) {
    for (int s = 1; s <= kSecciones; ++s) {
      r.esfuerzos.M(h, s) = h == 1 ? 0.0 : s == RINONES ? -0.05 : 0.05;
      r.esfuerzos.N(h, s) = 8.0;
    }
  }
  r.TablaHip(1).Total = 12.0;
  r.HipotesisRige = 5;
  r.CAMISA = 1.5, r.FIIN = 8, r.NESPIN = 10, r.FIEX = 8, r.NEXPEX = 20;
  r.AsInt = 15.0 + 0.16 * 3.1415926535898 * 10;
  r.AsExt = 0.16 * 3.1415926535898 * 20;
  r.Total = r.AsInt + r.AsExt;
  return r;
}

}  // namespace zorbin::pruebas
