#include "calculo/postesado/mdPerdidas.h"

#include <algorithm>
#include <cmath>

#include "calculo/postesado/mdDmen.h"

namespace zorbin {

namespace {

constexpr double kFraccionResidual = 0.6;     // of the breaking stress of the wire [-]
constexpr double kFraccionRotura = 0.85;      // of it when the pipe bursts [-]
constexpr double kObjetivoCamisa = 5.0;       // for the test of the core, with cylinder [kp/cm2]
constexpr double kObjetivoSinCamisa = -10.0;  // and without it [kp/cm2]

// One winding: what its losses are taken from.
struct Zunchado {
  const Tramo& t;
  const MaterialesPostesado& m;
  const RadiosPostesado& r;
  const SeccionPostesada& s;

  void TensionesIniciales(PerdidasPostesado& p) const {
    p.PerdElastica =
        Div(m.ni * t.Sf * (r.RadioNuc + r.RadioInt), 4.0 * s.Cr * (r.RadioNuc - r.RadioInt));
    p.SigPostElastica = t.Sf - p.PerdElastica;
    p.SigIniInt = Div(-s.C * s.Asp * p.SigPostElastica, r.RadioNuc);
    p.SigIniExt = Div(-s.B * s.Asp * p.SigPostElastica, r.RadioNuc);
    const double limite = LimiteZunchado(t.Fckno);
    p.NucleoAguanta = limite >= std::fabs(p.SigIniInt) && limite >= std::fabs(p.SigIniExt);
  }

  // Taken on the tensioning stress, not on the one after shortening.
  void RelajacionBruta(PerdidasPostesado& p) const {
    p.PerdRelajBruta = t.Rel / 100.0 * t.Sf;
    p.SigPostRelaj = p.SigPostElastica - p.PerdRelajBruta;
    p.SigPrimRelaj = Div(p.SigPostRelaj, p.SigPostElastica) * p.SigIniInt;
  }

  // Both shrinkage terms add, as the shrinkages are negative.
  void FluenciaYRetraccion(PerdidasPostesado& p) const {
    const double F = 1.0 + t.Fir;
    const double X = m.n * t.Fic * s.Asp * s.B * p.SigPostRelaj * F -
                     t.Ep * m.Epsc * F * r.RadioNuc - t.Ep * m.Epsr * m.n2 * s.k * r.RadioNuc;
    const double Y = 2.0 * r.RadioNuc * (F + m.n2 * s.k) + m.n * s.Asp * s.B * F * (2.0 + t.Fic);
    p.PerdFluRet = Div(2.0 * X, Y);
    p.PresionRev = Div(t.Ep * m.Epsr + p.PerdFluRet, m.n1 * s.Br * F);
  }

  void Residual(PerdidasPostesado& p) const {
    p.PerdRelaj = Finito((1.0 - Div(2.0 * p.PerdFluRet, t.Sf)) * p.PerdRelajBruta);
    const double libre = t.Sf - (p.PerdElastica + p.PerdRelaj + p.PerdFluRet);
    p.SigRes = Finito(std::min(libre, kFraccionResidual * t.SFck));
  }

  void TensionesFinales(PerdidasPostesado& p) const {
    const double presion = Div(s.Asp * p.SigRes, r.RadioNuc) - p.PresionRev;
    p.SigPI = -s.C * presion;
    p.SigPE = -s.B * presion;
    p.SigRI = -p.PresionRev * s.Br;
    p.SigRE = -p.PresionRev * s.Ar;
  }

  void PresionesDelNucleo(PerdidasPostesado& p) const {
    const double objetivo = t.PostFlag <= 1 ? kObjetivoCamisa : kObjetivoSinCamisa;
    const double G = m.n * s.B + s.Cr;
    p.PresPrimario = Div(-(p.SigPrimRelaj + objetivo), s.B - Div(m.n * s.A * s.C, G));
    if (t.PostFlag != 1) return;
    const double SigAlambreAgot = Div(m.n * s.A * s.Cr, G) * p.PresPrimario + p.SigPostRelaj;
    p.PresAgotamiento = Finito(p.PresPrimario + Div(m.Delca + s.Asp, r.RadioCam) *
                                                    (kFraccionRotura * t.SFck - SigAlambreAgot));
  }
};

void AnotaIniciales(const Zunchado& z, const PerdidasPostesado& p, Rastro& x) {
  const auto& [t, m, r, s] = z;
  const EnLugar lugar(&x, Apartado::Perdidas);
  x.Anota(Formula::PerdElastica, {m.ni, t.Sf, r.RadioNuc, r.RadioInt, s.Cr}, p.PerdElastica);
  x.Anota(Formula::SigPostElastica, {t.Sf, p.PerdElastica}, p.SigPostElastica);
  x.Anota(Formula::SigIniInt, {s.C, s.Asp, p.SigPostElastica, r.RadioNuc}, p.SigIniInt);
  x.Anota(Formula::SigIniExt, {s.B, s.Asp, p.SigPostElastica, r.RadioNuc}, p.SigIniExt);
  x.Anota(p.NucleoAguanta ? Formula::Aguanta : Formula::NoAguanta,
          {p.SigIniInt, p.SigIniExt, t.Fckno});
}

void AnotaPerdidas(const Zunchado& z, const PerdidasPostesado& p, Rastro& x) {
  const auto& [t, m, r, s] = z;
  const EnLugar lugar(&x, Apartado::Perdidas);
  const double F = 1.0 + t.Fir;
  const double X = m.n * t.Fic * s.Asp * s.B * p.SigPostRelaj * F - t.Ep * m.Epsc * F * r.RadioNuc -
                   t.Ep * m.Epsr * m.n2 * s.k * r.RadioNuc;
  const double Y = 2.0 * r.RadioNuc * (F + m.n2 * s.k) + m.n * s.Asp * s.B * F * (2.0 + t.Fic);
  x.Anota(Formula::PerdRelajBruta, {t.Rel, t.Sf}, p.PerdRelajBruta);
  x.Anota(Formula::SigPostRelaj, {p.SigPostElastica, p.PerdRelajBruta}, p.SigPostRelaj);
  x.Anota(Formula::SigPrimRelaj, {p.SigPostRelaj, p.SigPostElastica, p.SigIniInt}, p.SigPrimRelaj);
  x.Anota(
      Formula::FluenciaX,
      {m.n, t.Fic, s.Asp, s.B, p.SigPostRelaj, t.Fir, t.Ep, m.Epsc, r.RadioNuc, m.Epsr, m.n2, s.k},
      X);
  x.Anota(Formula::FluenciaY, {r.RadioNuc, t.Fir, m.n2, s.k, m.n, s.Asp, s.B, t.Fic}, Y);
  x.Anota(Formula::PerdFluRet, {X, Y}, p.PerdFluRet);
  x.Anota(Formula::PresionRev, {t.Ep, m.Epsr, p.PerdFluRet, m.n1, s.Br, t.Fir}, p.PresionRev);
  x.Anota(Formula::PerdRelaj, {p.PerdFluRet, t.Sf, p.PerdRelajBruta}, p.PerdRelaj);
  x.Anota(Formula::SigRes, {t.Sf, p.PerdElastica, p.PerdRelaj, p.PerdFluRet, t.SFck}, p.SigRes);
}

void AnotaFinales(const Zunchado& z, const PerdidasPostesado& p, Rastro& x) {
  const auto& [t, m, r, s] = z;
  const EnLugar lugar(&x, Apartado::TensionesFinales);
  x.Anota(Formula::SigPI, {s.C, s.Asp, p.SigRes, r.RadioNuc, p.PresionRev}, p.SigPI);
  x.Anota(Formula::SigPE, {s.B, s.Asp, p.SigRes, r.RadioNuc, p.PresionRev}, p.SigPE);
  x.Anota(Formula::SigRI, {p.PresionRev, s.Br}, p.SigRI);
  x.Anota(Formula::SigRE, {p.PresionRev, s.Ar}, p.SigRE);
  x.Anota(t.PostFlag <= 1 ? Formula::PresPrimario : Formula::PresPrimarioSin,
          {p.SigPrimRelaj, s.B, m.n, s.A, s.C, s.Cr}, p.PresPrimario);
}

void AnotaOvalizacion(const MaterialesPostesado& m, const SeccionPostesada& s, double FIPR,
                      const OvalizacionPostesada& o, double M, double N, int i, Rastro& x) {
  const EnLugar lugar(&x, Apartado::Ovalizacion, i);
  x.Anota(Formula::OvPI, {s.yi, M, s.Io, N, s.sro}, o.OvPI(i));
  x.Anota(Formula::OvPE, {s.ye, M, s.Io, N, s.sro}, o.OvPE(i));
  x.Anota(Formula::OvRI, {m.n2, s.ye, M, s.Io, N, s.sro}, o.OvRI(i));
  x.Anota(Formula::OvRE, {m.n2, s.yr, M, s.Io, N, s.sro}, o.OvRE(i));
  x.Anota(Formula::OvAc, {m.n, FIPR, s.ye, M, s.Io, N, s.sro}, o.OvAc(i));
}

void AnotaMayores(const OvalizacionPostesada& o, Rastro& x) {
  const auto mayor = [&x](PuntoPared punto, const Lista<double, kSecciones>& v, double max) {
    const EnLugar lugar(&x, Apartado::Limites);
    x.lugar.punto = punto;
    x.Anota(Formula::OvMayor, {v(CLAVE), v(RINONES), v(SOLERA)}, max);
  };
  mayor(PuntoPared::PI, o.OvPI, o.OvPImax);
  mayor(PuntoPared::PE, o.OvPE, o.OvPEmax);
  mayor(PuntoPared::RI, o.OvRI, o.OvRImax);
  mayor(PuntoPared::RE, o.OvRE, o.OvREmax);
}

}  // namespace

PerdidasPostesado PerdidasYTensiones(const Tramo& t, const MaterialesPostesado& m,
                                     const RadiosPostesado& r, const SeccionPostesada& s,
                                     Rastro* rastro) {
  const Zunchado z{t, m, r, s};
  PerdidasPostesado p;
  z.TensionesIniciales(p);
  if (rastro) AnotaIniciales(z, p, *rastro);
  if (!p.NucleoAguanta) return p;
  z.RelajacionBruta(p);
  z.FluenciaYRetraccion(p);
  z.Residual(p);
  z.TensionesFinales(p);
  z.PresionesDelNucleo(p);
  if (rastro) {
    AnotaPerdidas(z, p, *rastro);
    AnotaFinales(z, p, *rastro);
  }
  return p;
}

OvalizacionPostesada TensionesOvalizacion(const MaterialesPostesado& m, const SeccionPostesada& s,
                                          double FIPR, const Lista<double, kSecciones>& MomHip,
                                          const Lista<double, kSecciones>& AxilHip,
                                          Rastro* rastro) {
  OvalizacionPostesada o;
  for (int i = 1; i <= kSecciones; ++i) {
    const double M = MomHip(i);
    const double axil = Div(AxilHip(i), s.sro);
    o.OvAc(i) = -m.n * (Div((FIPR / 2.0 + s.ye) * M, s.Io) - axil);
    o.OvPI(i) = Div(s.yi * M, s.Io) + axil;
    const double ye = Div(s.ye * M, s.Io);
    o.OvPE(i) = -ye + axil;
    o.OvRI(i) = -m.n2 * (ye - axil);
    o.OvRE(i) = -m.n2 * (Div(s.yr * M, s.Io) - axil);
    if (rastro) AnotaOvalizacion(m, s, FIPR, o, M, AxilHip(i), i, *rastro);
  }
  o.OvPImax = Max3(o.OvPI);
  o.OvPEmax = Max3(o.OvPE);
  o.OvRImax = Max3(o.OvRI);
  o.OvREmax = Max3(o.OvRE);
  if (rastro) AnotaMayores(o, *rastro);
  return o;
}

PorPresion CoeficientesPresion(const MaterialesPostesado& m, const SeccionPostesada& s,
                               Rastro* rastro) {
  const double G = m.n1 * s.Br + s.Cr;
  PorPresion c;
  c.KPI = s.B - Div(s.C * m.n2 * s.A * G, s.D);
  c.KPE = (1.0 - Div(s.B * m.n2 * G, s.D)) * s.A;
  c.KRI = Div(s.Br * m.n2 * s.A * s.Cr, s.D);
  c.KRE = Div(s.Ar * m.n2 * s.A * s.Cr, s.D);
  c.KAc = Div(s.Cr * m.n2 * s.A * m.n1 * s.Br, s.D);
  if (rastro) {
    const EnLugar lugar(rastro, Apartado::PorPresion);
    rastro->Anota(Formula::GPresion, {m.n1, s.Br, s.Cr}, G);
    rastro->Anota(Formula::KPI, {s.B, s.C, m.n2, s.A, G, s.D}, c.KPI);
    rastro->Anota(Formula::KPE, {s.B, m.n2, G, s.D, s.A}, c.KPE);
    rastro->Anota(Formula::KRI, {s.Br, m.n2, s.A, s.Cr, s.D}, c.KRI);
    rastro->Anota(Formula::KRE, {s.Ar, m.n2, s.A, s.Cr, s.D}, c.KRE);
    rastro->Anota(Formula::KAc, {s.Cr, m.n2, s.A, m.n1, s.Br, s.D}, c.KAc);
  }
  return c;
}

}  // namespace zorbin
