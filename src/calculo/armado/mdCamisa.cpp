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

Barras BarrasPara(double resto, double D, Rastro* rastro) {
  const double exacto = Div(resto, (D * D / 400.0) * kPi);
  double n = Int(exacto);
  const bool unaMas = n + kToleranciaBarra < exacto;
  if (unaMas) n = n + 1.0;
  if (n < kMinEspiras) n = kMinEspiras;
  const double area = D * D * n * kPi / 400.0;
  if (rastro) {
    rastro->Anota(Formula::BarrasExactas, {resto, D}, exacto);
    rastro->Anota(unaMas ? Formula::BarrasUnaMas : Formula::BarrasJustas, {exacto}, n);
    rastro->Anota(Formula::AreaBarras, {D, n}, area);
  }
  return {D, n, area};
}

bool Caben(const Barras& b, Rastro* rastro) {
  return CabenEnUnaCapa(b.D, b.n, rastro);
}

// A sheet alone.
void AnotaChapa(Formula formula, std::initializer_list<double> valores, const Reparto& r,
                Rastro& rastro) {
  rastro.Anota(formula, valores, formula == Formula::ChapaMinima ? 1.0 : r.AREA);
  rastro.Anota(Formula::GruesoChapa, {r.AREA}, r.CAMISA);
}

void AnotaDispuesta(double resto, double chapa, double area, double barras, Rastro& rastro) {
  if (barras < resto) {
    rastro.Anota(Formula::DispuestaPedida, {area}, area);
  } else {
    rastro.Anota(Formula::Dispuesta, {chapa, barras}, area);
  }
}

// Bars alone for the area `resto`; of two equal areas the larger diameter wins.
void EligeBarras(double resto, double chapa, bool HayAjuste, double AreaExterior, Reparto& r,
                 Rastro* rastro) {
  std::array<Barras, kDiametros.size()> b;
  std::size_t i = b.size();
  double menor = kMayorArea;
  for (std::size_t k = 0; k < b.size(); ++k) {
    b[k] = BarrasPara(resto, kDiametros[k], rastro);
    if (b[k].area <= menor) {
      menor = b[k].area;
      i = k;
    }
  }
  if (i == b.size()) throw ErrorEjecucion(CausaError::Desbordamiento);
  if (rastro) rastro->Anota(Formula::MenorArea, {b[0].area, b[1].area, b[2].area}, menor);
  if (!HayAjuste) {
    while (!Caben(b[i], rastro) && i + 1 < b.size()) ++i;
    r.VariasCapas = !Caben(b[i], nullptr);
  } else {
    r.VariasCapas = !Caben(b[i], rastro) && AreaExterior > kAreaUnaCapa;
  }
  r.NESP = I16(b[i].n);
  r.DIA = b[i].D;
  r.AREA = b[i].area < resto ? resto + chapa : chapa + b[i].area;
  if (rastro) AnotaDispuesta(resto, chapa, r.AREA, b[i].area, *rastro);
}

}  // namespace

double AreaBarras(double D, double n) {
  return D * D * kPi / 400.0 * n;
}

bool CabenEnUnaCapa(double D, double n, Rastro* rastro) {
  const double claro = Div(100.0 - n * D / 10.0, n);  // [cm]
  const bool caben = D / 10.0 <= claro && claro >= kClaroMinimo;
  if (rastro) {
    rastro->Anota(Formula::Separacion, {n, D}, claro);
    rastro->Anota(caben ? Formula::CabenBarras : Formula::NoCabenBarras, {claro, D});
  }
  return caben;
}

Reparto ReparteArmadura(double AS, std::int16_t ICAMIS, double CAMMAX, bool HayAjuste,
                        double AreaExterior, Rastro* rastro) {
  Reparto r;
  Finito(AS);
  if (ICAMIS == 0) {
    EligeBarras(AS, 0.0, HayAjuste, AreaExterior, r, rastro);
    return r;
  }
  if (ICAMIS != 1) {
    const bool falta = EscalonesChapa(AS) < AS;
    r.AREA = falta ? EscalonesChapa(AS) + kPasoChapa : AS;
    if (r.AREA < kAreaMinChapa) r.AREA = kAreaMinChapa;
    r.CAMISA = r.AREA / 10.0;
    if (rastro) AnotaChapa(falta ? Formula::ChapaSola : Formula::ChapaJusta, {AS}, r, *rastro);
    return r;
  }
  if (AS <= kAreaMinChapa) {
    r.CAMISA = kAreaMinChapa / 10.0;
    r.AREA = kAreaMinChapa;
    if (rastro) AnotaChapa(Formula::ChapaMinima, {AS}, r, *rastro);
    return r;
  }
  double chapa = EscalonesChapa(AS);
  r.CAMISA = chapa / 10.0;
  if (r.CAMISA > CAMMAX) {
    r.CAMISA = CAMMAX;
    chapa = CAMMAX * 10.0;
  }
  if (rastro) {
    rastro->Anota(Formula::ChapaEscalones, {AS, CAMMAX}, chapa);
    rastro->Anota(Formula::GruesoChapa, {chapa}, r.CAMISA);
    rastro->Anota(Formula::Resto, {AS, chapa}, AS - chapa);
  }
  EligeBarras(AS - chapa, chapa, HayAjuste, AreaExterior, r, rastro);
  return r;
}

}  // namespace zorbin
