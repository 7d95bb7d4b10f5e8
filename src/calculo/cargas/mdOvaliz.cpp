#include "calculo/cargas/mdOvaliz.h"

namespace zorbin {

DatosOval DatosDelAnillo(const Tramo& t, const Cargas& q, double Landa) {
  return {t.Di, t.De, t.Gc, t.Gr, Landa, q.Q, q.QTerraplen, q.QMovil, t.TipoCuna};
}

TerminosAnillo Ovalizacion(const Tramo& t, const Cargas& altura, const Cargas& unMetro,
                           double Landa) {
  const TerminosOval terminos = CalculaTerminos(DatosDelAnillo(t, altura, Landa));
  const TerminosOval deUnMetro = CalculaTerminos(DatosDelAnillo(t, unMetro, Landa));
  TerminosAnillo x;
  for (int h = 1; h <= kTerminosOval; ++h) {
    Oval(h == kTerminoUnMetro ? deUnMetro : terminos, h, x.MHip.filas(h), x.NHip.filas(h));
  }
  return x;
}

}  // namespace zorbin
