#include "calculo/armado/mdFisuracion.h"

namespace zorbin {

namespace {

constexpr double kRelacionModular = 11.0;                 // [-]
constexpr double kPasoAcero = 0.5;                        // [cm2/m]
constexpr Lista<double, 3> kControlFis{{1.5, 1.6, 1.7}};  // by SubTipo [-]
constexpr double kRebajaIntenso = 0.1;                    // of the factor under intense control [-]
constexpr std::int16_t kControlIntenso = 1;
constexpr int kVueltasDePasa = 8;  // work of a section

// Gradient coefficient by the ratio of bending to mean stress.
double CoefGradiente(double Sm, double Sn) {
  if (Sn <= 0) return 1.4;
  const double razon = Div(Sm, Sn);
  if (razon >= 10.0) return 1.4;
  if (razon <= 5.0) return 1.0 + 0.05 * Sm / Sn;
  return 1.25 + 0.03 * (razon - 5.0);
}

void AnotaGradiente(double Sm, double Sn, double Kf, Rastro& rastro) {
  if (Sn <= 0 || Sm / Sn >= 10.0) {
    rastro.Anota(Formula::KfMayor, {}, Kf);
  } else {
    rastro.Anota(Sm / Sn <= 5.0 ? Formula::KfMenor : Formula::KfMedio, {Sm, Sn}, Kf);
  }
}

}  // namespace

ParedFisuracion ParedDe(const Tramo& t) {
  ParedFisuracion p{t.Esp * 100.0, t.Reci * 100.0, t.Rece * 100.0, t.Fct, kControlFis(t.SubTipo)};
  if (t.TipoControl == kControlIntenso) p.controlFis -= kRebajaIntenso;
  return p;
}

SeccionHomogenea Homogeneiza(const ParedFisuracion& p, double Ri, double Re, Rastro* rastro) {
  SeccionHomogenea h{};
  h.A = (Ri + Re) * kRelacionModular + p.e * 100.0;
  h.x = Div(((p.e - p.re) * Re + Ri * p.ri) * kRelacionModular + p.e * 50.0 * p.e, h.A);
  const double c = h.x - p.e / 2.0;
  const double bi = h.x - p.ri;
  const double be = p.e - h.x - p.re;
  h.I = p.e * p.e * p.e * 100.0 / 12.0 + c * c * p.e * 100.0 +
        (be * be * Re + bi * bi * Ri) * kRelacionModular;
  if (rastro) {
    rastro->Anota(Formula::FisArea, {Ri, Re, p.e}, h.A);
    rastro->Anota(Formula::FisCentro, {p.e, p.re, Re, Ri, p.ri, h.A}, h.x);
    rastro->Anota(Formula::FisInercia, {p.e, h.x, p.re, Re, p.ri, Ri}, h.I);
  }
  return h;
}

TensionFisuracion TensionDeFisuracion(const ParedFisuracion& p, const SeccionHomogenea& h, double M,
                                      double N, Rastro* rastro) {
  const double brazo = M > 0 ? h.x : p.e - h.x;
  const double Sm = Div((M > 0 ? M : -M) * brazo, h.I) * 100000.0;
  const double Sn = Div(N, h.A) * 1000.0;
  const double Kf = CoefGradiente(Sm, Sn);
  const double Sa = Div(p.Fct, p.controlFis / Kf);
  const double Sx = Finito(Sn + Sm);
  if (rastro) {
    if (M > 0) {
      rastro->Anota(Formula::FisFlexionInt, {M, h.x, h.I}, Sm);
    } else {
      rastro->Anota(Formula::FisFlexionExt, {M, p.e, h.x, h.I}, Sm);
    }
    rastro->Anota(Formula::FisAxil, {N, h.A}, Sn);
    AnotaGradiente(Sm, Sn, Kf, *rastro);
    rastro->Anota(Formula::FisAdmisible, {p.Fct, p.controlFis, Kf}, Sa);
    rastro->Anota(Formula::FisTension, {Sn, Sm}, Sx);
  }
  return {Sx, Sa};
}

Fisuracion::Fisuracion(const Tramo& t, const Esfuerzos& esfuerzos, int hipotesis,
                       CuentaVueltas& vueltas, Rastro* rastro)
    : esfuerzos_(esfuerzos),
      vueltas_(vueltas),
      rastro_(rastro),
      h_(hipotesis),
      pared_(ParedDe(t)) {}

void Fisuracion::Comprueba(double& Ri, double& Re) {
  const double Ri0 = Ri;
  const double Re0 = Re;
  UltimaVuelta ultima(rastro_);
  for (int ronda = 0; ronda < kMaxVueltas; ++ronda) {
    ultima.Empieza();
    if (rastro_ && Ri != Ri0) rastro_->Anota(Formula::InteriorFisura, {Ri0, Ri - Ri0}, Ri);
    if (rastro_ && Re != Re0) rastro_->Anota(Formula::ExteriorFisura, {Re0, Re - Re0}, Re);
    if (PasanTodas(Ri, Re)) return;
    tensionMax_ = 0;
  }
  throw ErrorEjecucion(CausaError::SinConvergencia, "ArmTubo");
}

bool Fisuracion::Pasa(const SeccionHomogenea& h, double M, double N) {
  vueltas_.Suma(kVueltasDePasa);
  const auto [Sx, Sa] = TensionDeFisuracion(pared_, h, M, N, rastro_);
  if (rastro_ && Sx <= Sa) rastro_->Anota(Formula::NoFisura, {Sx, Sa});
  if (Sa < tensionAdmMin_) tensionAdmMin_ = Sa;
  if (Sx > tensionMax_) {
    tensionMax_ = Sx;
    tensionAdm_ = Sa;
  }
  return !(Sx > Sa);
}

// Grows the steel at the first section that does not pass.
bool Fisuracion::PasanTodas(double& Ri, double& Re) {
  const SeccionHomogenea homogenea = Homogeneiza(pared_, Ri, Re, rastro_);
  for (int s = 1; s <= kSecciones; ++s) {
    const EnLugar lugar(rastro_, Apartado::Fisuracion, s);
    const double M = esfuerzos_.M(h_, s);
    if (Pasa(homogenea, M, esfuerzos_.N(h_, s))) continue;
    if (M >= 0) Ri = Ri + kPasoAcero;
    if (M <= 0) Re = Re + kPasoAcero;
    return false;
  }
  return true;
}

}  // namespace zorbin
