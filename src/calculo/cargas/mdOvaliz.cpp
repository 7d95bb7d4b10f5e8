#include "calculo/cargas/mdOvaliz.h"

namespace zorbin {

DatosOval DatosDelAnillo(const Tramo& t, const Cargas& q, double Landa) {
  return {t.Di, t.De, t.Gc, t.Gr, Landa, q.Q, q.QTerraplen, q.QMovil, t.TipoCuna};
}

TerminosAnillo Ovalizacion(const Tramo& t, const Cargas& altura, const Cargas& unMetro,
                           double Landa, Rastro* rastro) {
  const auto terminosDe = [&](const Cargas& q, Apartado apartado) {
    const EnLugar lugar(rastro, apartado);
    return CalculaTerminos(DatosDelAnillo(t, q, Landa), rastro);
  };
  const TerminosOval terminos = terminosDe(altura, Apartado::Resultantes);
  const TerminosOval deUnMetro = terminosDe(unMetro, Apartado::ResultantesUnMetro);
  TerminosAnillo x;
  for (int h = 1; h <= kTerminosOval; ++h) {
    Oval(h == kTerminoUnMetro ? deUnMetro : terminos, h, x.MHip.filas(h), x.NHip.filas(h), rastro);
  }
  return x;
}

}  // namespace zorbin
