#include "calculo/ajustes/mdNecesaria.h"

#include <limits>

#include "base/mdNumeros.h"

namespace zorbin {

namespace {

LineaNecesaria Linea(double necesaria, double dispuesta) {
  return {necesaria, dispuesta, AreaMostrada(necesaria) > AreaMostrada(dispuesta)};
}

// The outer line compares with the total less the outer area, and the inner one with the total less
// the inner area: crossed, on purpose.
void TraccionPura(const FilaHip& T, Comprobacion& c) {
  const double interior = c.disp.Espiras + c.disp.Camisa;
  c.traccionPura = true;
  c.lineas = {Linea(T.Total - T.AsExt, c.disp.Exterior), Linea(T.Total - T.AsInt, interior),
              Linea(T.Total, interior + c.disp.Exterior)};
}

SeccionComprobada CompruebaSeccion(const Comprobacion& c, int s) {
  const auto& d = c.datos;
  const auto& x = d.secciones(s);
  const double interior = c.disp.Camisa + c.disp.Espiras;
  SeccionComprobada r;
  r.interior = TraccionaInterior(s, x.m);
  r.A1 = r.interior ? interior : c.disp.Exterior;
  r.A2 = r.interior ? c.disp.Exterior : interior;
  r.CANTO = r.interior ? d.CantoInterior() : d.CantoExterior();
  r.c = Lineas_1050(r.A1, r.A2, x.M, d.Brazo(), x.N, d.fyd, r.CANTO, d.Fcad);
  return r;
}

double Grado(const LineaNecesaria& l) {
  if (l.dispuesta > 0) return l.necesaria / l.dispuesta;
  return l.necesaria > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

}  // namespace

double AreaMostrada(double area) {
  return NumeroTexto(FormatoMascara(area, kMascaraArea, '.')).value_or(0.0);
}

int Comprobacion::LineaQueRige() const {
  int rige = 0;
  for (int j = 1; j < kLineasNecesarias; ++j) {
    if (Grado(lineas[static_cast<std::size_t>(j)]) >
        Grado(lineas[static_cast<std::size_t>(rige)])) {
      rige = j;
    }
  }
  return rige;
}

Comprobacion Calculo_Arm_Necesaria(const DatosDelCaso& datos, const FilaHip& PPNeta,
                                   const Ajuste& disp) {
  Comprobacion c;
  c.datos = datos;
  c.disp = disp;
  if (datos.HipotesisRige == kHipPPNeta) {
    TraccionPura(PPNeta, c);
    return c;
  }
  for (const int s : {SOLERA, CLAVE, RINONES}) {
    c.secciones(s) = CompruebaSeccion(c, s);
    const auto& r = c.secciones(s);
    c.lineas[static_cast<std::size_t>(s - CLAVE)] = Linea(r.c.necesaria, r.A1);
  }
  return c;
}

}  // namespace zorbin
