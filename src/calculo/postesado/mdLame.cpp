#include "calculo/postesado/mdLame.h"

#include <algorithm>
#include <cmath>

namespace zorbin {

namespace {

constexpr double kPiAsp = 3.141592;       // π of the wire section; the force of a wire has another
constexpr double kBetaMax = 1.175;        // [-]
constexpr double kCorteTraccion = 500.0;  // of the two tensile strengths [kp/cm2]
constexpr std::int16_t kConCamisa = 1;    // PostFlag of a pipe with cylinder
constexpr std::int16_t kSinCamisa = 2;    // and of one without; no capture gives it

double Cuadrado(double x) {
  return x * x;
}

double MomentoInercia(const MaterialesPostesado& m, const RadiosPostesado& r, double FIPR,
                      const SeccionPostesada& s) {
  const double e = r.RadioNuc - r.RadioInt;
  const double h = r.RadioRev - r.RadioNuc;
  const double yRev = (r.RadioRev + r.RadioNuc) / 2.0 - r.RadioInt - s.yi;
  const double nucleo = e * e * e / 12.0 + Cuadrado(e / 2.0 - s.yi) * e;
  const double revestimiento = (Cuadrado(yRev) * h + h * h * h / 12.0) * m.n2;
  const double camisa = Cuadrado(r.RadioCam - r.RadioInt - s.yi) * (m.nc - 1.0) * m.Delca;
  const double alambre = Cuadrado(FIPR / 2.0 + e - s.yi) * (m.n - 1.0) * s.Asp;
  return Finito(nucleo + revestimiento + camisa + alambre);
}

void SeccionHomogeneizada(const MaterialesPostesado& m, const RadiosPostesado& r, double FIPR,
                          SeccionPostesada& s) {
  const double e = r.RadioNuc - r.RadioInt;
  const double h = r.RadioRev - r.RadioNuc;
  s.sno = e + (m.nc - 1.0) * m.Delca;
  s.yno = Div(e * e / 2.0 + (m.nc - 1.0) * (r.RadioCam - r.RadioInt) * m.Delca, s.sno);
  s.sro = (m.n - 1.0) * s.Asp + s.sno + h * m.n2;
  s.yi = Div(s.sno * s.yno + (m.n - 1.0) * s.Asp * (FIPR / 2.0 + e) +
                 h * m.n2 * ((r.RadioRev + r.RadioNuc) / 2.0 - r.RadioInt),
             s.sro);
  s.ye = e - s.yi;
  s.yr = h + s.ye;
  s.rco = r.RadioInt + s.sno;
  s.rro = s.rco + h;
  s.Io = MomentoInercia(m, r, FIPR, s);
}

void CoeficientesLame(const MaterialesPostesado& m, const RadiosPostesado& r, SeccionPostesada& s) {
  const double ri2 = r.RadioInt * r.RadioInt;
  const double rco2 = s.rco * s.rco;
  s.A = Div(2.0 * ri2, rco2 - ri2);
  s.B = s.A + 1.0;
  s.C = s.A + 2.0;
  s.Ar = Div(2.0 * rco2, s.rro * s.rro - rco2);
  s.Br = s.Ar + 1.0;
  s.Cr = Div(r.RadioNuc, s.Asp);  // the true radius, not the homogenised one
  s.k = Div(s.B, s.Br);
  s.D = Finito(m.n2 * s.B * (m.n1 * s.Br + s.Cr) + s.Br * s.Cr);
}

}  // namespace

double ModuloElastico(double fck) {
  const double beta = std::min(kBetaMax, 1.3 - fck / 4000.0);
  return Finito(39453.505 * std::pow(fck + 80.0, 1.0 / 3.0) * beta);
}

double ResistenciaTraccion(double fck) {
  if (fck <= kCorteTraccion) return Finito(0.452 * std::pow(fck, 2.0 / 3.0));
  return Finito(1.28 * std::sqrt(fck));
}

RadiosPostesado Radios(const Tramo& t) {
  RadiosPostesado r;
  r.RadioRev = Finito(t.De * 50.0);
  r.RadioInt = Finito(t.Di * 50.0);
  r.RadioCam = Finito(t.Reci * 100.0 + r.RadioInt);
  r.RadioNuc = Finito(r.RadioRev - t.Rece * 100.0);
  return r;
}

MaterialesPostesado Materiales(const Tramo& t) {
  MaterialesPostesado m;
  m.Ecno = ModuloElastico(t.Fckno);
  m.Ecn = ModuloElastico(t.Fckn);
  m.Ecr = ModuloElastico(t.Fckr);
  m.Fctn = ResistenciaTraccion(t.Fckn);
  m.Fctr = ResistenciaTraccion(t.Fckr);
  m.ni = Div(t.Ep, m.Ecno);
  m.n = Div(t.Ep, m.Ecn);
  m.n1 = Div(t.Ep, m.Ecr);
  m.n2 = Div(m.Ecr, m.Ecn);
  m.RatioChapa = Div(t.Es, m.Ecn);
  m.nc = t.PostFlag == kConCamisa ? m.RatioChapa : 0.0;
  m.Delca = t.PostFlag == kSinCamisa ? 0.0 : t.Delca;
  m.Epsc = -std::fabs(t.Epsc);
  m.Epsr = -std::fabs(t.Epsr);
  return m;
}

SeccionPostesada PropiedadesSeccion(const MaterialesPostesado& m, const RadiosPostesado& r,
                                    const Alambre& a) {
  SeccionPostesada s;
  s.Asp = a.NESP * kPiAsp * a.FIPR * a.FIPR / 4.0 / 100.0;
  SeccionHomogeneizada(m, r, a.FIPR, s);
  CoeficientesLame(m, r, s);
  return s;
}

}  // namespace zorbin
