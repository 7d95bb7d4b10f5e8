#include "calculo/cargas/mdOvaliz.h"

#include "calculo/cargas/mdOval.h"

namespace zorbin {

namespace {

constexpr int kHipotesisUnMetro = 8;

TerminosOval Terminos(const Tramo& t, const Cargas& q, double Landa) {
  return CalculaTerminos({t.Di, t.De, t.Gc, t.Gr, Landa, q.Q, q.QTerraplen, q.QMovil, t.TipoCuna});
}

}  // namespace

TerminosAnillo Ovalizacion(const Tramo& t, const Cargas& altura, const Cargas& unMetro,
                           double Landa) {
  const TerminosOval terminos = Terminos(t, altura, Landa);
  const TerminosOval deUnMetro = Terminos(t, unMetro, Landa);
  TerminosAnillo x;
  for (int h = 1; h <= kTerminosOval; ++h) {
    Oval(h == kHipotesisUnMetro ? deUnMetro : terminos, h, x.MHip.filas(h), x.NHip.filas(h));
  }
  return x;
}

}  // namespace zorbin
