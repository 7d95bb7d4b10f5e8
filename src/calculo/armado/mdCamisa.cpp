#include "calculo/armado/mdCamisa.h"

#include <array>

#include "base/aritmetica.h"

namespace zorbin {

namespace {

constexpr std::array<double, 3> kDiametros{8.0, 10.0, 12.0};  // [mm]
constexpr double kAreaMinChapa = 15.0;                        // a sheet of 1.5 mm [cm2/m]
constexpr double kPasoChapa = 5.0;         // sheets come in steps of 0.5 mm [cm2/m]
constexpr double kToleranciaBarra = 0.02;  // fraction of a bar that is spared [-]
constexpr double kMinEspiras = 5.0;        // [1/m]
constexpr double kClaroMinimo = 2.0;       // clear distance between bars [cm]
constexpr double kMayorArea = 10000.0;     // bars beyond it are never chosen [cm2/m]

struct Barras {
  double D;     // [mm]
  double n;     // [1/m]
  double area;  // [cm2/m]
};

// The area rounded down to whole steps of a sheet; its floor is a 16-bit integer.
double EscalonesChapa(double AS) {
  return Int(I16(Int(AS)) / kPasoChapa) * kPasoChapa;
}

Barras BarrasPara(double resto, double D) {
  const double exacto = Div(resto, (D * D / 400.0) * kPi);
  double n = Int(exacto);
  if (n + kToleranciaBarra < exacto) n = n + 1.0;
  if (n < kMinEspiras) n = kMinEspiras;
  return {D, n, D * D * n * kPi / 400.0};
}

bool Caben(const Barras& b) {
  return CabenEnUnaCapa(b.D, b.n);
}

// Bars alone for the area `resto`; of two equal areas the larger diameter wins.
void EligeBarras(double resto, double chapa, bool HayAjuste, double AreaExterior, Reparto& r) {
  std::array<Barras, kDiametros.size()> b;
  std::size_t i = b.size();
  double menor = kMayorArea;
  for (std::size_t k = 0; k < b.size(); ++k) {
    b[k] = BarrasPara(resto, kDiametros[k]);
    if (b[k].area <= menor) {
      menor = b[k].area;
      i = k;
    }
  }
  if (i == b.size()) throw ErrorEjecucion(CausaError::Desbordamiento);
  if (!HayAjuste) {
    while (!Caben(b[i]) && i + 1 < b.size()) ++i;
    r.VariasCapas = !Caben(b[i]);
  } else {
    r.VariasCapas = !Caben(b[i]) && AreaExterior > kAreaUnaCapa;
  }
  r.NESP = I16(b[i].n);
  r.DIA = b[i].D;
  r.AREA = b[i].area < resto ? resto + chapa : chapa + b[i].area;
}

}  // namespace

double AreaBarras(double D, double n) {
  return D * D * kPi / 400.0 * n;
}

bool CabenEnUnaCapa(double D, double n) {
  const double claro = Div(100.0 - n * D / 10.0, n);  // [cm]
  return D / 10.0 <= claro && claro >= kClaroMinimo;
}

Reparto ReparteArmadura(double AS, std::int16_t ICAMIS, double CAMMAX, bool HayAjuste,
                        double AreaExterior) {
  Reparto r;
  Finito(AS);
  if (ICAMIS == 0) {
    EligeBarras(AS, 0.0, HayAjuste, AreaExterior, r);
    return r;
  }
  if (ICAMIS != 1) {
    r.AREA = AS;
    if (EscalonesChapa(AS) < AS) r.AREA = EscalonesChapa(AS) + kPasoChapa;
    if (r.AREA < kAreaMinChapa) r.AREA = kAreaMinChapa;
    r.CAMISA = r.AREA / 10.0;
    return r;
  }
  if (AS <= kAreaMinChapa) {
    r.CAMISA = kAreaMinChapa / 10.0;
    r.AREA = kAreaMinChapa;
    return r;
  }
  double chapa = EscalonesChapa(AS);
  r.CAMISA = chapa / 10.0;
  if (r.CAMISA > CAMMAX) {
    r.CAMISA = CAMMAX;
    chapa = CAMMAX * 10.0;
  }
  EligeBarras(AS - chapa, chapa, HayAjuste, AreaExterior, r);
  return r;
}

}  // namespace zorbin
