#include "calculo/verificacion/mdEjemplos.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "calculo/cargas/mdMarston.h"
#include "calculo/cargas/mdMarstonCompleta.h"
#include "calculo/hidraulica/mdHidraulica.h"
#include "calculo/postesado/mdLame.h"

namespace zorbin {

namespace {

constexpr double kPie = 0.3048;                                     // [m]
constexpr double kLibra = 0.45359237;                               // [kg]
constexpr double kLbPie3 = kLibra / (kPie * kPie * kPie) / 1000.0;  // [t/m3]

constexpr double kKmuTerraplen = 0.19;  // of the published lines, and near that of most fills [-]
constexpr double kKmuNegativa = 0.13;
constexpr double kUsualDesde = 6, kUsualHasta = 10;  // heights, over De or B [-]

constexpr double kKsPrandtl = 0.06 / 1000.0;  // that the calculator offers [m]
constexpr double kKsDarcy = 0.05 / 1000.0;
constexpr double kVDesde = 0.5, kVHasta = 5.0, kVPaso = 0.1;  // [m/s]

// Weight of the earth on a pipe in a trench [t/m], lengths in feet.
double ZanjaEnPies(double Kmu, double B, double H) {
  return CoefZanja(Kmu, H * kPie, B * kPie) * 120.0 * kLbPie3 * H * kPie * B * kPie;
}

// Load coefficients over Gr·D² with D = 1: by the method with a projection of De, and in full.
double CcMetodo(double rsdp, double H) {
  return CoefTerraplen(2.0 * kKmuTerraplen, rsdp, 1.0, 1.0, H) * H;
}
double CcCompleta(double rsdp, double H) {
  return TerraplenCompleto(kKmuTerraplen, rsdp, 1.0, H).C * H;
}

// The same in negative projection; the method finds r_sd by the projection ratio p.
double CnMetodo(double Kmu, double p, double H) {
  return CoefZanjaTerraplenada(Kmu, 1.0, p, 1.0, H) * H;
}
double CnCompleta(double Kmu, double p, double H) {
  return NegativaCompleta(Kmu, CoefAsentamiento(p) * p, 1.0, H).C * H;
}

// The core of a pipe without cylinder as a thick cylinder of these radii.
SeccionPostesada Cilindro(double ri, double re) {
  MaterialesPostesado m;
  m.ni = m.n = m.n1 = m.n2 = m.nc = 1;
  RadiosPostesado r;
  r.RadioInt = r.RadioCam = ri;
  r.RadioNuc = re;
  r.RadioRev = 1.1 * re;
  return PropiedadesSeccion(m, r, {0.5, 20});
}

void AnadeTierras(std::vector<EjemploPublicado>& v) {
  v.push_back({"zanja1", 3.857, ZanjaEnPies(0.165, 3.0, 14.0)});
  v.push_back({"zanja2", 4.628, ZanjaEnPies(0.192, 3.6, 14.0)});
  v.push_back({"terraplen05h6", 8.93, CcMetodo(0.5, 6)});
  v.push_back({"terraplen05h10", 14.93, CcMetodo(0.5, 10)});
  v.push_back({"terraplen10h6", 10.02, CcMetodo(1.0, 6)});
  v.push_back({"terraplen10h10", 16.78, CcMetodo(1.0, 10)});
  v.push_back({"completa05h6", 8.93, CcCompleta(0.5, 6)});
  v.push_back({"completa05h10", 14.93, CcCompleta(0.5, 10)});
  v.push_back({"completa10h6", 10.02, CcCompleta(1.0, 6)});
  v.push_back({"completa10h10", 16.78, CcCompleta(1.0, 10)});
  v.push_back({"negativah6", 4.25, CnMetodo(kKmuNegativa, 1.0, 6)});
  v.push_back({"negativah8", 5.63, CnMetodo(kKmuNegativa, 1.0, 8)});
  v.push_back({"negativah10", 7.01, CnMetodo(kKmuNegativa, 1.0, 10)});
  v.push_back({"negcompletah6", 4.25, CnCompleta(kKmuNegativa, 1.0, 6)});
  v.push_back({"negcompletah8", 5.63, CnCompleta(kKmuNegativa, 1.0, 8)});
  v.push_back({"negcompletah10", 7.01, CnCompleta(kKmuNegativa, 1.0, 10)});
}

void AnadeCilindros(std::vector<EjemploPublicado>& v) {
  const auto presiones = Cilindro(20.0, 25.0);
  v.push_back({"lame1", 45.0, 25.0 * presiones.B - 12.4 * presiones.C});
  // The stress across the wall is pi·A/2·(1 - re²/r²), the hoop stress pi·A/2·(1 + re²/r²).
  const auto interior = Cilindro(1.0, 2.0);
  v.push_back({"lame2a", 33.33, 100.0 * interior.A / 2.0});
  v.push_back({"lame2b", 133.33, 100.0 * interior.C / 2.0});
  v.push_back({"lame2", 166.67, 100.0 * interior.B});
}

void AnadeHidraulica(std::vector<EjemploPublicado>& v) {
  constexpr double ks = 0.6 / 1000.0;
  const auto d = GeometriaDiametro(600.0);
  const double V250 = VelocidadPrandtl(d.RhLlena, 1.0 / 250.0, ks);
  const double V200 = VelocidadPrandtl(d.RhLlena, 1.0 / 200.0, ks);
  v.push_back({"colebrook250v", 1.54, V250});
  v.push_back({"colebrook250q", 434.1, V250 * d.AreaLlena * 1000.0});
  v.push_back({"colebrook200v", 1.72, V200});
  v.push_back({"colebrook200q", 485.7, V200 * d.AreaLlena * 1000.0});
  v.push_back({"colebrook1200", 2.363, VelocidadPrandtl(0.3, 1.0 / 250.0, ks)});
  v.push_back({"exacta250", 4.0, PendienteColebrookCaudal(0.6, 0.4341, ks) * 1000.0});
  v.push_back({"exacta200", 5.0, PendienteColebrookCaudal(0.6, 0.4857, ks) * 1000.0});
  v.push_back({"exacta1200", 4.0, PendienteColebrook(1.2, 2.363, ks) * 1000.0});
  v.push_back({"hazen", 1.8322, PendienteHazen(d.RhLlena, 0.24 / d.AreaLlena, 100.0) * 1000.0});
  v.push_back({"hazenusual", 1.8064, v.back().zorbin});
}

void Extiende(Rango& r, double x) {
  r.min = std::min(r.min, x);
  r.max = std::max(r.max, x);
}

constexpr double kInfinito = std::numeric_limits<double>::infinity();
constexpr Rango kVacio{kInfinito, -kInfinito};

bool EsUsual(double H) {
  return H >= kUsualDesde && H <= kUsualHasta;
}

double Exceso(double metodo, double exacto) {
  return (metodo / exacto - 1.0) * 100.0;
}

}  // namespace

std::vector<EjemploPublicado> EjemplosPublicados() {
  std::vector<EjemploPublicado> v;
  AnadeTierras(v);
  AnadeCilindros(v);
  AnadeHidraulica(v);
  return v;
}

std::vector<ExcesoDelMetodo> ExcesosTerraplen() {
  std::vector<ExcesoDelMetodo> filas;
  for (const double rsdp : {0.1, 0.3, 0.5, 1.0, 2.0}) {
    ExcesoDelMetodo f{rsdp, {}, kVacio};
    for (std::size_t i = 0; i < f.dif.size(); ++i) {
      const double H = kAlturasContraste[i];
      f.dif[i] = Exceso(CcMetodo(rsdp, H), CcCompleta(rsdp, H));
      if (EsUsual(H)) Extiende(f.usual, f.dif[i]);
    }
    filas.push_back(f);
  }
  return filas;
}

std::vector<ExcesoDelMetodo> ExcesosNegativa() {
  // Projection ratios p at which r_sd·p is -0.05, -0.1, -0.3, -1 and -2.
  const std::array<double, 5> kP{
      {0.5, (1.0 + std::sqrt(17.0)) / 8.0, 1.0, (1.0 + std::sqrt(5.0)) / 2.0, 2.0}};
  std::vector<ExcesoDelMetodo> filas;
  for (const double p : kP) {
    ExcesoDelMetodo f{CoefAsentamiento(p) * p, {}, kVacio};
    for (std::size_t i = 0; i < f.dif.size(); ++i) {
      const double H = kAlturasContraste[i];
      for (const double Kmu : {kKmuNegativa, kKmuTerraplen}) {
        f.dif[i] = Exceso(CnMetodo(Kmu, p, H), CnCompleta(Kmu, p, H));
        if (EsUsual(H)) Extiende(f.usual, f.dif[i]);
      }
    }
    filas.push_back(f);
  }
  return filas;
}

ExcesosDePendiente CalculaExcesosDePendiente() {
  ExcesosDePendiente r{kVacio, kVacio};
  for (std::size_t i = 0; i < static_cast<std::size_t>(kDiametros); ++i) {
    const auto d = CargaDiametros().v[i];
    for (double V = kVDesde; V < kVHasta + kVPaso / 2.0; V += kVPaso) {
      const double Q = V * d.AreaLlena;
      const auto pendiente = [&](const ResultadoHidraulico& x) { return *x.filas[i].JLlena; };
      Extiende(r.prandtl, Exceso(pendiente(PrColeBrook_Caudal(Q, kKsPrandtl * 1000.0)),
                                 PendienteColebrook(d.DiamM, V, kKsPrandtl)));
      Extiende(r.darcy, Exceso(pendiente(DarcyWeiss_Caudal(Q, kKsDarcy * 1000.0)),
                               PendienteColebrook(d.DiamM, V, kKsDarcy)));
    }
  }
  return r;
}

}  // namespace zorbin
