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

void AnotaSeccion(const MaterialesPostesado& m, const RadiosPostesado& r, double FIPR,
                  const SeccionPostesada& s, Rastro& x) {
  const double e = r.RadioNuc - r.RadioInt;
  const double h = r.RadioRev - r.RadioNuc;
  const double ym = (r.RadioRev + r.RadioNuc) / 2.0 - r.RadioInt;
  x.Anota(Formula::ENucleo, {r.RadioNuc, r.RadioInt}, e);
  x.Anota(Formula::HRevestimiento, {r.RadioRev, r.RadioNuc}, h);
  x.Anota(Formula::Sno, {e, m.nc, m.Delca}, s.sno);
  x.Anota(Formula::Yno, {e, m.nc, r.RadioCam, r.RadioInt, m.Delca, s.sno}, s.yno);
  x.Anota(Formula::Sro, {m.n, s.Asp, s.sno, h, m.n2}, s.sro);
  x.Anota(Formula::Ym, {r.RadioRev, r.RadioNuc, r.RadioInt}, ym);
  x.Anota(Formula::Yi, {s.sno, s.yno, m.n, s.Asp, FIPR, e, h, m.n2, ym, s.sro}, s.yi);
  x.Anota(Formula::Ye, {e, s.yi}, s.ye);
  x.Anota(Formula::Yr, {h, s.ye}, s.yr);
  x.Anota(Formula::Io,
          {e, s.yi, ym, h, m.n2, r.RadioCam, r.RadioInt, m.nc, m.Delca, FIPR, m.n, s.Asp}, s.Io);
}

void AnotaLame(const MaterialesPostesado& m, const RadiosPostesado& r, const SeccionPostesada& s,
               Rastro& x) {
  const double h = r.RadioRev - r.RadioNuc;
  x.Anota(Formula::Rco, {r.RadioInt, s.sno}, s.rco);
  x.Anota(Formula::Rro, {s.rco, h}, s.rro);
  x.Anota(Formula::LameA, {r.RadioInt, s.rco}, s.A);
  x.Anota(Formula::LameB, {s.A}, s.B);
  x.Anota(Formula::LameC, {s.A}, s.C);
  x.Anota(Formula::LameAr, {s.rco, s.rro}, s.Ar);
  x.Anota(Formula::LameBr, {s.Ar}, s.Br);
  x.Anota(Formula::LameCr, {r.RadioNuc, s.Asp}, s.Cr);
  x.Anota(Formula::LameK, {s.B, s.Br}, s.k);
  x.Anota(Formula::LameD, {m.n2, s.B, m.n1, s.Br, s.Cr}, s.D);
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

double ModuloElastico(double fck, Rastro* rastro) {
  const double beta = std::min(kBetaMax, 1.3 - fck / 4000.0);
  const double E = Finito(39453.505 * std::pow(fck + 80.0, 1.0 / 3.0) * beta);
  if (rastro) {
    rastro->Anota(Formula::Beta, {fck}, beta);
    rastro->Anota(Formula::Modulo, {fck, beta}, E);
  }
  return E;
}

double ResistenciaTraccion(double fck, Rastro* rastro) {
  const bool menor = fck <= kCorteTraccion;
  const double Fct = Finito(menor ? 0.452 * std::pow(fck, 2.0 / 3.0) : 1.28 * std::sqrt(fck));
  if (rastro) rastro->Anota(menor ? Formula::FctMenor : Formula::FctMayor, {fck}, Fct);
  return Fct;
}

RadiosPostesado Radios(const Tramo& t, Rastro* rastro) {
  RadiosPostesado r;
  r.RadioRev = Finito(t.De * 50.0);
  r.RadioInt = Finito(t.Di * 50.0);
  r.RadioCam = Finito(t.Reci * 100.0 + r.RadioInt);
  r.RadioNuc = Finito(r.RadioRev - t.Rece * 100.0);
  if (rastro) {
    rastro->Anota(Formula::RadioRev, {t.De}, r.RadioRev);
    rastro->Anota(Formula::RadioInt, {t.Di}, r.RadioInt);
    rastro->Anota(Formula::RadioCam, {t.Reci, r.RadioInt}, r.RadioCam);
    rastro->Anota(Formula::RadioNuc, {r.RadioRev, t.Rece}, r.RadioNuc);
  }
  return r;
}

MaterialesPostesado Materiales(const Tramo& t, Rastro* rastro) {
  MaterialesPostesado m;
  m.Ecno = ModuloElastico(t.Fckno, rastro);
  m.Ecn = ModuloElastico(t.Fckn, rastro);
  m.Ecr = ModuloElastico(t.Fckr, rastro);
  m.Fctn = ResistenciaTraccion(t.Fckn, rastro);
  m.Fctr = ResistenciaTraccion(t.Fckr, rastro);
  m.ni = Div(t.Ep, m.Ecno);
  m.n = Div(t.Ep, m.Ecn);
  m.n1 = Div(t.Ep, m.Ecr);
  m.n2 = Div(m.Ecr, m.Ecn);
  m.RatioChapa = Div(t.Es, m.Ecn);
  m.nc = t.PostFlag == kConCamisa ? m.RatioChapa : 0.0;
  m.Delca = t.PostFlag == kSinCamisa ? 0.0 : t.Delca;
  m.Epsc = -std::fabs(t.Epsc);
  m.Epsr = -std::fabs(t.Epsr);
  if (rastro) {
    rastro->Anota(Formula::Ni, {t.Ep, m.Ecno}, m.ni);
    rastro->Anota(Formula::N, {t.Ep, m.Ecn}, m.n);
    rastro->Anota(Formula::N1, {t.Ep, m.Ecr}, m.n1);
    rastro->Anota(Formula::N2, {m.Ecr, m.Ecn}, m.n2);
    if (t.PostFlag == kConCamisa) rastro->Anota(Formula::Nc, {t.Es, m.Ecn}, m.nc);
  }
  return m;
}

SeccionPostesada PropiedadesSeccion(const MaterialesPostesado& m, const RadiosPostesado& r,
                                    const Alambre& a, Rastro* rastro) {
  SeccionPostesada s;
  s.Asp = a.NESP * kPiAsp * a.FIPR * a.FIPR / 4.0 / 100.0;
  SeccionHomogeneizada(m, r, a.FIPR, s);
  CoeficientesLame(m, r, s);
  if (rastro) {
    const EnLugar seccion(rastro, Apartado::Seccion);
    rastro->Anota(Formula::Asp, {a.NESP, a.FIPR}, s.Asp);
    AnotaSeccion(m, r, a.FIPR, s, *rastro);
    const EnLugar lame(rastro, Apartado::Lame);
    AnotaLame(m, r, s, *rastro);
  }
  return s;
}

}  // namespace zorbin
