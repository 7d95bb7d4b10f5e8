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

}  // namespace

Fisuracion::Fisuracion(const Tramo& t, const Esfuerzos& esfuerzos, int hipotesis,
                       CuentaVueltas& vueltas)
    : esfuerzos_(esfuerzos),
      vueltas_(vueltas),
      h_(hipotesis),
      Fct_(t.Fct),
      e_(t.Esp * 100.0),
      ri_(t.Reci * 100.0),
      re_(t.Rece * 100.0),
      controlFis_(kControlFis(t.SubTipo)) {
  if (t.TipoControl == kControlIntenso) controlFis_ -= kRebajaIntenso;
}

void Fisuracion::Comprueba(double& Ri, double& Re) {
  for (int ronda = 0; ronda < kMaxVueltas; ++ronda) {
    if (PasanTodas(Ri, Re)) return;
    tensionMax_ = 0;
  }
  throw ErrorEjecucion(CausaError::SinConvergencia, "ArmTubo");
}

Fisuracion::Homogenea Fisuracion::SeccionHomogenea(double Ri, double Re) const {
  Homogenea h{};
  h.A = (Ri + Re) * kRelacionModular + e_ * 100.0;
  h.x = Div(((e_ - re_) * Re + Ri * ri_) * kRelacionModular + e_ * 50.0 * e_, h.A);
  const double c = h.x - e_ / 2.0;
  const double bi = h.x - ri_;
  const double be = e_ - h.x - re_;
  h.I = e_ * e_ * e_ * 100.0 / 12.0 + c * c * e_ * 100.0 +
        (be * be * Re + bi * bi * Ri) * kRelacionModular;
  return h;
}

bool Fisuracion::Pasa(const Homogenea& h, double M, double N) {
  vueltas_.Suma(kVueltasDePasa);
  const double brazo = M > 0 ? h.x : e_ - h.x;
  const double Sm = Div((M > 0 ? M : -M) * brazo, h.I) * 100000.0;
  const double Sn = Div(N, h.A) * 1000.0;
  const double Sa = Div(Fct_, controlFis_ / CoefGradiente(Sm, Sn));
  const double Sx = Finito(Sn + Sm);
  if (Sa < tensionAdmMin_) tensionAdmMin_ = Sa;
  if (Sx > tensionMax_) {
    tensionMax_ = Sx;
    tensionAdm_ = Sa;
  }
  return !(Sx > Sa);
}

// Grows the steel at the first section that does not pass.
bool Fisuracion::PasanTodas(double& Ri, double& Re) {
  const Homogenea homogenea = SeccionHomogenea(Ri, Re);
  for (int s = 1; s <= kSecciones; ++s) {
    const double M = esfuerzos_.M(h_, s);
    if (Pasa(homogenea, M, esfuerzos_.N(h_, s))) continue;
    if (M >= 0) Ri = Ri + kPasoAcero;
    if (M <= 0) Re = Re + kPasoAcero;
    return false;
  }
  return true;
}

}  // namespace zorbin
