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

}  // namespace

PerdidasPostesado PerdidasYTensiones(const Tramo& t, const MaterialesPostesado& m,
                                     const RadiosPostesado& r, const SeccionPostesada& s) {
  const Zunchado z{t, m, r, s};
  PerdidasPostesado p;
  z.TensionesIniciales(p);
  if (!p.NucleoAguanta) return p;
  z.RelajacionBruta(p);
  z.FluenciaYRetraccion(p);
  z.Residual(p);
  z.TensionesFinales(p);
  z.PresionesDelNucleo(p);
  return p;
}

OvalizacionPostesada TensionesOvalizacion(const MaterialesPostesado& m, const SeccionPostesada& s,
                                          double FIPR, const Lista<double, kSecciones>& MomHip,
                                          const Lista<double, kSecciones>& AxilHip) {
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
  }
  o.OvPImax = Max3(o.OvPI);
  o.OvPEmax = Max3(o.OvPE);
  o.OvRImax = Max3(o.OvRI);
  o.OvREmax = Max3(o.OvRE);
  return o;
}

PorPresion CoeficientesPresion(const MaterialesPostesado& m, const SeccionPostesada& s) {
  const double G = m.n1 * s.Br + s.Cr;
  PorPresion c;
  c.KPI = s.B - Div(s.C * m.n2 * s.A * G, s.D);
  c.KPE = (1.0 - Div(s.B * m.n2 * G, s.D)) * s.A;
  c.KRI = Div(s.Br * m.n2 * s.A * s.Cr, s.D);
  c.KRE = Div(s.Ar * m.n2 * s.A * s.Cr, s.D);
  c.KAc = Div(s.Cr * m.n2 * s.A * m.n1 * s.Br, s.D);
  return c;
}

}  // namespace zorbin
