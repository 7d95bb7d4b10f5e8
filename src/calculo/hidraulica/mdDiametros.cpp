#include "calculo/hidraulica/mdDiametros.h"

#include <cmath>

namespace zorbin {

namespace {

constexpr double kPiHidraulica = 3.141592654;  // π as this calculator writes it

}  // namespace

Diametro GeometriaDiametro(double DiamMM) {
  Diametro d;
  d.DiamMM = DiamMM;
  d.DiamM = DiamMM / 1000.0;
  d.RhLlena = d.DiamM / 4.0;
  d.AreaLlena = d.DiamM * kPiHidraulica * d.DiamM / 4.0;
  const double segmento = kAnguloParcial - std::cos(kAnguloParcial) * std::sin(kAnguloParcial);
  d.AreaParcial = d.DiamM * d.DiamM * segmento / 4.0;
  d.RhParcial = Div(d.AreaParcial / kAnguloParcial, d.DiamM);
  return d;
}

Lista<Diametro, kDiametros> CargaDiametros() {
  Lista<Diametro, kDiametros> tabla;
  for (int i = 1; i <= kDiametros; ++i) tabla(i) = GeometriaDiametro(500.0 + 100.0 * i);
  return tabla;
}

}  // namespace zorbin
